// Whether files have changed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace proupsells::hostprogram {

// Is asked again and again. Editors write a file in several steps, or put another one in its place, so that for a moment it is half
// written or gone: a change counts when it has stood for two looks, and that a file is gone when it has for ten.
class FileChanges {
public:
    using Files = std::function<std::vector<std::filesystem::path>()>;

    // The files as they are now count as known. `files` is asked at every look.
    explicit FileChanges(Files files);

    // Whether they differ from those that were known, which they are from now on.
    bool look();

private:
    struct Trace {
        std::filesystem::path file;
        std::filesystem::file_time_type written;
        std::uintmax_t size = 0; // bytes
        bool isThere = false;

        bool operator==(const Trace&) const = default;
    };
    std::vector<Trace> traces() const;

    Files m_files;
    std::vector<Trace> m_known;
    std::vector<Trace> m_seen; // at the last look
    int m_looks = 0;           // at which they were like that
};

} // namespace proupsells::hostprogram

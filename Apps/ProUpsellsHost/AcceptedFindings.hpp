// Findings that somebody has looked at and lets be.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace proupsells::hostprogram {

// Read from { "accepted": [ { "rule": …, …, "reason": … }, … ] }. Besides the reason an entry has any of the keys that findings are
// told by, and covers every finding that has them and is the same in them. One file may serve several commands.
class AcceptedFindings {
public:
    using Keys = std::map<std::string, std::string, std::less<>>;

    // Nothing without a file. Throws InputError.
    explicit AcceptedFindings(const std::optional<std::filesystem::path>& file);

    bool covers(const Keys& finding) const;

private:
    std::vector<Keys> m_entries;
};

} // namespace proupsells::hostprogram

// Findings that somebody has looked at and lets be.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace proupsells::hostprogram {

// Read from { "accepted": [ { "rule": …, …, "reason": … }, … ] }. Besides the reason an entry has any of the keys that findings are
// told by, and covers every finding that is the same in them.
class AcceptedFindings {
public:
    using Keys = std::map<std::string, std::string, std::less<>>;

    // Nothing without a file. Throws InputError.
    AcceptedFindings(const std::optional<std::filesystem::path>& file, std::initializer_list<std::string_view> keys);

    bool covers(const Keys& finding) const;

private:
    std::vector<Keys> m_entries;
};

} // namespace proupsells::hostprogram

// What a screen was like once, in two files.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "ScreenTest/TestScreen.hpp"
#include "Tooling/ScreenTree.hpp"

namespace proupsells::screentest {

class ScreenSnapshot {
public:
    // Both files' place and name, without their endings.
    explicit ScreenSnapshot(std::filesystem::path file) : m_file(std::move(file)) {}

    // What is not as it was; absent when all is. See looksLike().
    std::optional<std::string> complaint(const TestScreen& screen) const;

private:
    std::filesystem::path treeFile(const char* middle = "") const { return ending(middle, ".screen"); }
    std::filesystem::path pictureFile(const char* middle = "") const { return ending(middle, ".png"); }
    std::filesystem::path ending(const char* middle, const char* end) const;
    bool take(const TestScreen& screen, const char* middle) const;
    std::optional<std::string> treeComplaint(const tooling::ScreenTree& tree) const;
    std::optional<std::string> pictureComplaint(const TestScreen& screen) const;

    std::filesystem::path m_file;
};

} // namespace proupsells::screentest

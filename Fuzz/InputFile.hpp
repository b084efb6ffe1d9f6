// A file that holds what is tried.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "Fuzz/Require.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::fuzz {

// In a folder of its own, which other files may stand in as well.
class InputFile {
public:
    const tests::TemporaryFolder& folder() const { return m_folder; }
    const std::filesystem::path& write(const std::uint8_t* data, std::size_t size) {
        m_folder.write(m_path.filename().string(), {reinterpret_cast<const char*>(data), size});
        return m_path;
    }
    // Whether the complaint is one line about this file, and perhaps a list below it. A file that this one names may be the one
    // that is wrong.
    void requireComplaint(const std::runtime_error& error) const {
        const std::string_view text = error.what();
        const std::string_view line = text.substr(0, text.find('\n'));
        require(text.substr(line.size()).empty() || text.substr(line.size()).starts_with("\n  "));
        const std::size_t pointer = line.find(": /");
        require(pointer != std::string_view::npos && pointer > 0);
        require(line.find(": ", pointer + 2) != std::string_view::npos && line.find(", expected ") != std::string_view::npos);
    }

private:
    tests::TemporaryFolder m_folder;
    std::filesystem::path m_path = m_folder.path() / "input.json";
};

} // namespace proupsells::fuzz

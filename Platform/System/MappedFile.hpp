// A file's bytes, read when they are looked at, where the system can do that. Files inside the program (EmbeddedFiles) need no
// reading.
#pragma once

#include <filesystem>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::system {

class PROUPSELLS_EXPORT MappedFile {
public:
    // Has no bytes where the file is empty, absent, no regular file or cannot be read.
    explicit MappedFile(const std::filesystem::path& file);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    // Good as long as this lives.
    std::string_view bytes() const { return m_bytes; }

private:
    std::string_view m_bytes;
    bool m_isEmbedded = false;
};

} // namespace proupsells::system

#include "Platform/System/MappedFile.hpp"

#include <fstream>
#include <new>
#include <system_error>

#include "Platform/System/EmbeddedFiles.hpp"

namespace proupsells::system {

// The bytes of a file are read at once and belong to this.
MappedFile::MappedFile(const std::filesystem::path& file) {
    if (const auto embedded = EmbeddedFiles::bytesOf(file)) {
        m_bytes = *embedded;
        m_isEmbedded = true;
        return;
    }
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) return;
    const auto size = std::size_t(std::filesystem::file_size(file, error));
    std::ifstream stream(file, std::ios::binary);
    if (error || size == 0 || !stream) return;
    char* const bytes = new (std::nothrow) char[size];
    if (!bytes) return;
    if (stream.read(bytes, std::streamsize(size)))
        m_bytes = {bytes, size};
    else
        delete[] bytes;
}

MappedFile::~MappedFile() {
    if (!m_isEmbedded) delete[] m_bytes.data();
}

} // namespace proupsells::system

#include "Platform/System/MappedFile.hpp"

#include <fstream>
#include <new>
#include <system_error>

namespace proupsells::system {

// The bytes are read at once and belong to this.
MappedFile::MappedFile(const std::filesystem::path& file) {
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

MappedFile::~MappedFile() { delete[] m_bytes.data(); }

} // namespace proupsells::system

#include "Platform/System/MappedFile.hpp"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Platform/System/EmbeddedFiles.hpp"

namespace proupsells::system {

MappedFile::MappedFile(const std::filesystem::path& file) {
    if (const auto embedded = EmbeddedFiles::bytesOf(file)) {
        m_bytes = *embedded;
        m_isEmbedded = true;
        return;
    }
    // Not to wait for somebody to write into a pipe.
    const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) return;
    struct stat status = {};
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0) {
        const std::size_t size = std::size_t(status.st_size);
        void* const address = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0);
        if (address != MAP_FAILED) m_bytes = {static_cast<const char*>(address), size};
    }
    close(descriptor);
}

MappedFile::~MappedFile() {
    if (!m_bytes.empty() && !m_isEmbedded) munmap(const_cast<char*>(m_bytes.data()), m_bytes.size());
}

} // namespace proupsells::system

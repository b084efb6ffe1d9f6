// Lets FFmpeg read from memory as it reads files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

struct AVIOContext;

namespace proupsells::ffmpegbackend {

// Stays where it is while it is read.
class MemoryInput {
public:
    MemoryInput() = default;
    MemoryInput(const MemoryInput&) = delete;
    MemoryInput& operator=(const MemoryInput&) = delete;

    // The bytes stay, and the input belongs to this; null where there is no memory for it.
    AVIOContext* open(std::string_view bytes);

private:
    struct Free {
        void operator()(AVIOContext* input) const;
    };

    static int read(void* self, std::uint8_t* to, int size);
    static std::int64_t seek(void* self, std::int64_t offset, int whence);

    std::string_view m_bytes;
    std::size_t m_position = 0;
    std::unique_ptr<AVIOContext, Free> m_input;
};

} // namespace proupsells::ffmpegbackend

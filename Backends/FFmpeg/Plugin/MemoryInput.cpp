#include "Backends/FFmpeg/Plugin/MemoryInput.hpp"

#include <algorithm>

extern "C" {
#include <libavformat/avio.h>
#include <libavutil/error.h>
#include <libavutil/mem.h>
}

namespace proupsells::ffmpegbackend {

void MemoryInput::Free::operator()(AVIOContext* input) const {
    // FFmpeg may have replaced the buffer that it was given.
    av_freep(&input->buffer);
    avio_context_free(&input);
}

AVIOContext* MemoryInput::open(std::string_view bytes) {
    constexpr int bufferSize = 32768; // what FFmpeg takes for files
    m_bytes = bytes;
    m_position = 0;
    auto* const buffer = static_cast<unsigned char*>(av_malloc(bufferSize));
    if (!buffer) return nullptr;
    m_input.reset(avio_alloc_context(buffer, bufferSize, 0, this, &read, nullptr, &seek));
    if (!m_input) av_free(buffer);
    return m_input.get();
}

int MemoryInput::read(void* self, std::uint8_t* to, int size) {
    auto& input = *static_cast<MemoryInput*>(self);
    if (input.m_position >= input.m_bytes.size()) return AVERROR_EOF;
    const std::string_view rest = input.m_bytes.substr(input.m_position, std::size_t(size));
    std::copy(rest.begin(), rest.end(), to);
    input.m_position += rest.size();
    return int(rest.size());
}

std::int64_t MemoryInput::seek(void* self, std::int64_t offset, int whence) {
    auto& input = *static_cast<MemoryInput*>(self);
    if (whence & AVSEEK_SIZE) return std::int64_t(input.m_bytes.size());
    // Else FFmpeg always counts from the beginning. As in files, one may go past the end, where nothing can be read.
    input.m_position = std::size_t(offset);
    return offset;
}

} // namespace proupsells::ffmpegbackend

#include "Platform/SwiftUI/Tree/ElementArena.hpp"

#include <algorithm>

#include "Platform/SwiftUI/Tree/Element.hpp"

namespace proupsells::swiftui {

namespace {
constexpr std::size_t chunkSize = 64 * 1024;
// Screens of ordinary length get by with a tenth of it. What a very long one needed besides is given back.
constexpr std::size_t keptCapacity_bytes = 1024 * 1024;
} // namespace

constinit ElementArena ElementArena::s_current;

ElementArena::~ElementArena() { reset(); }

void* ElementArena::allocateElsewhere(std::size_t size, std::size_t alignment) {
    const std::size_t next = m_next ? m_chunk + 1 : 0;
    if (next == m_chunks.size()) {
        const std::size_t length = std::max(chunkSize, size + alignment);
        m_chunks.push_back({std::make_unique_for_overwrite<std::byte[]>(length), length});
    }
    use(next);
    return allocate(size, alignment);
}

void ElementArena::use(std::size_t chunk) {
    m_chunk = chunk;
    m_next = m_chunks[chunk].bytes.get();
    m_end = m_next + m_chunks[chunk].size;
}

std::string_view ElementArena::copy(std::string_view text) {
    if (text.empty()) return {};
    char* memory = static_cast<char*>(allocate(text.size(), 1));
    std::copy(text.begin(), text.end(), memory);
    return {memory, text.size()};
}

std::size_t ElementArena::capacity_bytes() const {
    std::size_t sum = 0;
    for (const Chunk& chunk : m_chunks) sum += chunk.size;
    return sum;
}

void ElementArena::adopt(Element* element) {
    element->m_older = m_newest;
    m_newest = element;
}

void ElementArena::reset() {
    while (m_newest) {
        Element* element = m_newest;
        m_newest = element->m_older;
        element->~Element();
    }
    for (std::size_t held_bytes = capacity_bytes(); held_bytes > keptCapacity_bytes; m_chunks.pop_back())
        held_bytes -= m_chunks.back().size;
    if (!m_chunks.empty()) use(0);
    ++m_generation;
}

} // namespace proupsells::swiftui

#include "Platform/SwiftUI/Tree/ElementArena.hpp"

#include <algorithm>
#include <cstdint>

#include "Platform/SwiftUI/Tree/Element.hpp"

namespace proupsells::swiftui {

namespace {
constexpr std::size_t chunkSize = 64 * 1024;
}

ElementArena& ElementArena::current() {
    static ElementArena arena;
    return arena;
}

ElementArena::~ElementArena() { reset(); }

void* ElementArena::allocate(std::size_t size, std::size_t alignment) {
    for (; m_chunk < m_chunks.size(); ++m_chunk, m_used = 0) {
        Chunk& chunk = m_chunks[m_chunk];
        const auto base = reinterpret_cast<std::uintptr_t>(chunk.bytes.get());
        const std::size_t start = ((base + m_used + alignment - 1) & ~(alignment - 1)) - base;
        if (start + size > chunk.size) continue;
        m_used = start + size;
        return chunk.bytes.get() + start;
    }
    const std::size_t length = std::max(chunkSize, size + alignment);
    m_chunks.push_back({std::make_unique<std::byte[]>(length), length});
    m_used = 0;
    return allocate(size, alignment);
}

std::string_view ElementArena::copy(std::string_view text) {
    if (text.empty()) return {};
    char* memory = static_cast<char*>(allocate(text.size(), 1));
    std::copy(text.begin(), text.end(), memory);
    return {memory, text.size()};
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
    m_chunk = 0;
    m_used = 0;
    ++m_generation;
}

} // namespace proupsells::swiftui

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
    std::unique_ptr<Chunk>& next = m_chunk ? m_chunk->next : m_first;
    if (!next) {
        const std::size_t length = std::max(chunkSize, size + alignment);
        next = std::make_unique<Chunk>(Chunk{std::unique_ptr<std::byte[]>(new std::byte[length]), length, nullptr});
    }
    use(next.get());
    return allocate(size, alignment);
}

void ElementArena::use(Chunk* chunk) {
    m_chunk = chunk;
    m_next = chunk ? chunk->bytes.get() : nullptr;
    m_end = chunk ? m_next + chunk->size : nullptr;
}

std::string_view ElementArena::copy(std::string_view text) {
    if (text.empty()) return {};
    char* memory = static_cast<char*>(allocate(text.size(), 1));
    std::copy(text.begin(), text.end(), memory);
    return {memory, text.size()};
}

std::size_t ElementArena::capacity_bytes() const {
    std::size_t sum = 0;
    for (const Chunk* chunk = m_first.get(); chunk; chunk = chunk->next.get()) sum += chunk->size;
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
    keepAtMost(keptCapacity_bytes);
    use(m_first.get());
    ++m_generation;
}

void ElementArena::keepAtMost(std::size_t capacity_bytes) {
    std::unique_ptr<Chunk>* chunk = &m_first;
    for (std::size_t held_bytes = 0; *chunk; chunk = &(*chunk)->next) {
        held_bytes += (*chunk)->size;
        if (held_bytes > capacity_bytes) break;
    }
    // One by one: a long chain would go by recursion.
    for (auto rest = std::move(*chunk); rest;) rest = std::move(rest->next);
}

} // namespace proupsells::swiftui

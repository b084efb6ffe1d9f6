// Memory for one build's elements.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>

namespace proupsells::swiftui {

class Element;

// Elements and lists of views live here until the build that made them has ended. Then all are destroyed at once, and the memory
// is used again. A build inside a build adds to the outer one, and ends with it.
class ElementArena {
public:
    static ElementArena& current() { return s_current; }

    ~ElementArena();

    template <class Concrete, class... Arguments>
    Concrete* make(Arguments&&... arguments) {
        void* memory = allocate(sizeof(Concrete), alignof(Concrete));
        auto* element = ::new (memory) Concrete(std::forward<Arguments>(arguments)...);
        adopt(element);
        return element;
    }
    // Room for things that need no destructor.
    void* allocate(std::size_t size, std::size_t alignment) {
        std::byte* const start = m_next + (-reinterpret_cast<std::uintptr_t>(m_next) & (alignment - 1));
        if (start > m_end || size > std::size_t(m_end - start)) return allocateElsewhere(size, alignment);
        m_next = start + size;
        return start;
    }
    std::string_view copy(std::string_view text);

    // Another number each time that everything here has been destroyed.
    unsigned generation() const { return m_generation; }
    std::size_t capacity_bytes() const;

    // Lives as long as a build does.
    class Build {
    public:
        Build() { ++current().m_depth; }
        ~Build() {
            ElementArena& arena = current();
            if (--arena.m_depth == 0) arena.reset();
        }
        Build(const Build&) = delete;
    };

private:
    struct Chunk {
        std::unique_ptr<std::byte[]> bytes;
        std::size_t size = 0;
        std::unique_ptr<Chunk> next;
    };

    void* allocateElsewhere(std::size_t size, std::size_t alignment);
    void use(Chunk* chunk);
    void keepAtMost(std::size_t capacity_bytes);
    void adopt(Element* element);
    void reset();

    static ElementArena s_current;

    // A chain, because not every standard library can make a vector before the program starts.
    std::unique_ptr<Chunk> m_first;
    Chunk* m_chunk = nullptr; // the one in use; null before the first one
    // What is free in it.
    std::byte* m_next = nullptr;
    std::byte* m_end = nullptr;
    Element* m_newest = nullptr;
    unsigned m_generation = 0;
    int m_depth = 0;
};

} // namespace proupsells::swiftui

// Memory for one build's elements.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace proupsells::swiftui {

class Element;

// Elements and lists of views live here until the outermost build that made them has ended; then all are destroyed at once and
// the memory is used again. Builds nest: a build inside a build only adds.
class ElementArena {
public:
    static ElementArena& current();

    ~ElementArena();

    template <class Concrete, class... Arguments>
    Concrete* make(Arguments&&... arguments) {
        void* memory = allocate(sizeof(Concrete), alignof(Concrete));
        auto* element = ::new (memory) Concrete(std::forward<Arguments>(arguments)...);
        adopt(element);
        return element;
    }
    // Room for trivially destructible things.
    void* allocate(std::size_t size, std::size_t alignment);
    std::string_view copy(std::string_view text);

    // Changes whenever everything in the arena has been destroyed.
    unsigned generation() const { return m_generation; }
    bool isBuilding() const { return m_depth > 0; }

    // Brackets a build.
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
    };

    void adopt(Element* element);
    void reset();

    std::vector<Chunk> m_chunks;
    std::size_t m_chunk = 0;
    std::size_t m_used = 0;
    Element* m_newest = nullptr;
    unsigned m_generation = 0;
    int m_depth = 0;
};

} // namespace proupsells::swiftui

// Shaped texts, so that every text is shaped once.
#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/ShapedText.hpp"

namespace proupsells::host {

// Keeps the texts used last. Finding one allocates nothing. Emptied whenever services are installed or taken away.
class TextCache {
public:
    static constexpr std::size_t defaultCapacity = 1024;

    // The one that the view layers share; main thread only.
    static TextCache& shared();

    explicit TextCache(std::size_t capacity = defaultCapacity) : m_capacity(capacity) {}
    TextCache(const TextCache&) = delete;
    TextCache& operator=(const TextCache&) = delete;

    // The runs as the installed shaper shapes them. Stops the program when none is installed. The reference is good until the
    // next call.
    const std::shared_ptr<const graphics::ShapedText>& shaped(std::span<const graphics::StyledRun> runs, std::string_view language,
                                                              geometry::LayoutDirection direction);
    // "…" in the font, for the end of a text that is cut.
    const std::shared_ptr<const graphics::ShapedText>& ellipsis(const graphics::Font& font, std::string_view language,
                                                                geometry::LayoutDirection direction);

    void clear();
    std::size_t size() const { return m_entries.size(); }

private:
    struct Entry {
        std::size_t hash = 0;
        std::vector<graphics::StyledRun> runs;
        std::string language;
        geometry::LayoutDirection direction = geometry::LayoutDirection::leftToRight;
        std::shared_ptr<const graphics::ShapedText> text;
    };
    using Entries = std::list<Entry>; // the one used last comes first

    void removeOldest();

    std::size_t m_capacity;
    Entries m_entries;
    std::unordered_multimap<std::size_t, Entries::iterator> m_byHash;
};

// The sum of a shaped text's advances: the width of an ellipsis, for instance.
double totalAdvance(const graphics::ShapedText& text);

} // namespace proupsells::host

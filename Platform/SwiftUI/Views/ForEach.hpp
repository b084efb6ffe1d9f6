// One view for each element of a list.
#pragma once

#include <utility>
#include <vector>

#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// Views are known by their keys, so one that moves in the list keeps its state. Views with equal keys are known by their order.
class ForEach {
public:
    // `key(element)` gives a number or a text, `view(element)` the view.
    template <class Range, class KeyOf, class ViewOf>
    ForEach(const Range& range, KeyOf&& key, ViewOf&& view) {
        reserve(std::size(range));
        for (const auto& element : range) add(Key(key(element)), View(view(element)));
    }
    // 0, 1, … count - 1, which are the keys as well.
    template <class ViewOf>
    ForEach(int count, ViewOf&& view) {
        reserve(count > 0 ? std::size_t(count) : 0);
        for (int index = 0; index < count; ++index) add(Key(index), View(view(index)));
    }

    Element* makeElement() &&;

private:
    void reserve(std::size_t count);
    void add(const Key& key, const View& view);

    View* m_views = nullptr;
    std::size_t m_count = 0;
    std::size_t m_capacity = 0;
};

} // namespace proupsells::swiftui

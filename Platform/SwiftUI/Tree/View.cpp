#include "Platform/SwiftUI/Tree/View.hpp"

#include <algorithm>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells::swiftui {

void View::stopForBeingTooOld() { commons::fatalError("A View was used after the build in which it was made"); }

ViewList::ViewList(const View* views, std::size_t count) : m_count(count) {
    if (count == 0) return;
    auto* copies = static_cast<View*>(ElementArena::current().allocate(count * sizeof(View), alignof(View)));
    std::uninitialized_copy_n(views, count, copies);
    m_views = copies;
}

} // namespace proupsells::swiftui

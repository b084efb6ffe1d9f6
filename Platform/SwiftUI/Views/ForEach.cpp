#include "Platform/SwiftUI/Views/ForEach.hpp"

#include "Platform/SwiftUI/Layout/StackNode.hpp"
#include "Platform/SwiftUI/Modifiers/LifecycleModifiers.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"

namespace proupsells::swiftui {

namespace {

class ForEachNode final : public TransparentNode {
public:
    void adopt(ViewList&& views, UpdatePass& pass) { updateKeyedChildren(views, pass); }
};

} // namespace

void ForEach::reserve(std::size_t count) {
    m_capacity = count;
    if (count > 0) m_views = static_cast<View*>(ElementArena::current().allocate(count * sizeof(View), alignof(View)));
}

void ForEach::add(const Key& key, const View& view) {
    if (m_count == m_capacity) return;
    ::new (m_views + m_count++) View(id(key).modified(view));
}

Element* ForEach::makeElement() && { return newElement<ForEachNode>(ViewList::adopting(m_views, m_count)); }

} // namespace proupsells::swiftui

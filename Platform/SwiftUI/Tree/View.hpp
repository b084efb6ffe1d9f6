// The handle that every view value turns into. Turning a view made of other views into one needs BuildContext.hpp as well.
#pragma once

#include <concepts>
#include <initializer_list>
#include <memory>
#include <type_traits>
#include <vector>

#include "Platform/SwiftUI/Tree/Element.hpp"
#include "Platform/SwiftUI/Tree/ElementArena.hpp"

namespace proupsells::swiftui {

class BuildContext;
class View;

// A view made of other views.
template <class Value>
concept CompositeView = requires(const Value& value, BuildContext& context) {
    { value.body(context) } -> std::same_as<View>;
};

// A view with a node of its own kind.
template <class Value>
concept PrimitiveView = requires(Value&& value) {
    { std::move(value).makeElement() } -> std::same_as<Element*>;
};

// Good during the build in which it was made, not longer: a view value may hold one for its body, a closure that runs later must
// not (using one that is too old stops the program). A default one is an absent branch: it takes no room and keeps its slot.
class View {
public:
    View() = default;
    View(std::nullptr_t) {}
    explicit View(Element* element) : m_element(element), m_generation(ElementArena::current().generation()) {}

    template <class Value>
    requires(!std::same_as<std::remove_cvref_t<Value>, View> && PrimitiveView<std::remove_cvref_t<Value>>) View(Value&& value)
        : View(std::remove_cvref_t<Value>(std::forward<Value>(value)).makeElement()) {}

    template <class Value>
    requires(!std::same_as<std::remove_cvref_t<Value>, View> && !PrimitiveView<std::remove_cvref_t<Value>> &&
             CompositeView<std::remove_cvref_t<Value>>) View(Value&& value);

    bool isAbsent() const { return m_element == nullptr; }
    // Null for an absent branch.
    Element* element() const {
        if (m_element && m_generation != ElementArena::current().generation()) stopForBeingTooOld();
        return m_element;
    }

    // Only absent branches are known to be alike.
    bool operator==(const View& other) const { return !m_element && !other.m_element; }

private:
    [[noreturn]] static void stopForBeingTooOld();

    Element* m_element = nullptr;
    unsigned m_generation = 0;
};

// Views in the order in which a container shows them; lives as long as its views.
class ViewList {
public:
    ViewList() = default;
    ViewList(std::initializer_list<View> views) : ViewList(views.begin(), views.size()) {}
    ViewList(const std::vector<View>& views) : ViewList(views.data(), views.size()) {}
    ViewList(const View* views, std::size_t count);
    template <class Value>
    requires(!std::same_as<std::remove_cvref_t<Value>, ViewList> && std::convertible_to<Value, View>) ViewList(Value&& view)
        : ViewList({View(std::forward<Value>(view))}) {}

    // Views that are in the arena already.
    static ViewList adopting(const View* views, std::size_t count) {
        ViewList list;
        list.m_views = views;
        list.m_count = count;
        return list;
    }

    const View* begin() const { return m_views; }
    const View* end() const { return m_views + m_count; }
    std::size_t size() const { return m_count; }
    const View& operator[](std::size_t index) const { return m_views[index]; }

    bool operator==(const ViewList& other) const { return m_count == 0 && other.m_count == 0; }

private:
    const View* m_views = nullptr;
    std::size_t m_count = 0;
};

// A change to a view that is written behind it: `Text{"x"} | padding()`. `modified` wraps the view.
template <class Value>
concept ViewModifier = requires(Value&& modifier, View content) {
    { std::move(modifier).modified(content) } -> std::same_as<View>;
};

template <ViewModifier Modifier>
View operator|(View content, Modifier modifier) {
    return std::move(modifier).modified(content);
}

} // namespace proupsells::swiftui

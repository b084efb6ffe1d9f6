// A view of the retained layer as a view value of the declarative one.
//
//     struct Dots {
//         int count = 0;
//         swiftui::Binding<int> current;
//
//         using UIViewType = uikit::UIPageControl;
//         struct Coordinator { ... };                                              // may be left out
//         std::shared_ptr<Coordinator> makeCoordinator() const;                    // likewise
//         std::shared_ptr<UIViewType> makeUIView(const hosting::UIViewRepresentableContext<Dots>&) const;
//         void updateUIView(UIViewType&, const hosting::UIViewRepresentableContext<Dots>&) const;
//
//         swiftui::Element* makeElement() && { return hosting::newRepresentable(std::move(*this)); }
//     };
//
// The view is made once, when the value first comes into the tree, and brought up to date with every newer value. It is as large as
// its natural size, or as it is offered where it has none; it inherits the environment of its place as traits; touches on it are
// its own until a scroll view around it claims them.
#pragma once

#include <optional>

#include "Platform/Hosting/RepresentableNode.hpp"
#include "Platform/SwiftUI/Tree/Connection.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"

namespace proupsells::hosting {

struct NoCoordinator {};

namespace detail {
template <class Value>
concept HasCoordinator = requires(const Value& value) {
    value.makeCoordinator();
};

template <class Value>
struct CoordinatorOf {
    using Type = NoCoordinator;
};
template <HasCoordinator Value>
struct CoordinatorOf<Value> {
    using Type = typename Value::Coordinator;
};
} // namespace detail

// What the making and the updating of a view may use. Good during the call only.
template <class Value>
struct UIViewRepresentableContext {
    // Lives as long as the view; null for values that make none. Targets of control events hold it weakly.
    const std::shared_ptr<typename detail::CoordinatorOf<Value>::Type>& coordinator;
    const swiftui::EnvironmentValues& environment;
};

template <class Value>
class TypedRepresentableNode final : public RepresentableNode {
public:
    void adopt(Value&& value, swiftui::UpdatePass& pass) {
        // The coordinator has copies of the first value's bindings and actions, which must lead to the newest.
        if (isNew())
            m_value.emplace(std::move(value));
        else
            swiftui::Connection::takeOver(*m_value, std::move(value));
        if constexpr (detail::HasCoordinator<Value>)
            if (isNew()) m_coordinator = m_value->makeCoordinator();
        const UIViewRepresentableContext<Value> context{m_coordinator, *pass.environment};
        if (isNew()) {
            m_typedView = m_value->makeUIView(context);
            setView(m_typedView, pass);
        }
        adoptEnvironment(*pass.environment);
        m_value->updateUIView(*m_typedView, context);
    }

protected:
    std::string_view semanticType() const override { return swiftui::typeNameOf<Value>(); }

private:
    std::optional<Value> m_value;
    std::shared_ptr<typename detail::CoordinatorOf<Value>::Type> m_coordinator;
    std::shared_ptr<typename Value::UIViewType> m_typedView;
};

template <class Value>
swiftui::Element* newRepresentable(Value&& value) {
    return swiftui::newElement<TypedRepresentableNode<std::remove_cvref_t<Value>>>(std::forward<Value>(value));
}

} // namespace proupsells::hosting

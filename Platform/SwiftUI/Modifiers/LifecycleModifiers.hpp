// Modifiers that tell when something happens to a view.
#pragma once

#include <concepts>
#include <functional>
#include <type_traits>
#include <utility>

#include "Platform/Combine/PassthroughSubject.hpp"
#include "Platform/Combine/TimerPublisher.hpp"
#include "Platform/SwiftUI/Tree/Callback.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

struct AppearanceModifier {
    Action appear;
    Action disappear;

    View modified(View content) &&;
};
// After the layout in which the view comes on screen: enters a visible host, or is scrolled into a scroll view's viewport.
inline AppearanceModifier onAppear(Action action) { return {std::move(action), {}}; }
// When it has left the tree, the viewport or the screen.
inline AppearanceModifier onDisappear(Action action) { return {{}, std::move(action)}; }

// A value that is compared with the one of the build before.
template <class Value>
struct ChangeModifier {
    Value value;
    Callback<void(const Value& before, const Value& after)> action;

    View modified(View content) &&;
};
// After the layout that follows the change; not for the first value. The action takes (before, after) or nothing.
template <class Value, class Function>
ChangeModifier<std::decay_t<Value>> onChange(Value&& value, Function action) {
    using Held = std::decay_t<Value>;
    if constexpr (std::is_invocable_v<Function&, const Held&, const Held&>) {
        return {std::forward<Value>(value), std::move(action)};
    } else {
        return {std::forward<Value>(value), [action = std::move(action)](const Held&, const Held&) mutable { action(); }};
    }
}

// A subject by its address. It may go before the views that listen.
template <class Value>
struct SubjectSource {
    const combine::PassthroughSubject<Value>* subject = nullptr;

    combine::AnyCancellable sink(std::function<void(const Value&)> receive) const { return subject->sink(std::move(receive)); }
    bool operator==(const SubjectSource&) const = default;
};

// `Source` is comparable and has sink(); one that differs from the last build's is subscribed to anew.
template <class Source, class Value>
struct ReceiveModifier {
    Source source;
    Callback<void(const Value&)> action;
    bool isHeldByAttention = false; // of timers

    View modified(View content) &&;
};
// Subscribed from the view's first build until it leaves the tree; a rebuild does not start it again.
template <class Value>
ReceiveModifier<SubjectSource<Value>, Value> onReceive(const combine::PassthroughSubject<Value>& subject,
                                                       std::type_identity_t<Callback<void(const Value&)>> action) {
    return {{&subject}, std::move(action)};
}
// Gets the times of the ticks. The timer runs while the host is in a window; each time the host comes back it starts anew.
inline ReceiveModifier<combine::TimerPublisher, double> onReceive(const combine::TimerPublisher& timer,
                                                                  Callback<void(const double&)> action) {
    return {timer, std::move(action)};
}
// Likewise, but for the ticks while a person rests on the view, with the pointer or with the focus of the keys: by this a view
// moves that can be held.
inline ReceiveModifier<combine::TimerPublisher, double> onReceiveUnattended(const combine::TimerPublisher& timer,
                                                                            Callback<void(const double&)> action) {
    return {timer, std::move(action), true};
}

// The view inside is another one, with its own state, when the key is.
struct IdModifier {
    Key key;

    View modified(View content) &&;
};
IdModifier id(const Key& key);

namespace detail {

template <class Value>
class ChangeNode final : public ModifierNode, public PostLayoutObserver {
public:
    void adopt(ChangeModifier<Value>&& modifier, UpdatePass&) {
        if (isNew()) {
            m_shown = std::make_unique<Value>(std::move(modifier.value));
        } else if (!(modifier.value == *m_shown)) {
            if (!m_before) m_before = std::move(m_shown);
            m_shown = std::make_unique<Value>(std::move(modifier.value));
            host().addPostLayoutObserver(*this);
        }
        m_action = std::move(modifier.action);
    }
    void afterLayout() override {
        const std::unique_ptr<Value> before = std::move(m_before);
        if (before && !(*before == *m_shown)) m_action(*before, *m_shown);
    }

private:
    std::unique_ptr<Value> m_shown;
    std::unique_ptr<Value> m_before; // while a call is due
    Callback<void(const Value&, const Value&)> m_action;
};

template <class Source, class Value>
class ReceiveNode final : public ModifierNode {
public:
    void adopt(ReceiveModifier<Source, Value>&& modifier, UpdatePass&) {
        const bool isOther = isNew() || !(modifier.source == m_source);
        m_source = std::move(modifier.source);
        m_action = std::move(modifier.action);
        if (isOther) m_subscription = m_source.sink([this](const Value& value) { m_action(value); });
    }

private:
    Source m_source;
    Callback<void(const Value&)> m_action;
    combine::AnyCancellable m_subscription;
};

class TimerNode final : public ModifierNode {
public:
    void adopt(ReceiveModifier<combine::TimerPublisher, double>&& modifier, UpdatePass& pass);

private:
    void followWindow();

    combine::TimerPublisher m_timer;
    Callback<void(const double&)> m_action;
    bool m_isHeldByAttention = false;
    combine::AnyCancellable m_windowChanges;
    combine::AnyCancellable m_ticks; // empty while the host is in no window
};

} // namespace detail

template <class Value>
View ChangeModifier<Value>::modified(View content) && {
    return newModifier<detail::ChangeNode<Value>>(std::move(*this), content);
}
template <class Source, class Value>
View ReceiveModifier<Source, Value>::modified(View content) && {
    using NodeType =
        std::conditional_t<std::same_as<Source, combine::TimerPublisher>, detail::TimerNode, detail::ReceiveNode<Source, Value>>;
    return newModifier<NodeType>(std::move(*this), content);
}

} // namespace proupsells::swiftui

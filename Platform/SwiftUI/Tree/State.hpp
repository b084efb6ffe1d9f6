// View-owned values and two-way connections to values.
#pragma once

#include <concepts>
#include <memory>
#include <utility>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/SwiftUI/Tree/Callback.hpp"
#include "Platform/SwiftUI/Tree/TypeKey.hpp"

namespace proupsells::swiftui {

class CompositeNode;

// One value that a composite's node keeps from build to build. May outlive its node; writes then go unnoticed.
class StateSlotBase {
public:
    virtual ~StateSlotBase() = default;
    virtual TypeKey type() const = 0;
    void detach() { m_owner = nullptr; }

protected:
    friend class CompositeNode;
    // The owner's views are built again, by the animation in force.
    void announceChange() const;

    CompositeNode* m_owner = nullptr;
};

template <class Value>
class StateSlot final : public StateSlotBase {
public:
    explicit StateSlot(Value initial) : m_value(std::move(initial)) {}

    TypeKey type() const override { return typeKey<Value>(); }
    const Value& get() const { return m_value; }
    // A value equal to the old one changes nothing.
    void set(Value value) {
        if constexpr (std::equality_comparable<Value>)
            if (value == m_value) return;
        m_value = std::move(value);
        announceChange();
    }

private:
    Value m_value;
};

// A value that somebody else owns, to be read and written. Two bindings are equal when the values that they had when they were
// made are. Copies are cheap as far as the value is.
template <class Value>
class Binding {
public:
    explicit Binding(std::shared_ptr<StateSlot<Value>> slot) : m_slot(std::move(slot)), m_snapshot(m_slot->get()) {}
    Binding(Callback<Value()> get, Callback<void(const Value&)> set)
        : m_get(std::move(get)), m_set(std::move(set)), m_snapshot(m_get()) {}

    // Always `value`; writes go nowhere.
    static Binding constant(Value value) {
        return Binding([value] { return value; }, [](const Value&) {});
    }

    // The value at this moment.
    Value get() const { return m_slot ? m_slot->get() : m_get ? m_get() : m_snapshot; }
    void set(Value value) const {
        if (m_slot)
            m_slot->set(std::move(value));
        else if (m_set)
            m_set(value);
    }
    // A binding to something derived from the value.
    template <class Derived>
    Binding<Derived> map(Callback<Derived(const Value&)> read, Callback<Value(const Derived&)> write) const {
        return Binding<Derived>([source = *this, read = std::move(read)] { return read(source.get()); },
                                [source = *this, write = std::move(write)](const Derived& value) { source.set(write(value)); });
    }

    bool operator==(const Binding& other) const { return m_snapshot == other.m_snapshot; }

private:
    std::shared_ptr<StateSlot<Value>> m_slot;
    Callback<Value()> m_get;
    Callback<void(const Value&)> m_set;
    Value m_snapshot;
};

} // namespace proupsells::swiftui

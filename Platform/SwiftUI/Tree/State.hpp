// View-owned values and two-way connections to values.
#pragma once

#include <concepts>
#include <memory>
#include <type_traits>
#include <utility>

#include "Platform/SwiftUI/Tree/Callback.hpp"
#include "Platform/SwiftUI/Tree/TypeKey.hpp"

namespace proupsells::swiftui {

class CompositeNode;

// Where a value is kept that views read and write.
template <class Value>
class ValuePlace : public Connection::Target {
public:
    virtual Value get() const = 0;
    virtual void set(Value value) = 0;
};

// One value that a composite's node keeps from build to build. It may outlive its node; then nobody is told of changes.
class StateSlotBase {
public:
    virtual ~StateSlotBase() = default;
    virtual TypeKey type() const = 0;
    void detach() { m_owner = nullptr; }

protected:
    friend class CompositeNode;
    // The owner's views are built again. The changes are shown by the animation in force now.
    void announceChange() const;

    CompositeNode* m_owner = nullptr;
};

template <class Value>
class StateSlot final : public StateSlotBase, public ValuePlace<Value> {
public:
    explicit StateSlot(Value initial) : m_value(std::move(initial)) {}

    TypeKey type() const override { return typeKey<Value>(); }
    Value get() const override { return m_value; }
    // A value equal to the old one changes nothing.
    void set(Value value) override {
        if constexpr (std::equality_comparable<Value>)
            if (value == m_value) return;
        m_value = std::move(value);
        announceChange();
    }

private:
    Value m_value;
};

// A value that somebody else owns, to be read and written; see Connection for what copies do. Two bindings are equal when the
// values that they had when they were made are: a view that is given a binding to another place of the same value looks the same.
template <class Value>
class Binding : public Connection {
public:
    explicit Binding(const std::shared_ptr<ValuePlace<Value>>& place) : Connection(place), m_snapshot(place->get()) {}
    template <class Get, class Set>
    requires(std::is_invocable_r_v<Value, Get&>&& std::is_invocable_v<Set&, const Value&>) Binding(Get get, Set set)
        : Binding(std::make_shared<Functions<Get, Set>>(std::move(get), std::move(set))) {}

    // Always `value`; writes go nowhere.
    static Binding constant(Value value) {
        return Binding([value] { return value; }, [](const Value&) {});
    }

    // The value at this moment.
    Value get() const {
        const auto place = target();
        return place ? static_cast<const ValuePlace<Value>&>(*place).get() : m_snapshot;
    }
    void set(Value value) const {
        if (const auto place = target()) static_cast<ValuePlace<Value>&>(*place).set(std::move(value));
    }
    // A binding to something derived from the value.
    template <class Derived, class Read, class Write>
    Binding<Derived> map(Read read, Write write) const {
        return Binding<Derived>([source = *this, read = std::move(read)] { return read(source.get()); },
                                [source = *this, write = std::move(write)](const Derived& value) { source.set(write(value)); });
    }

    bool operator==(const Binding& newer) const {
        meet(newer);
        return m_snapshot == newer.m_snapshot;
    }

private:
    template <class Get, class Set>
    class Functions final : public ValuePlace<Value> {
    public:
        Functions(Get get, Set set) : m_get(std::move(get)), m_set(std::move(set)) {}
        Value get() const override { return m_get(); }
        void set(Value value) override { m_set(std::as_const(value)); }

    private:
        mutable Get m_get;
        Set m_set;
    };

    Value m_snapshot;
};

} // namespace proupsells::swiftui

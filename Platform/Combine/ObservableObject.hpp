// Objects that announce their changes, and the fields that make them do so.
#pragma once

#include <utility>

#include "Platform/Combine/PassthroughSubject.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::combine {

// The announcement of a change; which field it is of is not said.
struct WillChange {};

// Base of every observed model. `objectWillChange` sends before each change of a published field.
class PROUPSELLS_EXPORT ObservableObject {
public:
    ObservableObject() = default;
    ObservableObject(const ObservableObject&) = delete;
    ObservableObject& operator=(const ObservableObject&) = delete;
    virtual ~ObservableObject() = default;

    // Sends before each change; the fields still have their old values then.
    PassthroughSubject<WillChange> objectWillChange;
};

// A field whose writes are announced by its owner before they take effect, also when the new value equals the old one.
template <class Value>
class Published {
public:
    // A field of `owner`, which must live longer.
    explicit Published(ObservableObject& owner, Value initial = {}) : m_owner(owner), m_value(std::move(initial)) {}
    Published(const Published&) = delete;

    // The value; good until the next write.
    const Value& get() const { return m_value; }
    operator const Value&() const { return m_value; }
    const Value* operator->() const { return &m_value; }

    // Announces the change, then writes.
    void set(Value value) {
        m_owner.objectWillChange.send({});
        m_value = std::move(value);
    }
    Published& operator=(Value value) {
        set(std::move(value));
        return *this;
    }

private:
    ObservableObject& m_owner;
    Value m_value;
};

} // namespace proupsells::combine

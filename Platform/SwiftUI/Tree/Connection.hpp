// What callbacks and bindings have in common: a view keeps one to reach something that it does not own.
#pragma once

#include <concepts>
#include <memory>
#include <utility>

namespace proupsells::swiftui {

// A copy reaches what the original reaches. A node that takes over a newer value of its view also takes the copies along: they
// reach what the newer value reaches, wherever they are by then. That is why a body need not be evaluated again when only
// actions have changed. Every other assignment leaves earlier copies alone.
class Connection {
public:
    // Puts `newer` in the place of `held`, together with the copies of the callbacks and bindings inside. Returns whether the two
    // were equal; values without == never are.
    template <class Value>
    static bool takeOver(Value& held, Value&& newer) {
        const TakeOver scope;
        bool isSame = false;
        if constexpr (std::equality_comparable<Value>) isSame = held == newer;
        held = std::forward<Value>(newer);
        return isSame;
    }

    // What is reached in the end: a function, or the place of a value.
    class Target {
    public:
        virtual ~Target() = default;

    private:
        friend class Connection;
        bool m_isRelay = false;
    };

protected:
    Connection() = default;
    explicit Connection(std::shared_ptr<Target> target) : m_target(std::move(target)) {}
    Connection(const Connection& other) : m_target(other.relay()) {}
    Connection(Connection&& other) noexcept = default;
    Connection& operator=(const Connection& other);
    Connection& operator=(Connection&& other) noexcept;
    ~Connection() = default;

    // Null for an empty connection. Whoever calls into it keeps the pointer, since the call may lead to another take-over.
    std::shared_ptr<Target> target() const;
    // A part of ==. During a take-over the held value is compared with the newer one, which pairs their connections, also those
    // inside lists.
    void meet(const Connection& newer) const {
        if (s_isTakingOver) newer.takeCopiesOf(*this);
    }

private:
    struct Relay;
    struct TakeOver {
        TakeOver() : wasTakingOver(std::exchange(s_isTakingOver, true)) {}
        ~TakeOver() { s_isTakingOver = wasTakingOver; }
        TakeOver(const TakeOver&) = delete;
        bool wasTakingOver;
    };

    std::shared_ptr<Target> relay() const;
    void takeCopiesOf(const Connection& older) const;
    bool leadsTo(const Target& relay) const;

    inline static bool s_isTakingOver = false;

    std::shared_ptr<Target> m_target;       // or a relay of the connection that this one is a copy of
    mutable std::shared_ptr<Relay> m_relay; // what copies lead to; null before the first copy
};

} // namespace proupsells::swiftui

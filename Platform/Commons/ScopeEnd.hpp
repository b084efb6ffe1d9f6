// What happens at the end of a scope, which may be an exception of the host's that passes through.
#pragma once

#include <exception>
#include <utility>

namespace proupsells::commons {

// Does something at the end of its scope, however that comes. The action must not throw.
template <class Action>
class Finally {
public:
    explicit Finally(Action action) : m_action(std::move(action)) {} // taken over
    ~Finally() { m_action(); }
    Finally(const Finally&) = delete;
    Finally& operator=(const Finally&) = delete;

private:
    Action m_action;
};

// Does something when its scope is left by an exception, and nothing otherwise. Nothing is caught, so a debugger still sees where
// the exception came from. The action must not throw.
template <class Action>
class OnException {
public:
    explicit OnException(Action action) : m_action(std::move(action)) {} // taken over
    ~OnException() {
        if (std::uncaught_exceptions() > m_count) m_action();
    }
    OnException(const OnException&) = delete;
    OnException& operator=(const OnException&) = delete;

private:
    Action m_action;
    int m_count = std::uncaught_exceptions();
};

} // namespace proupsells::commons

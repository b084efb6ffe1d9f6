// Whether something is so, and why not.
#pragma once

#include <ostream>
#include <string>
#include <utility>

namespace proupsells::screentest {

// What GoogleTest makes of a bool.
template <class Type>
concept AssertionWithMessage = requires(Type assertion, std::string message) {
    assertion.failure_message();
    assertion << message;
};

// Tests take it as it is, and print why: `EXPECT_TRUE(screen.tap("subscribe"))` with GoogleTest, `CHECK(screen.tap("subscribe"))`
// with Catch2, `if (const auto tapped = screen.tap("subscribe"); !tapped) fail(tapped.message())` without either.
class [[nodiscard]] Verdict {
public:
    // It is so.
    static Verdict holds() { return Verdict(true, {}); }
    // It is not, for the reason that the message says.
    static Verdict fails(std::string message) { return Verdict(false, std::move(message)); }

    // Whether it is so.
    explicit operator bool() const { return m_holds; }
    // What is not so, and the screen that was looked at; empty when all holds.
    const std::string& message() const { return m_message; }

    // GoogleTest's result, with the message.
    template <AssertionWithMessage Assertion>
    operator Assertion() const {
        return Assertion(m_holds) << m_message;
    }

    friend std::ostream& operator<<(std::ostream& stream, const Verdict& verdict) {
        return stream << (verdict.m_holds ? "holds" : verdict.m_message);
    }

private:
    Verdict(bool holds, std::string message) : m_holds(holds), m_message(std::move(message)) {}

    bool m_holds;
    std::string m_message;
};

} // namespace proupsells::screentest

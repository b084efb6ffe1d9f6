// What a test expects of a screen.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "Platform/System/Compiler.hpp"
#include "ScreenTest/TestScreen.hpp"
#include "Tooling/ScreenAudit.hpp"

namespace proupsells::screentest {

// For EXPECT_THAT(screen, shows("Subscribe Now")) of GoogleMock and REQUIRE_THAT(...) of Catch2; check() without either. What does
// not hold is told with the whole screen.
class PROUPSELLS_EXPORT ScreenMatcher {
public:
    // Says why the screen does not match; absent when it does.
    using Complaint = std::function<std::optional<std::string>(const TestScreen& screen)>;

    // The description says what is expected, such as `shows "Close"`.
    ScreenMatcher(std::string description, Complaint complaint);

    // With the screen in the message.
    Verdict check(const TestScreen& screen) const;

    // What GoogleMock asks for.
    using is_gtest_matcher = void;
    bool MatchAndExplain(const TestScreen& screen, std::ostream* explanation) const;
    void DescribeTo(std::ostream* stream) const { *stream << m_description; }
    void DescribeNegationTo(std::ostream* stream) const { *stream << "not: " << m_description; }

    // What Catch2 asks for. The description has the last complaint.
    bool match(const TestScreen& screen) const;
    std::string toString() const;

private:
    std::string m_description;
    Complaint m_complaint;
    mutable std::string m_lastComplaint;
};

// Whether it is so; for tests without a framework of matchers.
inline Verdict check(const TestScreen& screen, const ScreenMatcher& matcher) { return matcher.check(screen); }

// Something of it can be seen, or nothing. `what` is an identifier, a label, a whole text, or what a person calls a control.
PROUPSELLS_EXPORT ScreenMatcher shows(std::string what);
PROUPSELLS_EXPORT ScreenMatcher hides(std::string what);
// The one control that is meant is checked: a radio button, such as a plan.
PROUPSELLS_EXPORT ScreenMatcher isChecked(std::string what);
// A screen reader says this line: `button "Close"`.
PROUPSELLS_EXPORT ScreenMatcher says(std::string line);

// What an audit looks at. Unless told otherwise it holds screens to what WCAG 2.2 asks at level AA; with a `leastTarget` of 44 also
// to what a finger wants.
struct AuditScope {
    tooling::AuditOptions options{.leastTarget = 24}; // the appearance is the screen's
    std::vector<tooling::AuditRule> accepted{};       // rules that may be broken
    std::vector<std::string> acceptedControls{};      // identifiers of what may break any rule
    bool steers = false;                              // also goes through the screen by keys, which moves what can be scrolled
};
// Nothing is wrong with the screen, as it is read, as it is painted, and as it is told.
PROUPSELLS_EXPORT ScreenMatcher passesAudit(AuditScope scope = {});

// The screen is what it was when the snapshot was taken: `file` with the endings ".screen", its tree, and ".png". Trees are
// compared first, and told by what has changed; pixels second, and told by the node that they belong to. A snapshot that is not
// there, or all while the environment has PROUPSELLS_TAKE_SNAPSHOTS=1, are taken instead; one that was not there fails once. What
// is seen in place of it stands beside it then, with ".now" before the endings.
PROUPSELLS_EXPORT ScreenMatcher looksLike(std::filesystem::path file);

} // namespace proupsells::screentest

#include "Tooling/ScreenAudit.hpp"

namespace proupsells::tooling {

namespace {

struct RuleWords {
    std::string_view name, advice;
};

// In the order of the rules.
constexpr RuleWords ruleWords[] = {
    {"truncated", "Let the text have more lines or more room."},
    {"broken word", "Give the word a line of its own, make it smaller, or shorten the text."},
    {"outside", "Let the text wrap before the edge of the screen."},
    {"unreachable", "Put it into a scroll view that is long enough for it."},
    {"overlapping", "Let one of the texts make room for the other."},
    {"small control", "Make the control 24 x 24 points, or keep others away from it."},
    {"small target", "Make the control 44 x 44 points; what is touched may be larger than what is seen."},
    {"untranslated", "Look the text up with localizedString(), so that it gets onto the list for translators."},
    {"faint", "Choose colours that stand out by 4.5:1, or put something between the text and the picture."},
    {"unknown colour", "Take a colour of the design system."},
    {"fixed size", "Take a font that grows with the text size."},
    {"no name", "Give the control an accessibility label in the person's language."},
    {"doubled name", "Say in each name what its control is about."},
    {"no identifier", "Give the control an accessibility identifier."},
    {"doubled identifier", "Give each control an identifier of its own."},
    {"identifier of a language", "Make the identifier of something that no translation changes."},
    {"wrong role", "Tell the control as what it does: button, link, radio button, disclosure or pager."},
    {"wrong state", "Tell the state that the control has now, and the new one when it changes."},
    {"no keyboard", "Let the keys stop at the control."},
    {"hidden focus", "Scroll the control into sight when it takes the focus."},
    {"invisible focus", "Paint a ring around the control in focus."},
};
static_assert(std::size(ruleWords) == auditRuleCount);

} // namespace

std::string_view nameOf(AuditRule rule) { return ruleWords[static_cast<std::size_t>(rule)].name; }
std::string_view adviceOf(AuditRule rule) { return ruleWords[static_cast<std::size_t>(rule)].advice; }

} // namespace proupsells::tooling

#include "ScreenTest/ScreenMatchers.hpp"

#include <algorithm>
#include <sstream>

#include "Platform/Accessibility/Search.hpp"
#include "ScreenTest/AuditedScreen.hpp"
#include "ScreenTest/ScreenSnapshot.hpp"
#include "Tooling/Quoted.hpp"

namespace proupsells::screentest {

using accessibility::SemanticNode;

namespace {

std::vector<const SemanticNode*> nodesMeant(const SemanticNode& root, const std::string& what) {
    auto found = accessibility::findAllByIdentifier(root, what);
    const auto add = [&](const std::vector<const SemanticNode*>& more) { found.insert(found.end(), more.begin(), more.end()); };
    add(accessibility::controlsNamed(root, what));
    add(accessibility::findAllByText(root, what));
    return found;
}

bool isSeen(const SemanticNode* node) { return node->isOnScreen; }

std::string lines(const std::vector<std::string>& all) {
    std::string result;
    for (const std::string& line : all) result += "\n  " + line;
    return result;
}

} // namespace

ScreenMatcher::ScreenMatcher(std::string description, Complaint complaint)
    : m_description(std::move(description)), m_complaint(std::move(complaint)) {}

Verdict ScreenMatcher::check(const TestScreen& screen) const {
    const auto complaint = m_complaint(screen);
    if (!complaint) return Verdict::holds();
    std::ostringstream message;
    message << "expected: " << m_description << "\n" << *complaint << "\n" << screen;
    return Verdict::fails(message.str());
}

bool ScreenMatcher::MatchAndExplain(const TestScreen& screen, std::ostream* explanation) const {
    const auto complaint = m_complaint(screen);
    if (complaint && explanation) *explanation << *complaint;
    return !complaint;
}

bool ScreenMatcher::match(const TestScreen& screen) const {
    m_lastComplaint = m_complaint(screen).value_or("");
    return m_lastComplaint.empty();
}

std::string ScreenMatcher::toString() const { return m_description + (m_lastComplaint.empty() ? "" : ": " + m_lastComplaint); }

ScreenMatcher shows(std::string what) {
    return {"shows " + tooling::inQuotes(what), [what](const TestScreen& screen) -> std::optional<std::string> {
                const SemanticNode root = screen.tree();
                const auto found = nodesMeant(root, what);
                if (found.empty()) return "nothing has this identifier, label or text";
                if (std::none_of(found.begin(), found.end(), isSeen)) return "it is there, and out of sight";
                return std::nullopt;
            }};
}

ScreenMatcher hides(std::string what) {
    return {"hides " + tooling::inQuotes(what), [what](const TestScreen& screen) -> std::optional<std::string> {
                const SemanticNode root = screen.tree();
                const auto found = nodesMeant(root, what);
                if (std::any_of(found.begin(), found.end(), isSeen)) return "it can be seen";
                return std::nullopt;
            }};
}

ScreenMatcher isChecked(std::string what) {
    return {"has " + tooling::inQuotes(what) + " checked", [what](const TestScreen& screen) -> std::optional<std::string> {
                const SemanticNode root = screen.tree();
                auto found = nodesMeant(root, what);
                std::erase_if(found, [](const SemanticNode* node) { return !node->spoken.isChecked; });
                if (found.size() != 1) return std::to_string(found.size()) + " controls of the kind have this identifier or name";
                if (!*found.front()->spoken.isChecked) return "it is not checked";
                return std::nullopt;
            }};
}

ScreenMatcher says(std::string line) {
    return {"says " + line, [line](const TestScreen& screen) -> std::optional<std::string> {
                const auto told = screen.read();
                const auto isLine = [&](const std::string& each) { return each.substr(each.find_first_not_of(' ')) == line; };
                if (std::any_of(told.begin(), told.end(), isLine)) return std::nullopt;
                return "what is said is:" + lines(told);
            }};
}

ScreenMatcher passesAudit(AuditScope scope) {
    return {"passes the audit", [scope = std::move(scope)](const TestScreen& screen) -> std::optional<std::string> {
                const auto findings = audited(screen, scope);
                if (findings.empty()) return std::nullopt;
                std::vector<std::string> told;
                for (const tooling::Finding& finding : findings)
                    told.push_back(std::string(nameOf(finding.rule)) + ": " + finding.detail + ". " +
                                   std::string(adviceOf(finding.rule)));
                return "there is something wrong:" + lines(told);
            }};
}

ScreenMatcher looksLike(std::filesystem::path file) {
    return {"looks like the snapshot", [file = std::move(file)](const TestScreen& screen) -> std::optional<std::string> {
                return ScreenSnapshot(file).complaint(screen);
            }};
}

} // namespace proupsells::screentest

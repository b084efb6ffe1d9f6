#include <algorithm>
#include <map>

#include "Tooling/Quoted.hpp"
#include "Tooling/ScreenAudit.hpp"
#include "Tooling/SpokenScreen.hpp"

namespace proupsells::tooling {

using accessibility::ReadingElement;
using accessibility::Role;

namespace {

bool isContainer(Role role) { return role == Role::dialog || role == Role::group || role == Role::radioGroup; }

class ReadingAuditor {
public:
    ReadingAuditor(const ReadingElement& reading, const AuditOptions& options)
        : m_elements(accessibility::elementsOf(reading)), m_options(options) {}

    std::vector<Finding> findings() {
        for (const ReadingElement* element : m_elements) {
            holdTranslated(*element);
            holdNamed(*element);
            holdRole(*element);
            holdState(*element);
        }
        holdApart();
        std::stable_sort(m_findings.begin(), m_findings.end(), [](const Finding& a, const Finding& b) { return a.rule < b.rule; });
        return std::move(m_findings);
    }

private:
    void add(AuditRule rule, const ReadingElement& element, const std::string& what) {
        m_findings.push_back({rule, "", what, element.identifier});
    }

    void holdTranslated(const ReadingElement& element) {
        if (!m_options.pseudoLanguage) return;
        for (const std::string& text : {element.name, element.value})
            if (!isPseudoTranslated(text, *m_options.pseudoLanguage))
                add(AuditRule::untranslated, element, element.identifier + " " + inQuotes(text) + " is spoken in English");
    }

    void holdNamed(const ReadingElement& element) {
        const bool needsName = element.isOperable() || element.role == Role::dialog || element.role == Role::radioGroup;
        if (needsName && element.name.empty()) add(AuditRule::noName, element, described(element) + " has no name");
        if (element.isOperable() && element.identifier.empty())
            add(AuditRule::noIdentifier, element, described(element) + " has no identifier");
    }

    void holdRole(const ReadingElement& element) {
        const bool isPlain = element.role == Role::text || element.role == Role::heading || element.role == Role::image;
        if (element.activate && (isPlain || isContainer(element.role)))
            add(AuditRule::wrongRole, element, described(element) + " can be pressed");
        const bool isToPress = element.role == Role::button || element.role == Role::link || element.role == Role::radioButton ||
                               element.role == Role::disclosure;
        if (isToPress && !element.activate && !element.isDisabled && element.id != 0)
            add(AuditRule::wrongRole, element, described(element) + " cannot be pressed, and is not disabled");
        if (element.role == Role::pager && !element.adjust && !element.isDisabled)
            add(AuditRule::wrongRole, element, described(element) + " cannot be turned, and is not disabled");
    }

    void holdState(const ReadingElement& element) {
        if (element.role == Role::radioButton && !element.isChecked)
            add(AuditRule::wrongState, element, described(element) + " does not say whether it is checked");
        if (element.role == Role::disclosure && !element.isExpanded)
            add(AuditRule::wrongState, element, described(element) + " does not say whether it is open");
        if (element.role == Role::pager && (element.position < 1 || element.position > element.count))
            add(AuditRule::wrongState, element, described(element) + " does not say which page of how many is shown");
        if (element.role != Role::radioGroup) return;
        const auto checked = std::count_if(element.children.begin(), element.children.end(),
                                           [](const ReadingElement& each) { return each.isChecked.value_or(false); });
        if (!element.children.empty() && checked != 1)
            add(AuditRule::wrongState, element, described(element) + " has " + std::to_string(checked) + " checked radio buttons");
    }

    void holdApart() {
        std::map<std::string, const ReadingElement*> byName, byIdentifier;
        for (const ReadingElement* element : m_elements) {
            if (!element->isOperable()) continue;
            const std::string name = std::string(nameOf(element->role)) + " " + element->name;
            if (!element->name.empty() && !byName.emplace(name, element).second)
                add(AuditRule::doubledName, *element, described(*element) + " sounds like " + byName[name]->identifier);
            if (!element->identifier.empty() && !byIdentifier.emplace(element->identifier, element).second)
                add(AuditRule::doubledIdentifier, *element,
                    described(*element) + " has the identifier of " + inQuotes(byIdentifier[element->identifier]->name));
        }
    }

    static std::string described(const ReadingElement& element) {
        return std::string(nameOf(element.role)) + (element.identifier.empty() ? "" : " " + element.identifier) + " " +
               inQuotes(element.name);
    }

    std::vector<const ReadingElement*> m_elements;
    const AuditOptions& m_options;
    std::vector<Finding> m_findings;
};

} // namespace

std::vector<Finding> audit(const ReadingElement& reading, const AuditOptions& options) {
    return ReadingAuditor(reading, options).findings();
}

} // namespace proupsells::tooling

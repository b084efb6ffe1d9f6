#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"

#include <cmath>
#include <cstdio>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

namespace {

std::uint64_t nextActivation() {
    static std::uint64_t last = 0;
    return ++last;
}

std::string_view nameOf(NSLayoutAttribute attribute) {
    constexpr std::string_view names[] = {"left", "right",  "leading", "trailing", "centerX",
                                          "top",  "bottom", "centerY", "width",    "height"};
    return names[std::size_t(attribute)];
}

std::string_view nameOf(NSLayoutRelation relation) {
    constexpr std::string_view names[] = {"<=", "=", ">="};
    return names[std::size_t(relation)];
}

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

std::string describe(const LayoutTerm& term) {
    const UIView* view = term.item->view;
    std::string text = !view                                   ? std::string("(gone)")
                       : view->accessibilityIdentifier.empty() ? std::string(view->typeName())
                                                               : view->accessibilityIdentifier;
    if (term.isOfSafeArea) text += ".safeArea";
    return text.append(".").append(nameOf(term.attribute));
}

} // namespace

std::shared_ptr<NSLayoutConstraint> makeLayoutConstraint(const LayoutTerm& first, NSLayoutRelation relation,
                                                         const LayoutTerm& second, double multiplier, double constant) {
    return std::make_shared<NSLayoutConstraint>(NSLayoutConstraint::Creation{}, first, relation, second, multiplier, constant);
}

NSLayoutConstraint::NSLayoutConstraint(Creation, LayoutTerm first, NSLayoutRelation relation, LayoutTerm second, double multiplier,
                                       double constant)
    : m_first(std::move(first)), m_second(std::move(second)), m_relation(relation), m_multiplier(multiplier), m_constant(constant) {
}

// --- Holding ---

UIView& NSLayoutConstraint::nearestHolder() const {
    UIView* holder = m_first.item->view;
    const UIView* other = m_second.item ? m_second.item->view : holder;
    if (!holder || !other) commons::fatalError("NSLayoutConstraint: a view of " + description() + " has gone");
    while (holder && !other->isDescendantOf(*holder)) holder = holder->superview();
    if (!holder) commons::fatalError("NSLayoutConstraint: there is no view around both views of " + description());
    return *holder;
}

bool NSLayoutConstraint::involves(const UIView& view) const {
    const auto isInside = [&](const LayoutTerm& term) {
        return term.item && (!term.item->view || term.item->view->isDescendantOf(view));
    };
    return isInside(m_first) || isInside(m_second);
}

void NSLayoutConstraint::setActive(bool active) {
    if (isActive() == active) return;
    if (active) {
        UIView& holder = nearestHolder();
        m_holder = holder.layoutItem();
        m_activation = nextActivation();
        holder.m_constraints.push_back(shared_from_this());
        holder.layoutSystemDidChange();
    } else {
        const auto kept = shared_from_this();
        UIView& holder = *m_holder->view;
        m_holder.reset();
        std::erase(holder.m_constraints, kept);
        holder.layoutSystemDidChange();
    }
    m_isBroken = false;
}

void NSLayoutConstraint::activate(const std::vector<std::shared_ptr<NSLayoutConstraint>>& constraints) {
    for (const auto& constraint : constraints) constraint->setActive(true);
}

void NSLayoutConstraint::deactivate(const std::vector<std::shared_ptr<NSLayoutConstraint>>& constraints) {
    for (const auto& constraint : constraints) constraint->setActive(false);
}

// --- Properties ---

void NSLayoutConstraint::noteChange() {
    m_isBroken = false;
    if (isActive()) m_holder->view->layoutSystemDidChange();
}

void NSLayoutConstraint::setConstant(double constant) {
    if (m_constant == constant) return;
    m_constant = constant;
    noteChange();
}

void NSLayoutConstraint::setPriority(UILayoutPriority priority) {
    if (m_priority == priority) return;
    m_priority = priority;
    noteChange();
}

std::shared_ptr<NSLayoutConstraint> NSLayoutConstraint::withPriority(UILayoutPriority priority) {
    setPriority(priority);
    return shared_from_this();
}

std::shared_ptr<NSLayoutConstraint> NSLayoutConstraint::withIdentifier(std::string identifier) {
    m_identifier = std::move(identifier);
    return shared_from_this();
}

std::string NSLayoutConstraint::description() const {
    if (!m_identifier.empty()) return m_identifier;
    std::string text = describe(m_first).append(" ").append(nameOf(m_relation)).append(" ");
    if (!m_second.item) return text + number(m_constant);
    if (m_multiplier != 1) text += number(m_multiplier) + " * ";
    text += describe(m_second);
    if (m_constant != 0) text += (m_constant < 0 ? " - " : " + ") + number(std::abs(m_constant));
    return text;
}

} // namespace proupsells::uikit

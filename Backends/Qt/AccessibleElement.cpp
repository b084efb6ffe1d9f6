#include "Backends/Qt/AccessibleElement.hpp"

#include <QWindow>
#include <utility>

#include "Backends/Qt/QtAccessibility.hpp"
#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Format.hpp"

namespace proupsells::qtbackend {

using accessibility::ReadingElement;
using accessibility::Role;

namespace {

QString scrollAction() { return QStringLiteral("Scroll into view"); }

} // namespace

AccessibleElement::AccessibleElement(QtAccessibility& owner, AccessibleElement* parent, ReadingElement told)
    : m_owner(owner), m_parent(parent), m_told(std::move(told)) {
    m_elements.fill(owner, this, std::exchange(m_told.children, {}));
}

void AccessibleElement::become(ReadingElement told) {
    m_elements.adopt(m_owner, this, std::exchange(told.children, {}));
    const QString formerDescription = description();
    const ReadingElement former = std::exchange(m_told, std::move(told));
    if (former.name != m_told.name) tell(QAccessible::NameChanged);
    if (formerDescription != description()) tell(QAccessible::DescriptionChanged);
    if (hasPages() && former.position != m_told.position) tellPage();
    if (former.frame != m_told.frame) tell(QAccessible::LocationChanged);
    if (former.isChecked != m_told.isChecked) tellChange([](QAccessible::State& state) { state.checked = true; });
    if (former.isExpanded != m_told.isExpanded) tellChange([](QAccessible::State& state) { state.expanded = true; });
    if (former.isDisabled != m_told.isDisabled) tellChange([](QAccessible::State& state) { state.disabled = true; });
    if (former.isBusy != m_told.isBusy) tellChange([](QAccessible::State& state) { state.busy = true; });
    if (former.isOnScreen != m_told.isOnScreen) tellChange([](QAccessible::State& state) { state.offscreen = true; });
}

void AccessibleElement::tell(QAccessible::Event type) {
    QAccessibleEvent event(this, type);
    m_owner.tell(event);
}

void AccessibleElement::tellPage() {
    QAccessibleValueChangeEvent event(this, m_told.position);
    m_owner.tell(event);
}

// One state an event: Qt's bridges look no further than the first that they know.
void AccessibleElement::tellChange(void (*mark)(QAccessible::State&)) {
    QAccessible::State changed;
    mark(changed);
    QAccessibleStateChangeEvent event(this, changed);
    m_owner.tell(event);
}

QWindow* AccessibleElement::window() const { return m_owner.place().window(); }

QAccessibleInterface* AccessibleElement::parent() const { return m_parent ? m_parent : m_owner.root(); }

QAccessibleInterface* AccessibleElement::focusChild() const {
    QAccessibleInterface* const focused = m_owner.focused();
    for (QAccessibleInterface* around = focused; around; around = around->parent())
        if (around == this) return focused;
    return nullptr;
}

bool AccessibleElement::hasPages() const { return m_told.role == Role::pager && m_told.count > 0; }

// Qt has no other place for what is neither name nor number.
QString AccessibleElement::description() const {
    QStringList parts;
    if (!m_told.value.empty() && !hasPages()) parts.append(QString::fromStdString(m_told.value));
    if (m_told.role == Role::radioButton && m_told.count > 0) {
        const std::string& sentence = foundation::localizedString(
            "%1$@ of %2$@", "Spoken place of a choice among others: which one it is and how many there are");
        const std::string place = foundation::format(sentence, {std::to_string(m_told.position), std::to_string(m_told.count)});
        parts.append(QString::fromStdString(place));
    }
    return parts.join(QStringLiteral(", "));
}

QString AccessibleElement::text(QAccessible::Text text) const {
    switch (text) {
    case QAccessible::Name: return QString::fromStdString(m_told.name);
    case QAccessible::Value: return QString::fromStdString(m_told.value);
    case QAccessible::Description: return description();
    case QAccessible::DebugDescription: return QString::fromStdString(m_told.identifier);
    default: return {};
    }
}

QRect AccessibleElement::rect() const { return m_owner.onDisplay(m_told.frame); }

QAccessible::Role AccessibleElement::role() const {
    switch (m_told.role) {
    case Role::dialog: return QAccessible::Dialog;
    case Role::group:
    case Role::radioGroup: return QAccessible::Grouping;
    case Role::heading: return QAccessible::Heading;
    case Role::image: return QAccessible::Graphic;
    case Role::button:
    case Role::disclosure: return QAccessible::Button;
    case Role::link: return QAccessible::Link;
    case Role::radioButton: return QAccessible::RadioButton;
    case Role::pager: return QAccessible::Slider;
    case Role::text:
    case Role::unstated: break;
    }
    return QAccessible::StaticText;
}

QAccessible::State AccessibleElement::state() const {
    QAccessible::State state;
    state.disabled = m_told.isDisabled;
    state.busy = m_told.isBusy;
    state.checkable = m_told.isChecked.has_value();
    state.checked = m_told.isChecked.value_or(false);
    state.expandable = m_told.isExpanded.has_value();
    state.expanded = m_told.isExpanded.value_or(false);
    state.collapsed = state.expandable && !state.expanded;
    state.focusable = m_told.focus || m_told.role == Role::dialog;
    state.active = m_told.role == Role::dialog && window() && window()->isActive();
    state.focused = m_owner.focused() == this;
    state.readOnly = !m_told.isOperable() && m_elements.count() == 0;
    state.offscreen = !m_told.isOnScreen;
    return state;
}

void* AccessibleElement::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    if (type == QAccessible::ValueInterface && hasPages()) return static_cast<QAccessibleValueInterface*>(this);
    return nullptr;
}

QStringList AccessibleElement::actionNames() const {
    QStringList names;
    if (m_told.activate) names.append(pressAction());
    if (m_told.adjust) names.append({increaseAction(), decreaseAction()});
    if (m_told.focus) names.append(setFocusAction());
    if (m_told.revealWhole) names.append(scrollAction());
    return names;
}

void AccessibleElement::doAction(const QString& name) {
    if (!actionNames().contains(name)) return;
    // A copy, because the action may change the screen and this element with it.
    const ReadingElement told = m_told;
    if (name == scrollAction()) return told.revealWhole();
    if (name == setFocusAction()) {
        m_owner.place().takeFocus();
        return told.focus();
    }
    if (!told.isOnScreen && told.reveal) told.reveal();
    if (name == pressAction()) told.activate();
    if (name == increaseAction()) told.adjust(1);
    if (name == decreaseAction()) told.adjust(-1);
}

// Step by step, for that is all that a pager can do. The steps are those of what was told, whatever they change.
void AccessibleElement::setCurrentValue(const QVariant& value) {
    const auto adjust = m_told.adjust;
    if (!adjust) return;
    const int wanted = std::clamp(value.toInt(), 1, m_told.count);
    const int steps = wanted - m_told.position, direction = steps < 0 ? -1 : 1;
    for (int step = 0; step != steps; step += direction) adjust(direction);
}

} // namespace proupsells::qtbackend

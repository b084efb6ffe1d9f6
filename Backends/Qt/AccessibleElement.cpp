#include "Backends/Qt/AccessibleElement.hpp"

#include <cmath>

#include "Backends/Qt/QtAccessibility.hpp"

namespace proupsells::qtbackend {

using accessibility::contains;
using accessibility::SemanticNode;
using accessibility::Traits;

void AccessibleElement::become(SemanticNode node) {
    if (!m_owner) return;
    const SemanticNode former = std::exchange(m_node, std::move(node));
    const auto tell = [this](QAccessible::Event type) {
        QAccessibleEvent event(this, type);
        m_owner->tell(event);
    };
    if (former.label != m_node.label) tell(QAccessible::NameChanged);
    if (former.value != m_node.value) tell(QAccessible::ValueChanged);
    if (former.frame != m_node.frame) tell(QAccessible::LocationChanged);
    const bool wasSelected = contains(former.traits, Traits::selected), wasDisabled = contains(former.traits, Traits::disabled);
    const bool isSelected = contains(m_node.traits, Traits::selected), isDisabled = contains(m_node.traits, Traits::disabled);
    if (wasSelected != isSelected || wasDisabled != isDisabled) {
        QAccessible::State changed;
        changed.selected = wasSelected != isSelected;
        changed.disabled = wasDisabled != isDisabled;
        QAccessibleStateChangeEvent event(this, changed);
        m_owner->tell(event);
    }
}

QWindow* AccessibleElement::window() const { return m_owner ? m_owner->place().window() : nullptr; }

QAccessibleInterface* AccessibleElement::parent() const { return m_owner ? m_owner->root() : nullptr; }

QString AccessibleElement::text(QAccessible::Text text) const {
    switch (text) {
    case QAccessible::Name: return QString::fromStdString(m_node.label);
    case QAccessible::Value: return QString::fromStdString(m_node.value);
    case QAccessible::DebugDescription: return QString::fromStdString(m_node.identifier);
    default: return {};
    }
}

QRect AccessibleElement::rect() const {
    if (!m_owner) return {};
    const geometry::Rect& frame = m_node.frame;
    const QPoint topLeft(int(std::lround(frame.minX())), int(std::lround(frame.minY())));
    const QSize size(int(std::lround(frame.width())), int(std::lround(frame.height())));
    return {m_owner->place().frame().topLeft() + topLeft, size};
}

QAccessible::Role AccessibleElement::role() const {
    if (contains(m_node.traits, Traits::link)) return QAccessible::Link;
    if (contains(m_node.traits, Traits::button)) return QAccessible::Button;
    if (contains(m_node.traits, Traits::adjustable)) return QAccessible::Slider;
    if (m_node.isControl) return QAccessible::Button;
    if (contains(m_node.traits, Traits::header)) return QAccessible::Heading;
    if (contains(m_node.traits, Traits::image) || (!m_node.image.empty() && !m_node.text)) return QAccessible::Graphic;
    return QAccessible::StaticText;
}

QAccessible::State AccessibleElement::state() const {
    QAccessible::State state;
    state.invalid = !m_owner;
    state.disabled = contains(m_node.traits, Traits::disabled);
    state.selectable = m_node.isControl;
    state.selected = contains(m_node.traits, Traits::selected);
    state.focusable = m_node.isControl && !state.disabled;
    state.readOnly = !m_node.isControl;
    state.offscreen = !m_node.isOnScreen;
    return state;
}

void* AccessibleElement::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList AccessibleElement::actionNames() const {
    QStringList names;
    if (m_node.activate) names.push_back(pressAction());
    if (m_node.adjust) names.append({increaseAction(), decreaseAction()});
    return names;
}

void AccessibleElement::doAction(const QString& name) {
    // Copies, because the action may change the screen and this element with it.
    if (!m_owner) return;
    const SemanticNode node = m_node;
    if (!node.isOnScreen && node.reveal) node.reveal();
    if (name == pressAction() && node.activate) node.activate();
    if (name == increaseAction() && node.adjust) node.adjust(1);
    if (name == decreaseAction() && node.adjust) node.adjust(-1);
}

} // namespace proupsells::qtbackend

#include "Backends/Qt/AccessibleRoot.hpp"

#include <QWindow>

#include "Backends/Qt/AccessibleElement.hpp"
#include "Backends/Qt/QtAccessibility.hpp"

namespace proupsells::qtbackend {

AccessibleRoot::AccessibleRoot(QtAccessibility& owner) : QAccessibleObject(&owner.place().object()), m_owner(&owner) {}

QWindow* AccessibleRoot::window() const { return m_owner ? m_owner->place().window() : nullptr; }

QAccessibleInterface* AccessibleRoot::parent() const { return m_owner ? m_owner->place().parent() : nullptr; }

QAccessibleInterface* AccessibleRoot::child(int index) const { return m_owner ? m_owner->elements().at(index) : nullptr; }

QAccessibleInterface* AccessibleRoot::childAt(int x, int y) const {
    return m_owner ? m_owner->elements().at(QPoint(x, y)) : nullptr;
}

int AccessibleRoot::childCount() const { return m_owner ? m_owner->elements().count() : 0; }

int AccessibleRoot::indexOfChild(const QAccessibleInterface* child) const {
    return m_owner ? m_owner->elements().indexOf(child) : -1;
}

QAccessibleInterface* AccessibleRoot::focusChild() const { return m_owner ? m_owner->focused() : nullptr; }

QString AccessibleRoot::text(QAccessible::Text text) const {
    return m_owner && text == QAccessible::Name ? m_owner->place().name() : QString();
}

QRect AccessibleRoot::rect() const {
    if (!m_owner) return {};
    const QSize size = m_owner->place().frame().size();
    return m_owner->onDisplay({{0, 0}, {double(size.width()), double(size.height())}});
}

QAccessible::Role AccessibleRoot::role() const { return m_owner ? m_owner->place().role() : QAccessible::NoRole; }

QAccessible::State AccessibleRoot::state() const {
    QAccessible::State state;
    state.active = m_owner && m_owner->place().window() && m_owner->place().window()->isActive();
    state.invisible = !m_owner || !m_owner->place().isVisible();
    return state;
}

} // namespace proupsells::qtbackend

#include "Backends/Qt/AccessibleRoot.hpp"

#include <QWindow>

#include "Backends/Qt/AccessibleElement.hpp"
#include "Backends/Qt/QtAccessibility.hpp"

namespace proupsells::qtbackend {

AccessibleRoot::AccessibleRoot(QtAccessibility& owner) : QAccessibleObject(&owner.place().object()), m_owner(owner) {}

QWindow* AccessibleRoot::window() const { return m_owner.place().window(); }

QAccessibleInterface* AccessibleRoot::parent() const { return m_owner.place().parent(); }

QAccessibleInterface* AccessibleRoot::child(int index) const { return m_owner.elements().at(index); }

QAccessibleInterface* AccessibleRoot::childAt(int x, int y) const { return m_owner.elements().at(QPoint(x, y)); }

int AccessibleRoot::childCount() const { return m_owner.elements().count(); }

int AccessibleRoot::indexOfChild(const QAccessibleInterface* child) const { return m_owner.elements().indexOf(child); }

QAccessibleInterface* AccessibleRoot::focusChild() const { return m_owner.focused(); }

QString AccessibleRoot::text(QAccessible::Text text) const {
    return text == QAccessible::Name ? m_owner.place().name() : QString();
}

QRect AccessibleRoot::rect() const {
    const QSize size = m_owner.place().frame().size();
    return m_owner.onDisplay({{0, 0}, {double(size.width()), double(size.height())}});
}

QAccessible::Role AccessibleRoot::role() const { return m_owner.place().role(); }

QAccessible::State AccessibleRoot::state() const {
    QAccessible::State state;
    state.active = window() && window()->isActive();
    state.invisible = !m_owner.place().isVisible();
    return state;
}

} // namespace proupsells::qtbackend

// The window, widget or item around what is told, for screen readers.
#pragma once

#include <QAccessibleObject>

namespace proupsells::qtbackend {

class QtAccessibility;

class AccessibleRoot final : public QAccessibleObject {
public:
    explicit AccessibleRoot(QtAccessibility& owner);

    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text text) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

private:
    QtAccessibility& m_owner;
};

} // namespace proupsells::qtbackend

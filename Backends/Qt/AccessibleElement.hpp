// One text, image or control, for screen readers.
#pragma once

#include <QtGui/qaccessible.h>

#include "Platform/Accessibility/SemanticNode.hpp"

namespace proupsells::qtbackend {

class QtAccessibility;

class AccessibleElement final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleElement(QtAccessibility& owner, accessibility::SemanticNode node) : m_owner(&owner), m_node(std::move(node)) {}

    const accessibility::SemanticNode& node() const { return m_node; }
    // Takes over what the element has become, and tells those who listen.
    void become(accessibility::SemanticNode node);
    // The owner is gone; a screen reader may hold on to the element a little longer.
    void detach() { m_owner = nullptr; }

    bool isValid() const override { return m_owner != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QtAccessibility* m_owner;
    accessibility::SemanticNode m_node;
};

} // namespace proupsells::qtbackend

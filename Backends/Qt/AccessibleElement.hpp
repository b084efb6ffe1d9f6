// One thing that is told of a screen, with what stands in it, for screen readers.
#pragma once

#include <QtGui/qaccessible.h>

#include "Backends/Qt/ElementList.hpp"
#include "Platform/Accessibility/Reading.hpp"

namespace proupsells::qtbackend {

class QtAccessibility;

class AccessibleElement final : public QAccessibleInterface, public QAccessibleActionInterface, public QAccessibleValueInterface {
public:
    // `parent` is null for what stands in the root.
    AccessibleElement(QtAccessibility& owner, AccessibleElement* parent, accessibility::ReadingElement told);
    ~AccessibleElement() override { m_elements.clear(); }
    AccessibleElement(const AccessibleElement&) = delete;
    AccessibleElement& operator=(const AccessibleElement&) = delete;

    // Without what stands in it.
    const accessibility::ReadingElement& told() const { return m_told; }
    const ElementList& elements() const { return m_elements; }
    // Takes over what the element has become, and tells those who listen.
    void become(accessibility::ReadingElement told);

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override { return m_elements.at(index); }
    QAccessibleInterface* childAt(int x, int y) const override { return m_elements.at(QPoint(x, y)); }
    int childCount() const override { return m_elements.count(); }
    int indexOfChild(const QAccessibleInterface* child) const override { return m_elements.indexOf(child); }
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    // The page of a pager, from 1.
    QVariant currentValue() const override { return m_told.position; }
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override { return m_told.count; }
    QVariant minimumValue() const override { return 1; }
    QVariant minimumStepSize() const override { return 1; }

private:
    bool hasPages() const;
    QString description() const;
    void tell(QAccessible::Event type);
    void tellPage();
    void tellChange(void (*mark)(QAccessible::State&));

    QtAccessibility& m_owner;
    AccessibleElement* m_parent;
    accessibility::ReadingElement m_told;
    ElementList m_elements;
};

} // namespace proupsells::qtbackend

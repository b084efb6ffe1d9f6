// What stands in a dialog, a group or the root, in the order in which it is told.
#pragma once

#include <QtGui/qaccessible.h>
#include <vector>

#include "Platform/Accessibility/Reading.hpp"

namespace proupsells::qtbackend {

class AccessibleElement;
class QtAccessibility;

class ElementList {
public:
    ElementList() = default;
    ElementList(const ElementList&) = delete;
    ElementList& operator=(const ElementList&) = delete;

    int count() const { return int(m_elements.size()); }
    // Null where there is none.
    AccessibleElement* at(int index) const;
    // The last one told of those that can be seen there; null for none.
    AccessibleElement* at(QPoint place) const;
    // -1 for what is not among them.
    int indexOf(const QAccessibleInterface* element) const;
    // The one that is told to have the focus, here or further inside; null for none.
    AccessibleElement* focused() const;

    // Makes an element of each, before anybody knows of them. `parent` is null for the root.
    void fill(QtAccessibility& owner, AccessibleElement* parent, std::vector<accessibility::ReadingElement> told);
    // Takes over what is told now, and tells of what has come, gone or changed. What is still there keeps its object, so that a
    // screen reader keeps its place.
    void adopt(QtAccessibility& owner, AccessibleElement* parent, std::vector<accessibility::ReadingElement> told);
    // Lets go of them. Without that Qt's registry keeps them.
    void clear();

private:
    std::vector<AccessibleElement*> take(const std::vector<accessibility::ReadingElement>& told) const;
    void dropAllBut(QtAccessibility& owner, const std::vector<AccessibleElement*>& kept);
    void order(QtAccessibility& owner, const std::vector<AccessibleElement*>& kept);

    std::vector<AccessibleElement*> m_elements; // owned by Qt's registry
};

} // namespace proupsells::qtbackend

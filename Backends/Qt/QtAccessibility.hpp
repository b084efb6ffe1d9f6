// What a window shows, for screen readers.
#pragma once

#include <QtGui/qaccessible.h>
#include <functional>
#include <memory>

#include "Backends/Qt/AccessiblePlace.hpp"
#include "Backends/Qt/ElementList.hpp"
#include "Platform/Host/WindowContent.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::qtbackend {

class AccessibleElement;

// Whoever reads the screen aloud or steers it; Qt's bridge to them, unless a test listens.
struct PROUPSELLS_EXPORT AccessibilityListener {
    std::function<bool()> isThere = [] { return QAccessible::isActive(); };
    std::function<void(QAccessibleEvent&)> tell = &tellAssistiveTechnology;

    // Over AT-SPI, what Qt's bridge leaves out or spoils goes round it; see AtspiSignals.
    static void tellAssistiveTechnology(QAccessibleEvent& event);
};

// Where a frame, in Qt's units, is in pixels on a display of so many to a unit. The display's own corner has the same place in
// both.
PROUPSELLS_EXPORT QRect pixelsOf(const geometry::Rect& frame, QPoint corner, double scale);

// Offers what is told of the content under the window, widget or item that shows it. Reads the content only while somebody listens.
// The content must live longer.
class PROUPSELLS_EXPORT QtAccessibility {
public:
    QtAccessibility(std::unique_ptr<AccessiblePlace> place, host::WindowContent& content, AccessibilityListener listener = {});
    // In a window of its own.
    QtAccessibility(QWindow& window, host::WindowContent& content, AccessibilityListener listener = {});
    ~QtAccessibility();
    QtAccessibility(const QtAccessibility&) = delete;
    QtAccessibility& operator=(const QtAccessibility&) = delete;

    // The window, widget or item as an accessible object; owned by Qt.
    QAccessibleInterface* root();
    // To be called when the picture is made anew; not all that is told can be seen.
    void update();
    // To be called when the focus has come into the window, widget or item, or has left it, and when that is shown or hidden. Tells
    // of it once Qt has told its own.
    void updateLater();

    AccessiblePlace& place() const { return *m_place; }
    void tell(QAccessibleEvent& event) { m_listener.tell(event); }
    // The dialog; none while nothing is shown.
    const ElementList& elements();
    // The element that keys operate, or the dialog while they operate none, as last read. Null while keys go somewhere else, and
    // before the dialog stands.
    AccessibleElement* focused() const;
    // Where a rectangle of the content, in points, is on the display: in the units of whoever listens.
    QRect onDisplay(const geometry::Rect& frame) const;

private:
    static QAccessibleInterface* makeRoot(const QString& className, QObject* object);
    std::vector<accessibility::ReadingElement> told();
    void tellFocus();

    std::unique_ptr<AccessiblePlace> m_place;
    host::WindowContent& m_content;
    AccessibilityListener m_listener;
    QAccessibleInterface* m_root = nullptr;
    ElementList m_elements;
    bool m_isRead = false;
    QAccessible::Id m_toldFocus = 0; // of the element that was last told to have the focus; 0 for none
};

} // namespace proupsells::qtbackend

// What a window shows, for screen readers.
#pragma once

#include <QtGui/qaccessible.h>
#include <functional>
#include <vector>

#include "Platform/Host/WindowContent.hpp"

class QWindow;

namespace proupsells::qtbackend {

class AccessibleElement;

// Whoever reads the screen aloud or steers it; Qt's bridge to them, unless a test listens.
struct AccessibilityListener {
    std::function<bool()> isThere = [] { return QAccessible::isActive(); };
    std::function<void(QAccessibleEvent*)> tell = [](QAccessibleEvent* event) { QAccessible::updateAccessibility(event); };
};

// Offers the content's texts, images and controls as a flat list under the window. Reads the semantic tree only while
// somebody listens.
class QtAccessibility {
public:
    QtAccessibility(QWindow& window, host::WindowContent& content, AccessibilityListener listener = {});
    ~QtAccessibility();
    QtAccessibility(const QtAccessibility&) = delete;
    QtAccessibility& operator=(const QtAccessibility&) = delete;

    // The window as an accessible object; owned by Qt.
    QAccessibleInterface* root();
    // To be called when the picture has changed.
    void update();

    QWindow& window() const { return m_window; }
    void tell(QAccessibleEvent& event) { m_listener.tell(&event); }
    const std::vector<AccessibleElement*>& elements();

private:
    void adopt(std::vector<accessibility::SemanticNode> nodes);

    QWindow& m_window;
    host::WindowContent& m_content;
    AccessibilityListener m_listener;
    QAccessibleInterface* m_root = nullptr;
    std::vector<AccessibleElement*> m_elements; // owned by Qt's registry
    bool m_isRead = false;
};

} // namespace proupsells::qtbackend

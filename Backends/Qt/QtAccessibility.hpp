// What a window shows, for screen readers.
#pragma once

#include <QtGui/qaccessible.h>
#include <functional>
#include <memory>
#include <vector>

#include "Backends/Qt/AccessiblePlace.hpp"
#include "Platform/Host/WindowContent.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::qtbackend {

class AccessibleElement;

// Whoever reads the screen aloud or steers it; Qt's bridge to them, unless a test listens.
struct AccessibilityListener {
    std::function<bool()> isThere = [] { return QAccessible::isActive(); };
    std::function<void(QAccessibleEvent*)> tell = [](QAccessibleEvent* event) { QAccessible::updateAccessibility(event); };
};

// Offers the content's texts, images and controls as a flat list under the window, widget or item that shows it. Reads the semantic
// tree only while somebody listens. The content must live longer.
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
    // To be called when the picture has changed.
    void update();

    const AccessiblePlace& place() const { return *m_place; }
    void tell(QAccessibleEvent& event) { m_listener.tell(&event); }
    const std::vector<AccessibleElement*>& elements();

private:
    static QAccessibleInterface* makeRoot(const QString& className, QObject* object);
    void adopt(std::vector<accessibility::SemanticNode> nodes);

    std::unique_ptr<AccessiblePlace> m_place;
    host::WindowContent& m_content;
    AccessibilityListener m_listener;
    QAccessibleInterface* m_root = nullptr;
    std::vector<AccessibleElement*> m_elements; // owned by Qt's registry
    bool m_isRead = false;
};

} // namespace proupsells::qtbackend

// Where a content stands among Qt's objects, for assistive technology.
#pragma once

#include <QtGui/qaccessible.h>

class QWindow;

namespace proupsells::qtbackend {

class AccessiblePlace {
public:
    virtual ~AccessiblePlace() = default;

    // The window, widget or item that shows the content.
    virtual QObject& object() const = 0;
    // Null while it stands in none.
    virtual QWindow* window() const = 0;
    virtual QAccessibleInterface* parent() const = 0;
    virtual QAccessible::Role role() const = 0;
    virtual QString name() const = 0;
    // On the screen, in Qt's units.
    virtual QRect frame() const = 0;
    virtual bool isVisible() const = 0;
    // Whether keys come to it.
    virtual bool hasFocus() const = 0;
    virtual void takeFocus() = 0;
};

} // namespace proupsells::qtbackend

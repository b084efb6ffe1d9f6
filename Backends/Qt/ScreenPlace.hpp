// Where a screen stands among the host's own widgets or items.
#pragma once

#include <QRegion>

#include "Backends/Qt/AccessiblePlace.hpp"
#include "Backends/Qt/SystemTraits.hpp"

namespace proupsells::qtbackend {

class ScreenPlace : public AccessiblePlace {
public:
    QAccessible::Role role() const final { return QAccessible::Client; }

    // In Qt's units, which are the screen's points.
    virtual geometry::Size size() const = 0;
    // Pixels a unit.
    virtual double scale() const = 0;
    virtual SystemTraits systemTraits() const = 0;
    // The picture has changed there, in Qt's units.
    virtual void update(const QRegion& damage) = 0;
    // The mouse, which rests there, shows a hand, or no longer does.
    virtual void showHand(bool shows) = 0;
};

} // namespace proupsells::qtbackend

// Displays of different scales, and what a content looks like at a scale.
#pragma once

#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QImage>
#include <QMouseEvent>
#include <QScreen>
#include <cmath>
#include <memory>

#include "Backends/Raster/RasterSurface.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/Qt/Events.hpp"

namespace proupsells::tests {

inline constexpr QSize paywallSize{375, 800};
inline constexpr double changesOfScale[] = {2.0, 1.5, 1.0, 1.25, 2.0, 1.0};

inline std::shared_ptr<VelaProUpsellViewController> newPaywall() {
    using Type = SubscriptionOption::SubscriptionType;
    return VelaProUpsellViewController::create({SubscriptionOption{"pro.yearly", Type::Yearly{"$99.99", "$8.33"}, false},
                                                SubscriptionOption{"pro.monthly", Type::Monthly{"$14.99"}, false}},
                                               VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home", 5},
                                               Entitlement::velaPRO, true);
}

// Their names are their scales. Null where there is none.
inline QScreen* displayOfScale(double scale) {
    for (QScreen* display : QGuiApplication::screens())
        if (display->name().toDouble() == scale) return display;
    return nullptr;
}

// A place on the display of that scale.
inline QPoint placeOn(double scale) { return displayOfScale(scale)->geometry().topLeft() + QPoint(20, 20); }

inline QPointF centreOf(uikit::UIWindow& window, std::string_view identifier) {
    const accessibility::SemanticNode screen = window.semanticTree();
    const geometry::Rect frame = accessibility::findByIdentifier(screen, identifier)->frame;
    return {frame.midX(), frame.midY()};
}

inline bool isSelected(uikit::UIWindow& window, std::string_view identifier) {
    const accessibility::SemanticNode screen = window.semanticTree();
    return accessibility::contains(accessibility::findByIdentifier(screen, identifier)->traits, accessibility::Traits::selected);
}

// A click at the place in a widget or window.
template <class Receiver>
void click(Receiver& receiver, QPointF at) {
    for (const auto& [type, held] :
         {std::pair{QEvent::MouseButtonPress, Qt::LeftButton}, {QEvent::MouseButtonRelease, Qt::NoButton}}) {
        QMouseEvent event(type, at, receiver.mapToGlobal(at), Qt::LeftButton, held, {});
        QCoreApplication::sendEvent(&receiver, &event);
    }
}

// Until nothing is left to be done now, and nothing moves.
inline void settle(uikit::UIWindow& window) {
    bool isLate = false;
    QTimer::singleShot(50, [&] { isLate = true; });
    handleEventsUntil([&] { return isLate && !window.isAnimating(); });
}

// What the pixel engine makes of the window at that scale.
inline QImage pictureOf(uikit::UIWindow& window, double scale) {
    graphics::DisplayList list;
    window.paint(list);
    rasterbackend::RasterSurface surface;
    surface.present(list, window.frame().size, scale);
    const rasterbackend::Picture& picture = surface.picture();
    QImage image(picture.width(), picture.height(), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        std::copy_n(picture.row(y), picture.width(), reinterpret_cast<QRgb*>(image.scanLine(y)));
    return image;
}

// Whether `part` lies in `whole`, pixel for pixel, within a pixel of `around`. Its last row and column may be cut off: they can
// reach out of its place by half a pixel.
inline bool contains(const QImage& whole, const QImage& part, QPointF around) {
    const QImage wanted = part.copy(QRect(QPoint(0, 0), part.size() - QSize(1, 1)));
    for (const int y : {int(std::floor(around.y())), int(std::ceil(around.y()))})
        for (const int x : {int(std::floor(around.x())), int(std::ceil(around.x()))})
            if (whole.copy(QRect(QPoint(x, y), wanted.size())).convertToFormat(QImage::Format_RGB32) == wanted) return true;
    return false;
}

} // namespace proupsells::tests

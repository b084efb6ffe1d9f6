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
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "Platform/VelaUIKit/VelaUIKitImage.hpp"
#include "Tests/Qt/Events.hpp"

namespace proupsells::tests {

inline constexpr QSize sampleSize{375, 300};
inline constexpr double changesOfScale[] = {2.0, 1.5, 1.0, 1.25, 2.0, 1.0};

// A text, a picture, stripes from edge to edge and two buttons, which nothing moves.
class Sample : public uikit::UIViewController {
public:
    void viewDidLoad() override {
        view()->setBackgroundColor(uikit::UIColor{"paper", graphics::rgb(0xFFFBF5), graphics::rgb(0x17100F)});
        const auto text = std::make_shared<uikit::UILabel>();
        text->setText("The quick brown fox jumps over the lazy dog");
        text->setFrame({{10.3, 20}, {340, 30}});
        view()->addSubview(text);
        const auto picture = std::make_shared<uikit::UIImageView>(velauikit::VelaUIKitImage::marwickFolioWithProBadge());
        picture->setFrame({{200, 100.7}, {150, 50}});
        view()->addSubview(picture);
        for (double x = 1; x < sampleSize.width(); x += 2) addStripe({{x, 250}, {1, 50}});
        addButton("first", {10, 200});
        addButton("second", {60, 200});
    }

    std::vector<std::string> presses;

private:
    void addStripe(const geometry::Rect& frame) {
        const auto stripe = std::make_shared<uikit::UIView>();
        stripe->setBackgroundColor(uikit::UIColor{"ink", graphics::rgb(0x000000), graphics::rgb(0xFFFFFF)});
        stripe->setFrame(frame);
        view()->addSubview(stripe);
    }
    void addButton(const std::string& name, geometry::Point origin) {
        const auto button = std::make_shared<uikit::UIButton>();
        button->setFrame({origin, {50, 40}});
        button->addAction([this, name](uikit::UIControl&) { presses.push_back(name); }, uikit::UIControl::Event::touchUpInside);
        view()->addSubview(button);
    }
};

// Just inside the first button's last corner, and the second one's first.
inline constexpr QPointF inFirst{59.5, 239.5}, inSecond{60.5, 200.5};

// Their names are their scales. Null where there is none.
inline QScreen* displayOfScale(double scale) {
    for (QScreen* display : QGuiApplication::screens())
        if (display->name().toDouble() == scale) return display;
    return nullptr;
}

// A place on the display of that scale.
inline QPoint placeOn(double scale) { return displayOfScale(scale)->geometry().topLeft() + QPoint(20, 20); }

// A click at the place in a widget or window.
template <class Receiver>
void click(Receiver& receiver, QPointF at) {
    for (const auto& [type, held] :
         {std::pair{QEvent::MouseButtonPress, Qt::LeftButton}, {QEvent::MouseButtonRelease, Qt::NoButton}}) {
        QMouseEvent event(type, at, receiver.mapToGlobal(at), Qt::LeftButton, held, {});
        QCoreApplication::sendEvent(&receiver, &event);
    }
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

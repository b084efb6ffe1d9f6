// A screen in a widget.
#pragma once

#include <QWidget>
#include <memory>

#include "Backends/Qt/ScreenTraits.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::qtbackend {
class EmbeddedScreen;
}

namespace proupsells::qtwidgets {

// Shows a controller, and whatever it presents, wherever a widget can stand. The application and its event loop stay the host's;
// the services and the main run loop are installed where the host has not done so (qtbackend::install()).
//
// The screen follows the widget's palette and layout direction, the display's scale factor, the style's animations and the
// desktop's text size and reduced motion, unless setTraits() says otherwise. Tab goes through its controls and on to the next
// widget; Escape leaves the screen in front. Hidden, it costs nothing. It may be reparented at any time, and be deleted from inside
// any call that it makes.
class PROUPSELLS_EXPORT ControllerWidget : public QWidget {
    Q_OBJECT

public:
    // Null: an empty widget.
    explicit ControllerWidget(std::shared_ptr<uikit::UIViewController> controller = nullptr, QWidget* parent = nullptr);
    // Takes the controller out of its window first, so that it hears that it has closed.
    ~ControllerWidget() override;

    // Takes the former one's place, with all that it presents. Null: empties the widget.
    void setController(std::shared_ptr<uikit::UIViewController> controller);
    // Null for none.
    uikit::UIViewController* controller() const;
    // What the controller stands in.
    uikit::UIWindow& uiWindow() const;

    // What the host decides; at first nothing.
    void setTraits(const qtbackend::ScreenTraits& traits);
    const qtbackend::ScreenTraits& traits() const;

    // The size that the controller prefers; that of a sheet, 375 x 800, where it prefers none.
    QSize sizeHint() const override;
    // 320 x 480, the smallest that screens are made for.
    QSize minimumSizeHint() const override;

signals:
    // The controller is to go: its close button was pressed, or its dismiss() was called. Whoever has made the widget closes it.
    void dismissalRequested();

protected:
    // What Qt tells a widget.
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::unique_ptr<qtbackend::EmbeddedScreen> m_screen;
};

} // namespace proupsells::qtwidgets

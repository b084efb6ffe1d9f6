// A screen in a Qt Quick scene.
#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <memory>

#include "Backends/Qt/ScreenTraits.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::qtbackend {
class EmbeddedScreen;
class QtInput;
} // namespace proupsells::qtbackend

namespace proupsells::qtquick {

// Shows a controller, and whatever it presents, wherever an item can stand. The application, its event loop and its scene stay the
// host's; the services and the main run loop are installed where the host has not done so (qtbackend::install()).
//
// The screen follows the application's palette and layout direction, the window's scale factor and the desktop's text size and
// reduced motion, unless a property says otherwise. Tab goes through its controls and on to the next item; Escape leaves the screen
// in front. Invisible, it costs nothing. It may be moved to another window at any time, and be deleted from inside any call that it
// makes.
class PROUPSELLS_EXPORT ControllerItem : public QQuickItem {
    Q_OBJECT
    // What the host decides about the screen; at first the system and the application decide. `textSize` counts steps from the
    // usual size, from -3 to 8. `reducesMotion` and `textSize` are false and 0 while the host says nothing, which setting them to
    // undefined brings back.
    Q_PROPERTY(ColorScheme colorScheme READ colorScheme WRITE setColorScheme NOTIFY traitsChanged)
    Q_PROPERTY(Direction direction READ direction WRITE setDirection NOTIFY traitsChanged)
    Q_PROPERTY(bool reducesMotion READ reducesMotion WRITE setReducesMotion RESET resetReducesMotion NOTIFY traitsChanged)
    Q_PROPERTY(int textSize READ textSize WRITE setTextSize RESET resetTextSize NOTIFY traitsChanged)

public:
    // NOLINTBEGIN(readability-identifier-naming): QML wants values that begin with a capital.

    // Light or dark, or as the application's palette.
    enum class ColorScheme { System, Light, Dark };
    Q_ENUM(ColorScheme)
    // Which way texts and rows run, or as the application's.
    enum class Direction { System, LeftToRight, RightToLeft };
    Q_ENUM(Direction)

    // NOLINTEND(readability-identifier-naming)

    // An empty item.
    explicit ControllerItem(QQuickItem* parent = nullptr);
    // Takes the controller out of its window first, so that it hears that it has closed.
    ~ControllerItem() override;

    // Takes the former one's place, with all that it presents. Null, as at first: empties the item.
    void setController(std::shared_ptr<uikit::UIViewController> controller);
    // Null for none.
    uikit::UIViewController* controller() const;
    // What the controller stands in.
    uikit::UIWindow& uiWindow() const;

    // The property of the same name, for C++.
    ColorScheme colorScheme() const;
    void setColorScheme(ColorScheme scheme);
    Direction direction() const;
    void setDirection(Direction direction);
    bool reducesMotion() const;
    void setReducesMotion(bool reduces);
    void resetReducesMotion();
    // Steps above (or, negative, below) the usual text size; from -3 to 8.
    int textSize() const;
    void setTextSize(int steps);
    void resetTextSize();

signals:
    // One of the properties has become another one.
    void traitsChanged();
    // The controller is to go: its close button was pressed, or its dismiss() was called.
    void dismissalRequested();

protected:
    // What Qt tells an item.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* former, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override;
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverMoveEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void followWindow(QQuickWindow* window);
    void followVisibility();
    void setTraits(const qtbackend::ScreenTraits& traits);
    template <class Event>
    void handOnLater(const Event& event, void (qtbackend::QtInput::*handOn)(const Event&));
    void cancelTouchLater();

    QMetaObject::Connection m_windowVisibility;
    QPointer<QQuickWindow> m_watchedWindow;
    std::unique_ptr<qtbackend::EmbeddedScreen> m_screen;
};

} // namespace proupsells::qtquick

// A screen inside the host's own user interface: what a widget and an item have in common.
#pragma once

#include <QObject>
#include <memory>

#include "Backends/Qt/FramePacer.hpp"
#include "Backends/Qt/PixelImage.hpp"
#include "Backends/Qt/QtAccessibility.hpp"
#include "Backends/Qt/QtInput.hpp"
#include "Backends/Qt/ScreenPlace.hpp"
#include "Backends/Standard/PixelScreen.hpp"
#include "Platform/System/Compiler.hpp"

class QKeyEvent;
class QMouseEvent;

namespace proupsells::qtbackend {

// Paints a controller's screen where it stands, when that is due, and takes Qt's events. Whoever owns the screen is the object of
// its place, and may be deleted from inside every call.
class PROUPSELLS_EXPORT EmbeddedScreen {
public:
    // Installs what is missing. The handler is told when the controller is to go.
    EmbeddedScreen(std::unique_ptr<ScreenPlace> place, std::function<void()> dismissalHandler);

    ~EmbeddedScreen();
    EmbeddedScreen(const EmbeddedScreen&) = delete;
    EmbeddedScreen& operator=(const EmbeddedScreen&) = delete;

    // What the controller stands in.
    uikit::UIWindow& window() const { return m_screen.window(); }
    // Null for none.
    uikit::UIViewController* controller() const { return m_screen.controller(); }
    // Returns whether the owner is there still.
    bool setController(std::shared_ptr<uikit::UIViewController> controller);
    // To be called by the owner's destructor, while all of the owner is there: the host hears that the controller has closed.
    void close() { m_screen.close(); }

    // What the host decides; at first nothing.
    const ScreenTraits& traits() const { return m_traits; }
    void setTraits(const ScreenTraits& traits);
    // Something in the system, or the scale, has changed.
    void adoptTraits();

    // The place has another size.
    void resized() { m_screen.setSize(m_place.size()); }
    // Whether anybody can see it; not at first.
    void setSeen(bool isSeen);

    // Brings the picture to the place's size and scale, before it is drawn. Returns whether that has changed it.
    bool prepareToDraw();
    // Null before the first one.
    const QImage& picture() const { return m_image.image(); }

    // Mouse, touch and wheel go there.
    QtInput& input() { return m_input; }
    // The mouse goes there with a button held or rests there, and has left. It shows a hand over what can be tapped.
    void mouseMoved(const QMouseEvent& event);
    void hovered(QPointF position);
    void left();
    // Accepts the event. False where the key means nothing here and the owner may hand it on.
    bool keyPressed(QKeyEvent& event);
    // Tab, or Shift and Tab. False where the focus leaves the screen.
    bool moveFocus(bool isForward);
    void focusIn(Qt::FocusReason reason);
    void focusOut(Qt::FocusReason reason);

private:
    QSize wholeSize() const;
    void makeFrame();
    void adoptCursor();
    QRegion paint();
    // Null where it stands in no window.
    const QScreen* display() const;

    ScreenPlace& m_place; // owned by what offers it to assistive technology
    ScreenTraits m_traits;
    QMetaObject::Connection m_desktop;
    bool m_showsHand = false;
    standard::PixelScreen m_screen;
    PixelImage m_image;
    FramePacer m_pacer;
    QtInput m_input;
    QtAccessibility m_accessibility;
};

} // namespace proupsells::qtbackend

// Turns Qt's events into a content's input.
#pragma once

#include <QPointF>
#include <memory>
#include <optional>

#include "Platform/Host/WindowContent.hpp"
#include "Platform/System/Compiler.hpp"

class QKeyEvent;
class QMouseEvent;
class QTouchEvent;
class QWheelEvent;

namespace proupsells::qtbackend {

// The mouse's left button and the first finger touch; one of them at a time. Each call may destroy the input from inside the
// content.
class PROUPSELLS_EXPORT QtInput {
public:
    explicit QtInput(std::shared_ptr<host::WindowContent> content) : m_content(std::move(content)) {}

    void mousePressed(const QMouseEvent& event);
    void mouseMoved(const QMouseEvent& event);
    void mouseReleased(const QMouseEvent& event);
    // Where the mouse is while no button is held, and that it has left.
    void hovered(QPointF position);
    void left();
    // Whether the mouse rests on something to be tapped.
    bool pointsAtControl();
    void touched(const QTouchEvent& event);
    void wheelTurned(const QWheelEvent& event);
    // Returns whether the key meant something.
    bool keyPressed(const QKeyEvent& event);
    // The window is hidden, or somebody else has the mouse now.
    void cancelTouch();

private:
    void send(host::TouchPhase phase, QPointF position);

    std::shared_ptr<host::WindowContent> m_content;
    bool m_mouseIsDown = false;
    std::optional<int> m_finger; // identifier of the touch point that is followed
    QPointF m_lastPosition;
};

} // namespace proupsells::qtbackend

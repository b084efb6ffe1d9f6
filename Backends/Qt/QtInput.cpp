#include "Backends/Qt/QtInput.hpp"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::qtbackend {

namespace {

std::optional<host::Key> keyOf(int key) {
    switch (key) {
    case Qt::Key_Escape: return host::Key::escape;
    case Qt::Key_Tab: return host::Key::tab;
    case Qt::Key_Backtab: return host::Key::backTab;
    case Qt::Key_Return:
    case Qt::Key_Enter: return host::Key::activate;
    case Qt::Key_Space: return host::Key::space;
    case Qt::Key_Up: return host::Key::up;
    case Qt::Key_Down: return host::Key::down;
    case Qt::Key_Left: return host::Key::left;
    case Qt::Key_Right: return host::Key::right;
    case Qt::Key_PageUp: return host::Key::pageUp;
    case Qt::Key_PageDown: return host::Key::pageDown;
    case Qt::Key_Home: return host::Key::home;
    case Qt::Key_End: return host::Key::end;
    default: return std::nullopt;
    }
}

} // namespace

void QtInput::send(host::TouchPhase phase, QPointF position) {
    m_lastPosition = position;
    const auto content = m_content;
    content->touch({phase, {position.x(), position.y()}, runloop::MainRunLoop::main().now_s()});
}

void QtInput::cancelTouch() {
    if (!m_mouseIsDown && !m_finger) return;
    m_mouseIsDown = false;
    m_finger.reset();
    send(host::TouchPhase::cancelled, m_lastPosition);
}

void QtInput::mousePressed(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || m_mouseIsDown || m_finger) return;
    m_mouseIsDown = true;
    send(host::TouchPhase::began, event.position());
}

void QtInput::mouseMoved(const QMouseEvent& event) {
    if (event.deviceType() != QInputDevice::DeviceType::TouchScreen) hovered(event.position());
    if (m_mouseIsDown) send(host::TouchPhase::moved, event.position());
}

void QtInput::hovered(QPointF position) {
    const auto content = m_content;
    content->pointer(geometry::Point{position.x(), position.y()});
}

void QtInput::left() {
    const auto content = m_content;
    content->pointer(std::nullopt);
}

bool QtInput::pointsAtControl() {
    const auto content = m_content;
    return content->pointsAtControl();
}

void QtInput::mouseReleased(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || !m_mouseIsDown) return;
    m_mouseIsDown = false;
    send(host::TouchPhase::ended, event.position());
}

// The first finger counts, until it lifts; others are ignored.
void QtInput::touched(const QTouchEvent& event) {
    if (event.type() == QEvent::TouchCancel) return cancelTouch();
    if (m_mouseIsDown) return;
    for (const QEventPoint& point : event.points()) {
        if (m_finger ? m_finger != point.id() : point.state() != QEventPoint::Pressed) continue;
        switch (point.state()) {
        case QEventPoint::Pressed: m_finger = point.id(); return send(host::TouchPhase::began, point.position());
        case QEventPoint::Updated: return send(host::TouchPhase::moved, point.position());
        case QEventPoint::Released: m_finger.reset(); return send(host::TouchPhase::ended, point.position());
        default: return;
        }
    }
}

void QtInput::wheelTurned(const QWheelEvent& event) {
    // A notch of a wheel, in Qt's units, and the points that it moves.
    constexpr double notch = 120, notchDistance = 60;
    const QPointF delta =
        event.pixelDelta().isNull() ? QPointF(event.angleDelta()) / notch * notchDistance : QPointF(event.pixelDelta());
    const auto content = m_content;
    // Turned towards the person, the wheel shows what is further down.
    if (!delta.isNull()) content->scroll({event.position().x(), event.position().y()}, {-delta.x(), -delta.y()});
}

bool QtInput::keyPressed(const QKeyEvent& event) {
    const std::optional<host::Key> key = keyOf(event.key());
    const auto content = m_content;
    return key && content->key(*key, event.isAutoRepeat());
}

} // namespace proupsells::qtbackend

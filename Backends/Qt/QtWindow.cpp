#include "Backends/Qt/QtWindow.hpp"

#include <QCloseEvent>
#include <QExposeEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <algorithm>
#include <chrono>
#include <cmath>

#include "Backends/Qt/QtAccessibility.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::qtbackend {

namespace {

std::optional<host::Key> keyOf(int key) {
    switch (key) {
    case Qt::Key_Escape: return host::Key::escape;
    case Qt::Key_Tab: return host::Key::tab;
    case Qt::Key_Backtab: return host::Key::backTab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: return host::Key::activate;
    case Qt::Key_Up: return host::Key::up;
    case Qt::Key_Down: return host::Key::down;
    case Qt::Key_Left: return host::Key::left;
    case Qt::Key_Right: return host::Key::right;
    default: return std::nullopt;
    }
}

constexpr std::chrono::seconds restBeforePreparing{1};

} // namespace

QtWindow::QtWindow(std::shared_ptr<host::WindowContent> content, const WindowOptions& options)
    : m_content(std::move(content)), m_safeArea(options.safeArea), m_store(this),
      m_surface(std::make_unique<rasterbackend::RasterSurface>()),
      m_accessibility(std::make_unique<QtAccessibility>(*this, *m_content)) {
    setSurfaceType(QSurface::RasterSurface);
    setTitle(QString::fromStdString(options.title));
    m_frameTimer.setSingleShot(true);
    m_frameTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_frameTimer, &QTimer::timeout, this, [this] { showFrame(false); });
    m_restTimer.setSingleShot(true);
    QObject::connect(&m_restTimer, &QTimer::timeout, this, [this] { m_surface->prepareAhead(); });
    m_content->setNeedsDisplayHandler([this] { requestFrame(); });
    resize(int(std::lround(options.size.width)), int(std::lround(options.size.height)));
    m_content->setSize(sizeInPoints(), m_safeArea);
}

QtWindow::~QtWindow() { m_content->setNeedsDisplayHandler({}); }

void QtWindow::setSafeArea(geometry::PhysicalInsets safeArea) {
    m_safeArea = safeArea;
    m_content->setSize(sizeInPoints(), m_safeArea);
}

QAccessibleInterface* QtWindow::accessibleRoot() const { return m_accessibility->root(); }

bool QtWindow::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::Close: {
        const bool isHandled = QWindow::event(event);
        // A copy, because the handler may replace itself.
        if (const auto handler = m_closeHandler; handler && event->isAccepted()) handler();
        return isHandled;
    }
    default: return QWindow::event(event);
    }
}

void QtWindow::exposeEvent(QExposeEvent*) {
    if (isExposed())
        showFrame(true);
    else
        m_frameTimer.stop();
}

void QtWindow::resizeEvent(QResizeEvent*) { m_content->setSize(sizeInPoints(), m_safeArea); }

void QtWindow::hideEvent(QHideEvent*) { cancelTouch(); }

// At once where nothing was shown for a while, so that what the person does is seen without delay.
void QtWindow::requestFrame() {
    if (isExposed() && !m_frameTimer.isActive()) scheduleNextFrame();
}

void QtWindow::showFrame(bool isWhole) {
    if (!isExposed() || m_isShowing) return;
    m_isShowing = true;
    runloop::MainRunLoop& loop = runloop::MainRunLoop::main();
    m_lastFrameStart_s = loop.now_s();
    // What a touch has changed is brought up to date before it is shown.
    loop.runDueTurns();
    m_content->paint(m_list);
    const bool hasChanged = paint();
    if (hasChanged || isWhole) {
        ++m_frameCount;
        m_store.flush(isWhole ? QRegion(QRect(QPoint(0, 0), size())) : damagedRegion());
    }
    if (hasChanged) m_accessibility->update();
    if (m_content->isAnimating()) scheduleNextFrame();
    // Only views that are at rest look ahead, whatever else moves on the screen.
    if (m_list.ahead.empty())
        m_restTimer.stop();
    else if (!m_restTimer.isActive())
        m_restTimer.start(restBeforePreparing);
    m_isShowing = false;
}

// Paints the list straight into the backing store's memory. Returns whether that changed any pixel.
bool QtWindow::paint() {
    const bool isResized = m_store.size() != size();
    if (isResized) m_store.resize(size());
    m_store.beginPaint(QRect(QPoint(0, 0), size()));
    if (auto* image = dynamic_cast<QImage*>(m_store.paintDevice())) {
        const rasterbackend::PixelBuffer buffer{image->bits(), image->width(), image->height(), image->bytesPerLine(),
                                                rasterbackend::PixelFormat::rgb32};
        // Where a platform paints into two stores in turn, it copies what the one shows to the other.
        m_surface->lend(buffer, !isResized && m_lentSize == image->size());
        m_lentSize = image->size();
        m_surface->present(m_list, sizeInPoints(), devicePixelRatio());
    }
    m_store.endPaint();
    return !m_surface->lastDamage().empty();
}

QRegion QtWindow::damagedRegion() const {
    const double scale = devicePixelRatio();
    QRegion region;
    for (const rasterbackend::PixelRect& rect : m_surface->lastDamage()) {
        const int left = int(std::floor(rect.left / scale)), top = int(std::floor(rect.top / scale));
        region += QRect(left, top, int(std::ceil(rect.right / scale)) - left, int(std::ceil(rect.bottom / scale)) - top);
    }
    return region.intersected(QRect(QPoint(0, 0), size()));
}

void QtWindow::scheduleNextFrame() {
    const double rate = screen() ? std::clamp(screen()->refreshRate(), 30.0, 240.0) : 60;
    const double elapsed_s = runloop::MainRunLoop::main().now_s() - m_lastFrameStart_s;
    m_frameTimer.start(int(std::lround(std::clamp(1 / rate - elapsed_s, 0.0, 1 / rate) * 1000)));
}

void QtWindow::sendTouch(host::TouchPhase phase, QPointF position) {
    m_lastPosition = position;
    m_content->touch({phase, {position.x(), position.y()}, runloop::MainRunLoop::main().now_s()});
}

void QtWindow::cancelTouch() {
    if (!m_mouseIsDown && !m_finger) return;
    m_mouseIsDown = false;
    m_finger.reset();
    sendTouch(host::TouchPhase::cancelled, m_lastPosition);
}

void QtWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || m_mouseIsDown || m_finger) return;
    m_mouseIsDown = true;
    sendTouch(host::TouchPhase::began, event->position());
}

void QtWindow::mouseMoveEvent(QMouseEvent* event) {
    if (m_mouseIsDown) sendTouch(host::TouchPhase::moved, event->position());
}

void QtWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_mouseIsDown) return;
    m_mouseIsDown = false;
    sendTouch(host::TouchPhase::ended, event->position());
}

// The first finger counts, until it lifts; others are ignored.
void QtWindow::touchEvent(QTouchEvent* event) {
    event->accept();
    if (event->type() == QEvent::TouchCancel) return cancelTouch();
    if (m_mouseIsDown) return;
    for (const QEventPoint& point : event->points()) {
        if (point.state() == QEventPoint::Pressed && !m_finger) {
            m_finger = point.id();
            sendTouch(host::TouchPhase::began, point.position());
        } else if (m_finger == point.id() && point.state() == QEventPoint::Updated) {
            sendTouch(host::TouchPhase::moved, point.position());
        } else if (m_finger == point.id() && point.state() == QEventPoint::Released) {
            m_finger.reset();
            sendTouch(host::TouchPhase::ended, point.position());
        }
    }
}

void QtWindow::wheelEvent(QWheelEvent* event) {
    // A notch of a wheel, in Qt's units, and the points that it moves.
    constexpr double notch = 120, notchDistance = 60;
    const QPointF delta =
        event->pixelDelta().isNull() ? QPointF(event->angleDelta()) / notch * notchDistance : QPointF(event->pixelDelta());
    // Turned towards the person, the wheel shows what is further down.
    if (!delta.isNull()) m_content->scroll({event->position().x(), event->position().y()}, {-delta.x(), -delta.y()});
}

void QtWindow::keyPressEvent(QKeyEvent* event) {
    const std::optional<host::Key> key = keyOf(event->key());
    if (!key || !m_content->key(*key)) QWindow::keyPressEvent(event);
}

} // namespace proupsells::qtbackend

#include "Backends/Qt/QtWindow.hpp"

#include <QCloseEvent>
#include <QExposeEvent>
#include <QKeyEvent>
#include <QPointer>
#include <cmath>
#include <utility>

#include "Backends/Qt/FramePacer.hpp"
#include "Backends/Qt/PixelImage.hpp"
#include "Backends/Qt/QtAccessibility.hpp"
#include "Backends/Qt/QtInput.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::qtbackend {

QtWindow::QtWindow(std::shared_ptr<host::WindowContent> content, const WindowOptions& options)
    : m_view(content), m_safeArea(options.safeArea), m_store(this),
      m_pacer(std::make_unique<FramePacer>(m_view, [this] { showFrame(false); })), m_input(std::make_unique<QtInput>(content)),
      m_accessibility(std::make_unique<QtAccessibility>(*this, *content)) {
    setSurfaceType(QSurface::RasterSurface);
    setTitle(QString::fromStdString(options.title));
    resize(int(std::lround(options.size.width)), int(std::lround(options.size.height)));
    m_view.setSize(sizeInPoints(), m_safeArea);
}

QtWindow::~QtWindow() = default;

void QtWindow::setSafeArea(geometry::PhysicalInsets safeArea) {
    m_safeArea = safeArea;
    m_view.setSize(sizeInPoints(), m_safeArea);
}

QAccessibleInterface* QtWindow::accessibleRoot() const { return m_accessibility->root(); }

bool QtWindow::event(QEvent* event) {
    const bool isHandled = QWindow::event(event);
    switch (event->type()) {
    case QEvent::Close:
        // A copy, because the handler may replace itself.
        if (const auto handler = m_closeHandler; handler && event->isAccepted()) handler();
        break;
    case QEvent::Enter:
        m_input->hovered(static_cast<QEnterEvent*>(event)->position());
        adoptCursor();
        break;
    case QEvent::Leave:
        m_input->left();
        adoptCursor();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut: m_accessibility->updateLater(); break;
    default: break;
    }
    return isHandled;
}

void QtWindow::exposeEvent(QExposeEvent*) {
    m_pacer->setRunning(isExposed(), screen());
    if (isExposed()) showFrame(true);
}

void QtWindow::resizeEvent(QResizeEvent*) { m_view.setSize(sizeInPoints(), m_safeArea); }

void QtWindow::hideEvent(QHideEvent*) { m_input->cancelTouch(); }

void QtWindow::showFrame(bool isWhole) {
    // What a touch has changed is brought up to date before it is shown. That runs the host's code, which may open an event loop of
    // its own or let go of the window.
    const QPointer<QtWindow> self(this);
    runloop::MainRunLoop::main().runDueTurns();
    if (!self || !isExposed()) return;
    const bool hasChanged = paint();
    if (hasChanged || isWhole) {
        ++m_frameCount;
        const QRect whole(QPoint(0, 0), size());
        m_store.flush(isWhole ? QRegion(whole) : regionOf(m_view.lastDamage(), devicePixelRatio()).intersected(whole));
    }
    m_accessibility->update();
    adoptCursor();
    m_pacer->schedule(screen());
}

// A hand over what can be tapped.
void QtWindow::adoptCursor() {
    const bool pointsAtControl = m_input->pointsAtControl();
    if (std::exchange(m_showsHand, pointsAtControl) == pointsAtControl) return;
    if (pointsAtControl)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
}

// Paints straight into the backing store's memory. Returns whether that changed any pixel.
bool QtWindow::paint() {
    bool hasChanged = false;
    const bool isResized = m_store.size() != size();
    if (isResized) m_store.resize(size());
    m_store.beginPaint(QRect(QPoint(0, 0), size()));
    if (auto* image = dynamic_cast<QImage*>(m_store.paintDevice())) {
        const rasterbackend::PixelBuffer buffer{image->bits(), image->width(), image->height(), image->bytesPerLine(),
                                                rasterbackend::PixelFormat::rgb32};
        // Where a platform paints into two stores in turn, it copies what the one shows to the other.
        const bool holdsShown = !isResized && m_lentSize == image->size();
        m_lentSize = image->size();
        hasChanged = m_view.repaint(buffer, devicePixelRatio(), holdsShown);
    }
    m_store.endPaint();
    return hasChanged;
}

void QtWindow::mousePressEvent(QMouseEvent* event) { m_input->mousePressed(*event); }

void QtWindow::mouseMoveEvent(QMouseEvent* event) {
    const QPointer<QtWindow> self(this);
    m_input->mouseMoved(*event);
    if (self) adoptCursor();
}

void QtWindow::mouseReleaseEvent(QMouseEvent* event) { m_input->mouseReleased(*event); }

void QtWindow::touchEvent(QTouchEvent* event) {
    event->accept();
    m_input->touched(*event);
}

void QtWindow::wheelEvent(QWheelEvent* event) { m_input->wheelTurned(*event); }

void QtWindow::keyPressEvent(QKeyEvent* event) {
    if (!m_input->keyPressed(*event)) QWindow::keyPressEvent(event);
}

} // namespace proupsells::qtbackend

// A window on the screen.
#pragma once

#include <QBackingStore>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "Platform/Host/WindowContent.hpp"

namespace proupsells::rasterbackend {
class RasterSurface;
}

namespace proupsells::qtbackend {

class QtAccessibility;

struct WindowOptions {
    std::string title;
    geometry::Size size{375, 800}; // points; a window has whole ones
    geometry::PhysicalInsets safeArea;
};

// Shows a content and feeds it with mouse, touch, wheel and keys. Paints when the content asks for it, and at every refresh of
// the display while the content is animating; otherwise it costs nothing. Needs a main run loop and a qtbackend::Application.
class QtWindow final : public QWindow {
public:
    QtWindow(std::shared_ptr<host::WindowContent> content, const WindowOptions& options);
    ~QtWindow() override;

    void setSafeArea(geometry::PhysicalInsets safeArea);
    // Told when the person has closed the window; it must not be destroyed there.
    void setCloseHandler(std::function<void()> handler) { m_closeHandler = std::move(handler); }

    // Where the window was painted anew by the last frame, in pixels. Empty when nothing differed.
    const rasterbackend::RasterSurface& surface() const { return *m_surface; }
    // How many frames were shown so far.
    int frameCount() const { return m_frameCount; }

    QAccessibleInterface* accessibleRoot() const override;

protected:
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    geometry::Size sizeInPoints() const { return {double(width()), double(height())}; }
    void requestFrame();
    void showFrame(bool isWhole);
    bool paint();
    QRegion damagedRegion() const;
    void scheduleNextFrame();
    void sendTouch(host::TouchPhase phase, QPointF position);
    void cancelTouch();

    std::shared_ptr<host::WindowContent> m_content;
    geometry::PhysicalInsets m_safeArea;
    std::function<void()> m_closeHandler;
    QBackingStore m_store;
    std::unique_ptr<rasterbackend::RasterSurface> m_surface;
    QSize m_lentSize; // pixels
    graphics::DisplayList m_list;
    QTimer m_frameTimer;
    QTimer m_restTimer;             // fires when views have looked ahead for a while
    double m_lastFrameStart_s = -1; // of the run loop's time
    int m_frameCount = 0;
    bool m_isShowing = false; // inside showFrame()
    bool m_mouseIsDown = false;
    std::optional<int> m_finger; // identifier of the touch point that is followed
    QPointF m_lastPosition;
    std::unique_ptr<QtAccessibility> m_accessibility;
};

} // namespace proupsells::qtbackend

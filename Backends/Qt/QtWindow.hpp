// A window on the screen.
#pragma once

#include <QBackingStore>
#include <QWindow>
#include <functional>
#include <memory>
#include <string>

#include "Backends/Raster/PixelView.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::qtbackend {

class FramePacer;
class QtAccessibility;
class QtInput;

// How a window is made.
struct WindowOptions {
    std::string title;
    geometry::Size size{375, 800};     // points; a window has whole ones
    geometry::PhysicalInsets safeArea; // points that something of the host's covers
};

// Shows a content and feeds it with mouse, touch, wheel and keys. Paints when the content asks for it, and at every refresh of
// the display while the content is animating; otherwise it costs nothing. Needs a main run loop and a qtbackend::Application.
class PROUPSELLS_EXPORT QtWindow final : public QWindow {
public:
    // Shares the content. The window is hidden until show().
    QtWindow(std::shared_ptr<host::WindowContent> content, const WindowOptions& options);
    ~QtWindow() override;

    // In points.
    void setSafeArea(geometry::PhysicalInsets safeArea);
    // Told when the person has closed the window; it must not be destroyed there.
    void setCloseHandler(std::function<void()> handler) { m_closeHandler = std::move(handler); }

    // What paints the window.
    const rasterbackend::PixelView& view() const { return m_view; }
    // How many frames were shown so far.
    int frameCount() const { return m_frameCount; }

    // What assistive technology reads. Owned by the window.
    QAccessibleInterface* accessibleRoot() const override;

protected:
    // What Qt tells a window.
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
    void showFrame(bool isWhole);
    bool paint();
    void adoptCursor();

    rasterbackend::PixelView m_view;
    geometry::PhysicalInsets m_safeArea;
    std::function<void()> m_closeHandler;
    QBackingStore m_store;
    QSize m_lentSize; // pixels
    int m_frameCount = 0;
    bool m_showsHand = false;
    std::unique_ptr<FramePacer> m_pacer;
    std::unique_ptr<QtInput> m_input;
    std::unique_ptr<QtAccessibility> m_accessibility;
};

} // namespace proupsells::qtbackend

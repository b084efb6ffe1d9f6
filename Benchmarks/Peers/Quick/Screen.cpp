#include "Quick/Screen.hpp"

#include <QQuickRenderTarget>

#include "Common/QtEvents.hpp"

namespace peers::quick {

// The control is not initialised: that is for graphics hardware. The software scene graph paints straight into the picture.
Screen::Screen() {
    constexpr double scale = 2;
    m_picture.setDevicePixelRatio(scale);
    m_picture.fill(Qt::white);
    m_window.setGeometry(0, 0, 375, 800);
    m_window.contentItem()->setSize({375, 800});
    QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&m_picture);
    target.setDevicePixelRatio(scale);
    m_window.setRenderTarget(target);
}

void Screen::tap(QPointF place) { sendTap(m_window, place, place); }

void Screen::paintFrame() {
    m_control.polishItems();
    m_control.beginFrame();
    m_control.sync();
    m_control.render();
    m_control.endFrame();
}

} // namespace peers::quick

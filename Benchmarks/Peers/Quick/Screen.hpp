// 375 × 800 points at two pixels a point, painted into memory whenever a frame is asked for.
#pragma once

#include <QImage>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>

namespace peers::quick {

class Screen {
public:
    Screen();

    void show(QQuickItem& item) { item.setParentItem(m_window.contentItem()); }
    void tap(QPointF place);
    void paintFrame();
    const QImage& picture() const { return m_picture; }

private:
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    QImage m_picture{750, 1600, QImage::Format_ARGB32_Premultiplied};
};

} // namespace peers::quick

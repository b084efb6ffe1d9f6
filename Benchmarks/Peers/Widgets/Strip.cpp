#include "Widgets/Strip.hpp"

#include <QPaintEvent>
#include <QPainter>

#include "Common/StorePage.hpp"

namespace peers::widgets {

Strip::Strip(const Assets& assets, int shelf, QWidget* parent)
    : QWidget(parent), m_shelf(shelf), m_tile(assets.picture(QString("tile_%1.png").arg(shelf))) {}

void Strip::drift() {
    m_drifts += 1;
    update();
}

void Strip::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const int width = store::shelves[m_shelf].tileWidth();
    int x = store::stripStart(m_shelf, m_drifts);
    for (int tile = 0; tile < store::tileCount; ++tile) {
        if (QRect(x, 0, width, height()).intersects(event->rect())) painter.drawPixmap(x, 0, m_tile);
        x += width + store::tileSpacing;
    }
}

} // namespace peers::widgets

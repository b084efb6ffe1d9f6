#include "Apps/ProUpsellsWindow/WindowIcon.hpp"

#include <QPainter>
#include <QPolygonF>

namespace proupsells::hostprogram {

namespace {

// A sheet folded three times, as in the logo, on a plate in the accent; 64 units wide.
void drawMark(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x0A, 0x7C, 0x78));
    painter.drawRoundedRect(QRectF(2, 2, 60, 60), 15, 15);
    constexpr double panelWidth = 9, high = 17, low = 24, height = 25, left = 32 - 2 * panelWidth;
    for (int panel = 0; panel < 4; ++panel) {
        const bool descends = panel % 2 == 0;
        const double x = left + panel * panelWidth, start = descends ? high : low, end = descends ? low : high;
        painter.setBrush(descends ? QColor(0xBF, 0xE6, 0xE2) : QColor(0xFF, 0xFF, 0xFF));
        painter.drawPolygon(QPolygonF{{{x, start}, {x + panelWidth, end}, {x + panelWidth, end + height}, {x, start + height}}});
    }
}

} // namespace

QIcon windowIcon() {
    QIcon icon;
    for (const int length : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(length, length);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(length / 64.0, length / 64.0);
        drawMark(painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace proupsells::hostprogram

#include "Floor/PaywallByPainter.hpp"

#include "Floor/TextRuns.hpp"

namespace peers::floor {
namespace {

const QColor accent{0x0a, 0x8f, 0x92};
const QColor plate{0xf4, 0xf4, 0xf6};
const QColor capsule{0xd9, 0xf2, 0xf1};
const QColor ring{0xc9, 0xc9, 0xcf};

constexpr double scale = 2;

QRectF inPixels(double x, double y, double width, double height) { return {x * scale, y * scale, width * scale, height * scale}; }

void paintRounded(QPainter& painter, const QRectF& place, double radius) {
    painter.drawRoundedRect(place, radius * scale, radius * scale);
}

void paintPlates(QPainter& painter) {
    painter.setBrush(plate);
    paintRounded(painter, inPixels(16, 323, 343, 105), 6);
    paintRounded(painter, inPixels(16, 444, 343, 90), 6);
    painter.setBrush(capsule);
    paintRounded(painter, inPixels(103, 339, 111, 24), 12);
    painter.setBrush(accent);
    paintRounded(painter, inPixels(16, 564, 343, 56), 28);
}

void paintSelection(QPainter& painter) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(accent, 2 * scale));
    paintRounded(painter, inPixels(16, 323, 343, 105), 6);
    painter.drawEllipse(inPixels(322, 365, 22, 22));
    painter.setBrush(Qt::white);
    painter.setPen(QPen(ring, 2 * scale));
    painter.drawEllipse(inPixels(322, 478, 22, 22));
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawEllipse(inPixels(324, 367, 18, 18));
    paintRounded(painter, inPixels(286, 315, 57, 16), 2);
}

} // namespace

PaywallByPainter::PaywallByPainter(const Pictures& pictures) : m_pictures(pictures) {
    for (const TextRun& run : paywallTexts()) {
        QStaticText text(QString::fromUtf8(run.text));
        text.setTextFormat(Qt::PlainText);
        text.setPerformanceHint(QStaticText::AggressiveCaching);
        text.prepare(QTransform(), run.font());
        m_texts.push_back({QPointF(run.x, run.y) * scale, run.font(), QColor(run.colour), text});
    }
}

void PaywallByPainter::paint(QPainter& painter) const {
    painter.fillRect(inPixels(0, 0, 375, 800), Qt::white);
    paintPictures(painter);
    paintShapes(painter);
    paintTexts(painter);
    painter.drawImage(QPointF(0, 720) * scale, m_pictures.gradient);
    painter.drawImage(QPointF(337, 14) * scale, m_pictures.close);
}

void PaywallByPainter::paintPictures(QPainter& painter) const {
    painter.drawImage(QPointF(0, -10) * scale, m_pictures.header);
    painter.drawImage(QPointF(83.5, 257) * scale, m_pictures.logo);
    painter.drawImage(QPointF(6, 291) * scale, m_pictures.diamond);
    painter.drawImage(QPointF(349, 298) * scale, m_pictures.chevron);
}

void PaywallByPainter::paintShapes(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int page = 0; page < 4; ++page) {
        painter.setBrush(QColor(255, 255, 255, page == 0 ? 255 : 90));
        painter.drawEllipse(inPixels(306.5 + 10 * page, 205, 7, 7));
    }
    paintPlates(painter);
    paintSelection(painter);
}

void PaywallByPainter::paintTexts(QPainter& painter) const {
    for (const Text& text : m_texts) {
        painter.setPen(text.colour);
        painter.setFont(text.font);
        painter.drawStaticText(text.place, text.text);
    }
}

} // namespace peers::floor

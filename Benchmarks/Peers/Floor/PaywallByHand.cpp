#include "Floor/PaywallByHand.hpp"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "Floor/TextRuns.hpp"

namespace peers::floor {
namespace {

constexpr Pixel accent = 0xff0a8f92;
constexpr Pixel plate = 0xfff4f4f6;
constexpr Pixel capsule = 0xffd9f2f1;

QImage drawWhite(const TextRun& run) {
    const QString text = QString::fromUtf8(run.text);
    const QFontMetrics metrics(run.font());
    QImage drawn(metrics.horizontalAdvance(text) + 4, metrics.height() + 2, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setPen(Qt::white);
    painter.setFont(run.font());
    painter.drawText(0, metrics.ascent(), text);
    return drawn;
}

Mask makeMask(const TextRun& run) {
    const QImage drawn = drawWhite(run);
    const int x = int(run.x * 2);
    Mask mask{.x = x,
              .y = int(run.y * 2),
              .width = std::min(drawn.width(), width - x),
              .height = drawn.height(),
              .colour = QColor(run.colour).rgba()};
    for (int row = 0; row < mask.height; ++row)
        for (int column = 0; column < mask.width; ++column) mask.coverage.push_back(std::uint8_t(qAlpha(drawn.pixel(column, row))));
    return mask;
}

// The outline of the chosen card.
void paintFrame(Canvas& canvas, int x, int y, int frameWidth, int frameHeight) {
    constexpr int line = 4;
    canvas.fillRect(x, y, frameWidth, line, accent);
    canvas.fillRect(x, y + frameHeight - line, frameWidth, line, accent);
    canvas.fillRect(x, y, line, frameHeight, accent);
    canvas.fillRect(x + frameWidth - line, y, line, frameHeight, accent);
}

} // namespace

PaywallByHand::PaywallByHand(const Pictures& pictures) : m_pictures(pictures) {
    for (const TextRun& run : paywallTexts()) m_texts.push_back(makeMask(run));
}

void PaywallByHand::paint(Canvas& canvas) const {
    constexpr int headerEnd = 488;
    canvas.copy(m_pictures.header, 20, headerEnd);
    canvas.fillRect(0, headerEnd, width, height - headerEnd, 0xffffffff);
    canvas.blend(m_pictures.logo, 167, 514);
    canvas.blend(m_pictures.diamond, 12, 582);
    canvas.blend(m_pictures.chevron, 698, 596);
    canvas.fillRect(32, 646, 686, 210, plate);
    canvas.fillRect(32, 888, 686, 180, plate);
    canvas.fillRect(206, 678, 222, 48, capsule);
    canvas.fillRect(572, 630, 114, 32, accent);
    canvas.fillRect(32, 1128, 686, 112, accent);
    paintFrame(canvas, 30, 644, 690, 214);
    for (const Mask& text : m_texts) canvas.blend(text);
    canvas.blend(m_pictures.gradient, 0, 1440);
    canvas.blend(m_pictures.close, 674, 28);
}

} // namespace peers::floor

#include "Floor/StorePage.hpp"

#include <QTextOption>

#include "Common/StorePage.hpp"
#include "Floor/Pictures.hpp"
#include "Floor/TextRuns.hpp"

namespace peers::floor {
namespace {

constexpr int viewportHeight = store::viewportHeight * 2;
constexpr int barHeight = store::barHeight * 2;

QStaticText prepare(const char* words, const QFont& font, int textWidth) {
    QTextOption option(Qt::AlignHCenter);
    option.setWrapMode(QTextOption::WordWrap);
    QStaticText text(QString::fromUtf8(words));
    text.setTextWidth(textWidth);
    text.setTextOption(option);
    text.setTextFormat(Qt::PlainText);
    text.setPerformanceHint(QStaticText::AggressiveCaching);
    text.prepare(QTransform(), font);
    return text;
}

} // namespace

StorePage::StorePage(const QString& folder) : m_titleFont(makeFont(40, true)), m_subtitleFont(makeFont(32, false)) {
    for (int shelf = 0; shelf < int(store::shelves.size()); ++shelf) {
        m_tiles.push_back(loadPicture(folder + QString("tile_%1.png").arg(shelf)));
        m_titles.push_back(prepare(store::shelves[shelf].title, m_titleFont, 650));
        m_subtitles.push_back(prepare(store::shelves[shelf].subtitle, m_subtitleFont, 600));
    }
}

void StorePage::visitShelves(int offset, const std::function<void(int shelf, int y)>& visit) const {
    int y = -offset * 2;
    for (int shelf = 0; shelf < int(store::shelves.size()); ++shelf) {
        const int end = y + store::shelves[shelf].fullHeight() * 2;
        if (y < viewportHeight && end > 0) visit(shelf, y);
        y = end;
    }
}

void StorePage::visitTiles(int shelf, int drifts, const std::function<void(int x)>& visit) const {
    const int tileWidth = store::shelves[shelf].tileWidth() * 2;
    int x = store::stripStart(shelf, drifts) * 2;
    for (int tile = 0; tile < store::tileCount; ++tile) {
        if (x < width && x + tileWidth > 0) visit(x);
        x += tileWidth + store::tileSpacing * 2;
    }
}

void StorePage::paintByHand(Canvas& canvas, int offset, int drifts) const {
    canvas.fill(0xffffffff);
    visitShelves(offset, [&](int shelf, int y) { visitTiles(shelf, drifts, [&](int x) { canvas.blend(m_tiles[shelf], x, y); }); });
    canvas.fillRect(0, viewportHeight, width, barHeight, 0xff0a8f92);
}

void StorePage::paintByPainter(QPainter& painter, int offset, int drifts) const {
    painter.fillRect(0, 0, width, height, Qt::white);
    visitShelves(offset, [&](int shelf, int y) {
        visitTiles(shelf, drifts, [&](int x) { painter.drawImage(x, y, m_tiles[shelf]); });
        const int textTop = y + store::shelves[shelf].tileHeight() * 2 + 32;
        painter.setPen(QColor(0x1a, 0x1a, 0x1a));
        painter.setFont(m_titleFont);
        painter.drawStaticText(50, textTop, m_titles[shelf]);
        painter.setPen(QColor(0x6b, 0x6b, 0x70));
        painter.setFont(m_subtitleFont);
        painter.drawStaticText(75, textTop + 78, m_subtitles[shelf]);
    });
    painter.fillRect(0, viewportHeight, width, barHeight, QColor(0x0a, 0x8f, 0x92));
}

} // namespace peers::floor

// A frame of the store page with everything prepared: tiles are blended, by hand or with QPainter, which draws the texts, too.
#pragma once

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QStaticText>
#include <QString>
#include <functional>
#include <vector>

#include "Floor/Blitter.hpp"

namespace peers::floor {

class StorePage {
public:
    explicit StorePage(const QString& folder);

    void paintByHand(Canvas& canvas, int offset, int drifts) const;
    void paintByPainter(QPainter& painter, int offset, int drifts) const;

private:
    // Calls back with the number of each shelf in sight and where it begins on the screen, in pixels.
    void visitShelves(int offset, const std::function<void(int shelf, int y)>& visit) const;
    // The same with the left edge of each tile of a shelf.
    void visitTiles(int shelf, int drifts, const std::function<void(int x)>& visit) const;

    QFont m_titleFont;
    QFont m_subtitleFont;
    std::vector<QImage> m_tiles;
    std::vector<QStaticText> m_titles;
    std::vector<QStaticText> m_subtitles;
};

} // namespace peers::floor

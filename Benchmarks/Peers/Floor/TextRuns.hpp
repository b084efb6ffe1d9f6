// The paywall's texts, one piece of one font and colour after the other, where a layout would have put them.
#pragma once

#include <QColor>
#include <QFont>
#include <span>

namespace peers::floor {

struct TextRun {
    enum class Style { regular, bold, struckOut };

    const char* text;
    int size;
    Style style;
    const char* colour;
    // The upper left corner in points.
    double x;
    double y;

    // At two pixels a point.
    QFont font() const;
};

std::span<const TextRun> paywallTexts();

// The font of the store page and of the runs, in pixels.
QFont makeFont(int pixels, bool isBold);

} // namespace peers::floor

// The paywall with QPainter in device pixels, every text prepared and every picture decoded: no layout, no widgets, no scene.
#pragma once

#include <QPainter>
#include <QStaticText>
#include <vector>

#include "Floor/Pictures.hpp"

namespace peers::floor {

class PaywallByPainter {
public:
    explicit PaywallByPainter(const Pictures& pictures);

    void paint(QPainter& painter) const;

private:
    struct Text {
        QPointF place;
        QFont font;
        QColor colour;
        QStaticText text;
    };

    void paintPictures(QPainter& painter) const;
    void paintShapes(QPainter& painter) const;
    void paintTexts(QPainter& painter) const;

    const Pictures& m_pictures;
    std::vector<Text> m_texts;
};

} // namespace peers::floor

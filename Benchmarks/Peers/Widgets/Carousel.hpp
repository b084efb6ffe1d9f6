// The header: four pages that slide on by themselves, a title, and dots.
#pragma once

#include <QList>
#include <QVariantAnimation>
#include <QWidget>

#include "Widgets/Parts.hpp"

namespace peers::widgets {

class Carousel final : public QWidget {
public:
    enum class Motion { running, still };

    Carousel(const Assets& assets, Motion motion);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void run(const Assets& assets);
    void paintPages(QPainter& painter) const;
    void paintTitle(QPainter& painter) const;
    void paintDots(QPainter& painter) const;

    QList<QPixmap> m_pictures;
    QFont m_font = boldFont(18);
    QVariantAnimation m_slide;
    int m_page = 0;
    int m_lastPage = 0;
    // How much of the way from the last page to this one is done, from 0 to 1.
    double m_progress = 1;
};

} // namespace peers::widgets

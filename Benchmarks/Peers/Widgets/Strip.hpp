// The moving strip of a shelf: the same tile many times over.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "Widgets/Parts.hpp"

namespace peers::widgets {

class Strip final : public QWidget {
public:
    Strip(const Assets& assets, int shelf, QWidget* parent);

    void drift();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_shelf;
    int m_drifts = 0;
    QPixmap m_tile;
};

} // namespace peers::widgets

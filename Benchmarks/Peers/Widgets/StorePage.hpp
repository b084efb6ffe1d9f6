// The store page: shelves in a scroll area above a bar.
#pragma once

#include <QList>
#include <QWidget>

#include "Widgets/Strip.hpp"

class QScrollArea;

namespace peers::widgets {

class StorePage final : public QWidget {
public:
    explicit StorePage(const Assets& assets);

    int largestOffset() const;
    void scrollTo(int offset);
    void drift();

private:
    QWidget* makeShelves(const Assets& assets);
    void addShelf(const Assets& assets, int shelf, int y, QWidget* content);
    void addBar();

    QScrollArea* m_area;
    QList<Strip*> m_strips;
};

} // namespace peers::widgets

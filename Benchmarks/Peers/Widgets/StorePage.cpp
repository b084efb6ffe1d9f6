#include "Widgets/StorePage.hpp"

#include <QScrollArea>
#include <QScrollBar>

#include "Common/StorePage.hpp"

namespace peers::widgets {
namespace {

QFont spaced(QFont font, double spacing) {
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    return font;
}

} // namespace

StorePage::StorePage(const Assets& assets) : m_area(new QScrollArea(this)) {
    resize(store::width, store::viewportHeight + store::barHeight);
    m_area->setGeometry(0, 0, store::width, store::viewportHeight);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setWidget(makeShelves(assets));
    addBar();
    auto* close = new QLabel(this);
    close->setPixmap(assets.picture("close.png"));
    close->setGeometry(16, 16, 24, 24);
}

QWidget* StorePage::makeShelves(const Assets& assets) {
    auto* content = new QWidget;
    fillBackground(*content, Qt::white);
    content->setFixedSize(store::width, store::contentHeight());
    int y = 0;
    for (int shelf = 0; shelf < int(store::shelves.size()); ++shelf) {
        addShelf(assets, shelf, y, content);
        y += store::shelves[shelf].fullHeight();
    }
    return content;
}

void StorePage::addShelf(const Assets& assets, int shelf, int y, QWidget* content) {
    const store::Shelf& shown = store::shelves[shelf];
    auto* strip = new Strip(assets, shelf, content);
    strip->setGeometry(0, y, store::width, shown.tileHeight());
    m_strips << strip;

    auto* title = makeLabel(shown.title, boldFont(20), ink, content);
    title->setAlignment(Qt::AlignHCenter);
    title->setWordWrap(true);
    title->setGeometry(25, y + shown.tileHeight() + 16, 325, 48);

    auto* subtitle = makeLabel(shown.subtitle, spaced(regularFont(16), 0.2), quiet, content);
    subtitle->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    subtitle->setWordWrap(true);
    subtitle->setGeometry(37, y + shown.tileHeight() + 55, 300, 48);
}

void StorePage::addBar() {
    auto* bar = makeLabel("Choose Your Plan", spaced(boldFont(18), 2), Qt::white, this);
    bar->setAlignment(Qt::AlignCenter);
    bar->setGeometry(0, store::viewportHeight, store::width, store::barHeight);
    fillBackground(*bar, accent);
}

int StorePage::largestOffset() const { return m_area->verticalScrollBar()->maximum(); }

void StorePage::scrollTo(int offset) { m_area->verticalScrollBar()->setValue(offset); }

void StorePage::drift() {
    for (Strip* strip : m_strips) strip->drift();
}

} // namespace peers::widgets

#include "Widgets/Paywall.hpp"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

namespace peers::widgets {
namespace {

const Plan& plan(int number) {
    static const Plan plans[] = {{"Annually", "$143.88", "$99.99", " per year ($8.33/month).", "SAVE 45%", true},
                                 {"Monthly", "", "$14.99", " per month", "", false}};
    return plans[number];
}

QHBoxLayout* makeLogoRow(const Assets& assets) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 5, 0, 0);
    row->addStretch();
    row->addWidget(assets.pictureLabel("logo.png", {208, 26}));
    row->addStretch();
    return row;
}

QHBoxLayout* makeCompareRow(const Assets& assets) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(6, 0, 16, 0);
    row->setSpacing(14);
    row->addWidget(assets.pictureLabel("diamond.png", {24, 24}));
    row->addWidget(makeLabel("Compare Plans: Free vs Pro", regularFont(16), ink));
    row->addStretch();
    row->addWidget(assets.pictureLabel("chevron.png", {10, 10}));
    return row;
}

QHBoxLayout* makeLinks() {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(16, 0, 16, 10);
    row->setSpacing(0);
    const QFont font = boldFont(14);
    row->addWidget(makeLabel("Terms of Service", font, quiet));
    row->addStretch();
    row->addWidget(makeLabel("Privacy Policy", font, quiet));
    row->addStretch();
    row->addWidget(makeLabel("Restore Purchases", font, quiet));
    return row;
}

QScrollArea* makeScrollArea(QWidget* parent) {
    auto* area = new QScrollArea(parent);
    area->setGeometry(0, 0, 375, 800);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return area;
}

void placePicture(QWidget* parent, const QPixmap& picture, const QRect& place) {
    auto* label = new QLabel(parent);
    label->setPixmap(picture);
    label->setGeometry(place);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
}

} // namespace

Paywall::Paywall(const Assets& assets, Carousel::Motion motion, QWidget* parent) : QWidget(parent) {
    resize(375, 800);
    fillBackground(*this, Qt::white);
    auto* area = makeScrollArea(this);
    QWidget* content = makeContent(assets, motion);
    area->setWidget(content);
    m_badge = new Badge(plan(0).badge, content);
    placePicture(this, assets.picture("terms_gradient.png"), {0, 720, 375, 80});
    placePicture(this, assets.picture("close.png"), {337, 14, 24, 24});
    select(0);
    m_cards[0]->setChecked(true);
    content->layout()->activate();
}

QWidget* Paywall::makeContent(const Assets& assets, Carousel::Motion motion) {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 80);
    column->setSpacing(8);
    column->addWidget(new Carousel(assets, motion));
    column->addLayout(makeLogoRow(assets));
    column->addLayout(makeCompareRow(assets));
    addPlans(*column);
    addPurchase(*column);
    column->addLayout(makeLinks());
    column->addStretch();
    fillBackground(*content, Qt::white);
    return content;
}

void Paywall::addPlans(QVBoxLayout& column) {
    auto* cards = new QVBoxLayout;
    cards->setContentsMargins(16, 0, 16, 10);
    cards->setSpacing(16);
    column.addLayout(cards);
    for (int number = 0; number < int(m_cards.size()); ++number) {
        m_cards[number] = new PlanCard(plan(number));
        cards->addWidget(m_cards[number]);
        connect(m_cards[number], &QAbstractButton::clicked, this, [this, number] { select(number); });
    }
}

void Paywall::addPurchase(QVBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(16, 12, 16, -3);
    m_buy = new BuyButton;
    row->addWidget(m_buy);
    column.addLayout(row);

    m_disclaimer = makeLabel("", regularFont(13), quiet);
    m_disclaimer->setWordWrap(true);
    m_disclaimer->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_disclaimer->setContentsMargins(16, 8, 16, 8);
    column.addWidget(m_disclaimer);
}

// The badge overlaps the first card's upper edge, so it stands in no layout.
void Paywall::showEvent(QShowEvent*) { m_badge->move(375 - 16 - 16 - m_badge->width(), m_cards[0]->y() - 8); }

void Paywall::select(int card) {
    m_selected = card;
    m_buy->setText(plan(card).hasTrial ? "Start Your Free Trial" : "Subscribe Now");
    m_disclaimer->setText(
        plan(card).hasTrial
            ? QString::fromUtf8(
                  "Cancel within 7 days, and you won’t be charged. Payment will be made automatically after the trial ends.")
            : QString("Payment will be made immediately."));
}

QPoint Paywall::cardPlace(int card) const { return m_cards[card]->mapTo(this, QPoint(120, 50)); }

} // namespace peers::widgets

#include "Widgets/PlanCard.hpp"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

namespace peers::widgets {
namespace {

constexpr int smallestHeight = 90;
const QColor plate{0xf4, 0xf4, 0xf6};
const QColor capsulePlate{0xd9, 0xf2, 0xf1};
const QColor capsuleInk{0x0a, 0x7f, 0x80};
const QColor ring{0xc9, 0xc9, 0xcf};

QLabel* makePrice(const Plan& plan) {
    const QString emphasized = "<span style=\"font-size:18px;font-weight:bold;color:#1a1a1a;%1\">%2</span>";
    const QString compare = plan.compare.isEmpty() ? "" : emphasized.arg("text-decoration:line-through;", plan.compare) + " ";
    auto* label = makeLabel("", regularFont(16), quiet);
    label->setTextFormat(Qt::RichText);
    label->setWordWrap(true);
    label->setText(compare + emphasized.arg("", plan.price) + plan.rest);
    return label;
}

void paintCapsule(QPainter& painter, const QLabel& capsule) {
    painter.setBrush(capsulePlate);
    painter.drawRoundedRect(QRectF(capsule.geometry()), capsule.height() / 2.0, capsule.height() / 2.0);
}

void paintChosen(QPainter& painter, const QRectF& circle, const QRectF& card) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(accent, 2));
    painter.drawEllipse(circle.adjusted(1, 1, -1, -1));
    painter.drawRoundedRect(card.adjusted(1, 1, -1, -1), 6, 6);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawEllipse(circle.adjusted(3, 3, -3, -3));
}

void paintUnchosen(QPainter& painter, const QRectF& circle) {
    painter.setBrush(Qt::white);
    painter.setPen(QPen(ring, 2));
    painter.drawEllipse(circle.adjusted(1, 1, -1, -1));
}

} // namespace

PlanCard::PlanCard(const Plan& plan) {
    setCheckable(true);
    setAutoExclusive(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setText(plan.title);
    setMinimumHeight(smallestHeight);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(14, 16, 14 + 24 + 16, 16);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(8);
    row->addLayout(texts);
    texts->addStretch();
    texts->addLayout(makeTitleRow(plan));
    texts->addWidget(makePrice(plan));
    texts->addStretch();
    for (QLabel* label : findChildren<QLabel*>()) label->setAttribute(Qt::WA_TransparentForMouseEvents);
}

QHBoxLayout* PlanCard::makeTitleRow(const Plan& plan) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(makeLabel(plan.title, regularFont(17), ink));
    if (plan.hasTrial) {
        m_capsule = makeLabel("7 DAY FREE TRIAL", boldFont(11), capsuleInk);
        m_capsule->setContentsMargins(6, 6, 6, 6);
        row->addWidget(m_capsule);
    }
    row->addStretch();
    return row;
}

QSize PlanCard::sizeHint() const {
    constexpr int width = 343;
    return {width, std::max(smallestHeight, layout()->heightForWidth(width))};
}

void PlanCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plate);
    painter.drawRoundedRect(QRectF(rect()), 6, 6);
    if (m_capsule) paintCapsule(painter, *m_capsule);

    const QRectF circle(width() - 38, height() / 2.0 - 12, 24, 24);
    if (isChecked())
        paintChosen(painter, circle, rect());
    else
        paintUnchosen(painter, circle);
}

} // namespace peers::widgets

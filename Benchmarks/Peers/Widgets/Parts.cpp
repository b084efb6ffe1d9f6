#include "Widgets/Parts.hpp"

#include "Common/Command.hpp"

#include <QPainter>

namespace peers::widgets {
namespace {

QFont font(int pixels, bool isBold) {
    QFont font("Liberation Sans");
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
}

void paintPlate(QPainter& painter, const QRect& place, double radius) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawRoundedRect(QRectF(place), radius, radius);
}

} // namespace

QFont regularFont(int pixels) { return font(pixels, false); }

QFont boldFont(int pixels) { return font(pixels, true); }

QPixmap Assets::picture(const QString& name) const {
    QPixmap picture(m_folder + name);
    if (picture.isNull()) fail("cannot read " + (m_folder + name).toStdString());
    picture.setDevicePixelRatio(2);
    return picture;
}

QLabel* Assets::pictureLabel(const QString& name, QSize size) const {
    auto* label = new QLabel;
    label->setPixmap(picture(name));
    label->setFixedSize(size);
    return label;
}

QLabel* makeLabel(const QString& text, const QFont& font, const QColor& colour, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour);
    palette.setColor(QPalette::ButtonText, colour); // what a label inside a button goes by
    label->setPalette(palette);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void fillBackground(QWidget& widget, const QColor& colour) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, colour);
    widget.setPalette(palette);
    widget.setAutoFillBackground(true);
}

Badge::Badge(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setFont(boldFont(10));
    QPalette white = palette();
    white.setColor(QPalette::WindowText, Qt::white);
    setPalette(white);
    setAlignment(Qt::AlignCenter);
    adjustSize();
    resize(width() + 8, 16);
}

void Badge::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        paintPlate(painter, rect(), 2);
    }
    QLabel::paintEvent(event);
}

BuyButton::BuyButton() {
    setFixedHeight(56);
    setFont(boldFont(17));
}

void BuyButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPlate(painter, rect(), 28);
    painter.setPen(Qt::white);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace peers::widgets

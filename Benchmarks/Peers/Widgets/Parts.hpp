// What the screens of the Qt Widgets peer are put together from.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPixmap>
#include <QString>

namespace peers::widgets {

inline const QColor ink{0x1a, 0x1a, 0x1a};
inline const QColor quiet{0x6b, 0x6b, 0x70};
inline const QColor accent{0x0a, 0x8f, 0x92};

QFont regularFont(int pixels);
QFont boldFont(int pixels);

// The folder of the pictures.
class Assets {
public:
    explicit Assets(const QString& folder) : m_folder(folder + "/") {}

    // At two pixels a point.
    QPixmap picture(const QString& name) const;
    QLabel* pictureLabel(const QString& name, QSize size) const;

private:
    QString m_folder;
};

// Widgets are made for the layout or the parent that takes them over.
QLabel* makeLabel(const QString& text, const QFont& font, const QColor& colour, QWidget* parent = nullptr);
void fillBackground(QWidget& widget, const QColor& colour);

// What a card saves, on a coloured plate.
class Badge final : public QLabel {
public:
    Badge(const QString& text, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

class BuyButton final : public QAbstractButton {
public:
    BuyButton();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace peers::widgets

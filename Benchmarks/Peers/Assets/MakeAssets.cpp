// Draws the pictures that every peer shows. They are the same on every machine that has the font.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <cstdio>
#include <cstdlib>

#include "Common/StorePage.hpp"

namespace {

const QColor ink{0x1a, 0x1a, 0x1a};
const QColor accent{0x0a, 0x8f, 0x92};

class Canvas {
public:
    Canvas(QSize size, QImage::Format format = QImage::Format_ARGB32_Premultiplied) : m_image(size, format) {
        m_image.fill(Qt::transparent);
        painter.begin(&m_image);
        painter.setRenderHint(QPainter::Antialiasing);
    }

    QImage finished() {
        painter.end();
        return m_image;
    }

private:
    QImage m_image;

public:
    QPainter painter;
};

// Translucent ovals and boxes over a gradient: as hard to compress as a photograph with large areas.
void drawArt(QPainter& painter, QSize size, quint32 seed) {
    QRandomGenerator random(seed);
    const int width = size.width();
    QLinearGradient background(0, 0, width, size.height());
    background.setColorAt(0, QColor::fromHsv(int(seed * 47 % 360), 150, 230));
    background.setColorAt(1, QColor::fromHsv(int((seed * 47 + 80) % 360), 190, 90));
    painter.fillRect(QRect({0, 0}, size), background);
    painter.setPen(Qt::NoPen);
    for (int shape = 0; shape < 40; ++shape) {
        // One number a line: the order in which arguments are evaluated is the compiler's affair.
        const int opacity = 60 + random.bounded(120);
        const int value = 120 + random.bounded(130);
        const int saturation = 120 + random.bounded(120);
        const int hue = random.bounded(360);
        painter.setBrush(QColor::fromHsv(hue, saturation, value, opacity));
        const double side = 0.06 * width + random.bounded(0.22 * width);
        const double height = side * (0.5 + random.bounded(1.0));
        const double y = random.bounded(double(size.height())) - side / 2;
        const double x = random.bounded(double(width)) - side / 2;
        const QRectF box(x, y, side, height);
        if (shape % 3)
            painter.drawEllipse(box);
        else
            painter.drawRoundedRect(box, 12, 12);
    }
}

// The header of one page, darkened where its title stands.
QImage header(quint32 page) {
    const QSize size(750, 508);
    Canvas canvas(size, QImage::Format_RGB32);
    drawArt(canvas.painter, size, page + 1);
    QLinearGradient shade(0, 300, 0, 508);
    shade.setColorAt(0, QColor(0, 0, 0, 0));
    shade.setColorAt(1, QColor(0, 0, 0, 150));
    canvas.painter.fillRect(0, 300, 750, 208, shade);
    return canvas.finished();
}

QImage logo() {
    Canvas canvas({416, 52});
    QPainter& painter = canvas.painter;
    QFont font("Liberation Sans");
    font.setPixelSize(46);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(QRect(0, -2, 300, 54), Qt::AlignCenter, "Sample app");
    painter.setBrush(accent);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(312, 4, 100, 44, 12, 12);
    font.setPixelSize(30);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(312, 4, 100, 44), Qt::AlignCenter, "PRO");
    return canvas.finished();
}

QImage diamond() {
    Canvas canvas({48, 48});
    QPainterPath outline;
    outline.moveTo(24, 4);
    outline.lineTo(44, 20);
    outline.lineTo(24, 44);
    outline.lineTo(4, 20);
    outline.closeSubpath();
    canvas.painter.setPen(QPen(ink, 4));
    canvas.painter.drawPath(outline);
    canvas.painter.drawLine(4, 20, 44, 20);
    return canvas.finished();
}

QImage chevron() {
    Canvas canvas({20, 20});
    canvas.painter.setPen(QPen(QColor(0x6b, 0x6b, 0x70), 3));
    canvas.painter.drawPolyline(QPolygonF{{6, 2}, {14, 10}, {6, 18}});
    return canvas.finished();
}

QImage closeCross() {
    Canvas canvas({48, 48});
    canvas.painter.setBrush(QColor(0, 0, 0, 110));
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.drawEllipse(1, 1, 46, 46);
    canvas.painter.setPen(QPen(Qt::white, 4));
    canvas.painter.drawLine(16, 16, 32, 32);
    canvas.painter.drawLine(32, 16, 16, 32);
    return canvas.finished();
}

QImage termsGradient() {
    Canvas canvas({750, 160});
    QLinearGradient fade(0, 0, 0, 160);
    fade.setColorAt(0, QColor(255, 255, 255, 0));
    fade.setColorAt(1, QColor(255, 255, 255, 240));
    canvas.painter.fillRect(0, 0, 750, 160, fade);
    return canvas.finished();
}

QImage tile(int shelf) {
    const QSize size(peers::store::shelves[shelf].tileWidth() * 2, peers::store::shelves[shelf].tileHeight() * 2);
    const QRect whole({0, 0}, size);
    Canvas art(size);
    QPainterPath corners;
    corners.addRoundedRect(whole, 20, 20);
    art.painter.setClipPath(corners);
    drawArt(art.painter, size, quint32(shelf + 11));

    // A clip has hard edges; an antialiased mask softens the corners.
    Canvas soft(size);
    soft.painter.setBrush(Qt::white);
    soft.painter.setPen(Qt::NoPen);
    soft.painter.drawRoundedRect(whole, 20, 20);
    soft.painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    soft.painter.drawImage(0, 0, art.finished());
    return soft.finished();
}

void save(const QImage& image, const QString& file) {
    if (image.save(file)) return;
    std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    std::exit(1);
}

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]) + "/";
    QDir().mkpath(folder);
    for (int page = 0; page < 4; ++page) save(header(quint32(page)), folder + QString("header_%1.png").arg(QChar('a' + page)));
    save(logo(), folder + "logo.png");
    save(diamond(), folder + "diamond.png");
    save(chevron(), folder + "chevron.png");
    save(closeCross(), folder + "close.png");
    save(termsGradient(), folder + "terms_gradient.png");
    for (int shelf = 0; shelf < int(peers::store::shelves.size()); ++shelf)
        save(tile(shelf), folder + QString("tile_%1.png").arg(shelf));
}

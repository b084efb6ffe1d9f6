#include "Widgets/Carousel.hpp"

#include <QEasingCurve>
#include <QPainter>
#include <QTimer>

namespace peers::widgets {
namespace {

constexpr int pageCount = 4;

const QString& title(int page) {
    static const QString titles[pageCount] = {
        "Endless premium templates, updated daily.", "Thousands of photos, videos, graphics and fonts.",
        "Remove photo backgrounds with one tap.", "Grow your business with Custom Domains and Link in Bio."};
    return titles[page];
}

} // namespace

Carousel::Carousel(const Assets& assets, Motion motion) {
    setFixedHeight(244); // 254, pulled up by 10
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_pictures << assets.picture("header_a.png");
    if (motion == Motion::running) run(assets);
}

void Carousel::run(const Assets& assets) {
    QTimer::singleShot(1000, this, [this, assets] {
        for (const char* name : {"header_b.png", "header_c.png", "header_d.png"}) m_pictures << assets.picture(name);
    });
    m_slide.setStartValue(0.0);
    m_slide.setEndValue(1.0);
    m_slide.setDuration(2000);
    m_slide.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_slide, &QVariantAnimation::valueChanged, this, [this](const QVariant& progress) {
        m_progress = progress.toDouble();
        update();
    });
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this] {
        m_lastPage = m_page;
        m_page = (m_page + 1) % pageCount;
        m_slide.start();
    });
    timer->start(5000);
}

void Carousel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPages(painter);
    paintTitle(painter);
    paintDots(painter);
}

void Carousel::paintPages(QPainter& painter) const {
    const double start = -(m_lastPage + (m_page - m_lastPage) * m_progress) * width();
    for (int page = 0; page < m_pictures.size(); ++page) {
        const double x = start + page * width();
        if (x < width() && x + width() > 0) painter.drawPixmap(QPointF(x, -10), m_pictures[page]);
    }
}

// The old title fades away, then the new one appears.
void Carousel::paintTitle(QPainter& painter) const {
    const bool showsOld = m_progress < 0.5;
    painter.setFont(m_font);
    painter.setPen(Qt::white);
    painter.setOpacity(showsOld ? 1 - 2 * m_progress : 2 * m_progress - 1);
    painter.drawText(QRect(10, 0, 285, 226), Qt::AlignBottom | Qt::TextWordWrap, title(showsOld ? m_lastPage : m_page));
    painter.setOpacity(1);
}

void Carousel::paintDots(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int page = 0; page < pageCount; ++page) {
        painter.setBrush(QColor(255, 255, 255, page == m_page ? 255 : 90));
        painter.drawEllipse(QRectF(width() - 70 + page * 10 + 1.5, 205.5, 7, 7));
    }
}

} // namespace peers::widgets

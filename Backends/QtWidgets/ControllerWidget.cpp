#include "Backends/QtWidgets/ControllerWidget.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QTouchEvent>
#include <cmath>

#include "Backends/Qt/EmbeddedScreen.hpp"

namespace proupsells::qtwidgets {

namespace {

class WidgetPlace final : public qtbackend::ScreenPlace {
public:
    explicit WidgetPlace(QWidget& widget) : m_widget(widget) {}

    QObject& object() const override { return m_widget; }
    QWindow* window() const override { return m_widget.window()->windowHandle(); }
    QAccessibleInterface* parent() const override {
        QObject* const around = m_widget.parentWidget();
        return QAccessible::queryAccessibleInterface(around ? around : qApp);
    }
    QString name() const override { return m_widget.accessibleName(); }
    QRect frame() const override { return {m_widget.mapToGlobal(QPoint(0, 0)), m_widget.size()}; }
    bool isVisible() const override { return m_widget.isVisible(); }
    bool hasFocus() const override { return m_widget.hasFocus(); }
    void takeFocus() override { m_widget.setFocus(Qt::OtherFocusReason); }

    geometry::Size size() const override { return {double(m_widget.width()), double(m_widget.height())}; }
    double scale() const override { return m_widget.devicePixelRatioF(); }
    qtbackend::SystemTraits systemTraits() const override {
        const bool isStill = m_widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &m_widget) == 0;
        return {m_widget.palette(), m_widget.layoutDirection(), isStill};
    }
    void update(const QRegion& damage) override { m_widget.update(damage); }
    void showHand(bool shows) override { shows ? m_widget.setCursor(Qt::PointingHandCursor) : m_widget.unsetCursor(); }

private:
    QWidget& m_widget;
};

constexpr QSize sheetSize{375, 800}, smallestSize{320, 480};

} // namespace

ControllerWidget::ControllerWidget(std::shared_ptr<uikit::UIViewController> controller, QWidget* parent)
    : QWidget(parent), m_screen(std::make_unique<qtbackend::EmbeddedScreen>(std::make_unique<WidgetPlace>(*this),
                                                                            [this] { emit dismissalRequested(); })) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setController(std::move(controller));
}

ControllerWidget::~ControllerWidget() { m_screen->close(); }

void ControllerWidget::setController(std::shared_ptr<uikit::UIViewController> controller) {
    if (m_screen->setController(std::move(controller))) updateGeometry();
}

uikit::UIViewController* ControllerWidget::controller() const { return m_screen->controller(); }

uikit::UIWindow& ControllerWidget::uiWindow() const { return m_screen->window(); }

void ControllerWidget::setTraits(const qtbackend::ScreenTraits& traits) { m_screen->setTraits(traits); }

const qtbackend::ScreenTraits& ControllerWidget::traits() const { return m_screen->traits(); }

QSize ControllerWidget::sizeHint() const {
    const geometry::Size preferred = controller() ? controller()->preferredContentSize() : geometry::Size{};
    const bool hasSize = preferred.width > 0 && preferred.height > 0;
    return hasSize ? QSize(int(std::ceil(preferred.width)), int(std::ceil(preferred.height))) : sheetSize;
}

QSize ControllerWidget::minimumSizeHint() const { return smallestSize; }

// --- What Qt tells ---

void ControllerWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::StyleChange: return m_screen->adoptTraits();
    default: return;
    }
}

void ControllerWidget::paintEvent(QPaintEvent*) {
    m_screen->prepareToDraw();
    QPainter(this).drawImage(QPoint(0, 0), m_screen->picture());
}

void ControllerWidget::resizeEvent(QResizeEvent*) { m_screen->resized(); }

void ControllerWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    m_screen->setSeen(true);
}

void ControllerWidget::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    m_screen->setSeen(false);
}

bool ControllerWidget::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        event->accept();
        m_screen->input().touched(static_cast<QTouchEvent&>(*event));
        return true;
    default: return QWidget::event(event);
    }
}

void ControllerWidget::mousePressEvent(QMouseEvent* event) { m_screen->input().mousePressed(*event); }

// The second press of two quick ones.
void ControllerWidget::mouseDoubleClickEvent(QMouseEvent* event) { m_screen->input().mousePressed(*event); }

void ControllerWidget::mouseMoveEvent(QMouseEvent* event) { m_screen->mouseMoved(*event); }

void ControllerWidget::mouseReleaseEvent(QMouseEvent* event) { m_screen->input().mouseReleased(*event); }

void ControllerWidget::enterEvent(QEnterEvent* event) { m_screen->hovered(event->position()); }

void ControllerWidget::leaveEvent(QEvent*) { m_screen->left(); }

void ControllerWidget::wheelEvent(QWheelEvent* event) { m_screen->input().wheelTurned(*event); }

void ControllerWidget::keyPressEvent(QKeyEvent* event) {
    if (!m_screen->keyPressed(*event)) QWidget::keyPressEvent(event);
}

bool ControllerWidget::focusNextPrevChild(bool next) { return m_screen->moveFocus(next) || QWidget::focusNextPrevChild(next); }

void ControllerWidget::focusInEvent(QFocusEvent* event) { m_screen->focusIn(event->reason()); }

void ControllerWidget::focusOutEvent(QFocusEvent* event) { m_screen->focusOut(event->reason()); }

} // namespace proupsells::qtwidgets

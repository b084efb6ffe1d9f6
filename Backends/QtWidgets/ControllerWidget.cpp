#include "Backends/QtWidgets/ControllerWidget.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QTouchEvent>
#include <cmath>

#include "Backends/Qt/FramePacer.hpp"
#include "Backends/Qt/Install.hpp"
#include "Backends/Qt/PixelImage.hpp"
#include "Backends/Qt/QtAccessibility.hpp"
#include "Backends/Qt/QtInput.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::qtwidgets {

namespace {

class WidgetPlace final : public qtbackend::AccessiblePlace {
public:
    explicit WidgetPlace(QWidget& widget) : m_widget(widget) {}

    QObject& object() const override { return m_widget; }
    QWindow* window() const override { return m_widget.window()->windowHandle(); }
    QAccessibleInterface* parent() const override {
        QObject* const around = m_widget.parentWidget();
        return QAccessible::queryAccessibleInterface(around ? around : qApp);
    }
    QAccessible::Role role() const override { return QAccessible::Client; }
    QString name() const override { return m_widget.accessibleName(); }
    QRect frame() const override { return {m_widget.mapToGlobal(QPoint(0, 0)), m_widget.size()}; }
    bool isVisible() const override { return m_widget.isVisible(); }

private:
    QWidget& m_widget;
};

constexpr QSize sheetSize{375, 800}, smallestSize{320, 480};

} // namespace

struct ControllerWidget::Parts {
    explicit Parts(ControllerWidget& widget)
        : view(widget.m_uiWindow), pacer(view, [&widget] { widget.makeFrame(); }), input(widget.m_uiWindow),
          accessibility(std::make_unique<WidgetPlace>(widget), *widget.m_uiWindow) {}

    rasterbackend::PixelView view;
    qtbackend::PixelImage image;
    qtbackend::FramePacer pacer;
    qtbackend::QtInput input;
    qtbackend::QtAccessibility accessibility;
};

ControllerWidget::ControllerWidget(std::shared_ptr<uikit::UIViewController> controller, QWidget* parent) : QWidget(parent) {
    qtbackend::install();
    m_uiWindow = uikit::UIWindow::create({double(width()), double(height())});
    m_uiWindow->setFocusLeaves(true);
    m_uiWindow->setRootDismissalHandler([this] { emit dismissalRequested(); });
    m_parts = std::make_unique<Parts>(*this);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_AcceptTouchEvents);
    adoptTraits();
    setController(std::move(controller));
}

ControllerWidget::~ControllerWidget() {
    m_uiWindow->setRootDismissalHandler({});
    m_uiWindow->setRootViewController(nullptr);
}

void ControllerWidget::setController(std::shared_ptr<uikit::UIViewController> controller) {
    const auto kept = m_uiWindow;
    const QPointer<ControllerWidget> self(this);
    kept->setRootViewController(std::move(controller));
    if (self) updateGeometry();
}

uikit::UIViewController* ControllerWidget::controller() const { return m_uiWindow->rootViewController(); }

QSize ControllerWidget::sizeHint() const {
    const geometry::Size preferred = controller() ? controller()->preferredContentSize() : geometry::Size{};
    const bool hasSize = preferred.width > 0 && preferred.height > 0;
    return hasSize ? QSize(int(std::ceil(preferred.width)), int(std::ceil(preferred.height))) : sheetSize;
}

QSize ControllerWidget::minimumSizeHint() const { return smallestSize; }

// --- Traits ---

void ControllerWidget::setTraits(const qtbackend::ScreenTraits& traits) {
    m_traits = traits;
    adoptTraits();
}

void ControllerWidget::adoptTraits() {
    const auto ownDirection = isRightToLeft() ? geometry::LayoutDirection::rightToLeft : geometry::LayoutDirection::leftToRight;
    const bool isStill = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) == 0;
    uikit::UITraitCollection traits;
    traits.userInterfaceStyle = m_traits.colorScheme.value_or(qtbackend::colorSchemeOf(palette()));
    traits.layoutDirection = m_traits.layoutDirection.value_or(ownDirection);
    traits.reduceMotion = m_traits.reducesMotion.value_or(isStill);
    traits.preferredContentSizeCategory = m_traits.textSize;
    traits.displayScale = devicePixelRatioF();
    m_uiWindow->setTraits(traits);
}

void ControllerWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::StyleChange: return adoptTraits();
    default: return;
    }
}

// --- Picture ---

// What is due runs the host's code, which may open an event loop of its own or delete the widget.
void ControllerWidget::makeFrame() {
    const QPointer<ControllerWidget> self(this);
    runloop::MainRunLoop::main().runDueTurns();
    if (!self || !m_parts->pacer.isRunning()) return;
    paintPixels();
    m_parts->pacer.schedule();
}

void ControllerWidget::paintPixels() {
    const QRegion damage = m_parts->image.paint(m_parts->view, size(), devicePixelRatioF());
    if (damage.isEmpty()) return;
    update(damage);
    m_parts->accessibility.update();
}

void ControllerWidget::paintEvent(QPaintEvent*) {
    // Shown at another scale or size than before, or for the first time.
    if (!m_parts->image.shows(size(), devicePixelRatioF())) {
        if (m_uiWindow->traits().displayScale != devicePixelRatioF()) adoptTraits();
        m_parts->image.paint(m_parts->view, size(), devicePixelRatioF());
        m_parts->pacer.schedule();
    }
    QPainter(this).drawImage(QPoint(0, 0), m_parts->image.image());
}

void ControllerWidget::resizeEvent(QResizeEvent*) { m_parts->view.setSize({double(width()), double(height())}); }

void ControllerWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    m_parts->pacer.setScreen(screen());
    m_parts->pacer.setRunning(true);
}

void ControllerWidget::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    m_parts->pacer.setRunning(false);
    m_parts->input.cancelTouch();
}

// --- Input ---

bool ControllerWidget::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        event->accept();
        m_parts->input.touched(static_cast<QTouchEvent&>(*event));
        return true;
    default: return QWidget::event(event);
    }
}

void ControllerWidget::mousePressEvent(QMouseEvent* event) { m_parts->input.mousePressed(*event); }

// The second press of two quick ones.
void ControllerWidget::mouseDoubleClickEvent(QMouseEvent* event) { m_parts->input.mousePressed(*event); }

void ControllerWidget::mouseMoveEvent(QMouseEvent* event) { m_parts->input.mouseMoved(*event); }

void ControllerWidget::mouseReleaseEvent(QMouseEvent* event) { m_parts->input.mouseReleased(*event); }

void ControllerWidget::wheelEvent(QWheelEvent* event) { m_parts->input.wheelTurned(*event); }

void ControllerWidget::keyPressEvent(QKeyEvent* event) {
    // Before the key, which may delete the widget.
    event->accept();
    const QPointer<ControllerWidget> self(this);
    if (!m_parts->input.keyPressed(*event) && self) QWidget::keyPressEvent(event);
}

bool ControllerWidget::focusNextPrevChild(bool next) {
    const auto kept = m_uiWindow;
    return kept->key(next ? host::Key::tab : host::Key::backTab) || QWidget::focusNextPrevChild(next);
}

void ControllerWidget::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::TabFocusReason) m_uiWindow->takeFocus(host::FocusEnd::first);
    if (event->reason() == Qt::BacktabFocusReason) m_uiWindow->takeFocus(host::FocusEnd::last);
}

void ControllerWidget::focusOutEvent(QFocusEvent* event) {
    const bool comesBack = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    if (!comesBack) m_uiWindow->dropFocus();
}

} // namespace proupsells::qtwidgets

#include "Backends/QtQuick/ControllerItem.hpp"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QPointer>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>
#include <utility>

#include "Backends/Qt/FramePacer.hpp"
#include "Backends/Qt/Install.hpp"
#include "Backends/Qt/PixelImage.hpp"
#include "Backends/Qt/QtAccessibility.hpp"
#include "Backends/Qt/QtInput.hpp"
#include "Backends/QtQuick/ItemPlace.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::qtquick {

namespace {

QSize wholeSize(const QQuickItem& item) { return {int(std::ceil(item.width())), int(std::ceil(item.height()))}; }

} // namespace

struct ControllerItem::Parts {
    explicit Parts(ControllerItem& item)
        : view(item.m_uiWindow), pacer(view, [&item] { item.makeFrame(); }), input(item.m_uiWindow),
          accessibility(std::make_unique<ItemPlace>(item), *item.m_uiWindow) {}

    rasterbackend::PixelView view;
    qtbackend::PixelImage image;
    qtbackend::FramePacer pacer;
    qtbackend::QtInput input;
    qtbackend::QtAccessibility accessibility;
};

ControllerItem::ControllerItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    qtbackend::install();
    m_uiWindow = uikit::UIWindow::create();
    m_uiWindow->setFocusLeaves(true);
    m_uiWindow->setRootDismissalHandler([this] { emit dismissalRequested(); });
    m_parts = std::make_unique<Parts>(*this);
    setOpaquePainting(true);
    setAntialiasing(false);
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    setActiveFocusOnTab(true);
    offerToAssistiveTechnology(*this);
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, [this] { adoptTraits(); });
    adoptTraits();
    // Items that are made inside a window hear of it only here.
    followWindow(window());
}

ControllerItem::~ControllerItem() {
    QObject::disconnect(m_windowVisibility);
    m_uiWindow->setRootDismissalHandler({});
    m_uiWindow->setRootViewController(nullptr);
}

void ControllerItem::setController(std::shared_ptr<uikit::UIViewController> controller) {
    const auto kept = m_uiWindow;
    const QPointer<ControllerItem> self(this);
    const geometry::Size size = controller ? controller->preferredContentSize() : geometry::Size{};
    kept->setRootViewController(std::move(controller));
    if (self) setImplicitSize(size.width, size.height);
}

uikit::UIViewController* ControllerItem::controller() const { return m_uiWindow->rootViewController(); }

// --- Traits ---

namespace {

constexpr int usualTextSize = int(graphics::ContentSizeCategory::large);

// The enumerations' first value means that the host says nothing.
template <class Trait, class Choice>
std::optional<Trait> traitOf(Choice choice, Trait second, Trait third) {
    if (int(choice) == 0) return std::nullopt;
    return int(choice) == 1 ? second : third;
}

template <class Choice, class Trait>
Choice choiceOf(const std::optional<Trait>& trait, Trait second) {
    return Choice(!trait ? 0 : *trait == second ? 1 : 2);
}

} // namespace

ControllerItem::ColorScheme ControllerItem::colorScheme() const {
    return choiceOf<ColorScheme>(m_traits.colorScheme, graphics::ColorScheme::light);
}

void ControllerItem::setColorScheme(ColorScheme scheme) {
    qtbackend::ScreenTraits traits = m_traits;
    traits.colorScheme = traitOf(scheme, graphics::ColorScheme::light, graphics::ColorScheme::dark);
    setTraits(traits);
}

ControllerItem::Direction ControllerItem::direction() const {
    return choiceOf<Direction>(m_traits.layoutDirection, geometry::LayoutDirection::leftToRight);
}

void ControllerItem::setDirection(Direction direction) {
    qtbackend::ScreenTraits traits = m_traits;
    traits.layoutDirection = traitOf(direction, geometry::LayoutDirection::leftToRight, geometry::LayoutDirection::rightToLeft);
    setTraits(traits);
}

void ControllerItem::setReducesMotion(bool reduces) {
    qtbackend::ScreenTraits traits = m_traits;
    traits.reducesMotion = reduces;
    setTraits(traits);
}

int ControllerItem::textSize() const { return int(m_traits.textSize) - usualTextSize; }

void ControllerItem::setTextSize(int steps) {
    constexpr int largest = int(graphics::ContentSizeCategory::accessibilityExtraExtraExtraLarge);
    qtbackend::ScreenTraits traits = m_traits;
    traits.textSize = graphics::ContentSizeCategory(std::clamp(usualTextSize + steps, 0, largest));
    setTraits(traits);
}

void ControllerItem::setTraits(const qtbackend::ScreenTraits& traits) {
    if (std::exchange(m_traits, traits) == traits) return;
    adoptTraits();
    emit traitsChanged();
}

void ControllerItem::adoptTraits() {
    const bool isRightToLeft = QGuiApplication::layoutDirection() == Qt::RightToLeft;
    uikit::UITraitCollection traits;
    traits.userInterfaceStyle = m_traits.colorScheme.value_or(qtbackend::colorSchemeOf(QGuiApplication::palette()));
    traits.layoutDirection = m_traits.layoutDirection.value_or(isRightToLeft ? geometry::LayoutDirection::rightToLeft
                                                                             : geometry::LayoutDirection::leftToRight);
    traits.reduceMotion = reducesMotion();
    traits.preferredContentSizeCategory = m_traits.textSize;
    traits.displayScale = scaleFactor();
    m_uiWindow->setTraits(traits);
}

// --- Picture ---

double ControllerItem::scaleFactor() const { return window() ? window()->effectiveDevicePixelRatio() : 1; }

// What is due runs the host's code, which may open an event loop of its own or delete the item.
void ControllerItem::makeFrame() {
    const QPointer<ControllerItem> self(this);
    runloop::MainRunLoop::main().runDueTurns();
    if (!self || !m_parts->pacer.isRunning()) return;
    paintPixels();
    m_parts->pacer.schedule();
}

void ControllerItem::paintPixels() {
    const QRegion damage = m_parts->image.paint(m_parts->view, wholeSize(*this), scaleFactor());
    if (damage.isEmpty()) return;
    for (const QRect& rect : damage) update(rect);
    m_parts->accessibility.update();
}

// On the main thread, before the scene is painted: an item of another size or scale must not be shown with the old picture.
void ControllerItem::updatePolish() {
    if (m_uiWindow->traits().displayScale != scaleFactor()) adoptTraits();
    if (!m_parts->image.shows(wholeSize(*this), scaleFactor())) paintPixels();
}

// On the scene's thread, while the main thread waits.
void ControllerItem::paint(QPainter* painter) { painter->drawImage(QPoint(0, 0), m_parts->image.image()); }

void ControllerItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size()) return;
    m_parts->view.setSize({width(), height()});
    polish();
}

void ControllerItem::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickPaintedItem::itemChange(change, data);
    if (!m_parts) return;
    switch (change) {
    case ItemSceneChange: return followWindow(data.window);
    case ItemVisibleHasChanged: return followVisibility();
    case ItemDevicePixelRatioHasChanged: return polish();
    default: return;
    }
}

// The window is told when the application's palette changes.
bool ControllerItem::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange) adoptTraits();
    return QQuickPaintedItem::eventFilter(watched, event);
}

void ControllerItem::followWindow(QQuickWindow* window) {
    QObject::disconnect(m_windowVisibility);
    if (m_watchedWindow) m_watchedWindow->removeEventFilter(this);
    m_watchedWindow = window;
    if (window) window->installEventFilter(this);
    if (window) m_windowVisibility = connect(window, &QWindow::visibilityChanged, this, [this] { followVisibility(); });
    m_parts->pacer.setScreen(window ? window->screen() : nullptr);
    followVisibility();
    polish();
}

void ControllerItem::followVisibility() {
    const bool isSeen = isVisible() && window() && window()->isVisible() && window()->visibility() != QWindow::Minimized;
    m_parts->pacer.setRunning(isSeen);
    if (!isSeen) m_parts->input.cancelTouch();
}

// --- Input ---

// A scene looks at an item again after it has handed over an event. So the content, from which the host may delete the item, gets
// the event when the scene is done with it.
template <class Event>
void ControllerItem::handOnLater(const Event& event, void (qtbackend::QtInput::*handOn)(const Event&)) {
    QMetaObject::invokeMethod(
        this, [this, handOn, copy = std::shared_ptr<Event>(event.clone())] { (m_parts->input.*handOn)(*copy); },
        Qt::QueuedConnection);
}

void ControllerItem::cancelTouchLater() {
    QMetaObject::invokeMethod(
        this, [this] { m_parts->input.cancelTouch(); }, Qt::QueuedConnection);
}

void ControllerItem::mousePressEvent(QMouseEvent* event) {
    forceActiveFocus(Qt::MouseFocusReason);
    handOnLater(*event, &qtbackend::QtInput::mousePressed);
}

void ControllerItem::mouseMoveEvent(QMouseEvent* event) { handOnLater(*event, &qtbackend::QtInput::mouseMoved); }

void ControllerItem::mouseReleaseEvent(QMouseEvent* event) { handOnLater(*event, &qtbackend::QtInput::mouseReleased); }

void ControllerItem::mouseUngrabEvent() { cancelTouchLater(); }

void ControllerItem::touchEvent(QTouchEvent* event) {
    event->accept();
    handOnLater(*event, &qtbackend::QtInput::touched);
}

void ControllerItem::touchUngrabEvent() { cancelTouchLater(); }

void ControllerItem::wheelEvent(QWheelEvent* event) { m_parts->input.wheelTurned(*event); }

void ControllerItem::keyPressEvent(QKeyEvent* event) {
    // Before the key, which may delete the item. Where it means nothing here it goes to the items around, and for Tab to the next
    // one.
    event->accept();
    const QPointer<ControllerItem> self(this);
    if (!m_parts->input.keyPressed(*event) && self) event->ignore();
}

void ControllerItem::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::TabFocusReason) m_uiWindow->takeFocus(host::FocusEnd::first);
    if (event->reason() == Qt::BacktabFocusReason) m_uiWindow->takeFocus(host::FocusEnd::last);
}

void ControllerItem::focusOutEvent(QFocusEvent* event) {
    const bool comesBack = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    if (!comesBack) m_uiWindow->dropFocus();
}

} // namespace proupsells::qtquick

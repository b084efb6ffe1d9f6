#include "Backends/QtQuick/ControllerItem.hpp"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickWindow>
#include <QSGImageNode>
#include <algorithm>
#include <utility>

#include "Backends/Qt/EmbeddedScreen.hpp"
#include "Backends/QtQuick/ItemPlace.hpp"

namespace proupsells::qtquick {

ControllerItem::ControllerItem(QQuickItem* parent)
    : QQuickItem(parent), m_screen(std::make_unique<qtbackend::EmbeddedScreen>(std::make_unique<ItemPlace>(*this),
                                                                               [this] { emit dismissalRequested(); })) {
    setFlag(ItemHasContents);
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    setAcceptHoverEvents(true);
    setActiveFocusOnTab(true);
    offerToAssistiveTechnology(*this);
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, [this] { m_screen->adoptTraits(); });
    // Items that are made inside a window hear of it only here.
    followWindow(window());
}

ControllerItem::~ControllerItem() {
    QObject::disconnect(m_windowVisibility);
    m_screen->close();
}

void ControllerItem::setController(std::shared_ptr<uikit::UIViewController> controller) {
    const geometry::Size size = controller ? controller->preferredContentSize() : geometry::Size{};
    if (m_screen->setController(std::move(controller))) setImplicitSize(size.width, size.height);
}

uikit::UIViewController* ControllerItem::controller() const { return m_screen->controller(); }

uikit::UIWindow& ControllerItem::uiWindow() const { return m_screen->window(); }

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
    return choiceOf<ColorScheme>(m_screen->traits().colorScheme, graphics::ColorScheme::light);
}

void ControllerItem::setColorScheme(ColorScheme scheme) {
    qtbackend::ScreenTraits traits = m_screen->traits();
    traits.colorScheme = traitOf(scheme, graphics::ColorScheme::light, graphics::ColorScheme::dark);
    setTraits(traits);
}

ControllerItem::Direction ControllerItem::direction() const {
    return choiceOf<Direction>(m_screen->traits().layoutDirection, geometry::LayoutDirection::leftToRight);
}

void ControllerItem::setDirection(Direction direction) {
    qtbackend::ScreenTraits traits = m_screen->traits();
    traits.layoutDirection = traitOf(direction, geometry::LayoutDirection::leftToRight, geometry::LayoutDirection::rightToLeft);
    setTraits(traits);
}

bool ControllerItem::reducesMotion() const { return m_screen->traits().reducesMotion.value_or(false); }

void ControllerItem::setReducesMotion(bool reduces) {
    qtbackend::ScreenTraits traits = m_screen->traits();
    traits.reducesMotion = reduces;
    setTraits(traits);
}

void ControllerItem::resetReducesMotion() {
    qtbackend::ScreenTraits traits = m_screen->traits();
    traits.reducesMotion.reset();
    setTraits(traits);
}

int ControllerItem::textSize() const {
    return int(m_screen->traits().textSize.value_or(graphics::ContentSizeCategory(usualTextSize))) - usualTextSize;
}

void ControllerItem::setTextSize(int steps) {
    constexpr int largest = int(graphics::ContentSizeCategory::accessibilityExtraExtraExtraLarge);
    qtbackend::ScreenTraits traits = m_screen->traits();
    traits.textSize = graphics::ContentSizeCategory(std::clamp(usualTextSize + steps, 0, largest));
    setTraits(traits);
}

void ControllerItem::resetTextSize() {
    qtbackend::ScreenTraits traits = m_screen->traits();
    traits.textSize.reset();
    setTraits(traits);
}

void ControllerItem::setTraits(const qtbackend::ScreenTraits& traits) {
    if (m_screen->traits() == traits) return;
    m_screen->setTraits(traits);
    emit traitsChanged();
}

// --- Picture ---

// On the main thread, before the scene is painted: an item of another size or scale must not be shown with the old picture.
void ControllerItem::updatePolish() {
    if (m_screen->prepareToDraw()) update();
}

// On the scene's thread, while the main thread waits. Pixel for pixel: an item whose size is no whole number of pixels shows the
// picture a little larger than itself, instead of shrinking it.
QSGNode* ControllerItem::updatePaintNode(QSGNode* former, UpdatePaintNodeData*) {
    // A copy, because the scene may be shown while the next frame is painted.
    QImage picture = m_screen->picture().copy();
    const QRectF place({}, picture.deviceIndependentSize());
    picture.setDevicePixelRatio(1);
    if (picture.isNull()) {
        delete former;
        return nullptr;
    }
    auto* node = static_cast<QSGImageNode*>(former);
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
    }
    const bool isOnlyMoved = itemTransform(nullptr, nullptr).type() <= QTransform::TxTranslate;
    node->setFiltering(isOnlyMoved ? QSGTexture::Nearest : QSGTexture::Linear);
    node->setTexture(window()->createTextureFromImage(picture, QQuickWindow::TextureIsOpaque));
    node->setSourceRect(picture.rect());
    node->setRect(place);
    return node;
}

void ControllerItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size()) return;
    m_screen->resized();
    polish();
}

void ControllerItem::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (!m_screen) return;
    switch (change) {
    case ItemSceneChange: return followWindow(data.window);
    case ItemVisibleHasChanged: return followVisibility();
    case ItemDevicePixelRatioHasChanged: return polish();
    default: return;
    }
}

// The window is told when the application's palette changes.
bool ControllerItem::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange) m_screen->adoptTraits();
    return QQuickItem::eventFilter(watched, event);
}

void ControllerItem::followWindow(QQuickWindow* window) {
    QObject::disconnect(m_windowVisibility);
    if (m_watchedWindow) m_watchedWindow->removeEventFilter(this);
    m_watchedWindow = window;
    if (window) window->installEventFilter(this);
    if (window) m_windowVisibility = connect(window, &QWindow::visibilityChanged, this, [this] { followVisibility(); });
    followVisibility();
    polish();
}

void ControllerItem::followVisibility() {
    const bool isSeen = isVisible() && window() && window()->isVisible() && window()->visibility() != QWindow::Minimized;
    m_screen->setSeen(isSeen);
}

// --- Input ---

// A scene looks at an item again after it has handed over an event. So the content, from which the host may delete the item, gets
// the event when the scene is done with it.
template <class Event>
void ControllerItem::handOnLater(const Event& event, void (qtbackend::QtInput::*handOn)(const Event&)) {
    QMetaObject::invokeMethod(
        this, [this, handOn, copy = std::shared_ptr<Event>(event.clone())] { (m_screen->input().*handOn)(*copy); },
        Qt::QueuedConnection);
}

void ControllerItem::cancelTouchLater() {
    QMetaObject::invokeMethod(
        this, [this] { m_screen->input().cancelTouch(); }, Qt::QueuedConnection);
}

void ControllerItem::mousePressEvent(QMouseEvent* event) {
    forceActiveFocus(Qt::MouseFocusReason);
    handOnLater(*event, &qtbackend::QtInput::mousePressed);
}

void ControllerItem::mouseMoveEvent(QMouseEvent* event) { handOnLater(*event, &qtbackend::QtInput::mouseMoved); }

void ControllerItem::hoverEnterEvent(QHoverEvent* event) { hoverMoveEvent(event); }

void ControllerItem::hoverMoveEvent(QHoverEvent* event) { m_screen->hovered(event->position()); }

void ControllerItem::hoverLeaveEvent(QHoverEvent*) { m_screen->left(); }

void ControllerItem::mouseReleaseEvent(QMouseEvent* event) { handOnLater(*event, &qtbackend::QtInput::mouseReleased); }

void ControllerItem::mouseUngrabEvent() { cancelTouchLater(); }

void ControllerItem::touchEvent(QTouchEvent* event) {
    event->accept();
    handOnLater(*event, &qtbackend::QtInput::touched);
}

void ControllerItem::touchUngrabEvent() { cancelTouchLater(); }

void ControllerItem::wheelEvent(QWheelEvent* event) { m_screen->input().wheelTurned(*event); }

// What means nothing here goes to the items around, and for Tab to the next one.
void ControllerItem::keyPressEvent(QKeyEvent* event) {
    if (!m_screen->keyPressed(*event)) event->ignore();
}

void ControllerItem::focusInEvent(QFocusEvent* event) { m_screen->focusIn(event->reason()); }

void ControllerItem::focusOutEvent(QFocusEvent* event) { m_screen->focusOut(event->reason()); }

} // namespace proupsells::qtquick

#include "Backends/Qt/EmbeddedScreen.hpp"

#include <QKeyEvent>
#include <QPointer>
#include <QWindow>
#include <cmath>
#include <utility>

#include "Backends/Qt/DesktopSettings.hpp"
#include "Backends/Qt/Install.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::qtbackend {

namespace {

// Before the first part of a screen that needs it.
ScreenPlace& installedFor(ScreenPlace& place) {
    install();
    return place;
}

} // namespace

EmbeddedScreen::EmbeddedScreen(std::unique_ptr<ScreenPlace> place, std::function<void()> dismissalHandler)
    : m_place(installedFor(*place)), m_screen(nullptr, m_place.size()), m_pacer(m_screen, [this] { makeFrame(); }),
      m_input(m_screen.content()), m_accessibility(std::move(place), m_screen.window()) {
    window().setFocusLeaves(true);
    m_screen.setDismissalHandler(std::move(dismissalHandler));
    m_desktop =
        QObject::connect(&DesktopSettings::shared(), &DesktopSettings::changed, &m_place.object(), [this] { adoptTraits(); });
    adoptTraits();
}

EmbeddedScreen::~EmbeddedScreen() { QObject::disconnect(m_desktop); }

bool EmbeddedScreen::setController(std::shared_ptr<uikit::UIViewController> controller) {
    const QPointer<QObject> owner(&m_place.object());
    m_screen.setController(std::move(controller));
    return owner;
}

// --- Traits ---

void EmbeddedScreen::setTraits(const ScreenTraits& traits) {
    m_traits = traits;
    adoptTraits();
}

void EmbeddedScreen::adoptTraits() {
    window().setTraits(traitsOf(m_traits, m_place.systemTraits(), DesktopSettings::shared(), m_place.scale()));
}

// --- Picture ---

void EmbeddedScreen::setSeen(bool isSeen) {
    m_pacer.setRunning(isSeen, display());
    if (!isSeen) m_input.cancelTouch();
    m_accessibility.updateLater();
}

const QScreen* EmbeddedScreen::display() const {
    const QWindow* const window = m_place.window();
    return window ? window->screen() : nullptr;
}

// What is due runs the host's code, which may open an event loop of its own or delete the owner.
void EmbeddedScreen::makeFrame() {
    const QPointer<QObject> owner(&m_place.object());
    runloop::MainRunLoop::main().runDueTurns();
    if (!owner || !m_pacer.isRunning()) return;
    const QRegion damage = paint();
    if (!damage.isEmpty()) m_place.update(damage);
    adoptCursor();
    m_pacer.schedule(display());
}

bool EmbeddedScreen::prepareToDraw() {
    if (m_image.shows(wholeSize(), m_place.scale())) return false;
    const bool hasChanged = !paint().isEmpty();
    m_pacer.schedule(display());
    return hasChanged;
}

// Returns what has changed, in Qt's units.
QRegion EmbeddedScreen::paint() {
    const double scale = m_place.scale();
    if (window().traits().displayScale != scale) adoptTraits();
    const QRegion damage = m_image.paint(m_screen, wholeSize(), scale);
    m_accessibility.update();
    return damage;
}

QSize EmbeddedScreen::wholeSize() const {
    const geometry::Size size = m_place.size();
    return {int(std::ceil(size.width)), int(std::ceil(size.height))};
}

// --- Input ---

void EmbeddedScreen::mouseMoved(const QMouseEvent& event) {
    const QPointer<QObject> owner(&m_place.object());
    m_input.mouseMoved(event);
    if (owner) adoptCursor();
}

void EmbeddedScreen::hovered(QPointF position) {
    m_input.hovered(position);
    adoptCursor();
}

void EmbeddedScreen::left() {
    m_input.left();
    adoptCursor();
}

void EmbeddedScreen::adoptCursor() {
    const bool pointsAtControl = m_input.pointsAtControl();
    if (std::exchange(m_showsHand, pointsAtControl) != pointsAtControl) m_place.showHand(pointsAtControl);
}

bool EmbeddedScreen::keyPressed(QKeyEvent& event) {
    // Before the key, which may delete the owner.
    event.accept();
    const QPointer<QObject> owner(&m_place.object());
    return m_input.keyPressed(event) || !owner;
}

bool EmbeddedScreen::moveFocus(bool isForward) {
    const auto content = m_screen.content();
    return content->key(isForward ? host::Key::tab : host::Key::backTab);
}

void EmbeddedScreen::focusIn(Qt::FocusReason reason) {
    if (reason == Qt::TabFocusReason) window().takeFocus(host::FocusEnd::first);
    if (reason == Qt::BacktabFocusReason) window().takeFocus(host::FocusEnd::last);
    m_accessibility.updateLater();
}

void EmbeddedScreen::focusOut(Qt::FocusReason reason) {
    const bool comesBack = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    if (!comesBack) window().dropFocus();
    m_accessibility.updateLater();
}

} // namespace proupsells::qtbackend

#include "Backends/Qt/QtAccessibility.hpp"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <cmath>
#include <mutex>
#include <unordered_map>

#include "Backends/Qt/AccessibleElement.hpp"
#include "Backends/Qt/AccessibleRoot.hpp"
#include "Backends/Qt/AtspiSignals.hpp"

namespace proupsells::qtbackend {

using accessibility::ReadingElement;

namespace {

class WindowPlace final : public AccessiblePlace {
public:
    explicit WindowPlace(QWindow& window) : m_window(window) {}

    QObject& object() const override { return m_window; }
    QWindow* window() const override { return &m_window; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
    QAccessible::Role role() const override { return QAccessible::Window; }
    QString name() const override { return m_window.title(); }
    QRect frame() const override { return {m_window.mapToGlobal(QPoint(0, 0)), m_window.size()}; }
    bool isVisible() const override { return m_window.isVisible(); }
    bool hasFocus() const override { return m_window.isActive(); }
    void takeFocus() override { m_window.requestActivate(); }

private:
    QWindow& m_window;
};

// Those that can be asked for by Qt.
std::unordered_map<const QObject*, QtAccessibility*>& livingPlaces() {
    static std::unordered_map<const QObject*, QtAccessibility*> places;
    return places;
}

// Where nothing is shown there is a screen without a word.
bool isEmpty(const ReadingElement& dialog) { return dialog.name.empty() && dialog.children.empty(); }

} // namespace

void AccessibilityListener::tellAssistiveTechnology(QAccessibleEvent& event) {
    if (!tellOverAtspi(event)) QAccessible::updateAccessibility(&event);
}

QtAccessibility::QtAccessibility(std::unique_ptr<AccessiblePlace> place, host::WindowContent& content,
                                 AccessibilityListener listener)
    : m_place(std::move(place)), m_content(content), m_listener(std::move(listener)) {
    static std::once_flag installed;
    std::call_once(installed, [] { QAccessible::installFactory(&makeRoot); });
    livingPlaces()[&m_place->object()] = this;
}

QtAccessibility::QtAccessibility(QWindow& window, host::WindowContent& content, AccessibilityListener listener)
    : QtAccessibility(std::make_unique<WindowPlace>(window), content, std::move(listener)) {}

QtAccessibility::~QtAccessibility() {
    livingPlaces().erase(&m_place->object());
    m_elements.clear();
    if (m_root) QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(m_root));
}

// Qt asks for each class of the object, the most derived one first, and keeps what it gets.
QAccessibleInterface* QtAccessibility::makeRoot(const QString&, QObject* object) {
    const auto found = livingPlaces().find(object);
    if (found == livingPlaces().end()) return nullptr;
    return found->second->m_root = new AccessibleRoot(*found->second);
}

QAccessibleInterface* QtAccessibility::root() {
    return m_root ? m_root : QAccessible::queryAccessibleInterface(&m_place->object());
}

const ElementList& QtAccessibility::elements() {
    if (!std::exchange(m_isRead, true)) {
        // Whoever asks for the first time need not be told besides.
        if (m_elements.count() == 0)
            m_elements.fill(*this, nullptr, told());
        else
            m_elements.adopt(*this, nullptr, told());
    }
    return m_elements;
}

AccessibleElement* QtAccessibility::focused() const {
    AccessibleElement* const dialog = m_elements.at(0);
    if (!dialog || dialog->told().isBusy || !m_place->hasFocus()) return nullptr;
    AccessibleElement* const inner = m_elements.focused();
    return inner ? inner : dialog;
}

void QtAccessibility::update() {
    m_isRead = false;
    if (!m_listener.isThere()) return;
    m_isRead = true;
    m_elements.adopt(*this, nullptr, told());
    tellFocus();
}

void QtAccessibility::updateLater() {
    QObject* const object = &m_place->object();
    QMetaObject::invokeMethod(
        object,
        [object] {
            const auto found = livingPlaces().find(object);
            if (found != livingPlaces().end()) found->second->update();
        },
        Qt::QueuedConnection);
}

// The dialog, or nothing. A scene goes on listing items that it does not show, so what is hidden is empty.
std::vector<ReadingElement> QtAccessibility::told() {
    std::vector<ReadingElement> told;
    if (!m_place->isVisible()) return told;
    if (ReadingElement dialog = m_content.reading(); !isEmpty(dialog)) told.push_back(std::move(dialog));
    return told;
}

void QtAccessibility::tellFocus() {
    AccessibleElement* const element = focused();
    const QAccessible::Id id = element ? QAccessible::uniqueId(element) : 0;
    if (std::exchange(m_toldFocus, id) == id || !element) return;
    QAccessibleEvent event(element, QAccessible::Focus);
    tell(event);
}

// Qt's bridge to AT-SPI hands places on as they are, and those who listen there count the pixels of the X server's display.
QRect QtAccessibility::onDisplay(const geometry::Rect& frame) const {
    const QPoint origin = m_place->frame().topLeft();
    const geometry::Rect onScreen = frame.offsetBy({double(origin.x()), double(origin.y())});
    const QWindow* const window = m_place->window();
    const bool countsPixels = window && window->screen() && QGuiApplication::platformName() == QLatin1String("xcb");
    return countsPixels ? pixelsOf(onScreen, window->screen()->geometry().topLeft(), window->devicePixelRatio())
                        : pixelsOf(onScreen, {}, 1);
}

QRect pixelsOf(const geometry::Rect& frame, QPoint corner, double scale) {
    const auto place = [scale](double points, int fixed) { return int(std::lround(fixed + (points - fixed) * scale)); };
    return {place(frame.minX(), corner.x()), place(frame.minY(), corner.y()), int(std::lround(frame.width() * scale)),
            int(std::lround(frame.height() * scale))};
}

} // namespace proupsells::qtbackend

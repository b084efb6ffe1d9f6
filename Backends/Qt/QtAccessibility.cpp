#include "Backends/Qt/QtAccessibility.hpp"

#include <QAccessibleObject>
#include <QWindow>
#include <algorithm>
#include <unordered_map>

#include "Backends/Qt/AccessibleElement.hpp"

namespace proupsells::qtbackend {

using accessibility::SemanticNode;

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

private:
    QWindow& m_window;
};

class AccessibleRoot final : public QAccessibleObject {
public:
    explicit AccessibleRoot(QtAccessibility& owner) : QAccessibleObject(&owner.place().object()), m_owner(&owner) {}

    void detach() { m_owner = nullptr; }

    QWindow* window() const override { return m_owner ? m_owner->place().window() : nullptr; }
    QAccessibleInterface* parent() const override { return m_owner ? m_owner->place().parent() : nullptr; }
    QAccessibleInterface* child(int index) const override {
        if (!m_owner || index < 0 || index >= childCount()) return nullptr;
        return m_owner->elements()[std::size_t(index)];
    }
    int childCount() const override { return m_owner ? int(m_owner->elements().size()) : 0; }
    int indexOfChild(const QAccessibleInterface* child) const override {
        if (!m_owner) return -1;
        const auto& elements = m_owner->elements();
        const auto found = std::find(elements.begin(), elements.end(), child);
        return found == elements.end() ? -1 : int(found - elements.begin());
    }
    // The front-most one, which comes last.
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int index = childCount() - 1; index >= 0; --index)
            if (child(index)->rect().contains(x, y)) return child(index);
        return nullptr;
    }
    QString text(QAccessible::Text text) const override {
        return m_owner && text == QAccessible::Name ? m_owner->place().name() : QString();
    }
    QRect rect() const override { return m_owner ? m_owner->place().frame() : QRect(); }
    QAccessible::Role role() const override { return m_owner ? m_owner->place().role() : QAccessible::NoRole; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.active = m_owner && m_owner->place().window() && m_owner->place().window()->isActive();
        state.invisible = !m_owner || !m_owner->place().isVisible();
        return state;
    }

private:
    QtAccessibility* m_owner;
};

// Those that can be asked for by Qt.
std::unordered_map<const QObject*, QtAccessibility*>& livingPlaces() {
    static std::unordered_map<const QObject*, QtAccessibility*> places;
    return places;
}

std::string joinedTexts(const SemanticNode& node) {
    std::string joined = node.text ? node.text->text : std::string();
    for (const SemanticNode& child : node.children) {
        const std::string text = joinedTexts(child);
        if (!joined.empty() && !text.empty()) joined += ", ";
        joined += text;
    }
    return joined;
}

// Texts, images with a label, and controls; what is inside of a control belongs to it.
void collect(const SemanticNode& node, std::vector<SemanticNode>& result) {
    const bool canBeReached = node.opacity > 0 && (node.isOnScreen || node.reveal);
    const bool isElement = node.isControl || node.text || !node.label.empty();
    if (isElement && canBeReached) {
        SemanticNode element = node;
        element.children.clear();
        if (element.label.empty()) element.label = joinedTexts(node);
        if (!element.label.empty() || element.isControl) result.push_back(std::move(element));
        if (node.isControl) return;
    }
    for (const SemanticNode& child : node.children) collect(child, result);
}

bool isSameElement(const SemanticNode& a, const SemanticNode& b) {
    return a.type == b.type && a.identifier == b.identifier && (!a.identifier.empty() || a.label == b.label);
}

void forget(AccessibleElement* element) {
    element->detach();
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(element));
}

} // namespace

QtAccessibility::QtAccessibility(std::unique_ptr<AccessiblePlace> place, host::WindowContent& content,
                                 AccessibilityListener listener)
    : m_place(std::move(place)), m_content(content), m_listener(std::move(listener)) {
    static const bool isInstalled = (QAccessible::installFactory(&makeRoot), true);
    static_cast<void>(isInstalled);
    livingPlaces()[&m_place->object()] = this;
}

QtAccessibility::QtAccessibility(QWindow& window, host::WindowContent& content, AccessibilityListener listener)
    : QtAccessibility(std::make_unique<WindowPlace>(window), content, std::move(listener)) {}

QtAccessibility::~QtAccessibility() {
    livingPlaces().erase(&m_place->object());
    for (AccessibleElement* element : m_elements) forget(element);
    if (!m_root) return;
    static_cast<AccessibleRoot*>(m_root)->detach();
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(m_root));
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

const std::vector<AccessibleElement*>& QtAccessibility::elements() {
    if (!m_isRead) {
        m_isRead = true;
        std::vector<SemanticNode> nodes;
        collect(m_content.semanticTree(), nodes);
        adopt(std::move(nodes));
    }
    return m_elements;
}

void QtAccessibility::update() {
    if (!m_listener.isThere()) {
        m_isRead = false;
        return;
    }
    if (!m_root) return;
    m_isRead = true;
    std::vector<SemanticNode> nodes;
    collect(m_content.semanticTree(), nodes);
    adopt(std::move(nodes));
}

// What is still there keeps its object, so that a screen reader keeps its place.
void QtAccessibility::adopt(std::vector<SemanticNode> nodes) {
    std::vector<AccessibleElement*> former = std::exchange(m_elements, {});
    const std::vector<AccessibleElement*> formerOrder = former;
    std::vector<std::pair<AccessibleElement*, SemanticNode>> kept;
    for (SemanticNode& node : nodes) {
        const auto found =
            std::find_if(former.begin(), former.end(), [&](const AccessibleElement* e) { return isSameElement(e->node(), node); });
        if (found == former.end()) {
            auto* element = new AccessibleElement(*this, std::move(node));
            QAccessible::registerAccessibleInterface(element);
            m_elements.push_back(element);
            continue;
        }
        m_elements.push_back(*found);
        kept.emplace_back(*found, std::move(node));
        former.erase(found);
    }
    for (AccessibleElement* element : former) forget(element);
    for (auto& [element, node] : kept) element->become(std::move(node));
    if (m_elements != formerOrder) {
        QAccessibleEvent event(root(), QAccessible::ObjectReorder);
        tell(event);
    }
}

} // namespace proupsells::qtbackend

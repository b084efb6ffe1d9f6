// Operating a screen by keys, and what is told of it.
#include "Platform/UIKit/Controllers/KeyboardFocus.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

using accessibility::SemanticNode;
using host::Key;

namespace {

// Of what can be seen of the node.
double shownArea(const SemanticNode& node, const geometry::Rect& window) {
    const geometry::Rect seen = node.frame.intersection(window);
    return seen.width() * seen.height();
}

// The largest one in sight whose content is higher than itself. Null for none.
const SemanticNode* page(const SemanticNode& node, const geometry::Rect& window) {
    const SemanticNode* best = nullptr;
    const auto consider = [&](const SemanticNode* other) {
        if (other && (!best || shownArea(*other, window) > shownArea(*best, window))) best = other;
    };
    if (node.isOnScreen && node.scroll) {
        const geometry::PhysicalInsets& inset = node.scroll->contentInset;
        if (node.scroll->contentSize.height + inset.top + inset.bottom > node.frame.height()) consider(&node);
    }
    for (const SemanticNode& child : node.children) consider(page(child, window));
    return best;
}

// By how much a key scrolls a page, in points; 0 for a key that does not.
double distance(Key key, double pageHeight) {
    constexpr double line = 60, shareOfPage = 0.9, all = 1e9;
    switch (key) {
    case Key::up: return -line;
    case Key::down: return line;
    case Key::pageUp: return -shareOfPage * pageHeight;
    case Key::pageDown:
    case Key::space: return shareOfPage * pageHeight;
    case Key::home: return -all;
    case Key::end: return all;
    default: return 0;
    }
}

} // namespace

// What would act is taken all the same while it must not, so that nobody around the window acts instead.
bool UIWindow::key(host::Key key, bool isRepeated) {
    const bool acts = key == Key::activate || key == Key::escape;
    if (isTransitioning()) return acts || key == Key::space;
    if (acts && isRepeated) return true;
    const auto kept = strongReference(*this);
    switch (key) {
    case Key::tab: return m_focus->move(1, m_focusLeaves);
    case Key::backTab: return m_focus->move(-1, m_focusLeaves);
    case Key::escape: return escape();
    default: return m_focus->use(key, isRepeated) || scrollPage(key);
    }
}

bool UIWindow::escape() {
    UIViewController* const front = frontMostViewController();
    const auto kept = front ? strongReference(*front) : nullptr;
    return kept && kept->accessibilityPerformEscape();
}

bool UIWindow::scrollPage(Key key) {
    const geometry::Rect window = bounds();
    const SemanticNode tree = semanticTree();
    const SemanticNode* const scrolled = page(tree, window);
    const double by = scrolled ? distance(key, scrolled->frame.height()) : 0;
    if (by == 0) return false;
    scroll(scrolled->frame.intersection(window).center(), {0, by});
    return true;
}

bool UIWindow::takeFocus(host::FocusEnd end) {
    const auto kept = strongReference(*this);
    return m_focus->take(end);
}

void UIWindow::dropFocus() { m_focus->drop(); }

accessibility::ReadingElement UIWindow::reading() {
    const auto kept = strongReference(*this);
    accessibility::ReadingElement reading = accessibility::readingOf(semanticTree());
    if (const UIViewController* const front = frontMostViewController(); front && reading.name.empty())
        reading.name = front->accessibilityScreenName();
    reading.isBusy = isTransitioning();
    m_focus->mark(reading);
    return reading;
}

} // namespace proupsells::uikit

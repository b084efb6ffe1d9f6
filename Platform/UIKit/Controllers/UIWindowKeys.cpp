// Operating a screen by keys.
#include "Platform/UIKit/Controllers/KeyboardFocus.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

// What would act is taken all the same while it must not, so that nobody around the window acts instead.
bool UIWindow::key(host::Key key, bool isRepeated) {
    const bool acts = key == host::Key::activate || key == host::Key::escape;
    if (isTransitioning() || (acts && isRepeated)) return acts;
    const auto kept = strongReference(*this);
    switch (key) {
    case host::Key::tab: return m_focus->move(1, m_focusLeaves);
    case host::Key::backTab: return m_focus->move(-1, m_focusLeaves);
    case host::Key::escape: return escape();
    default: return m_focus->use(key);
    }
}

bool UIWindow::escape() {
    UIViewController* const front = frontMostViewController();
    const auto kept = front ? strongReference(*front) : nullptr;
    return kept && kept->accessibilityPerformEscape();
}

bool UIWindow::takeFocus(host::FocusEnd end) {
    const auto kept = strongReference(*this);
    return m_focus->take(end);
}

void UIWindow::dropFocus() { m_focus->drop(); }

} // namespace proupsells::uikit

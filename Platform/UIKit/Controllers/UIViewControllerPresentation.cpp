// Who presents whom, and what a dismissal closes.
#include <algorithm>

#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Commons/FatalError.hpp"
#include "Platform/RunLoop/MainActor.hpp"
#include "Platform/UIKit/Controllers/PresentationStack.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

namespace {

void logIgnored(const UIViewController& controller, std::string_view reason) {
    commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity,
                                         "UIViewController - presenting " + std::string(controller.typeName()) +
                                             " is ignored: " + std::string(reason),
                                         "present(_:animated:completion:)");
}

} // namespace

// A controller that is on its way to the window counts as being there: what it presents waits until it has arrived.
std::shared_ptr<UIWindow> UIViewController::windowForPresenting() const {
    if (m_isBeingPresented) return m_expectedWindow.lock();
    UIWindow* const current = window();
    return current ? strongReference(*current) : nullptr;
}

void UIViewController::present(const std::shared_ptr<UIViewController>& controller, bool animated,
                               std::function<void()> completion) {
    runloop::MainActor::assertIsolated("UIViewController::present");
    if (!controller) commons::fatalError("UIViewController: there is no controller to present");
    UIViewController& presenter = outermostParent();
    const auto window = presenter.windowForPresenting();
    if (!window) return logIgnored(*controller, "its presenter is in no window");
    if (presenter.m_presented && !presenter.m_presented->m_isBeingDismissed)
        return logIgnored(*controller,
                          std::string(presenter.typeName()) + " is presenting " + std::string(presenter.m_presented->typeName()));
    if (controller->m_parent || !controller->m_presenting.expired() || controller->window())
        return logIgnored(*controller, "it is shown already");
    window->presentations().present(presenter, controller, animated, std::move(completion));
}

void UIViewController::dismiss(bool animated, std::function<void()> completion) {
    runloop::MainActor::assertIsolated("UIViewController::dismiss");
    UIViewController* presented = nullptr;
    for (UIViewController* presenter = this; presenter && !presented; presenter = presenter->m_parent)
        if (presenter->m_presented && !presenter->m_presented->m_isBeingDismissed) presented = presenter->m_presented.get();
    if (!presented) {
        UIViewController& outermost = outermostParent();
        if (outermost.m_presenting.expired()) return outermost.askForDismissal();
        if (outermost.m_isBeingDismissed) return;
        presented = &outermost;
    }
    if (const auto window = presented->m_expectedWindow.lock())
        window->presentations().dismiss(*presented, animated, std::move(completion));
}

// A root controller is nobody's to dismiss but the host's.
void UIViewController::askForDismissal() {
    UIWindow* const shown = window();
    if (!shown || shown->rootViewController() != this) return;
    // A copy, because the handler may replace itself.
    if (const auto handler = shown->m_rootDismissalHandler) handler();
}

bool UIViewController::accessibilityPerformEscape() {
    const auto asked = m_children;
    return std::any_of(asked.rbegin(), asked.rend(), [](const auto& child) { return child->accessibilityPerformEscape(); });
}

std::string UIViewController::accessibilityScreenName() const {
    std::string name = m_title;
    for (auto child = m_children.rbegin(); name.empty() && child != m_children.rend(); ++child)
        name = (*child)->accessibilityScreenName();
    return name;
}

UIViewController* UIViewController::presentedViewController() const {
    for (const UIViewController* presenter = this; presenter; presenter = presenter->m_parent)
        if (presenter->m_presented) return presenter->m_presented.get();
    return nullptr;
}

UIViewController* UIViewController::presentingViewController() const {
    // The presenter is kept by its own parent, presenter or window.
    return outermostParent().m_presenting.lock().get();
}

} // namespace proupsells::uikit

#include "Platform/UIKit/Controllers/PresentationStack.hpp"

#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Commons/ScopeEnd.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

PresentationStack::~PresentationStack() {
    if (m_timer) m_timer->invalidate();
}

void PresentationStack::present(UIViewController& presenter, const std::shared_ptr<UIViewController>& controller, bool animated,
                                std::function<void()> completion) {
    const auto kept = controller;
    kept->m_presenting = weakReference(presenter);
    kept->m_expectedWindow = weakReference(m_window);
    kept->m_isBeingPresented = true;
    presenter.m_presented = kept;
    if (const auto observer = m_observer.lock())
        observer->willPresent(*kept, kept->contentViewController(), kept->modalPresentationStyle(),
                              kept->expectedFrame(m_window).size);
    m_waiting.push_back({Kind::presentation, kept, weakReference(presenter), animated, std::move(completion)});
    runWaiting();
}

void PresentationStack::dismiss(UIViewController& base, bool animated, std::function<void()> completion) {
    const auto kept = strongReference(base);
    for (UIViewController* leaving = &base; leaving; leaving = leaving->m_presented.get()) leaving->m_isBeingDismissed = true;
    if (const auto observer = m_observer.lock()) observer->willDismiss(base, base.contentViewController());
    m_waiting.push_back({Kind::dismissal, kept, base.m_presenting, animated, std::move(completion)});
    runWaiting();
}

void PresentationStack::runWaiting() {
    if (m_isRunningWaiting) return;
    const auto window = strongReference(m_window); // owns the stack, which callbacks may want to release
    m_isRunningWaiting = true;
    const commons::Finally end([this] { m_isRunningWaiting = false; });
    while (!m_current && !m_waiting.empty()) {
        m_current = std::move(m_waiting.front());
        m_waiting.erase(m_waiting.begin());
        begin();
    }
}

void PresentationStack::begin() {
    const Operation operation = *m_current;
    const int generation = m_generation;
    const bool hasBegun = beginOrAbandon(operation);
    if (generation != m_generation) return;
    if (!hasBegun) {
        m_current.reset();
        return;
    }
    if (!operation.animated) {
        finish();
        return;
    }
    m_timer = runloop::MainRunLoop::main().schedule(UIPresentationView::transition.end_s(), [window = weakReference(m_window)] {
        if (const auto held = window.lock()) {
            held->presentations().finish();
            held->presentations().runWaiting();
        }
    });
}

bool PresentationStack::beginOrAbandon(const Operation& operation) {
    const commons::OnException giveUp([this, &operation, generation = m_generation] {
        if (generation == m_generation) abandon(operation);
    });
    return operation.kind == Kind::presentation ? beginPresentation(operation) : beginDismissal(operation);
}

// False when the presentation cannot take place any more.
bool PresentationStack::beginPresentation(const Operation& operation) {
    const auto presenter = operation.presenter.lock();
    if (!presenter || presenter->window() != &m_window) {
        commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity,
                                             "UIViewController - the presenter of " +
                                                 std::string(operation.controller->typeName()) +
                                                 " is in no window; the presentation is ignored",
                                             "present(_:animated:completion:)");
        forget(*operation.controller);
        return false;
    }
    const int generation = m_generation;
    UIViewController& controller = *operation.controller;
    const auto view = std::make_shared<UIPresentationView>(operation.controller);
    if (generation != m_generation) return false;
    const bool takesPresenterAway = controller.modalPresentationStyle() == UIModalPresentationStyle::fullScreen;
    if (!m_presentations.empty()) m_presentations.back().view->setPresentationInFront(view);
    m_presentations.push_back({operation.controller, presenter, view, takesPresenterAway});
    m_window.cancelTouch();
    if (takesPresenterAway) presenter->beginAppearance(false, operation.animated);
    controller.beginAppearance(true, operation.animated);
    if (generation != m_generation) return false;
    m_window.addSubview(view);
    if (operation.animated) view->enter();
    m_window.layoutIfNeeded();
    return true;
}

void PresentationStack::finishPresentation(const Operation& operation) {
    const std::size_t index = indexOf(*operation.controller);
    if (index == m_presentations.size()) return;
    const Presentation presentation = m_presentations[index];
    presentation.view->rest();
    presentation.controller->m_isBeingPresented = false;
    presentation.controller->endAppearance();
    if (!presentation.takesPresenterAway) return;
    if (const auto presenter = presentation.presenter.lock()) presenter->endAppearance();
}

// False when what was to be dismissed has not come to be presented.
bool PresentationStack::beginDismissal(const Operation& operation) {
    const std::size_t base = indexOf(*operation.controller);
    if (base == m_presentations.size()) {
        forget(*operation.controller);
        return false;
    }
    const int generation = m_generation;
    m_window.cancelTouch();
    const std::vector<Presentation> leaving(m_presentations.begin() + std::ptrdiff_t(base), m_presentations.end());
    // The front-most one moves out; those between it and the presenter are not seen again.
    for (std::size_t i = 0; i + 1 < leaving.size(); ++i) leaving[i].view->setHidden(true);
    if (operation.animated) leaving.back().view->leave();
    for (auto one = leaving.rbegin(); one != leaving.rend(); ++one) one->controller->beginAppearance(false, operation.animated);
    const auto presenter = leaving.front().presenter.lock();
    if (leaving.front().takesPresenterAway && presenter) presenter->beginAppearance(true, operation.animated);
    return generation == m_generation;
}

void PresentationStack::finishDismissal(const Operation& operation) {
    const std::size_t base = indexOf(*operation.controller);
    if (base == m_presentations.size()) return;
    const std::vector<Presentation> leaving(m_presentations.begin() + std::ptrdiff_t(base), m_presentations.end());
    m_presentations.erase(m_presentations.begin() + std::ptrdiff_t(base), m_presentations.end());
    const auto presenter = leaving.front().presenter.lock();
    const commons::OnException forgetAll([&] {
        for (const Presentation& one : leaving)
            if (one.controller->m_isBeingDismissed) forget(*one.controller);
    });
    for (auto one = leaving.rbegin(); one != leaving.rend(); ++one) one->view->removeFromSuperview();
    if (leaving.front().takesPresenterAway && presenter) presenter->endAppearance();
    for (auto one = leaving.rbegin(); one != leaving.rend(); ++one) {
        one->controller->endAppearance();
        forget(*one->controller);
    }
}

void PresentationStack::finish() {
    if (!m_current) return;
    // Still the current one while its last calls are made, so that what they ask for waits.
    const Operation operation = *m_current;
    const int generation = m_generation;
    const commons::Finally end([&] {
        if (generation == m_generation) m_current.reset();
    });
    m_timer.reset();
    if (operation.kind == Kind::presentation)
        finishPresentation(operation);
    else
        finishDismissal(operation);
    if (operation.completion) operation.completion();
}

// After an exception of the host's: what was to come does not, and what was to leave has left, without a further call.
void PresentationStack::abandon(const Operation& operation) {
    m_current.reset();
    const auto base = m_presentations.begin() + std::ptrdiff_t(indexOf(*operation.controller));
    const std::vector<Presentation> leaving(base, m_presentations.end());
    m_presentations.erase(base, m_presentations.end());
    for (const Presentation& one : leaving) {
        one.view->removeFromSuperview();
        forget(*one.controller);
    }
    forget(*operation.controller);
}

void PresentationStack::removeAll() {
    ++m_generation;
    if (m_timer) m_timer->invalidate();
    m_timer.reset();
    m_current.reset();
    const auto waiting = std::exchange(m_waiting, {});
    const auto presentations = std::exchange(m_presentations, {});
    for (const Operation& operation : waiting) forget(*operation.controller);
    for (auto one = presentations.rbegin(); one != presentations.rend(); ++one) {
        one->controller->beginAppearance(false, false);
        one->view->removeFromSuperview();
        one->controller->endAppearance();
        forget(*one->controller);
    }
}

// The controller is presented by nobody any more.
void PresentationStack::forget(UIViewController& controller) {
    const auto presenter = controller.m_presenting.lock();
    if (presenter && presenter->m_presented.get() == &controller) presenter->m_presented.reset();
    controller.m_presenting.reset();
    controller.m_expectedWindow.reset();
    controller.m_isBeingPresented = false;
    controller.m_isBeingDismissed = false;
}

std::size_t PresentationStack::indexOf(const UIViewController& controller) const {
    std::size_t index = 0;
    while (index < m_presentations.size() && m_presentations[index].controller.get() != &controller) ++index;
    return index;
}

} // namespace proupsells::uikit

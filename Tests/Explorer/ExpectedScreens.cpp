#include "Tests/Explorer/ExpectedScreens.hpp"

#include <algorithm>
#include <utility>

namespace proupsells::explorer {

namespace {

constexpr double transition_s = 0.5;

} // namespace

std::string contentNameOf(ExpectedScreens::Kind kind) {
    switch (kind) {
    case ExpectedScreens::Kind::paywall: return "VelaProUpsellViewController";
    case ExpectedScreens::Kind::comparison: return "ComparisonViewController";
    case ExpectedScreens::Kind::store: return "VelaProStorePageViewController";
    default: return "UIViewController";
    }
}

std::string controllerNameOf(ExpectedScreens::Kind kind) {
    return kind == ExpectedScreens::Kind::comparison ? "UINavigationController" : contentNameOf(kind);
}

void ExpectedScreens::setRoot(ScreenPointer root) {
    removeAll();
    if (const ScreenPointer former = std::exchange(m_root, nullptr)) disappeared(former);
    m_root = std::move(root);
    if (const ScreenPointer now = m_root) appeared(now);
}

void ExpectedScreens::present(const ScreenPointer& presenter, const ScreenPointer& screen, bool isAnimated) {
    const auto ignore = [&](const std::string& reason) {
        logged("UIViewController - presenting " + controllerNameOf(screen->kind) + " is ignored: " + reason);
    };
    if (!isInWindow(*presenter) && !presenter->isComing) return ignore("its presenter is in no window");
    if (presenter->presented && !presenter->presented->isGoing)
        return ignore(controllerNameOf(presenter->kind) + " is presenting " + controllerNameOf(presenter->presented->kind));
    if (!screen->presenter.expired() || isInWindow(*screen)) return ignore("it is shown already");
    screen->presenter = presenter;
    screen->isComing = true;
    presenter->presented = screen;
    told("present " + contentNameOf(screen->kind));
    m_waiting.push_back({true, screen, presenter, isAnimated});
    runWaiting();
}

bool ExpectedScreens::dismiss(const ScreenPointer& from, bool isAnimated) {
    ScreenPointer base = from->presented && !from->presented->isGoing ? from->presented : nullptr;
    if (!base) {
        if (from->presenter.expired()) return false;
        if (from->isGoing) return true;
        base = from;
    }
    for (ScreenPointer leaving = base; leaving; leaving = leaving->presented) leaving->isGoing = true;
    told("dismiss " + contentNameOf(base->kind));
    m_waiting.push_back({false, base, base->presenter.lock(), isAnimated});
    runWaiting();
    return true;
}

void ExpectedScreens::pass(double duration_s) {
    const double until_s = m_now_s + duration_s;
    while (m_current && m_current->end_s <= until_s + 1e-9) {
        m_now_s = m_current->end_s;
        finish();
        runWaiting();
    }
    m_now_s = until_s;
}

void ExpectedScreens::runWaiting() {
    if (m_isRunningWaiting) return;
    m_isRunningWaiting = true;
    while (!m_current && !m_waiting.empty()) {
        m_current = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (!begin(*m_current)) {
            m_current.reset();
            continue;
        }
        m_current->end_s = m_now_s + transition_s;
        if (!m_current->isAnimated) finish();
    }
    m_isRunningWaiting = false;
}

// False when what was to leave has not come, or who was to present has gone.
bool ExpectedScreens::begin(Operation& operation) {
    if (!operation.isPresentation) {
        if (operation.screen->stands) return true;
        forget(operation.screen);
        return false;
    }
    if (!operation.presenter || !isInWindow(*operation.presenter)) {
        logged("UIViewController - the presenter of " + controllerNameOf(operation.screen->kind) +
               " is in no window; the presentation is ignored");
        forget(operation.screen);
        return false;
    }
    operation.screen->stands = true;
    m_standing.push_back(operation.screen);
    return true;
}

// It is the current one until its last calls are made, so what they ask for waits.
void ExpectedScreens::finish() {
    const Operation operation = *m_current;
    const int generation = m_generation;
    if (!operation.isPresentation) {
        finishDismissal(operation.screen);
    } else if (operation.screen->stands) {
        operation.screen->isComing = false;
        appeared(operation.screen);
    }
    if (generation == m_generation) m_current.reset();
}

void ExpectedScreens::finishDismissal(const ScreenPointer& base) {
    const auto first = std::find(m_standing.begin(), m_standing.end(), base);
    const std::vector<ScreenPointer> leaving(first, m_standing.end());
    m_standing.erase(first, m_standing.end());
    for (const ScreenPointer& one : leaving) one->stands = false;
    for (auto one = leaving.rbegin(); one != leaving.rend(); ++one) {
        disappeared(*one);
        forget(*one);
    }
}

void ExpectedScreens::removeAll() {
    ++m_generation;
    m_current.reset();
    const auto waiting = std::exchange(m_waiting, {});
    const auto standing = std::exchange(m_standing, {});
    for (const Operation& operation : waiting) forget(operation.screen);
    for (auto one = standing.rbegin(); one != standing.rend(); ++one) {
        (*one)->stands = false;
        disappeared(*one);
        forget(*one);
    }
}

void ExpectedScreens::forget(const ScreenPointer& screen) {
    const ScreenPointer presenter = screen->presenter.lock();
    if (presenter && presenter->presented == screen) presenter->presented.reset();
    screen->presenter.reset();
    screen->isComing = screen->isGoing = false;
}

} // namespace proupsells::explorer

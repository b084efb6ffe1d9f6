// What stands over a window's root controller, and the order in which it comes and goes.
#pragma once

#include <utility>
#include <vector>

#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/UIKit/Controllers/PresentationObserver.hpp"
#include "Platform/UIKit/Controllers/UIPresentationView.hpp"

namespace proupsells::uikit {

// One presentation or dismissal is on its way at a time; what is asked for meanwhile, from inside any callback too, waits for it.
// One that is not animated is over before the next one begins, in the same turn.
class PresentationStack {
public:
    explicit PresentationStack(UIWindow& window) : m_window(window) {}
    ~PresentationStack();
    PresentationStack(const PresentationStack&) = delete;

    // `presenter` is an outermost parent.
    void present(UIViewController& presenter, const std::shared_ptr<UIViewController>& controller, bool animated,
                 std::function<void()> completion);
    // `base` and all that stands on it.
    void dismiss(UIViewController& base, bool animated, std::function<void()> completion);
    // At once, and without whatever waits.
    void removeAll();

    bool isTransitioning() const { return m_current || !m_waiting.empty(); }
    // Null when nothing is presented.
    UIViewController* frontMost() const { return m_presentations.empty() ? nullptr : m_presentations.back().controller.get(); }
    const UIPresentationView* frontMostView() const {
        return m_presentations.empty() ? nullptr : m_presentations.back().view.get();
    }
    void setObserver(std::weak_ptr<PresentationObserver> observer) { m_observer = std::move(observer); }

private:
    struct Presentation {
        std::shared_ptr<UIViewController> controller;
        std::weak_ptr<UIViewController> presenter;
        std::shared_ptr<UIPresentationView> view;
        bool takesPresenterAway = false;
    };
    enum class Kind { presentation, dismissal };
    struct Operation {
        Kind kind;
        std::shared_ptr<UIViewController> controller;
        std::weak_ptr<UIViewController> presenter;
        bool animated;
        std::function<void()> completion;
    };

    void runWaiting();
    void begin();
    // Returns whether it has begun.
    bool beginOrAbandon(const Operation& operation);
    bool beginPresentation(const Operation& operation);
    bool beginDismissal(const Operation& operation);
    void finish();
    void finishPresentation(const Operation& operation);
    void finishDismissal(const Operation& operation);
    void abandon(const Operation& operation);
    void forget(UIViewController& controller);
    std::size_t indexOf(const UIViewController& controller) const;

    UIWindow& m_window;
    std::weak_ptr<PresentationObserver> m_observer;
    std::vector<Presentation> m_presentations; // back to front
    std::vector<Operation> m_waiting;          // few, if any
    std::optional<Operation> m_current;
    std::shared_ptr<runloop::Timer> m_timer; // the end of the current one's animation
    bool m_isRunningWaiting = false;
    int m_generation = 0; // counts removeAll
};

} // namespace proupsells::uikit

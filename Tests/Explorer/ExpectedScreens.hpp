// Which screens stand in the window, by the rules of presenting and dismissing, without any view.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace proupsells::explorer {

class ExpectedScreens {
public:
    enum class Kind { root, paywall, comparison, store, other };

    // A controller, whether it is shown at the time or not.
    struct Screen {
        Kind kind = Kind::root;
        std::weak_ptr<Screen> presenter;
        std::shared_ptr<Screen> presented;
        bool isComing = false; // from the call of present() until it has appeared
        bool isGoing = false;  // from the call of dismiss() until it has gone
        bool stands = false;   // in the window
    };
    using ScreenPointer = std::shared_ptr<Screen>;

    // Told in the order of the calls: what is presented and dismissed, and what is ignored with a log line.
    std::function<void(const std::string&line)> told, logged;
    // Told once a screen has come or gone.
    std::function<void(const ScreenPointer&)> appeared, disappeared;

    // The window's root controller; null takes everything away.
    void setRoot(ScreenPointer root);
    const ScreenPointer& root() const { return m_root; }

    void present(const ScreenPointer& presenter, const ScreenPointer& screen, bool isAnimated);
    // False where nothing is presented by `from`, nor `from` itself: whoever shows the window is asked then.
    bool dismiss(const ScreenPointer& from, bool isAnimated);
    // Lets time pass, in seconds.
    void pass(double duration_s);

    bool isTransitioning() const { return m_current || !m_waiting.empty(); }
    // In front of all others; null without a root.
    ScreenPointer front() const { return m_standing.empty() ? m_root : m_standing.back(); }

private:
    struct Operation {
        bool isPresentation;
        ScreenPointer screen;
        ScreenPointer presenter;
        bool isAnimated;
        double end_s = 0;
    };

    bool isInWindow(const Screen& screen) const { return screen.stands || &screen == m_root.get(); }
    void runWaiting();
    bool begin(Operation& operation);
    void finish();
    void finishDismissal(const ScreenPointer& base);
    void removeAll();
    static void forget(const ScreenPointer& screen);

    ScreenPointer m_root;
    std::vector<ScreenPointer> m_standing; // back to front
    std::deque<Operation> m_waiting;
    std::optional<Operation> m_current;
    double m_now_s = 0;
    bool m_isRunningWaiting = false;
    int m_generation = 0; // counts removals of everything
};

// As the controllers are called in the code: what is shown, and what is presented, which differ where there is a navigation bar.
std::string contentNameOf(ExpectedScreens::Kind kind);
std::string controllerNameOf(ExpectedScreens::Kind kind);

} // namespace proupsells::explorer

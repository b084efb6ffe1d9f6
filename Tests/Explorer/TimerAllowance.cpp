#include "Tests/Explorer/TimerAllowance.hpp"

#include <algorithm>

#include "Platform/Accessibility/Search.hpp"

namespace proupsells::explorer {

using accessibility::SemanticNode;

namespace {

constexpr double pauseAfterChange_s = 5;
constexpr double longestAnimation_s = 2;

std::size_t stripsIn(const Observation& seen) {
    const auto all = accessibility::findAllByType(seen.tree(), "UIScrollView");
    return std::size_t(std::count_if(all.begin(), all.end(),
                                     [](const SemanticNode* node) { return node->identifier.starts_with("store.strip."); }));
}

} // namespace

void TimerAllowance::note(World& world, const Action& action, const Expected& expected) {
    const double now_s = world.bed().now_s();
    if (expected.paywallIsInWindow()) m_paywall_s = now_s;
    const bool mayTurn = action.target == "carousel.pageControl" || action.target == "left" || action.target == "right";
    if (mayTurn) m_changes_s.push_back(now_s);
}

std::size_t TimerAllowance::changesWithin(double duration_s, double now_s) const {
    return std::size_t(
        std::count_if(m_changes_s.begin(), m_changes_s.end(), [&](double change_s) { return change_s + duration_s > now_s; }));
}

std::optional<std::string> TimerAllowance::problem(World& world, const Observation& seen, const Expected& expected) const {
    const double now_s = world.bed().now_s();
    std::size_t allowed = stripsIn(seen) + changesWithin(pauseAfterChange_s, now_s);
    // The carousel's, and what follows the last change that it made by itself.
    if (expected.paywallIsInWindow()) ++allowed;
    if (m_paywall_s + pauseAfterChange_s > now_s) ++allowed;
    if (expected.isTransitioning()) ++allowed;
    // Of each change the title that fades out and the page that arrives. Out of sight nobody can tell whether they do.
    const bool isOutOfSight = expected.front() != Expected::Kind::paywall && m_paywall_s + longestAnimation_s > now_s;
    if (isOutOfSight || world.window().isAnimating()) allowed += 2 + 2 * changesWithin(longestAnimation_s, now_s);
    const std::size_t waiting = world.bed().loop().waitingTimerCount();
    if (waiting <= allowed) return std::nullopt;
    return std::to_string(waiting) + " timers wait, and nobody needs more than " + std::to_string(allowed);
}

} // namespace proupsells::explorer

#include "Platform/UIKit/Constraints/LayoutSystem.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Commons/ScopeEnd.hpp"

namespace proupsells::uikit {

namespace {

// The first pass knows natural sizes only, the second one how texts wrap at the widths of the first one and where safe areas begin,
// the third one what follows from that.
constexpr int passLimit = 3;
constexpr std::size_t rememberedSolutions = 4;

std::uint64_t systemsSolved = 0;

} // namespace

std::uint64_t LayoutSystem::solvedCount() { return systemsSolved; }

void LayoutSystem::place(UIView& root) {
    // Whoever is told of a new frame may ask for another layout; that one waits until this one has ended.
    m_mustPlaceAgain = m_isPlacing;
    if (std::exchange(m_isPlacing, true)) return;
    {
        const commons::Finally end([this] { m_isPlacing = false; });
        const Outcome outcome = solve(root, LayoutProblem::Purpose::place, {});
        report(outcome.problem, m_solutions.back());
        setFrames(outcome);
        setContentSizes(outcome);
    }
    if (m_mustPlaceAgain) root.setNeedsLayout();
}

geometry::Size LayoutSystem::fittingSize(UIView& root, const geometry::ProposedSize& proposal) {
    return solve(root, LayoutProblem::Purpose::fit, proposal).rects.front().size;
}

LayoutSystem::Outcome LayoutSystem::solve(UIView& root, LayoutProblem::Purpose purpose, const geometry::ProposedSize& proposal) {
    Outcome outcome{LayoutProblem(root, purpose, proposal), {}, {}};
    for (int pass = 1;; ++pass) {
        outcome.values = solutionOf(outcome.problem.system()).values;
        outcome.rects = outcome.problem.rectsFor(outcome.values);
        if (pass == passLimit) return outcome;
        std::optional<LayoutProblem> next = outcome.problem.next(outcome.rects);
        if (!next) return outcome;
        outcome.problem = std::move(*next);
    }
}

const LayoutSystem::Solution& LayoutSystem::solutionOf(const LinearSystem& system) {
    auto known =
        std::find_if(m_solutions.begin(), m_solutions.end(), [&](const Solution& solution) { return solution.system == system; });
    if (known != m_solutions.end()) {
        std::rotate(known, known + 1, m_solutions.end());
        return m_solutions.back();
    }
    if (m_solutions.size() == rememberedSolutions) m_solutions.erase(m_solutions.begin());
    m_solutions.push_back(computed(system));
    return m_solutions.back();
}

LayoutSystem::Solution LayoutSystem::computed(const LinearSystem& system) {
    ++systemsSolved;
    Solution solution{system, {}, {}};
    constraints::Solver solver;
    for (std::size_t i = 0; i < system.variableCount; ++i) solver.makeVariable();
    for (std::size_t i = 0; i < system.constraints.size(); ++i)
        if (!solver.add(system.constraints[i])) solution.dropped.push_back(i);
    solver.solve();
    solution.values.reserve(system.variableCount);
    for (std::size_t i = 0; i < system.variableCount; ++i) solution.values.push_back(solver.value(constraints::Variable(i)));
    return solution;
}

void LayoutSystem::report(const LayoutProblem& problem, const Solution& solution) {
    std::vector<NSLayoutConstraint*> broken = problem.unkept();
    for (const std::size_t index : solution.dropped)
        if (NSLayoutConstraint* origin = problem.origins()[index]) broken.push_back(origin);
    for (NSLayoutConstraint* origin : problem.origins())
        if (origin && std::find(broken.begin(), broken.end(), origin) == broken.end()) origin->m_isBroken = false;
    for (NSLayoutConstraint* constraint : broken) {
        if (std::exchange(constraint->m_isBroken, true)) continue;
        commons::DefaultLogger::shared().log(
            commons::DefaultLogger::errorSeverity,
            "Left out a constraint that cannot hold beside the others: " + constraint->description(), "NSLayoutConstraint");
    }
}

void LayoutSystem::setFrames(const Outcome& outcome) {
    const auto& views = outcome.problem.views();
    for (std::size_t i = 1; i < views.size(); ++i) {
        const UIView& parent = *views[views[i].parent].view;
        const geometry::Point shift = parent.scrollsItsContent() ? geometry::Point{} : parent.bounds().origin;
        const geometry::Rect& outer = outcome.rects[views[i].parent];
        views[i].view->setFrame(outcome.rects[i].offsetBy(shift - outer.origin));
    }
}

void LayoutSystem::setContentSizes(const Outcome& outcome) {
    const auto length = [&](const std::optional<constraints::Variable>& variable) -> std::optional<double> {
        if (!variable) return std::nullopt;
        const double value = outcome.values[*variable];
        return std::isfinite(value) ? std::max(0.0, value) : 0;
    };
    const auto& contents = outcome.problem.scrolledContents();
    for (const auto& placed : outcome.problem.views()) {
        if (!placed.view->scrollsItsContent()) continue;
        auto* const scrollView = dynamic_cast<UIScrollView*>(placed.view);
        if (!scrollView) continue;
        const auto content =
            std::find_if(contents.begin(), contents.end(), [&](const auto& known) { return known.view == scrollView; });
        if (content != contents.end())
            scrollView->setContentSizeFromConstraints(length(content->width), length(content->height));
        else
            scrollView->setContentSizeFromConstraints(std::nullopt, std::nullopt);
    }
}

} // namespace proupsells::uikit

// Places what constraints place inside one view.
#pragma once

#include "Platform/UIKit/Constraints/LayoutProblem.hpp"

namespace proupsells::uikit {

// Belongs to a view whose own size is given (a layout root), or to one whose fitting size is asked for. Remembers its last
// solutions, and solves nothing as long as views and constraints say the same.
class LayoutSystem {
public:
    // Sets the frames inside `root`, and the content sizes of scroll views. Required constraints that cannot hold beside those
    // activated before them are left out, with one log line for each.
    void place(UIView& root);
    geometry::Size fittingSize(UIView& root, const geometry::ProposedSize& proposal);

    // How many systems of constraints the process has solved so far, for measurements.
    static std::uint64_t solvedCount();

private:
    struct Solution {
        LinearSystem system;
        std::vector<double> values;
        std::vector<std::size_t> dropped; // indexes of constraints
    };
    struct Outcome {
        LayoutProblem problem;
        std::vector<double> values;
        std::vector<geometry::Rect> rects;
    };

    Outcome solve(UIView& root, LayoutProblem::Purpose purpose, const geometry::ProposedSize& proposal);
    const Solution& solutionOf(const LinearSystem& system);
    static Solution computed(const LinearSystem& system);
    static void report(const LayoutProblem& problem, const Solution& solution);
    static void setFrames(const Outcome& outcome);
    static void setContentSizes(const Outcome& outcome);

    std::vector<Solution> m_solutions; // the one used last is the last one
    bool m_isPlacing = false;
    bool m_mustPlaceAgain = false;
};

} // namespace proupsells::uikit

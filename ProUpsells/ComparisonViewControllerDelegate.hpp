// Told of the comparison screen's two buttons.
#pragma once

namespace proupsells {

class ComparisonViewController;

// Always held weakly.
class ComparisonViewControllerDelegate {
public:
    virtual ~ComparisonViewControllerDelegate() = default;

    // The person wants to choose a plan, or to close the comparison, which the delegate then dismisses.
    virtual void comparisonViewControllerDidTapChooseYourPlan(ComparisonViewController& sender) = 0;
    virtual void comparisonViewControllerDidTapClose(ComparisonViewController& sender) = 0;
};

} // namespace proupsells

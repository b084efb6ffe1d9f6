// Told of the comparison screen's two buttons.
#pragma once

namespace proupsells {

class ComparisonViewController;

// Always held weakly.
class ComparisonViewControllerDelegate {
public:
    virtual ~ComparisonViewControllerDelegate() = default;

    virtual void comparisonViewControllerDidTapChooseYourPlan(ComparisonViewController& sender) = 0;
    virtual void comparisonViewControllerDidTapClose(ComparisonViewController& sender) = 0;
};

} // namespace proupsells

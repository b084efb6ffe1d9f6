// Told of the comparison screen's two buttons.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells {

class ComparisonViewController;

// Always held weakly.
class PROUPSELLS_EXPORT ComparisonViewControllerDelegate {
public:
    virtual ~ComparisonViewControllerDelegate() = default;

    // The person wants to choose a plan: the delegate dismisses the comparison.
    virtual void comparisonViewControllerDidTapChooseYourPlan(ComparisonViewController& sender) = 0;
    // The person wants to leave: the delegate dismisses the comparison.
    virtual void comparisonViewControllerDidTapClose(ComparisonViewController& sender) = 0;
};

} // namespace proupsells

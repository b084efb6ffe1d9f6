// Shows the plan comparison.
#pragma once

#include <memory>

#include "Platform/UIKit/Controllers/UIViewController.hpp"
#include "ProUpsells/ComparisonViewControllerDelegate.hpp"

namespace proupsells {

// To be presented in a navigation controller. Neither of its buttons dismisses it: the delegate does.
class ComparisonViewController : public uikit::UIViewController {
public:
    std::string_view typeName() const override { return "ComparisonViewController"; }

    std::shared_ptr<ComparisonViewControllerDelegate> delegate() const { return m_delegate.lock(); }
    void setDelegate(std::weak_ptr<ComparisonViewControllerDelegate> delegate) { m_delegate = std::move(delegate); }

    void viewDidLoad() override;
    void languageDidChange() override;
    bool accessibilityPerformEscape() override;
    std::string accessibilityScreenName() const override;
    // The bar-button's action.
    void dismissController();

private:
    void makeCloseButton();
    void chooseYourPlan();

    std::weak_ptr<ComparisonViewControllerDelegate> m_delegate;
};

} // namespace proupsells

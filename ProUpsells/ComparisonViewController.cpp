#include "ProUpsells/ComparisonViewController.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/VelaUIKit/HostingControllers.hpp"
#include "Platform/VelaUIKit/Navigation.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/ComparisonView.hpp"
#include "ProUpsells/Tell.hpp"

namespace proupsells {

void ComparisonViewController::viewDidLoad() {
    makeCloseButton();

    const auto weakSelf = uikit::weakReference(*this);
    const auto hostingController = hosting::UIHostingController::create(ComparisonView{.chooseYourPlanHandler = [weakSelf] {
        if (const auto self = weakSelf.lock()) self->chooseYourPlan();
    }});
    hostingController->view()->setBackgroundColor(velauikit::velaBackground);
    velauikit::addHostingController(*this, hostingController);
}

void ComparisonViewController::languageDidChange() { makeCloseButton(); }

bool ComparisonViewController::accessibilityPerformEscape() {
    dismissController();
    return true;
}

std::string ComparisonViewController::accessibilityScreenName() const {
    return foundation::localizedString("Compare Plans",
                                       "Title for screen where users can see a comparison between our Folio plans");
}

void ComparisonViewController::makeCloseButton() {
    uikit::UIBarButtonItem closeButton = velauikit::barButtonItem(velauikit::BarButtonStyle::close, uikit::weakReference(*this),
                                                                  &ComparisonViewController::dismissController);
    closeButton.accessibilityIdentifier = "comparison.close";
    setRightBarButtonItem(std::move(closeButton));
}

void ComparisonViewController::chooseYourPlan() {
    tell(m_delegate, &ComparisonViewControllerDelegate::comparisonViewControllerDidTapChooseYourPlan, *this);
}

void ComparisonViewController::dismissController() {
    tell(m_delegate, &ComparisonViewControllerDelegate::comparisonViewControllerDidTapClose, *this);
}

} // namespace proupsells

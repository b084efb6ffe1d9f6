// The screens where no language is named, as when a host passes an empty $LANG on.
#include "ProUpsells/ComparisonViewController.hpp"

#include "Platform/Foundation/Locale.hpp"
#include "Platform/UIKit/Controllers/UINavigationController.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {
namespace {

using ::testing::Contains;

class NoLanguage : public StoreTest, public ::testing::WithParamInterface<const char*> {
protected:
    NoLanguage() { foundation::Locale::setCurrent(foundation::Locale(GetParam())); }

    std::vector<std::string> shownTexts() {
        EXPECT_FALSE(painted().commands.empty());
        return texts(tree());
    }
};

TEST_P(NoLanguage, TheStorePageIsInEnglish) {
    showPage();

    EXPECT_THAT(shownTexts(), Contains("Choose Your Plan"));
}

TEST_P(NoLanguage, TheComparisonIsInEnglish) {
    show(uikit::UINavigationController::create(std::make_shared<ComparisonViewController>()));

    EXPECT_THAT(shownTexts(), Contains("Choose Your Plan"));
}

TEST_P(NoLanguage, ThePaywallIsInEnglish) {
    show(UpsellViewController::create({yearly(), monthly()}, UpsellViewController::Variant::comparisonPaywall));

    EXPECT_THAT(shownTexts(), Contains("Annually"));
}

INSTANTIATE_TEST_SUITE_P(Identifiers, NoLanguage, ::testing::Values("", "@euro", "_", ".UTF-8"));

} // namespace
} // namespace proupsells::tests

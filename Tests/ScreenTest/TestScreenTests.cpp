#include <gmock/gmock.h>

#include "Platform/Accessibility/Search.hpp"
#include "ScreenTest/TestScreen.hpp"
#include "Tests/ScreenTest/Shop.hpp"

namespace proupsells::screentest {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(TestScreen, SellsAPlanToWhoTapsIt) {
    TestScreen screen;
    const auto till = std::make_shared<Till>();
    const auto paywall = newPaywall();
    paywall->setDelegate(till);
    screen.present(paywall);
    ASSERT_TRUE(screen.isShowing());

    EXPECT_TRUE(screen.tap("plan.pro.monthly"));
    EXPECT_TRUE(screen.tap("Subscribe Now"));

    EXPECT_THAT(till->bought, ElementsAre("pro.monthly"));
    EXPECT_FALSE(screen.isShowing());
}

TEST(TestScreen, SaysWhatCouldHaveBeenTapped) {
    TestScreen screen;
    screen.present(newPaywall());

    const Verdict tapped = screen.tap("Buy");
    EXPECT_FALSE(tapped);
    EXPECT_THAT(tapped.message(), HasSubstr("no control has the identifier or the name \"Buy\""));
    EXPECT_THAT(tapped.message(), HasSubstr("\n  subscribe (\"Start Your Free Trial\")"));
}

TEST(TestScreen, LeadsOnToAnotherScreenAndBackByKeys) {
    TestScreen screen;
    screen.present(newPaywall());
    const auto paywall = screen.read();

    EXPECT_TRUE(screen.tap("comparePlans"));
    EXPECT_NE(screen.read(), paywall);
    EXPECT_TRUE(screen.press(host::Key::escape));
    EXPECT_EQ(screen.read(), paywall);
}

TEST(TestScreen, LetsTimePassOnlyWhenItIsTold) {
    TestScreen screen;
    screen.present(newPaywall());
    const double start_s = screen.now_s();
    EXPECT_THAT(screen.read(), Contains("  pager \"Pro features\", \"page 1 of 4\""));

    screen.wait(5);
    EXPECT_THAT(screen.read(), Contains("  pager \"Pro features\", \"page 2 of 4\""));
    EXPECT_DOUBLE_EQ(screen.now_s(), start_s + 5);
}

TEST(TestScreen, FollowsItsDevice) {
    TestScreen screen({.locale = "ar_XB"});
    screen.present(newPaywall());
    const auto mirrored = screen.tree();
    const double mirroredX = accessibility::findByIdentifier(mirrored, "close")->frame.minX();

    TestDevice device = screen.device();
    device.locale = "en_US";
    device.size = {320, 568};
    screen.setDevice(device);
    const auto tree = screen.tree();
    EXPECT_NE(accessibility::findByIdentifier(tree, "close")->frame.minX(), mirroredX);
    EXPECT_EQ(tree.frame.size, (geometry::Size{320, 568}));
    EXPECT_EQ(screen.picture().width(), 640);
}

TEST(TestScreen, MeasuresByFixedFontsWhereThatIsAsked) {
    TestScreen screen({.fonts = TestFonts::fixed});
    screen.present(newPaywall());
    const auto tree = screen.tree();
    const auto texts = accessibility::findAllByText(tree, "Monthly");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_DOUBLE_EQ(texts.front()->frame.width(), 7 * texts.front()->text->size / 2);
}

TEST(TestScreen, LeavesTheLanguageAsItWas) {
    const std::string before = foundation::Locale::current().identifier();
    { TestScreen screen({.locale = "de_DE"}); }
    EXPECT_EQ(foundation::Locale::current().identifier(), before);
}

TEST(Verdict, TellsGoogleTestWhy) {
    const ::testing::AssertionResult result = Verdict::fails("because");
    EXPECT_FALSE(result);
    EXPECT_STREQ(result.failure_message(), "because");
    EXPECT_TRUE(::testing::AssertionResult(Verdict::holds()));
}

} // namespace
} // namespace proupsells::screentest

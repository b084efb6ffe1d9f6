#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "Backends/Raster/PngFile.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "ScreenTest/ScreenMatchers.hpp"
#include "Tests/ScreenTest/Shop.hpp"

namespace proupsells::screentest {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class ScreenMatchersTest : public ::testing::Test {
protected:
    void SetUp() override { screen.present(newPaywall()); }

    TestScreen screen;
};

TEST_F(ScreenMatchersTest, FindByIdentifierNameOrText) {
    EXPECT_THAT(screen, shows("subscribe"));
    EXPECT_THAT(screen, shows("Start Your Free Trial"));
    EXPECT_THAT(screen, shows("Restore Purchases"));
    EXPECT_THAT(screen, hides("Buy"));
    EXPECT_THAT(screen, Not(shows("Buy")));
    EXPECT_FALSE(check(screen, hides("subscribe")));
}

TEST_F(ScreenMatchersTest, TellWhatIsWrongWithTheWholeScreen) {
    const Verdict verdict = check(screen, shows("Buy"));
    EXPECT_FALSE(verdict);
    EXPECT_THAT(verdict.message(), HasSubstr("expected: shows \"Buy\"\nnothing has this identifier, label or text\nthe screen\n"));
    EXPECT_THAT(verdict.message(), HasSubstr("identifier=\"subscribe\""));

    ::testing::StringMatchResultListener listener;
    EXPECT_FALSE(::testing::ExplainMatchResult(shows("Buy"), screen, &listener));
    EXPECT_EQ(listener.str(), "nothing has this identifier, label or text");
}

TEST_F(ScreenMatchersTest, KnowWhatIsScrolledOutOfSight) {
    TestDevice device = screen.device();
    device.size = {320, 400};
    screen.setDevice(device);
    EXPECT_THAT(check(screen, shows("restorePurchases")).message(), HasSubstr("it is there, and out of sight"));
    EXPECT_THAT(screen, hides("restorePurchases"));
}

TEST_F(ScreenMatchersTest, KnowWhichPlanIsChosen) {
    EXPECT_THAT(screen, isChecked("plan.pro.yearly"));
    EXPECT_THAT(screen, Not(isChecked("plan.pro.monthly")));
    EXPECT_THAT(check(screen, isChecked("subscribe")).message(), HasSubstr("0 controls of the kind"));
    EXPECT_TRUE(screen.tap("plan.pro.monthly"));
    EXPECT_THAT(screen, isChecked("plan.pro.monthly"));
}

TEST_F(ScreenMatchersTest, HearWhatIsSaid) {
    EXPECT_THAT(screen, says("button \"Close\""));
    EXPECT_THAT(check(screen, says("button \"Open\"")).message(), HasSubstr("\n    radio group \"Plans\""));
}

TEST_F(ScreenMatchersTest, SpeakAsCatch2AsksThemTo) {
    const ScreenMatcher matcher = shows("Buy");
    EXPECT_FALSE(matcher.match(screen));
    EXPECT_EQ(matcher.toString(), "shows \"Buy\": nothing has this identifier, label or text");
}

TEST_F(ScreenMatchersTest, FindNothingWrongWithThePaywall) {
    EXPECT_THAT(screen, passesAudit());
    EXPECT_THAT(screen, passesAudit({.steers = true}));
    EXPECT_TRUE(screen.tap("comparePlans"));
    EXPECT_THAT(screen, passesAudit());
}

TEST_F(ScreenMatchersTest, FindWhatIsWrongUnlessItIsAccepted) {
    const AuditScope strict{.options = {.leastTarget = 60}};
    EXPECT_THAT(check(screen, passesAudit(strict)).message(), HasSubstr("\n  small target: "));
    AuditScope lenient = strict;
    lenient.accepted = {tooling::AuditRule::smallTarget};
    EXPECT_THAT(screen, passesAudit(lenient));
}

class SnapshotTest : public ScreenMatchersTest {
protected:
    void SetUp() override {
        ScreenMatchersTest::SetUp();
        std::filesystem::remove_all(folder);
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    bool exists(const char* name) const { return std::filesystem::exists(folder / name); }

    const std::filesystem::path folder =
        std::filesystem::path(::testing::TempDir()) / ::testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::filesystem::path file = folder / "paywall";
};

TEST_F(SnapshotTest, IsTakenTheFirstTimeAndHoldsFromThenOn) {
    EXPECT_THAT(check(screen, looksLike(file)).message(), HasSubstr("was not there, and has been taken now"));
    EXPECT_THAT(screen, looksLike(file));
    EXPECT_TRUE(exists("paywall.screen") && exists("paywall.png"));
    EXPECT_FALSE(exists("paywall.now.screen") || exists("paywall.now.png"));
}

TEST_F(SnapshotTest, NamesWhatHasChangedAndShowsItBeside) {
    ASSERT_FALSE(check(screen, looksLike(file)));
    ASSERT_TRUE(screen.tap("plan.pro.monthly"));
    screen.wait(1);

    const Verdict verdict = check(screen, looksLike(file));
    EXPECT_THAT(verdict.message(), HasSubstr("\n  plan.pro.yearly checked is \"no\" instead of \"yes\"\n"));
    EXPECT_TRUE(exists("paywall.now.screen") && exists("paywall.now.png"));
}

TEST_F(SnapshotTest, NamesWherePixelsDifferInTheSameTree) {
    ASSERT_FALSE(check(screen, looksLike(file)));
    const auto tree = screen.tree();
    const rasterbackend::Picture picture = screen.picture();
    rasterbackend::Picture touched(picture.width(), picture.height());
    for (int y = 0; y < picture.height(); ++y) std::copy_n(picture.row(y), picture.width(), touched.row(y));
    const geometry::Point middle = accessibility::findByIdentifier(tree, "subscribe")->frame.center();
    touched.row(int(middle.y * 2))[int(middle.x * 2)] ^= 0x00FFFFFF;
    ASSERT_TRUE(rasterbackend::writePng(touched, folder / "paywall.png"));

    EXPECT_THAT(check(screen, looksLike(file)).message(), HasSubstr("the tree is the same, and 1 pixels are not, within ["));
    EXPECT_THAT(check(screen, looksLike(file)).message(), HasSubstr("], in Text in subscribe"));
}

TEST_F(SnapshotTest, SaysWhenItsFilesAreDamaged) {
    ASSERT_FALSE(check(screen, looksLike(file)));
    std::ofstream(folder / "paywall.png") << "no picture";
    EXPECT_THAT(check(screen, looksLike(file)).message(), HasSubstr("paywall.png holds no picture"));
    std::ofstream(folder / "paywall.screen") << "no screen";
    EXPECT_THAT(check(screen, looksLike(file)).message(), HasSubstr("paywall.screen holds no screen"));
}

} // namespace
} // namespace proupsells::screentest

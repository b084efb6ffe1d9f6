// How a headline and its explanation are set smaller where there is too little room for them.
#include "ProUpsells/BrandAssetsShelf.hpp"
#include "ProUpsells/TitleSubtitleContainerViewController.hpp"
#include "ProUpsells/VerticallyStackedContainerViewController.hpp"
#include "ProUpsells/VideoImageLibrariesShelf.hpp"
#include "Tests/ProUpsells/FreeLines.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

namespace {

// In 375 points the headline has two lines of 27.5 points, 9 apart, and its explanation three of 20: 158 points with the 16 between
// them. In one of 0.84 the headline needs one line only.
class StoreTextRoom : public ::testing::Test {
protected:
    StoreTextRoom() { show(std::make_shared<TitleSubtitleContainerViewController>(*shelf)); }

    void show(const std::shared_ptr<TitleSubtitleContainerViewController>& shown) {
        texts = shown;
        window->setRootViewController(
            std::make_shared<VerticallyStackedContainerViewController>(std::make_shared<uikit::UIViewController>(), texts));
        bed.settle();
    }
    void setRoom(double room) {
        texts->setRoomForTexts(room);
        bed.settle();
    }
    void setTextSize(graphics::ContentSizeCategory category) {
        uikit::UITraitCollection traits = window->traits();
        traits.preferredContentSizeCategory = category;
        window->setTraits(traits);
        bed.settle();
    }
    static double sizeOf(const uikit::UILabel& label) { return label.attributedText().runs().front().attributes.font.size; }
    double titleSize() const { return sizeOf(*texts->titleLabel()); }
    double subtitleSize() const { return sizeOf(*texts->subtitleLabel()); }

    headless::TestBed bed{servicesWithFreeLines()};
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    std::shared_ptr<VideoImageLibrariesShelf> shelf = std::make_shared<VideoImageLibrariesShelf>();
    std::shared_ptr<TitleSubtitleContainerViewController> texts;
};

} // namespace

TEST_F(StoreTextRoom, HasNoEndUnlessItIsSet) {
    EXPECT_EQ(titleSize(), 22);
    EXPECT_EQ(subtitleSize(), 16);
    EXPECT_EQ(texts->subtitleLabel()->frame().maxY(), 158);
}

TEST_F(StoreTextRoom, IsLeftAloneByTextsThatJustFit) {
    setRoom(158);

    EXPECT_EQ(titleSize(), 22);
    EXPECT_EQ(subtitleSize(), 16);
}

TEST_F(StoreTextRoom, MakesBothTextsOneStepSmallerWhereTheyJustDoNotFit) {
    setRoom(157.9);

    EXPECT_NEAR(titleSize(), 22 * 0.98, 1e-9);
    EXPECT_NEAR(subtitleSize(), 16 * 0.98, 1e-9);
}

TEST_F(StoreTextRoom, MakesBothTextsAsSmallAsItTakes) {
    setRoom(140);

    EXPECT_NEAR(titleSize(), 22 * 0.84, 1e-9);
    EXPECT_NEAR(subtitleSize(), 16 * 0.84, 1e-9);
    EXPECT_NEAR(texts->subtitleLabel()->frame().maxY(), 23.1 + 16 + 3 * 16.8 + 2 * 9, 1e-6);
}

TEST_F(StoreTextRoom, MakesNoTextSmallerThanFourFifths) {
    setRoom(10);

    EXPECT_NEAR(titleSize(), 22 * 0.8, 22 * 0.02);
    EXPECT_GE(titleSize(), 22 * 0.8 - 1e-9);
    EXPECT_NEAR(subtitleSize() / 16, titleSize() / 22, 1e-9);
}

TEST_F(StoreTextRoom, LetsTheTextsGrowAgainWhereThereIsMoreOfIt) {
    setRoom(140);
    ASSERT_LT(titleSize(), 22);

    window->setSize({600, 800}, {});
    bed.settle();
    EXPECT_EQ(titleSize(), 22);
    EXPECT_EQ(subtitleSize(), 16);

    window->setSize({375, 800}, {});
    bed.settle();
    EXPECT_NEAR(titleSize(), 22 * 0.84, 1e-9);
}

// Their view grows with them then.
TEST_F(StoreTextRoom, HasNoEndAboveLargeTextSizes) {
    setRoom(140);

    setTextSize(graphics::ContentSizeCategory::accessibilityLarge);

    EXPECT_EQ(titleSize(), 22);
    EXPECT_EQ(subtitleSize(), 16);
    EXPECT_GE(texts->view()->frame().height(), texts->subtitleLabel()->frame().maxY() - 1e-6);
}

TEST_F(StoreTextRoom, EndsAt140PointsBelowTheLastShelfsPicture) {
    shelf->createVideosShelf({});
    const auto page = shelf->viewController();
    window->setRootViewController(page);
    bed.settle();

    const auto below = std::dynamic_pointer_cast<TitleSubtitleContainerViewController>(page->children().back());
    ASSERT_TRUE(below);
    EXPECT_NEAR(sizeOf(*below->titleLabel()), 22 * 0.84, 1e-9);
}

TEST_F(StoreTextRoom, HasNoEndBelowOtherShelves) {
    const auto other = std::make_shared<BrandAssetsShelf>();
    const auto page = other->viewController();
    window->setSize({200, 800}, {});
    window->setRootViewController(page);
    bed.settle();

    const auto below = std::dynamic_pointer_cast<TitleSubtitleContainerViewController>(page->children().back());
    ASSERT_TRUE(below);
    ASSERT_GT(below->subtitleLabel()->frame().maxY(), 140);
    EXPECT_EQ(sizeOf(*below->titleLabel()), 22);
}

} // namespace proupsells::tests

// The small views that frame the paywall.
#include <gmock/gmock.h>

#include "Platform/SwiftUI/SwiftUI.hpp"
#include "ProUpsells/ComparePlansButton.hpp"
#include "ProUpsells/ContainerWithCloseButton.hpp"
#include "ProUpsells/HeaderImage.hpp"
#include "ProUpsells/ImageResource.hpp"
#include "ProUpsells/InfoButton.hpp"
#include "ProUpsells/ResizableImage.hpp"
#include "ProUpsells/SubscribeButton.hpp"
#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using geometry::Rect;
using geometry::Size;
using swiftui::ContentMode;
using ::testing::ElementsAre;

TEST(ContainerWithCloseButton, KeepsItsTargetWhateverTheIconsSize) {
    Screen screen(ContainerWithCloseButton{.contentView = [] { return swiftui::View(swiftui::Rectangle().fill()); }},
                  Size{375, 600});
    const auto close = screen.find("close");

    EXPECT_EQ(close.frame, (Rect{{331, 0}, {44, 44}}));
    EXPECT_EQ(close.label, "Close");
    // 18 from the top and the trailing edge.
    const auto icon = allWhere(screen.tree(), [](const auto& node) { return node.image == "inAppMessageCloseIcon"; }).front();
    EXPECT_EQ(icon.frame, (Rect{{331, 18}, {26, 26}}));
}

TEST(ContainerWithCloseButton, ClosesInItsWholeTargetAndNowhereElse) {
    int closed = 0;
    Screen screen(ContainerWithCloseButton{.closeButtonAction = [&] { ++closed; },
                                           .contentView = [] { return swiftui::View(swiftui::Rectangle().fill()); }},
                  Size{375, 600});

    for (const geometry::Point inside : {geometry::Point{332, 1}, {374, 1}, {332, 43}, {374, 43}, {353, 22}}) screen.tap(inside);
    EXPECT_EQ(closed, 5);
    screen.tap(geometry::Point{330, 22});
    screen.tap(geometry::Point{353, 45});
    EXPECT_EQ(closed, 5);
}

TEST(ComparePlansButton, PutsItsChevron16InFromTheTrailingEdge) {
    for (const double width : {200.0, 320.0, 375.0, 744.0}) {
        Screen screen(ComparePlansButton{.text = "Compare Plans: Free vs Pro"}, Size{width, 300});
        const auto images = allOfType(screen.tree(), "Image");
        ASSERT_EQ(images.size(), 2u);
        EXPECT_EQ(images[1].frame.size, (Size{10, 10})) << width;
        EXPECT_EQ(images[1].frame.maxX(), width - 16) << width;
        EXPECT_EQ(images[0].frame.minX(), 6) << width;
        EXPECT_EQ(images[0].frame.size, (Size{24, 24})) << width;
    }
}

TEST(ComparePlansButton, GivesALongTitleTheSpacersRoomFirst) {
    // 36 for the icon, 26 for the chevron, and three gaps of 8 around title and spacer.
    const double room = 318 - 36 - 26 - 3 * 8;
    const std::string fitting(static_cast<std::size_t>(room / 8), 'x');
    ASSERT_EQ(8 * fitting.size(), room);
    Screen screen(ComparePlansButton{.text = fitting}, Size{318, 300});

    const auto title = firstOfType(screen.tree(), "Text");
    EXPECT_EQ(title.text->lineCount, 1);
    EXPECT_EQ(title.text->size, 16);
    EXPECT_EQ(title.frame.minX(), 44);
    Screen longer(ComparePlansButton{.text = fitting + " x"}, Size{318, 300});
    EXPECT_EQ(firstOfType(longer.tree(), "Text").text->lineCount, 2);
}

TEST(ComparePlansButton, IsSetInSubheadline16AndAnswersInItsWholeWidth) {
    int taps = 0;
    Screen screen(ComparePlansButton{.text = "Compare", .action = [&] { ++taps; }}, Size{375, 24});
    const auto title = firstOfType(screen.tree(), "Text");

    EXPECT_EQ(title.text->font, "subheadline");
    EXPECT_EQ(title.text->size, 16);
    EXPECT_EQ(title.text->color, "primary");
    screen.tap(geometry::Point{1, 12});
    screen.tap(geometry::Point{250, 12});
    screen.tap(geometry::Point{374, 12});
    EXPECT_EQ(taps, 3);
}

TEST(HeaderImage, IsTheLogoAtItsNaturalSize) {
    Screen screen(HeaderImage{}, Size{375, 100});
    const auto logo = firstOfType(screen.tree(), "Image");

    EXPECT_EQ(logo.image, "marwickFolioWithProBadge");
    EXPECT_EQ(logo.frame.size, (Size{208, 26}));
}

TEST(ResizableImage, FitsIntoOrFillsWhatItIsOffered) {
    headless::TestBed bed;
    const auto picture = image(ImageResource::paywallHeaderA());
    const double ratio = picture->size.width / picture->size.height;
    Screen fitted(ResizableImage{picture, ContentMode::fit}, Size{100, 1000});
    Screen filling(ResizableImage{picture, ContentMode::fill}, Size{100, 1000});

    EXPECT_NEAR(firstOfType(fitted.tree(), "Image").frame.height(), 100 / ratio, 1e-6);
    EXPECT_EQ(firstOfType(fitted.tree(), "Image").frame.width(), 100);
    EXPECT_NEAR(firstOfType(filling.tree(), "Image").frame.width(), 1000 * ratio, 1e-6);
    EXPECT_EQ(firstOfType(filling.tree(), "Image").frame.height(), 1000);
}

TEST(SubscribeButton, Is56HighAndSharesItsRoomUnequally) {
    Screen screen(SubscribeButton{.text = "Subscribe Now"}, Size{375, 60});

    // 12 above, and 8 less than it shows below: 60 in all.
    EXPECT_EQ(screen.frame("subscribe"), (Rect{{16, 12}, {343, 56}}));
    EXPECT_EQ(screen.frameOfType("SubscribeButton"), (Rect{{0, 0}, {375, 60}}));
    EXPECT_EQ(Screen(SubscribeButton{.text = "Subscribe Now"}, Size{375, 300}).frameOfType("SubscribeButton").height(), 60);
    EXPECT_EQ(screen.find("subscribe").label, "Subscribe Now");
}

// Who makes the button has looked the text up already.
TEST(SubscribeButton, ShowsItsTextAsGivenEvenWhereItIsTranslated) {
    const HostTranslations host({{"Cancel", "Never mind"}}, "en");
    Screen screen(SubscribeButton{.text = "Cancel"}, Size{375, 60});
    ASSERT_EQ(foundation::Bundle::main().localizedString("Cancel"), "Never mind");

    EXPECT_THAT(texts(screen.tree()), ElementsAre("Cancel"));
    EXPECT_EQ(screen.find("subscribe").label, "Cancel");
}

TEST(SubscribeButton, DoesNothingWhileItIsDisabled) {
    int taps = 0;
    Screen disabled(SubscribeButton{.text = "x", .action = [&] { ++taps; }, .isEnabled = false}, Size{375, 80});
    disabled.tap("subscribe");
    EXPECT_EQ(taps, 0);
    EXPECT_TRUE(contains(disabled.find("subscribe").traits, accessibility::Traits::disabled));
    EXPECT_EQ(firstOfType(disabled.tree(), "Capsule").opacity, 0.4);
    EXPECT_EQ(firstOfType(disabled.tree(), "Text").opacity, 1);
    EXPECT_EQ(firstOfType(disabled.tree(), "Text").text->color, "velaLabel");

    Screen enabled(SubscribeButton{.text = "x", .action = [&] { ++taps; }}, Size{375, 80});
    enabled.tap("subscribe");
    EXPECT_EQ(taps, 1);
}

TEST(SubscribeButton, AnswersAFingerByDimmingAndShrinking) {
    Screen screen(SubscribeButton{.text = "x"}, Size{375, 80});
    screen.touch(host::TouchPhase::began, screen.frame("subscribe").center());
    screen.settle();

    EXPECT_LT(firstOfType(screen.tree(), "Capsule").opacity, 1);
    EXPECT_NEAR(firstOfType(screen.tree(), "Capsule").frame.width(), 343 * 0.98, 1e-9);
}

TEST(InfoButton, PutsItsImageAfterItsText) {
    const auto root = [] { return swiftui::View(InfoButton{.text = "What is Pro", .image = image(ImageResource::caretRight())}); };
    Screen screen(std::function<swiftui::View()>(root), Size{375, 60});
    const auto text = firstOfType(screen.tree(), "Text"), picture = firstOfType(screen.tree(), "Image");

    EXPECT_EQ(text.text->font, "Quenby-Bold");
    EXPECT_EQ(text.text->size, 14);
    EXPECT_EQ(text.text->color, "ContentColor.secondary");
    EXPECT_EQ(picture.frame.minX(), text.frame.maxX() + 2);
    EXPECT_EQ(picture.frame.midY(), text.frame.midY());
}

} // namespace
} // namespace proupsells::tests

// Stacks of two controllers, headlines, footers, headers and clip views.
#include <cstdlib>
#include <iostream>
#include <limits>

#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/AllTheThingsHeaderViewShelf.hpp"
#include "ProUpsells/BrandAssetsShelf.hpp"
#include "ProUpsells/BrandAssetsVideoView.hpp"
#include "ProUpsells/FooterView.hpp"
#include "ProUpsells/LabelHeaderView.hpp"
#include "ProUpsells/TemplatesVideoView.hpp"
#include "ProUpsells/TitleSubtitleContainerViewController.hpp"
#include "ProUpsells/VelaProHeaderView.hpp"
#include "ProUpsells/VerticallyStackedContainerViewController.hpp"
#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

namespace {

class StoreContainer : public StoreTest {
protected:
    static std::shared_ptr<uikit::UIViewController> highController(double height) {
        auto controller = std::make_shared<uikit::UIViewController>();
        controller->view()->heightAnchor().constraintEqualToConstant(height)->setActive(true);
        return controller;
    }
    // A clip view that fills the screen.
    template <class ClipView>
    std::shared_ptr<ClipView> showClipView() {
        const auto root = std::make_shared<uikit::UIViewController>();
        auto clip = std::make_shared<ClipView>();
        root->view()->addSubview(clip);
        clip->fillSuperview();
        show(root);
        return clip;
    }
};

class Child : public uikit::UIViewController {
public:
    void didMoveToParent(uikit::UIViewController* parent) override { newParent = parent; }
    uikit::UIViewController* newParent = nullptr;
};

} // namespace

TEST_F(StoreContainer, TellsItsChildrenThatTheyHaveCome) {
    const auto first = std::make_shared<Child>(), second = std::make_shared<Child>();
    const auto stack = std::make_shared<VerticallyStackedContainerViewController>(first, second);

    show(stack);

    EXPECT_EQ(first->newParent, stack.get());
    EXPECT_EQ(second->newParent, stack.get());
}

TEST_F(StoreContainer, StacksTwoControllers) {
    const auto first = std::make_shared<uikit::UIViewController>(), second = highController(103);
    const auto stack = std::make_shared<VerticallyStackedContainerViewController>(first, second);

    show(stack);

    EXPECT_EQ(stack->children(), (std::vector{first, second}));
    EXPECT_EQ(first->view()->frame(), (geometry::Rect{{0, 0}, {375, 681}}));
    EXPECT_EQ(second->view()->frame(), (geometry::Rect{{0, 697}, {375, 103}}));
    EXPECT_TRUE(second->isAppeared());
}

TEST_F(StoreContainer, KeepsASpacingThatIsSetBeforeItIsLoaded) {
    const auto first = std::make_shared<uikit::UIViewController>(), second = highController(100);
    const auto stack = std::make_shared<VerticallyStackedContainerViewController>(first, second);

    stack->setContentSpacing(30);
    EXPECT_FALSE(stack->isViewLoaded());
    show(stack);
    EXPECT_EQ(first->view()->frame().height(), 670);

    stack->setContentSpacing(40);
    bed.settle();
    EXPECT_EQ(first->view()->frame().height(), 660);
}

TEST_F(StoreContainer, SetsTheHeadlineOverItsExplanation) {
    const auto texts = std::make_shared<TitleSubtitleContainerViewController>(BrandAssetsShelf());
    const auto stack =
        std::make_shared<VerticallyStackedContainerViewController>(std::make_shared<uikit::UIViewController>(), texts);

    show(stack);

    EXPECT_EQ(texts->view()->frame(), (geometry::Rect{{0, 697}, {375, 103}}));
    // One line of 22 points, then "Add your logos, fonts and color", "palettes to use within your", "projects.".
    EXPECT_EQ(texts->titleLabel()->frame(), (geometry::Rect{{25, 0}, {325, 27.5}}));
    // The longest of them has 31 characters of 8.2 points.
    EXPECT_THAT(texts->subtitleLabel()->frame(), tests::FrameNear(geometry::Rect{{60.4, 43.5}, {254.2, 3 * 20 + 2 * 9}}));
    const accessibility::SemanticNode title = tests::firstOfType(tree(), "UILabel");
    EXPECT_EQ(title.text->font, "velaDefaultFont");
    EXPECT_EQ(title.text->size, 22);
    EXPECT_EQ(title.text->weight, 2);
    EXPECT_EQ(title.text->color, "dynamicColor.9");
}

// 30 characters, each of half its size and 0.2 points more.
TEST_F(StoreContainer, BreaksAnExplanationAtThreeHundredPointsOrNineteenFromEachSide) {
    TitleSubtitleLabels labels(velauikit::velaDefaultFont(velauikit::FontOption::regular, 16));
    const auto lines = [&](double width, double scale) {
        labels.setScale(scale);
        labels.setSubtitle("a");
        const double withOneLine = labels.heightIn(width, {});
        labels.setSubtitle("aaaaaaaaaaaaaaa aaaaaaaaaaaaaa");
        return labels.heightIn(width, {}) > withOneLine ? 2 : 1;
    };

    EXPECT_EQ(lines(1000, (300.0 / 30 - 0.2) / 8), 1);
    EXPECT_EQ(lines(1000, (300.5 / 30 - 0.2) / 8), 2);
    EXPECT_EQ(lines(246 + 38, 1), 1);
    EXPECT_EQ(lines(246 + 37, 1), 2);
}

TEST_F(StoreContainer, LetsAShortExplanationStandInTheMiddle) {
    const auto texts = std::make_shared<TitleSubtitleContainerViewController>(BrandAssetsShelf());
    const auto stack =
        std::make_shared<VerticallyStackedContainerViewController>(std::make_shared<uikit::UIViewController>(), texts);
    show(stack);

    texts->setSubtitleText("Ten glyphs");
    bed.settle();

    EXPECT_EQ(texts->subtitleText(), "Ten glyphs");
    EXPECT_EQ(texts->subtitleLabel()->frame(), (geometry::Rect{{146.5, 43.5}, {82, 20}}));
}

TEST_F(StoreContainer, ShowsTheSameTextsAsAFooter) {
    const auto root = std::make_shared<uikit::UIViewController>();
    const auto footer = std::make_shared<FooterView>();
    footer->setFrame({{0, 100}, {375, 200}});
    root->view()->addSubview(footer);

    footer->setFooterTitle("A headline");
    footer->setSubtitle("Ten glyphs");
    show(root);

    EXPECT_EQ(footer->footerTitleLabel()->frame(), (geometry::Rect{{25, 0}, {325, 25}}));
    EXPECT_EQ(footer->subtitleLabel()->frame(), (geometry::Rect{{146.5, 41}, {82, 20}}));
    EXPECT_EQ(footer->footerTitleLabel()->attributedText().runs().front().attributes.font.weightOption, 1);
    EXPECT_EQ(footer->subtitleLabel()->attributedText().runs().front().attributes.kern, 0.2);
}

TEST_F(StoreContainer, ReadsItsShelfsTextsAnew) {
    const auto shelf = std::make_shared<BrandAssetsShelf>();
    TitleSubtitleContainerViewController texts(*shelf);
    const HostTranslations german({{"Upload brand assets", "Marke hochladen"}}, "de");

    texts.applyTexts();

    EXPECT_EQ(texts.titleText(), "Marke hochladen");
    EXPECT_EQ(texts.titleLabel()->text(), "Marke hochladen");
    EXPECT_EQ(texts.subtitleText(), "Add your logos, fonts and color palettes to use within your projects.");
}

TEST_F(StoreContainer, KeepsItsTextsOnceItsShelfIsGone) {
    auto shelf = std::make_shared<BrandAssetsShelf>();
    TitleSubtitleContainerViewController texts(*shelf);
    shelf.reset();
    const HostTranslations german({{"Upload brand assets", "Marke hochladen"}}, "de");

    texts.applyTexts();

    EXPECT_EQ(texts.titleText(), "Upload brand assets");
}

TEST_F(StoreContainer, ReadsItsHeadlineAnew) {
    VelaProHeaderView header{geometry::Rect{}};
    LabelHeaderView otherHeader{geometry::Rect{}};
    const HostTranslations german({{"It's never been easier to look professional.", "So leicht war es nie."},
                                   {"All the templates. All the fonts. Graphics galore.", "Alles da."}},
                                  "de");

    header.applyTexts();
    otherHeader.applyTexts();

    EXPECT_EQ(header.titleLabel()->text(), "So leicht war es nie.");
    EXPECT_EQ(otherHeader.titleLabel()->text(), "Alles da.");
}

TEST_F(StoreContainer, CentresTheLogoOverTheHeadline) {
    const auto root = std::make_shared<uikit::UIViewController>();
    const auto header = std::make_shared<VelaProHeaderView>(geometry::Rect{{0, 0}, {375, 220}});
    root->view()->addSubview(header);

    show(root);

    // 208 × 26 at a height of 28.
    EXPECT_EQ(header->proLogoImageView()->convertTo(header->proLogoImageView()->bounds(), header.get()),
              (geometry::Rect{{75.5, 57}, {224, 28}}));
    EXPECT_EQ(header->titleLabel()->frame(), (geometry::Rect{{62, 101}, {251, 89}}));
    EXPECT_EQ(header->titleLabel()->text(), "It's never been easier to look professional.");
}

TEST_F(StoreContainer, LeavesALogoWithoutARatioAsItIs) {
    EXPECT_EQ(aspectRatio({208, 26}), 8);
    EXPECT_EQ(aspectRatio({0, 26}), 0);
    EXPECT_FALSE(aspectRatio({208, 0}).has_value());
    EXPECT_FALSE(aspectRatio({0, 0}).has_value());
}

namespace {

// Reads every picture as one without a height.
class FlatPictures : public host::ImageDecoder {
public:
    std::optional<geometry::Size> naturalSize(const std::filesystem::path&) override { return geometry::Size{208, 0}; }
};

} // namespace

// In a program of its own: a picture that has been read once keeps its size.
TEST(StoreHeaderDeathTest, LeavesALogoOfNoHeightItsNaturalWidth) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto showFlatLogo = [] {
        headless::TestBed bed(host::Services{.imageDecoder = std::make_shared<FlatPictures>()});
        const auto window = uikit::UIWindow::create({375, 800});
        const auto root = std::make_shared<uikit::UIViewController>();
        const auto header = std::make_shared<VelaProHeaderView>(geometry::Rect{{0, 0}, {375, 220}});
        root->view()->addSubview(header);
        window->setRootViewController(root);
        bed.settle();
        const uikit::UIView& logo = *header->proLogoImageView();
        const geometry::Rect frame = logo.convertTo(logo.bounds(), header.get()), title = header->titleLabel()->frame();
        std::cerr << frame.minX() << ' ' << frame.minY() << ' ' << frame.width() << ' ' << frame.height() << ", " << title.minX()
                  << ' ' << title.minY() << ' ' << title.width() << ' ' << title.height() << '\n';
        std::exit(bed.takeLogRecords().empty() ? 0 : 1);
    };

    EXPECT_EXIT(showFlatLogo(), ::testing::ExitedWithCode(0), "^83.5 57 208 28, 62 101 251 89\n");
}

TEST_F(StoreContainer, ShowsTheOtherHeaderToo) {
    AllTheThingsHeaderViewShelf shelf;
    const auto controller = shelf.viewController();
    show(controller);

    const auto header = std::dynamic_pointer_cast<LabelHeaderView>(controller->view()->subviews().front());
    ASSERT_TRUE(header);
    EXPECT_EQ(header->frame(), (geometry::Rect{{0, 0}, {375, 800}}));
    // 50 characters of 12 points: two lines of 30 with 8 between them.
    EXPECT_EQ(header->titleLabel()->frame(), (geometry::Rect{{30, 0}, {315, 68}}));
}

TEST(StoreHeader, HasItsLogoInARow) {
    const headless::TestBed bed;
    const VelaProHeaderView header{geometry::Rect{}};
    const uikit::UIImageView& logo = *header.proLogoImageView();

    EXPECT_EQ(logo.contentMode(), uikit::UIImageView::ContentMode::aspectFit);
    EXPECT_EQ(logo.tintColor(), velauikit::velaLabel);
    EXPECT_EQ(logo.accessibilitySpoken.name, "Marwick Folio Pro");
    EXPECT_EQ(dynamic_cast<const uikit::UIStackView&>(*logo.superview()).spacing(), 8);
}

TEST_F(StoreContainer, MeasuresItsHeadlineWithoutChangingIt) {
    const auto root = std::make_shared<uikit::UIViewController>();
    const auto header = std::make_shared<VelaProHeaderView>(geometry::Rect{{0, 0}, {375, 220}});
    root->view()->addSubview(header);
    show(root);
    const double size = firstOfType(tree(), "UILabel").text->size;

    EXPECT_GT(header->heightAddedForHeadline(
                  375, {.preferredContentSizeCategory = graphics::ContentSizeCategory::accessibilityExtraExtraLarge}),
              0);
    EXPECT_EQ(header->heightAddedForHeadline(1024, {}), 0);
    header->setNeedsLayout();
    window->setSize({375, 801}, {});
    bed.settle();

    EXPECT_EQ(firstOfType(tree(), "UILabel").text->size, size);
}

TEST_F(StoreContainer, PlaysTheClipOfTheAppearance) {
    const auto clip = showClipView<TemplatesVideoView>();
    EXPECT_EQ(tests::firstOfType(tree(), "VideoView").clipView->name, "StorePageTemplatesVideo");

    setAppearance(graphics::ColorScheme::dark);
    EXPECT_EQ(tests::firstOfType(tree(), "VideoView").clipView->name, "StorePageTemplatesVideo_dark");
    EXPECT_TRUE(tests::firstOfType(tree(), "VideoView").clipView->time_s.has_value());

    setAppearance(graphics::ColorScheme::light);
    EXPECT_EQ(tests::firstOfType(tree(), "VideoView").clipView->name, "StorePageTemplatesVideo");
    EXPECT_EQ(clip->videoView()->frame(), (geometry::Rect{{0, 0}, {375, 800}}));
}

TEST(EmptyStrip, ShowsNoIndicators) {
    const headless::TestBed bed;
    const auto strip = StorePageShelfViewController::create(uikit::UIImage{});

    EXPECT_FALSE(strip->scrollView()->showsHorizontalScrollIndicator());
    EXPECT_FALSE(strip->scrollView()->showsVerticalScrollIndicator());
}

TEST(Strip, HasTheSizeOfItsImageFromTheBeginning) {
    const headless::TestBed bed;
    auto image = std::make_shared<graphics::Image>();
    image->size = {343, 50};

    EXPECT_EQ(StorePageShelfViewController::create(image)->scrollView()->contentSize(), (geometry::Size{343, 50}));
}

TEST_F(StoreContainer, DoesNotDriftWhileItIsAway) {
    const auto strip = StorePageShelfViewController::create(uikit::UIImage{});
    strip->setScrollDirection(StorePageShelfViewController::ScrollDirection::left);
    show(strip);
    EXPECT_TRUE(strip->isAutoScrolling());

    strip->viewDidDisappear(false);
    strip->traitCollectionDidChange({});
    EXPECT_FALSE(strip->isAutoScrolling());
}

TEST(TextsBelowAShelf, AreNoHigherThanTheyMust) {
    const headless::TestBed bed;

    EXPECT_EQ(TitleSubtitleContainerViewController(BrandAssetsShelf()).view()->contentHuggingPriority(uikit::Axis::vertical),
              uikit::layoutPriorityHigh);
}

TEST(EmptyStrip, IsNoHigherThanItMust) {
    const headless::TestBed bed;
    const auto strip = StorePageShelfViewController::create(uikit::UIImage{});

    EXPECT_EQ(strip->view()->contentHuggingPriority(uikit::Axis::vertical), uikit::layoutPriorityHigh);
}

TEST_F(StoreContainer, KnowsItsClipBeforeItStandsInAWindow) {
    EXPECT_EQ(TemplatesVideoView().videoView()->file()->stem(), "StorePageTemplatesVideo");
}

TEST_F(StoreContainer, PlaysTheDarkClipFromTheStartWhereItIsDark) {
    setAppearance(graphics::ColorScheme::dark);

    showClipView<BrandAssetsVideoView>();

    EXPECT_EQ(tests::firstOfType(tree(), "VideoView").clipView->name, "StorePageBrandingVideo_dark");
}

TEST_F(StoreContainer, CannotComeFromAnArchiveOrHaveAFrameOfItsOwn) {
    const foundation::Coder coder;
    EXPECT_DEATH(TemplatesVideoView{coder}, "init\\(coder:\\) has not been implemented");
    EXPECT_DEATH(BrandAssetsVideoView(geometry::Rect{}),
                 "Use of unimplemented initializer 'init\\(frame:\\)' for class 'ProUpsells.BrandAssetsVideoView'");
    EXPECT_DEATH(TemplatesVideoView(geometry::Rect{}),
                 "Use of unimplemented initializer 'init\\(frame:\\)' for class 'ProUpsells.TemplatesVideoView'");
    EXPECT_DEATH(VelaProHeaderView{coder}, "init\\(coder:\\) has not been implemented");
    EXPECT_DEATH(LabelHeaderView{coder}, "init\\(coder:\\) has not been implemented");
    EXPECT_DEATH(
        VerticallyStackedContainerViewController{coder},
        "Use of unimplemented initializer 'init\\(coder:\\)' for class 'ProUpsells\\.VerticallyStackedContainerViewController'");
    EXPECT_DEATH(
        TitleSubtitleContainerViewController{coder},
        "Use of unimplemented initializer 'init\\(coder:\\)' for class 'ProUpsells\\.TitleSubtitleContainerViewController'");
}

} // namespace proupsells::tests

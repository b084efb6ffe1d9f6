// Constraints around texts, pictures, stacks and scrolled content. With the fixed metrics a character is half its font's size wide,
// and a line one and a quarter of it high.
#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "Platform/UIKit/Views/UIScrollView.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "Tests/UIKit/ConstraintScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Rect;
using geometry::Size;
using testing::DoubleNear;

UIImage picture(Size size) { return std::make_shared<graphics::Image>(graphics::Image{.name = "picture", .size = size}); }

std::shared_ptr<UILabel> label(std::string text, double size, double kern = 0, double lineSpacing = 0) {
    auto view = std::make_shared<UILabel>();
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    view->setNumberOfLines(0);
    graphics::AttributedString styled(std::move(text), {.font = {.size = size}, .color = UIColor::black, .kern = kern});
    styled.paragraphStyle = graphics::ParagraphStyle{.lineSpacing = lineSpacing, .alignment = graphics::TextAlignment::center};
    view->setAttributedText(std::move(styled));
    return view;
}

class ConstraintContentTest : public ConstraintTest {
protected:
    // Fills the root.
    std::shared_ptr<UIView> filling(std::shared_ptr<UIView> view) {
        added(view, *root);
        NSLayoutConstraint::activate({view->leadingAnchor().constraintEqualTo(root->leadingAnchor()),
                                      view->trailingAnchor().constraintEqualTo(root->trailingAnchor()),
                                      view->topAnchor().constraintEqualTo(root->topAnchor()),
                                      view->bottomAnchor().constraintEqualTo(root->bottomAnchor())});
        return view;
    }

    static void embedCentered(const std::shared_ptr<UIView>& content, UIScrollView& strip) {
        added(content, strip);
        NSLayoutConstraint::activate(
            {content->leadingAnchor().constraintEqualTo(strip.leadingAnchor())->withPriority(layoutPriorityLow),
             content->trailingAnchor().constraintEqualTo(strip.trailingAnchor()),
             content->centerXAnchor().constraintEqualTo(strip.centerXAnchor()),
             content->topAnchor().constraintEqualTo(strip.topAnchor()),
             content->bottomAnchor().constraintEqualTo(strip.bottomAnchor()),
             content->heightAnchor().constraintEqualTo(strip.heightAnchor())});
    }
    static void embedPadded(const std::shared_ptr<UIView>& content, UIScrollView& strip) {
        added(content, strip);
        NSLayoutConstraint::activate({content->leadingAnchor().constraintEqualTo(strip.leadingAnchor(), 16),
                                      content->trailingAnchor().constraintEqualTo(strip.trailingAnchor(), -16),
                                      content->topAnchor().constraintEqualTo(strip.topAnchor()),
                                      content->bottomAnchor().constraintEqualTo(strip.bottomAnchor()),
                                      content->heightAnchor().constraintEqualTo(strip.heightAnchor())});
    }
    static std::shared_ptr<UIStackView> row(int count, const std::function<std::shared_ptr<UIView>()>& make) {
        auto stack = std::make_shared<UIStackView>(Axis::horizontal);
        for (int i = 0; i < count; ++i) stack->addArrangedSubview(make());
        stack->setSpacing(16);
        return stack;
    }
};

// --- Texts ---

TEST_F(ConstraintContentTest, ALabelWrapsAtTheWidthThatConstraintsLeaveIt) {
    const auto text = added(label("one two three four", 16), *root);
    NSLayoutConstraint::activate({text->leadingAnchor().constraintEqualTo(root->leadingAnchor()),
                                  text->widthAnchor().constraintEqualToConstant(60),
                                  text->topAnchor().constraintEqualTo(root->topAnchor())});

    EXPECT_EQ(frameOf(text), (Rect{{0, 0}, {60, 60}}));

    text->setNumberOfLines(1);
    EXPECT_EQ(frameOf(text).height(), 20);
}

TEST_F(ConstraintContentTest, AnExplicitPreferredWidthComesBeforeTheOneOfTheLayout) {
    const auto text = added(label("one two", 16), *root);
    text->setPreferredMaxLayoutWidth(30);
    NSLayoutConstraint::activate({text->leadingAnchor().constraintEqualTo(root->leadingAnchor()),
                                  text->trailingAnchor().constraintEqualTo(root->trailingAnchor()),
                                  text->topAnchor().constraintEqualTo(root->topAnchor())});

    EXPECT_EQ(frameOf(text), (Rect{{0, 0}, {375, 40}}));
}

// The headline may use the width less 25 on each side; the explanation wraps into a column of at most 300 and hugs its lines.
TEST_F(ConstraintContentTest, AHeadlineAndItsExplanationStandInTheMiddle) {
    const auto box = added(std::make_shared<UIView>(), *root);
    const auto title = added(label("Get full access to all templates", 22, 0, 9), *box);
    const auto subtitle = added(label("Design on the go with professionally designed templates, updated daily.", 16, 0.2, 9), *box);
    NSLayoutConstraint::activate(
        {title->topAnchor().constraintEqualTo(box->topAnchor()), title->centerXAnchor().constraintEqualTo(box->centerXAnchor()),
         title->leadingAnchor().constraintEqualTo(box->leadingAnchor(), 25),
         subtitle->topAnchor().constraintEqualTo(title->bottomAnchor(), 16),
         subtitle->centerXAnchor().constraintEqualTo(box->centerXAnchor()),
         subtitle->widthAnchor().constraintLessThanOrEqualToConstant(300),
         subtitle->leadingAnchor().constraintEqualTo(box->leadingAnchor(), 19)->withPriority(layoutPriorityLow),
         box->heightAnchor().constraintEqualToConstant(103), box->centerXAnchor().constraintEqualTo(root->centerXAnchor()),
         box->leadingAnchor().constraintEqualTo(root->leadingAnchor()),
         box->bottomAnchor().constraintEqualTo(root->bottomAnchor())});

    EXPECT_EQ(frameOf(box), (Rect{{0, 97}, {375, 103}}));
    EXPECT_EQ(frameOf(title), (Rect{{25, 0}, {325, 2 * 27.5 + 9}}));
    // "Design on the go with professionally" is the longer line: 36 characters of 8.2.
    EXPECT_THAT(frameOf(subtitle).width(), DoubleNear(295.2, 1e-6));
    EXPECT_THAT(frameOf(subtitle).minX(), DoubleNear(39.9, 1e-6));
    EXPECT_EQ(frameOf(subtitle).minY(), 64 + 16);
    EXPECT_EQ(frameOf(subtitle).height(), 20 + 9 + 20);
    EXPECT_TRUE(takeLog().empty());
}

TEST_F(ConstraintContentTest, AButtonsLabelAndPictureStayTogetherInItsMiddle) {
    const auto button = added(std::make_shared<UIButton>(), *root);
    const auto box = added(std::make_shared<UIView>(), *button);
    const auto text = added(label("Choose Your Plan", 18, 2, 5), *box);
    const auto image = added(std::make_shared<UIImageView>(picture({20, 14})), *box);
    NSLayoutConstraint::activate({text->trailingAnchor().constraintEqualTo(image->leadingAnchor(), -16),
                                  text->centerYAnchor().constraintEqualTo(image->centerYAnchor()),
                                  text->centerYAnchor().constraintEqualTo(box->centerYAnchor()),
                                  text->leadingAnchor().constraintEqualTo(box->leadingAnchor()),
                                  image->trailingAnchor().constraintEqualTo(box->trailingAnchor()),
                                  box->centerXAnchor().constraintEqualTo(button->centerXAnchor()),
                                  box->heightAnchor().constraintEqualTo(button->heightAnchor())});
    NSLayoutConstraint::activate({button->leadingAnchor().constraintEqualTo(root->leadingAnchor(), 22),
                                  button->centerXAnchor().constraintEqualTo(root->centerXAnchor()),
                                  button->topAnchor().constraintEqualTo(root->topAnchor()),
                                  button->heightAnchor().constraintEqualToConstant(60)});

    // 16 characters of 9 + 2; nothing says where the box stands upright, so it stands at the top.
    EXPECT_EQ(frameOf(button), (Rect{{22, 0}, {331, 60}}));
    EXPECT_EQ(frameOf(box), (Rect{{59.5, 0}, {212, 60}}));
    EXPECT_EQ(frameOf(text), (Rect{{0, 18.75}, {176, 22.5}}));
    EXPECT_EQ(frameOf(image), (Rect{{192, 23}, {20, 14}}));

    setRightToLeft();
    EXPECT_EQ(frameOf(image), (Rect{{0, 23}, {20, 14}}));
    EXPECT_EQ(frameOf(text), (Rect{{36, 18.75}, {176, 22.5}}));
}

// --- Stacks ---

TEST_F(ConstraintContentTest, AnArrangedPictureKeepsItsProportionsAtTheStacksHeight) {
    const auto image = std::make_shared<UIImageView>(picture({300, 60}));
    const auto stack = added(std::make_shared<UIStackView>(Axis::horizontal), *root);
    stack->addArrangedSubview(image);
    image->widthAnchor().constraintEqualToMultiplier(image->heightAnchor(), 5)->setActive(true);
    NSLayoutConstraint::activate({stack->centerXAnchor().constraintEqualTo(root->centerXAnchor()),
                                  stack->topAnchor().constraintEqualTo(root->topAnchor(), 57),
                                  stack->heightAnchor().constraintEqualToConstant(28),
                                  stack->leadingAnchor().constraintGreaterThanOrEqualTo(root->leadingAnchor())});

    EXPECT_EQ(frameOf(stack), (Rect{{117.5, 57}, {140, 28}}));
    EXPECT_EQ(image->frame(), (Rect{{0, 0}, {140, 28}}));
    EXPECT_TRUE(takeLog().empty());
}

TEST_F(ConstraintContentTest, AStackTakesOnNewNaturalSizesOfWhatItArranges) {
    const auto view = std::make_shared<SizedView>(Size{30, 20});
    const auto stack = added(std::make_shared<UIStackView>(Axis::vertical), *root);
    stack->addArrangedSubview(view);
    NSLayoutConstraint::activate(
        {stack->centerXAnchor().constraintEqualTo(root->centerXAnchor()), stack->topAnchor().constraintEqualTo(root->topAnchor())});
    EXPECT_EQ(frameOf(stack).size, (Size{30, 20}));

    view->setNaturalSize({50, 25});
    EXPECT_EQ(frameOf(stack).size, (Size{50, 25}));
    view->heightAnchor().constraintEqualToConstant(70)->setActive(true);
    EXPECT_EQ(frameOf(stack).size, (Size{50, 70}));
}

TEST_F(ConstraintContentTest, AFullWidthStackWrapsTheTextsInIt) {
    const auto stack = added(std::make_shared<UIStackView>(Axis::vertical), *root);
    stack->addArrangedSubview(label("one two three four", 16));
    stack->addArrangedSubview(label("five", 16));
    NSLayoutConstraint::activate({stack->leadingAnchor().constraintEqualTo(root->leadingAnchor()),
                                  stack->widthAnchor().constraintEqualToConstant(80),
                                  stack->topAnchor().constraintEqualTo(root->topAnchor())});

    EXPECT_EQ(frameOf(stack), (Rect{{0, 0}, {80, 60}}));
}

// --- Scrolled content ---

TEST_F(ConstraintContentTest, ACentredPictureKeepsItsWidthInsteadOfReachingTheLeadingEdge) {
    const auto strip = std::make_shared<UIScrollView>();
    filling(strip);
    const auto image = std::make_shared<UIImageView>(picture({200, 217}));
    embedCentered(image, *strip);
    strip->setContentSize(image->intrinsicContentSize());

    EXPECT_EQ(frameOf(image), (Rect{{87.5, 0}, {200, 200}}));
    EXPECT_EQ(strip->contentSize(), (Size{287.5, 200}));
}

TEST_F(ConstraintContentTest, CentredContentWithoutANaturalSizeFillsTheStrip) {
    const auto strip = std::make_shared<UIScrollView>();
    filling(strip);
    const auto view = std::make_shared<UIView>();
    embedCentered(view, *strip);
    strip->setContentSize(view->intrinsicContentSize());

    EXPECT_EQ(frameOf(view), (Rect{{0, 0}, {375, 200}}));
    EXPECT_EQ(strip->contentSize(), (Size{375, 200}));
}

TEST_F(ConstraintContentTest, APaddedRowMakesTheContentAsWideAsItselfAndItsPadding) {
    const auto strip = std::make_shared<UIScrollView>();
    filling(strip);
    const auto tiles = row(21, [] {
        const auto tile = row(1, [] { return std::make_shared<UIImageView>(picture({100, 200})); });
        return tile;
    });
    embedPadded(tiles, *strip);

    EXPECT_EQ(frameOf(tiles), (Rect{{16, 0}, {21 * 100 + 20 * 16, 200}}));
    EXPECT_EQ(strip->contentSize(), (Size{16 + 2420 + 16, 200}));
    EXPECT_EQ(tiles->arrangedSubviews()[20]->frame(), (Rect{{20 * 116, 0}, {100, 200}}));
    EXPECT_EQ(tiles->arrangedSubviews()[20]->subviews()[0]->frame(), (Rect{{0, 0}, {100, 200}}));
}

TEST_F(ConstraintContentTest, ARowOfEqualsOfAFixedWidthKeepsIt) {
    const auto strip = std::make_shared<UIScrollView>();
    filling(strip);
    const auto clips = row(25, [] {
        auto clip = std::make_shared<SizedView>(Size{noIntrinsicMetric, 167});
        clip->setTranslatesAutoresizingMaskIntoConstraints(false);
        clip->widthAnchor().constraintEqualToConstant(94)->setActive(true);
        return clip;
    });
    clips->setDistribution(UIStackView::Distribution::fillEqually);
    embedPadded(clips, *strip);

    EXPECT_EQ(frameOf(clips).size, (Size{25 * 94 + 24 * 16, 200}));
    EXPECT_EQ(clips->arrangedSubviews()[24]->frame(), (Rect{{24 * 110, 0}, {94, 200}}));
    EXPECT_EQ(strip->contentSize().width, 2734 + 32);
    EXPECT_TRUE(takeLog().empty());
}

TEST_F(ConstraintContentTest, StripsKnowTheirContentBeforeTheyStandAnywhere) {
    const auto strip = std::make_shared<UIScrollView>();
    strip->setTranslatesAutoresizingMaskIntoConstraints(false);
    embedPadded(row(21, [] { return std::make_shared<UIImageView>(picture({100, 98})); }), *strip);

    strip->layoutIfNeeded();
    EXPECT_EQ(strip->contentSize().width, 2452);
    strip->setContentOffset({strip->contentSize().width, 0});
    filling(strip);
    root->layoutIfNeeded();

    EXPECT_EQ(strip->contentSize(), (Size{2452, 200}));
    EXPECT_EQ(strip->contentOffset().x, 2452);
    EXPECT_TRUE(takeLog().empty());
}

TEST_F(ConstraintContentTest, TwoStripsAndATextShareAShelfByTheirNaturalHeights) {
    root->setFrame({{0, 0}, {375, 395}});
    const auto shelf = added(std::make_shared<UIView>(), *root), strips = added(std::make_shared<UIView>(), *shelf);
    const auto text = added(std::make_shared<UIView>(), *shelf);
    const auto first = added(std::make_shared<UIView>(), *strips), second = added(std::make_shared<UIView>(), *strips);
    const auto stacked = [](UIView& around, UIView& upper, UIView& lower) {
        NSLayoutConstraint::activate({lower.topAnchor().constraintEqualTo(upper.bottomAnchor(), 16),
                                      upper.topAnchor().constraintEqualTo(around.topAnchor()),
                                      upper.centerXAnchor().constraintEqualTo(around.centerXAnchor()),
                                      upper.leadingAnchor().constraintEqualTo(around.leadingAnchor()),
                                      lower.centerXAnchor().constraintEqualTo(around.centerXAnchor()),
                                      lower.leadingAnchor().constraintEqualTo(around.leadingAnchor()),
                                      lower.bottomAnchor().constraintEqualTo(around.bottomAnchor())});
    };
    shelf->fillSuperview();
    stacked(*shelf, *strips, *text);
    stacked(*strips, *first, *second);
    text->heightAnchor().constraintEqualToConstant(103)->setActive(true);
    for (const auto& [view, height] : {std::pair{first, 93.0}, std::pair{second, 167.0}}) {
        const auto strip = std::make_shared<UIScrollView>();
        view->addSubview(strip);
        strip->fillSuperview();
        embedPadded(row(21, [height = height] { return std::make_shared<UIImageView>(picture({50, height})); }), *strip);
    }

    EXPECT_EQ(frameOf(strips), (Rect{{0, 0}, {375, 276}}));
    EXPECT_EQ(first->frame(), (Rect{{0, 0}, {375, 93}}));
    EXPECT_EQ(second->frame(), (Rect{{0, 109}, {375, 167}}));
    EXPECT_EQ(text->frame(), (Rect{{0, 292}, {375, 103}}));
    EXPECT_TRUE(takeLog().empty());
}

TEST_F(ConstraintContentTest, ScrollingSolvesAndLaysOutNothing) {
    const auto strip = std::make_shared<UIScrollView>();
    filling(strip);
    const auto tiles = row(21, [] { return std::make_shared<UIImageView>(picture({100, 200})); });
    embedPadded(tiles, *strip);
    root->layoutIfNeeded();
    const auto solved = LayoutSystem::solvedCount();

    strip->setContentOffset({700, 0});

    EXPECT_FALSE(root->needsLayout() || strip->needsLayout() || tiles->needsLayout());
    root->setNeedsLayout();
    root->layoutIfNeeded();
    EXPECT_EQ(LayoutSystem::solvedCount(), solved);
    EXPECT_EQ(tiles->frame().minX(), 16);
}

TEST_F(ConstraintContentTest, TheContentsOwnSizeCountsAgainWhenItsConstraintsHaveGone) {
    const auto strip = std::make_shared<UIScrollView>();
    filling(strip);
    const auto content = std::make_shared<SizedView>(Size{500, 10});
    embedPadded(content, *strip);
    strip->setContentSize({70, 60});
    root->layoutIfNeeded();
    EXPECT_EQ(strip->contentSize(), (Size{532, 200}));

    content->removeFromSuperview();
    root->layoutIfNeeded();

    EXPECT_EQ(strip->contentSize(), (Size{70, 60}));
}

// --- Fitting sizes ---

TEST_F(ConstraintContentTest, FittingSizesAreAsSmallAsTheContentAllows) {
    const auto box = std::make_shared<UIView>();
    const auto text = added(label("one two three four", 16), *box);
    NSLayoutConstraint::activate({text->leadingAnchor().constraintEqualTo(box->leadingAnchor(), 10),
                                  text->trailingAnchor().constraintEqualTo(box->trailingAnchor(), -10),
                                  text->topAnchor().constraintEqualTo(box->topAnchor(), 5),
                                  text->bottomAnchor().constraintEqualTo(box->bottomAnchor(), -5)});

    EXPECT_EQ(box->systemLayoutSizeFitting({}), (Size{144 + 20, 30}));
    EXPECT_EQ(box->systemLayoutSizeFitting({80, std::nullopt}), (Size{80, 70}));
    EXPECT_EQ(box->systemLayoutSizeFitting({400, 90}), (Size{400, 90}));
    EXPECT_EQ(box->frame(), (Rect{}));
}

// --- Safe areas ---

TEST(ConstraintSafeArea, ABarReachesUnderTheUnsafeEdgeAndKeepsItsButtonAboveIt) {
    headless::TestBed bed;
    const auto window = UIWindow::create({375, 800}, {.top = 44, .bottom = 34});
    const auto controller = std::make_shared<UIViewController>();
    const auto& root = controller->view();
    const auto bar = std::make_shared<UIView>(), button = std::make_shared<UIView>(), close = std::make_shared<UIView>();
    for (const auto& view : {bar, button, close}) view->setTranslatesAutoresizingMaskIntoConstraints(false);
    root->addSubview(bar);
    root->addSubview(close);
    bar->addSubview(button);
    NSLayoutConstraint::activate(
        {bar->leadingAnchor().constraintEqualTo(root->leadingAnchor()),
         bar->trailingAnchor().constraintEqualTo(root->trailingAnchor()),
         bar->bottomAnchor().constraintEqualTo(root->bottomAnchor()), bar->topAnchor().constraintEqualTo(button->topAnchor(), -22),
         button->centerXAnchor().constraintEqualTo(bar->centerXAnchor()),
         button->leadingAnchor().constraintEqualTo(bar->leadingAnchor(), 22),
         button->bottomAnchor().constraintEqualTo(bar->safeAreaLayoutGuide().bottomAnchor(), -8),
         button->heightAnchor().constraintEqualToConstant(60),
         close->topAnchor().constraintEqualTo(root->safeAreaLayoutGuide().topAnchor(), 37),
         close->leadingAnchor().constraintEqualTo(root->leadingAnchor(), 23), close->widthAnchor().constraintEqualToConstant(30),
         close->heightAnchor().constraintEqualToConstant(30)});

    window->setRootViewController(controller);
    EXPECT_EQ(bar->frame(), (Rect{{0, 800 - 124}, {375, 124}}));
    EXPECT_EQ(button->frame(), (Rect{{22, 22}, {331, 60}}));
    EXPECT_EQ(close->frame(), (Rect{{23, 81}, {30, 30}}));

    window->setSize({375, 800}, {});
    bed.settle();
    EXPECT_EQ(bar->frame(), (Rect{{0, 800 - 90}, {375, 90}}));
    EXPECT_EQ(close->frame().minY(), 37);
    window->setRootViewController(nullptr);
}

} // namespace
} // namespace proupsells::uikit

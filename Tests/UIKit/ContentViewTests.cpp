#include "Tests/UIKit/Screen.hpp"

#include "Platform/Host/TextCache.hpp"
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;

constexpr UIColor ink{"ink", graphics::rgb(0x111111), graphics::rgb(0xEEEEEE)};
constexpr UIFont body{.face = nullptr, .size = 16, .name = "body", .weightOption = 1};

// With the fixed metrics a character is 8 wide and a line 20 high.
class LabelTest : public ScreenTest {
protected:
    LabelTest() : root(showRoot()), label(std::make_shared<UILabel>()) {
        label->setFont(body);
        label->setTextColor(ink);
        root->view()->addSubview(label);
    }
    accessibility::SemanticNode node() { return window->semanticTree().children.at(0); }

    std::shared_ptr<RecordingController> root;
    std::shared_ptr<UILabel> label;
};

TEST_F(LabelTest, IsNaturallyAsLargeAsItsText) {
    label->setText("twelve chars");

    EXPECT_EQ(label->intrinsicContentSize(), (Size{96, 20}));
    label->setText("");
    EXPECT_EQ(label->intrinsicContentSize(), (Size{0, 0}));
}

TEST_F(LabelTest, WrapsWhereItMayHaveSeveralLines) {
    label->setText("one two three");
    EXPECT_EQ(label->sizeThatFits({60, std::nullopt}), (Size{56, 20})); // six characters and the ellipsis

    label->setNumberOfLines(0);
    EXPECT_EQ(label->sizeThatFits({60, std::nullopt}), (Size{56, 40}));
    label->setPreferredMaxLayoutWidth(45);
    EXPECT_EQ(label->intrinsicContentSize(), (Size{40, 60}));
}

TEST_F(LabelTest, CutsWhatDoesNotFitWithAnEllipsis) {
    label->setText("one two three");
    label->setFrame({{0, 0}, {60, 20}});

    const accessibility::SemanticNode described = node();

    EXPECT_TRUE(described.text->isTruncated);
    EXPECT_EQ(described.text->text, "one two three");
    EXPECT_EQ(described.text->lineCount, 1);
}

TEST_F(LabelTest, IsSetSmallerWhereItMayBeAndWouldBeCut) {
    label->setText("one two three");
    label->setFrame({{0, 0}, {84, 20}});

    label->setMinimumScaleFactor(0.5);

    EXPECT_FALSE(node().text->isTruncated);
    EXPECT_NEAR(node().text->size, 16 * 0.8, 1e-9); // 13 characters of 6.4 points
}

TEST_F(LabelTest, FollowsThePersonsTextSizeUpToItsLargest) {
    UITraitCollection traits;
    traits.preferredContentSizeCategory = graphics::ContentSizeCategory::accessibilityExtraExtraExtraLarge;
    label->setText("one two");
    label->setOverrideTraitCollection(traits);
    EXPECT_EQ(label->intrinsicContentSize(), (Size{56, 20}));

    label->setLargestTextSize(graphics::ContentSizeCategory::accessibilityLarge);
    const double factor = 33.0 / 17;
    EXPECT_NEAR(label->intrinsicContentSize().width, 56 * factor, 1e-9);

    label->setOverrideTraitCollection(std::nullopt);
    EXPECT_EQ(label->intrinsicContentSize(), (Size{56, 20}));
}

TEST_F(LabelTest, IsSetSmallerBeforeAWordIsBroken) {
    label->setNumberOfLines(0);
    label->setText("one twothree");

    EXPECT_EQ(label->sizeThatFits({64, std::nullopt}), (Size{64, 40}));
    EXPECT_NEAR(label->sizeThatFits({58, std::nullopt}).width, 8 * 7.2, 1e-9);
}

TEST_F(LabelTest, KeepsItsSizeWhereItFits) {
    label->setText("one two");
    label->setFrame({{0, 0}, {60, 20}});

    label->setMinimumScaleFactor(0.5);

    EXPECT_EQ(node().text->size, 16);
}

TEST_F(LabelTest, IsNotLaidOutAgainToBeDescribed) {
    label->setText("one two three");
    label->setFrame({{0, 0}, {60, 20}});
    label->setMinimumScaleFactor(0.5);
    painted();
    host::TextCache::shared().clear();
    const std::size_t before = bed.fixedTextShaper()->shapeCount();

    EXPECT_EQ(node().text->lineCount, 1);

    EXPECT_EQ(bed.fixedTextShaper()->shapeCount(), before);
}

TEST_F(LabelTest, FollowsTheCurrentLanguageAndManagesWithoutOne) {
    label->setText("one");
    label->setFrame({{0, 0}, {60, 20}});
    painted();
    for (const char* identifier : {"de_AT", ""}) {
        const std::size_t before = bed.fixedTextShaper()->shapeCount();
        foundation::Locale::setCurrent(foundation::Locale(identifier));

        EXPECT_EQ(node().text->lineCount, 1);

        EXPECT_EQ(bed.fixedTextShaper()->shapeCount(), before + 2); // the text and its ellipsis
    }
}

TEST_F(LabelTest, StandsInTheMiddleOfItsHeightAndAlignsItsLines) {
    label->setText("ab");
    label->setFrame({{0, 0}, {100, 60}});
    const auto baseline = [&] { return painted().commands.at(0).frame.origin; };

    EXPECT_EQ(baseline(), (geometry::Point{0, 36}));
    label->setTextAlignment(graphics::TextAlignment::center);
    EXPECT_EQ(baseline(), (geometry::Point{42, 36}));
    label->setTextAlignment(graphics::TextAlignment::trailing);
    EXPECT_EQ(baseline(), (geometry::Point{84, 36}));
    window->setTraits({.layoutDirection = geometry::LayoutDirection::rightToLeft});
    EXPECT_EQ(baseline(), (geometry::Point{0, 36}));
}

TEST_F(LabelTest, AttributedTextBringsItsOwnFontsColoursKerningAndSpacing) {
    graphics::AttributedString text("ab ", {.font = body, .color = ink, .kern = 2});
    text.append(graphics::AttributedString(
        "cd", {.font = {.size = 32, .name = "large"}, .color = UIColor::white, .isStruckThrough = true}));
    text.paragraphStyle = graphics::ParagraphStyle{.lineSpacing = 9, .alignment = graphics::TextAlignment::center};
    label->setNumberOfLines(0);
    label->setAttributedText(text);

    EXPECT_EQ(label->intrinsicContentSize(), (Size{62, 40}));
    EXPECT_EQ(label->sizeThatFits({40, std::nullopt}).height, 20 + 9 + 40);
    EXPECT_EQ(label->textAlignment(), graphics::TextAlignment::center);
    label->setFrame({{0, 0}, {200, 40}});
    const accessibility::SemanticNode described = node();
    ASSERT_EQ(described.text->runs.size(), 2u);
    EXPECT_EQ(described.text->font, "body");
    EXPECT_EQ(described.text->weight, 1);
    EXPECT_EQ(described.text->runs[1].font, "large");
    EXPECT_EQ(described.text->runs[1].color, "white");
    EXPECT_TRUE(described.text->runs[1].isStruckThrough);
}

TEST_F(LabelTest, APlainTextAfterAnAttributedOneIsRestyled) {
    label->setFrame({{0, 0}, {100, 20}});
    label->setAttributedText(graphics::AttributedString("ab", {.font = body, .color = ink}));
    label->setTextColor(UIColor::white);
    EXPECT_EQ(painted().commands.at(0).color, graphics::rgb(0x111111));

    label->setText("ab");
    label->setTextColor(ink);

    EXPECT_EQ(painted().commands.at(0).color, graphics::rgb(0x111111));
    label->setTextColor(UIColor::white);
    EXPECT_EQ(painted().commands.at(0).color, graphics::rgb(0xFFFFFF));
}

TEST_F(LabelTest, FollowsTheColourScheme) {
    label->setText("ab");
    label->setFrame({{0, 0}, {100, 20}});
    EXPECT_EQ(painted().commands.at(0).color, graphics::rgb(0x111111));

    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});

    EXPECT_EQ(painted().commands.at(0).color, graphics::rgb(0xEEEEEE));
}

TEST_F(LabelTest, LetsTouchesThrough) {
    label->setFrame({{0, 0}, {100, 20}});

    EXPECT_EQ(root->view()->hitTest({5, 5}), root->view().get());
}

// --- Images ---

TEST(ImageView, PlacesItsImageByItsContentMode) {
    using enum UIImageView::ContentMode;
    auto image = std::make_shared<graphics::Image>();
    image->name = "tile";
    image->size = {100, 50};
    UIImageView view(image);
    view.setFrame({{0, 0}, {200, 200}});
    EXPECT_EQ(view.intrinsicContentSize(), (Size{100, 50}));

    const std::vector<std::pair<UIImageView::ContentMode, Rect>> cases = {{scaleToFill, {{0, 0}, {200, 200}}},
                                                                          {aspectFit, {{0, 50}, {200, 100}}},
                                                                          {aspectFill, {{-100, 0}, {400, 200}}},
                                                                          {center, {{50, 75}, {100, 50}}}};
    for (const auto& [mode, frame] : cases) {
        view.setContentMode(mode);
        EXPECT_EQ(view.imageFrame(), frame);
    }
}

TEST_F(ScreenTest, AnImageViewNamesItsAsset) {
    auto image = std::make_shared<graphics::Image>();
    image->name = "tile";
    image->size = {100, 50};
    const auto view = std::make_shared<UIImageView>(image);
    view->setFrame({{0, 0}, {100, 50}});
    showRoot()->view()->addSubview(view);

    const accessibility::SemanticNode node = window->semanticTree().children.at(0);

    EXPECT_EQ(node.image, "tile");
    EXPECT_EQ(painted().commands.at(0).frame, (Rect{{0, 0}, {100, 50}}));
}

// --- Stacks ---

class Block : public UIView {
public:
    explicit Block(Size natural) : natural(natural) {}
    Size intrinsicContentSize() const override {
        ++askedCount;
        return natural;
    }
    Size natural;
    mutable int askedCount = 0;
};

struct StackTest : ScreenTest {
    StackTest() {
        for (const auto& block : blocks) stack->addArrangedSubview(block);
        stack->setSpacing(10);
    }
    std::vector<Rect> frames(Rect frame) {
        stack->setFrame(frame);
        stack->layoutIfNeeded();
        std::vector<Rect> result;
        for (const auto& block : blocks) result.push_back(block->frame());
        return result;
    }
    std::shared_ptr<UIStackView> stack = std::make_shared<UIStackView>();
    std::vector<std::shared_ptr<Block>> blocks = {std::make_shared<Block>(Size{20, 30}), std::make_shared<Block>(Size{40, 10})};
};

TEST_F(StackTest, IsNaturallyAsLongAsItsViewsAndTheSpacing) {
    EXPECT_EQ(stack->intrinsicContentSize(), (Size{70, 30}));
    stack->setAxis(Axis::vertical);
    EXPECT_EQ(stack->intrinsicContentSize(), (Size{40, 50}));
    blocks[0]->setHidden(true);
    EXPECT_EQ(stack->intrinsicContentSize(), (Size{40, 10}));
    stack->setAxis(Axis::horizontal);
    blocks[0]->setHidden(false);
    stack->setDistribution(UIStackView::Distribution::fillEqually);
    EXPECT_EQ(stack->intrinsicContentSize(), (Size{90, 30}));
}

TEST_F(StackTest, AsksEachViewForItsSizeOnceForEachThickness) {
    stack->intrinsicContentSize();
    EXPECT_EQ(blocks[0]->askedCount, 1);

    stack->naturalSizeFor({70, 30});

    EXPECT_EQ(blocks[0]->askedCount, 3);
}

TEST_F(StackTest, FillsItsBoundsInARow) {
    EXPECT_THAT(frames({{0, 0}, {70, 50}}), ElementsAre(Rect{{0, 0}, {20, 50}}, Rect{{30, 0}, {40, 50}}));
}

TEST_F(StackTest, AlignsAcross) {
    stack->setAlignment(UIStackView::Alignment::center);
    EXPECT_THAT(frames({{0, 0}, {70, 50}}), ElementsAre(Rect{{0, 10}, {20, 30}}, Rect{{30, 20}, {40, 10}}));
    stack->setAlignment(UIStackView::Alignment::leading);
    EXPECT_THAT(frames({{0, 0}, {70, 50}}), ElementsAre(Rect{{0, 0}, {20, 30}}, Rect{{30, 0}, {40, 10}}));
    stack->setAlignment(UIStackView::Alignment::trailing);
    EXPECT_THAT(frames({{0, 0}, {70, 50}}), ElementsAre(Rect{{0, 20}, {20, 30}}, Rect{{30, 40}, {40, 10}}));
}

TEST_F(StackTest, WhatIsLeftGoesToTheViewThatHugsLeast) {
    blocks[1]->setContentHuggingPriority(200, Axis::horizontal);
    EXPECT_THAT(frames({{0, 0}, {100, 50}}), ElementsAre(Rect{{0, 0}, {20, 50}}, Rect{{30, 0}, {70, 50}}));
    blocks[0]->setContentHuggingPriority(100, Axis::horizontal);
    EXPECT_THAT(frames({{0, 0}, {100, 50}}), ElementsAre(Rect{{0, 0}, {50, 50}}, Rect{{60, 0}, {40, 50}}));
}

TEST_F(StackTest, WhatIsMissingIsTakenFromTheViewThatResistsLeast) {
    EXPECT_THAT(frames({{0, 0}, {60, 50}}), ElementsAre(Rect{{0, 0}, {20, 50}}, Rect{{30, 0}, {30, 50}}));
    blocks[0]->setContentCompressionResistancePriority(100, Axis::horizontal);
    EXPECT_THAT(frames({{0, 0}, {60, 50}}), ElementsAre(Rect{{0, 0}, {10, 50}}, Rect{{20, 0}, {40, 50}}));
    EXPECT_THAT(frames({{0, 0}, {30, 50}}), ElementsAre(Rect{{0, 0}, {0, 50}}, Rect{{10, 0}, {20, 50}}));
}

TEST_F(StackTest, SharesEqually) {
    stack->setDistribution(UIStackView::Distribution::fillEqually);

    EXPECT_THAT(frames({{0, 0}, {110, 50}}), ElementsAre(Rect{{0, 0}, {50, 50}}, Rect{{60, 0}, {50, 50}}));
}

TEST_F(StackTest, IsMirrored) {
    window->setTraits({.layoutDirection = geometry::LayoutDirection::rightToLeft});
    showRoot()->view()->addSubview(stack);

    EXPECT_THAT(frames({{0, 0}, {70, 50}}), ElementsAre(Rect{{50, 0}, {20, 50}}, Rect{{0, 0}, {40, 50}}));
    stack->setAxis(Axis::vertical);
    stack->setAlignment(UIStackView::Alignment::leading);
    EXPECT_THAT(frames({{0, 0}, {50, 50}}), ElementsAre(Rect{{30, 0}, {20, 30}}, Rect{{10, 40}, {40, 10}}));
}

TEST_F(StackTest, FollowsItsViewsNaturalSizes) {
    showRoot()->view()->addSubview(stack);
    frames({{0, 0}, {70, 50}});

    blocks[0]->natural = {30, 30};
    blocks[0]->invalidateIntrinsicContentSize();
    bed.settle();

    EXPECT_EQ(blocks[1]->frame(), (Rect{{40, 0}, {30, 50}}));
}

TEST_F(StackTest, ForgetsAViewThatLeaves) {
    blocks[0]->removeFromSuperview();

    EXPECT_THAT(stack->arrangedSubviews(), ElementsAre(blocks[1]));
    EXPECT_EQ(stack->intrinsicContentSize(), (Size{40, 10}));
}

} // namespace
} // namespace proupsells::uikit

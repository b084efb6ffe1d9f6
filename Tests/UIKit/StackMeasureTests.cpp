// What a stack asks of its views, and how it shares its room among them.
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "Tests/UIKit/ConstraintScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;

// As high as its width makes it: an area of 600 square points.
class Flowing : public UIView {
public:
    Size intrinsicContentSize() const override { return {60, 10}; }
    Size sizeThatFits(const geometry::ProposedSize& proposal) const override {
        const double width = proposal.width.value_or(60);
        return {width, 600 / width};
    }
};

class StackMeasure : public testing::Test {
protected:
    std::shared_ptr<SizedView> add(Size size) {
        auto view = std::make_shared<SizedView>(size);
        stack->addArrangedSubview(view);
        return view;
    }
    std::vector<Rect> frames(Size size) {
        stack->setFrame({{0, 0}, size});
        stack->layoutIfNeeded();
        std::vector<Rect> result;
        for (const auto& view : stack->arrangedSubviews()) result.push_back(view->frame());
        return result;
    }

    headless::TestBed bed;
    std::shared_ptr<UIStackView> stack = std::make_shared<UIStackView>();
};

TEST_F(StackMeasure, AnEmptyStackNeedsNothing) {
    stack->setSpacing(10);

    EXPECT_EQ(stack->intrinsicContentSize(), (Size{0, 0}));
    stack->setFrame({{0, 0}, {100, 100}});
    stack->layoutIfNeeded();
    EXPECT_EQ(stack->effectiveHuggingPriority(Axis::horizontal), 250);
    EXPECT_EQ(stack->effectiveCompressionResistancePriority(Axis::vertical), 750);
}

TEST_F(StackMeasure, AColumnIsAsHighAsItsWidthMakesItsViews) {
    stack->setAxis(Axis::vertical);
    stack->setSpacing(4);
    add({20, 30});
    stack->addArrangedSubview(std::make_shared<Flowing>());

    EXPECT_EQ(stack->intrinsicContentSize(), (Size{60, 44}));
    EXPECT_EQ(stack->sizeThatFits({30, 5}), (Size{30, 54}));
    EXPECT_EQ(stack->sizeThatFits({120, std::nullopt}), (Size{60, 39}));
    EXPECT_EQ(stack->sizeThatFits({std::nullopt, 5}), (Size{60, 44}));
    EXPECT_EQ(stack->sizeThatFits({-5, std::nullopt}).width, 0);
    EXPECT_EQ(stack->naturalSizeFor({30, 500}), (Size{60, 54}));
}

TEST_F(StackMeasure, ARowIsOfferedItsHeight) {
    add({20, 30});
    add({15, 25});

    EXPECT_EQ(stack->sizeThatFits({5, 20}), (Size{35, 20}));
    EXPECT_EQ(stack->sizeThatFits({5, 40}), (Size{35, 30}));
    EXPECT_EQ(stack->naturalSizeFor({5, 20}), (Size{35, 30}));
}

TEST_F(StackMeasure, AlongItTheViewThatYieldsMostReadilyDecides) {
    const auto a = add({20, 30}), b = add({20, 30});
    a->setContentHuggingPriority(300, Axis::horizontal);
    b->setContentHuggingPriority(400, Axis::horizontal);
    a->setContentCompressionResistancePriority(600, Axis::horizontal);
    b->setContentCompressionResistancePriority(500, Axis::horizontal);

    EXPECT_EQ(stack->effectiveHuggingPriority(Axis::horizontal), 300);
    EXPECT_EQ(stack->effectiveCompressionResistancePriority(Axis::horizontal), 500);
}

TEST_F(StackMeasure, AcrossItTheViewThatYieldsLeastDecidesWhereAllAreAsThickAsTheStack) {
    const auto a = add({20, 30}), b = add({20, 30});
    a->setContentHuggingPriority(300, Axis::vertical);
    b->setContentHuggingPriority(400, Axis::vertical);
    a->setContentCompressionResistancePriority(600, Axis::vertical);
    b->setContentCompressionResistancePriority(500, Axis::vertical);
    stack->setContentHuggingPriority(7, Axis::vertical);
    stack->setContentCompressionResistancePriority(8, Axis::vertical);

    EXPECT_EQ(stack->effectiveHuggingPriority(Axis::vertical), 400);
    EXPECT_EQ(stack->effectiveCompressionResistancePriority(Axis::vertical), 600);
    stack->setAlignment(UIStackView::Alignment::center);
    EXPECT_EQ(stack->effectiveHuggingPriority(Axis::vertical), 7);
    EXPECT_EQ(stack->effectiveCompressionResistancePriority(Axis::vertical), 8);
}

TEST_F(StackMeasure, OfEqualViewsTheFirstGrowsAndTheLastGivesWay) {
    add({20, 10});
    add({20, 10});
    add({20, 10});

    EXPECT_THAT(frames({90, 10}), ElementsAre(Rect{{0, 0}, {50, 10}}, Rect{{50, 0}, {20, 10}}, Rect{{70, 0}, {20, 10}}));
    EXPECT_THAT(frames({45, 10}), ElementsAre(Rect{{0, 0}, {20, 10}}, Rect{{20, 0}, {20, 10}}, Rect{{40, 0}, {5, 10}}));
    EXPECT_THAT(frames({30, 10}), ElementsAre(Rect{{0, 0}, {20, 10}}, Rect{{20, 0}, {10, 10}}, Rect{{30, 0}, {0, 10}}));
    EXPECT_THAT(frames({0, 10}), ElementsAre(Rect{{0, 0}, {0, 10}}, Rect{{0, 0}, {0, 10}}, Rect{{0, 0}, {0, 10}}));
}

TEST_F(StackMeasure, EqualSharesAreNeverNegative) {
    stack->setDistribution(UIStackView::Distribution::fillEqually);
    stack->setSpacing(20);
    add({5, 10});
    add({5, 10});

    EXPECT_THAT(frames({10, 10}), ElementsAre(Rect{{0, 0}, {0, 10}}, Rect{{20, 0}, {0, 10}}));
    EXPECT_EQ(stack->intrinsicContentSize(), (Size{30, 10}));
}

TEST_F(StackMeasure, AViewIsNeverThickerThanTheStackThatDoesNotFill) {
    stack->setAlignment(UIStackView::Alignment::trailing);
    add({20, 50});
    add({20, 10});

    EXPECT_THAT(frames({40, 30}), ElementsAre(Rect{{0, 0}, {20, 30}}, Rect{{20, 20}, {20, 10}}));
}

TEST_F(StackMeasure, AScrolledStackBeginsAtItsOrigin) {
    add({20, 10});
    stack->setBoundsOrigin({5, 7});

    EXPECT_THAT(frames({20, 10}), ElementsAre(Rect{{5, 7}, {20, 10}}));
    stack->setAxis(Axis::vertical);
    EXPECT_THAT(frames({20, 10}), ElementsAre(Rect{{5, 7}, {20, 10}}));
}

TEST_F(StackMeasure, ArrangesOnlyWhatItWasGivenToArrange) {
    const auto arranged = add({1, 1});
    const auto other = viewAt({});
    stack->addSubview(other);

    EXPECT_TRUE(stack->arranges(*arranged));
    EXPECT_FALSE(stack->arranges(*other));
}

} // namespace
} // namespace proupsells::uikit

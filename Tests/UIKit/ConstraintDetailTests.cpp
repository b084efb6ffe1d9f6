// What constraints are called, when they hold, and what they make of a change.
#include "Platform/UIKit/Constraints/LinearExpression.hpp"
#include "Tests/UIKit/ConstraintScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;

struct ConstraintDetail : ConstraintTest {
    std::shared_ptr<UIView> named(std::string name) {
        auto view = plain();
        view->accessibilityIdentifier = std::move(name);
        return view;
    }
};

TEST_F(ConstraintDetail, EveryAttributeHasAName) {
    const auto a = named("a"), b = named("b");

    EXPECT_EQ(a->leftAnchor().constraintEqualTo(b->rightAnchor())->description(), "a.left = b.right");
    EXPECT_EQ(a->leadingAnchor().constraintEqualTo(b->trailingAnchor(), 3)->description(), "a.leading = b.trailing + 3");
    EXPECT_EQ(a->centerXAnchor().constraintEqualTo(b->centerXAnchor(), -0.5)->description(), "a.centerX = b.centerX - 0.5");
    EXPECT_EQ(a->topAnchor().constraintEqualTo(b->bottomAnchor())->description(), "a.top = b.bottom");
    EXPECT_EQ(a->centerYAnchor().constraintEqualTo(b->centerYAnchor())->description(), "a.centerY = b.centerY");
    EXPECT_EQ(a->widthAnchor().constraintEqualTo(b->heightAnchor())->description(), "a.width = b.height");
    EXPECT_EQ(a->widthAnchor().constraintEqualToConstant(0)->description(), "a.width = 0");
}

TEST_F(ConstraintDetail, AnIdentifierStandsForTheDescription) {
    const auto a = named("a");
    const auto constraint = a->widthAnchor().constraintEqualToConstant(10)->withIdentifier("own name");

    EXPECT_EQ(constraint->description(), "own name");
}

TEST_F(ConstraintDetail, AViewThatHasGoneIsCalledSo) {
    auto a = named("a");
    const auto constraint = a->widthAnchor().constraintEqualToConstant(10);

    a->removeFromSuperview();
    a.reset();

    EXPECT_EQ(constraint->description(), "(gone).width = 10");
    EXPECT_DEATH(constraint->setActive(true), "NSLayoutConstraint: a view of \\(gone\\).width = 10 has gone");
}

TEST_F(ConstraintDetail, HoldsWhileItIsActive) {
    const auto a = plain();
    const auto width = a->widthAnchor().constraintEqualToConstant(30), height = a->heightAnchor().constraintEqualToConstant(20);

    NSLayoutConstraint::activate({width, height});
    EXPECT_TRUE(width->isActive());
    EXPECT_EQ(frameOf(a).size, (Size{30, 20}));
    EXPECT_EQ(a->constraints().size(), 2u);
    width->setActive(true);
    EXPECT_EQ(a->constraints().size(), 2u);
    NSLayoutConstraint::deactivate({width});
    EXPECT_FALSE(width->isActive());
    EXPECT_EQ(frameOf(a).size, (Size{0, 20}));
    width->setActive(false);
    EXPECT_THAT(a->constraints(), ElementsAre(height));
}

TEST_F(ConstraintDetail, FollowsItsPriority) {
    const auto a = plain();
    const auto wide = a->widthAnchor().constraintEqualToConstant(30)->withPriority(500),
               narrow = a->widthAnchor().constraintEqualToConstant(20)->withPriority(400);
    NSLayoutConstraint::activate({wide, narrow});
    EXPECT_EQ(frameOf(a).width(), 30);

    narrow->setPriority(600);
    EXPECT_EQ(frameOf(a).width(), 20);
    EXPECT_EQ(narrow->priority(), 600);
}

TEST_F(ConstraintDetail, TheSameValueAgainAsksForNoLayout) {
    const auto a = plain();
    const auto width = a->widthAnchor().constraintEqualToConstant(30);
    width->setActive(true);
    root->layoutIfNeeded();

    width->setConstant(30);
    width->setPriority(layoutPriorityRequired);
    EXPECT_FALSE(root->needsLayout());
    width->setConstant(31);
    EXPECT_TRUE(root->needsLayout());
    EXPECT_EQ(frameOf(a).width(), 31);
}

TEST_F(ConstraintDetail, EdgesMeetAsTheySay) {
    const auto a = plain(), b = plain();
    NSLayoutConstraint::activate(
        {a->leadingAnchor().constraintEqualTo(root->leadingAnchor(), 10), a->topAnchor().constraintEqualTo(root->topAnchor(), 20),
         a->widthAnchor().constraintEqualToConstant(100), a->heightAnchor().constraintEqualToConstant(40),
         b->leftAnchor().constraintEqualTo(a->rightAnchor(), 5), b->bottomAnchor().constraintEqualTo(a->bottomAnchor(), -4),
         b->widthAnchor().constraintEqualToMultiplier(a->heightAnchor(), 0.5, 3),
         b->centerYAnchor().constraintEqualTo(a->centerYAnchor(), 6)});

    EXPECT_EQ(frameOf(a), (Rect{{10, 20}, {100, 40}}));
    // Its middle is at 46 and its lower edge at 56.
    EXPECT_EQ(frameOf(b), (Rect{{115, 36}, {23, 20}}));
}

TEST_F(ConstraintDetail, WhatNothingPlacesStandsInTheLeadingCorner) {
    const auto a = sized({30, 20});
    EXPECT_EQ(frameOf(a), (Rect{{0, 0}, {30, 20}}));

    setRightToLeft();
    EXPECT_EQ(frameOf(a), (Rect{{345, 0}, {30, 20}}));
}

TEST_F(ConstraintDetail, LimitsHoldOnBothSides) {
    const auto a = sized({30, 20}), b = sized({30, 20});
    NSLayoutConstraint::activate({a->widthAnchor().constraintGreaterThanOrEqualToConstant(50),
                                  b->widthAnchor().constraintLessThanOrEqualToConstant(10),
                                  b->leadingAnchor().constraintGreaterThanOrEqualTo(root->leadingAnchor(), 7),
                                  a->leadingAnchor().constraintLessThanOrEqualTo(root->leadingAnchor(), -3)});

    EXPECT_EQ(frameOf(a).width(), 50);
    EXPECT_EQ(frameOf(b).width(), 10);
    EXPECT_EQ(frameOf(b).minX(), 7);
    EXPECT_EQ(frameOf(a).minX(), -3);
}

TEST_F(ConstraintDetail, LengthsAreFreeOfWhatArithmeticAddsFarBehindThePoint) {
    const auto a = plain();
    NSLayoutConstraint::activate({a->widthAnchor().constraintEqualToMultiplier(root->widthAnchor(), 1 / 3.0),
                                  a->heightAnchor().constraintEqualToConstant(0.1)});

    EXPECT_EQ(frameOf(a).size, (Size{125, 0.1}));
}

TEST_F(ConstraintDetail, AFittingSizeKeepsWhatItIsGiven) {
    const auto a = sized({30, 20});
    NSLayoutConstraint::activate({a->leadingAnchor().constraintEqualTo(root->leadingAnchor(), 5),
                                  a->trailingAnchor().constraintEqualTo(root->trailingAnchor(), -6),
                                  a->topAnchor().constraintEqualTo(root->topAnchor(), 7),
                                  a->bottomAnchor().constraintEqualTo(root->bottomAnchor(), -8)});

    EXPECT_EQ(root->systemLayoutSizeFitting({}), (Size{41, 35}));
    EXPECT_EQ(root->systemLayoutSizeFitting({100, std::nullopt}), (Size{100, 35}));
    EXPECT_EQ(root->systemLayoutSizeFitting({std::nullopt, 60}), (Size{41, 60}));
    EXPECT_EQ(root->systemLayoutSizeFitting({-1, geometry::infinity}), (Size{41, 35}));
    EXPECT_EQ(frameOf(a), (Rect{{5, 7}, {364, 185}}));
}

TEST_F(ConstraintDetail, APinnedViewKeepsItsInsetsOnTheRightSides) {
    const auto a = plain(), pinned = viewAt({});
    pinned->fillSuperview({.top = 1, .leading = 2, .bottom = 3, .trailing = 4});
    root->addSubview(pinned);
    a->leadingAnchor().constraintEqualTo(pinned->leadingAnchor())->setActive(true);

    EXPECT_EQ(frameOf(pinned), (Rect{{2, 1}, {369, 196}}));
    EXPECT_EQ(frameOf(a).minX(), 2);
    setRightToLeft();
    EXPECT_EQ(frameOf(pinned), (Rect{{4, 1}, {369, 196}}));
    EXPECT_EQ(frameOf(a).maxX(), 373);
}

TEST_F(ConstraintDetail, ABrokenConstraintIsNamedAgainOnceItHasHeldMeanwhile) {
    const auto a = named("a");
    const auto first = a->widthAnchor().constraintEqualToConstant(30), second = a->widthAnchor().constraintEqualToConstant(40);
    NSLayoutConstraint::activate({first, second});
    root->layoutIfNeeded();
    EXPECT_THAT(takeLog(), ElementsAre("Left out a constraint that cannot hold beside the others: a.width = 40"));
    root->setNeedsLayout();
    root->layoutIfNeeded();
    EXPECT_THAT(takeLog(), IsEmpty());

    second->setConstant(30);
    root->layoutIfNeeded();
    EXPECT_THAT(takeLog(), IsEmpty());
    second->setConstant(50);
    root->layoutIfNeeded();
    EXPECT_THAT(takeLog(), ElementsAre("Left out a constraint that cannot hold beside the others: a.width = 50"));
    EXPECT_EQ(a->frame().width(), 30);
}

TEST(LinearExpressions, AddUpAndForgetWhatCancelsOut) {
    LinearExpression sum = LinearExpression::ofVariable(0).plus(LinearExpression::ofVariable(1), 2).plus(5);
    EXPECT_EQ(sum.valueIn({10, 100}), 215);

    sum.add(LinearExpression::ofVariable(1).plus(1), -2);
    EXPECT_EQ(sum.terms.size(), 1u);
    EXPECT_EQ(sum.constant, 3);
    EXPECT_EQ(sum.valueIn({10, 100}), 13);
}

} // namespace
} // namespace proupsells::uikit

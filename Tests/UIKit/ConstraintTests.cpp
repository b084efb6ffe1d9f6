#include <ctime>

#include "Tests/UIKit/ConstraintScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;

// --- One view in its superview ---

struct Placement {
    const char* name;
    std::function<Constraints(UIView& view, UIView& root)> constraints;
    Rect leftToRight;
    Rect rightToLeft;
};

void PrintTo(const Placement& placement, std::ostream* stream) { *stream << placement.name; }

class ConstraintPlacement : public ConstraintTest, public testing::WithParamInterface<Placement> {};

TEST_P(ConstraintPlacement, FollowsTheLayoutDirection) {
    const auto view = sized({80, 40});
    NSLayoutConstraint::activate(GetParam().constraints(*view, *root));
    EXPECT_EQ(frameOf(view), GetParam().leftToRight);

    setRightToLeft();

    EXPECT_EQ(frameOf(view), GetParam().rightToLeft);
}

const Placement placements[] = {
    {"pinned to all edges",
     [](UIView& view, UIView& root) {
         return Constraints{view.topAnchor().constraintEqualTo(root.topAnchor(), 10),
                            view.leadingAnchor().constraintEqualTo(root.leadingAnchor(), 20),
                            view.trailingAnchor().constraintEqualTo(root.trailingAnchor(), -5),
                            view.bottomAnchor().constraintEqualTo(root.bottomAnchor(), -30)};
     },
     {{20, 10}, {350, 160}},
     {{5, 10}, {350, 160}}},
    {"in the middle at its natural size",
     [](UIView& view, UIView& root) {
         return Constraints{view.centerXAnchor().constraintEqualTo(root.centerXAnchor()),
                            view.centerYAnchor().constraintEqualTo(root.centerYAnchor(), 8)};
     },
     {{147.5, 88}, {80, 40}},
     {{147.5, 88}, {80, 40}}},
    {"at the leading edge",
     [](UIView& view, UIView& root) {
         return Constraints{view.leadingAnchor().constraintEqualTo(root.leadingAnchor(), 12),
                            view.topAnchor().constraintEqualTo(root.topAnchor())};
     },
     {{12, 0}, {80, 40}},
     {{283, 0}, {80, 40}}},
    {"at the left edge, whatever the direction",
     [](UIView& view, UIView& root) {
         return Constraints{view.leftAnchor().constraintEqualTo(root.leftAnchor(), 12),
                            view.bottomAnchor().constraintEqualTo(root.bottomAnchor())};
     },
     {{12, 160}, {80, 40}},
     {{12, 160}, {80, 40}}},
    {"as wide as it is high, times two",
     [](UIView& view, UIView& root) {
         return Constraints{view.widthAnchor().constraintEqualToMultiplier(view.heightAnchor(), 2),
                            view.heightAnchor().constraintEqualToConstant(60),
                            view.leadingAnchor().constraintEqualTo(root.leadingAnchor()),
                            view.topAnchor().constraintEqualTo(root.topAnchor())};
     },
     {{0, 0}, {120, 60}},
     {{255, 0}, {120, 60}}},
    {"a share of the superview's width and a little more",
     [](UIView& view, UIView& root) {
         return Constraints{view.widthAnchor().constraintEqualToMultiplier(root.widthAnchor(), 0.4, 10),
                            view.trailingAnchor().constraintEqualTo(root.trailingAnchor()),
                            view.topAnchor().constraintEqualTo(root.topAnchor())};
     },
     {{215, 0}, {160, 40}},
     {{0, 0}, {160, 40}}},
    {"kept from the leading edge by an inequality",
     [](UIView& view, UIView& root) {
         return Constraints{view.leadingAnchor().constraintGreaterThanOrEqualTo(root.leadingAnchor(), 50),
                            view.leadingAnchor().constraintEqualTo(root.leadingAnchor())->withPriority(500),
                            view.topAnchor().constraintEqualTo(root.topAnchor())};
     },
     {{50, 0}, {80, 40}},
     {{245, 0}, {80, 40}}},
    {"no wider than told",
     [](UIView& view, UIView& root) {
         return Constraints{view.widthAnchor().constraintLessThanOrEqualToConstant(30),
                            view.heightAnchor().constraintGreaterThanOrEqualToConstant(55),
                            view.leadingAnchor().constraintEqualTo(root.leadingAnchor()),
                            view.topAnchor().constraintEqualTo(root.topAnchor())};
     },
     {{0, 0}, {30, 55}},
     {{345, 0}, {30, 55}}},
    {"where the higher priority says",
     [](UIView& view, UIView& root) {
         return Constraints{view.leadingAnchor().constraintEqualTo(root.leadingAnchor(), 40)->withPriority(749),
                            view.leadingAnchor().constraintEqualTo(root.leadingAnchor(), 7)->withPriority(750),
                            view.topAnchor().constraintEqualTo(root.topAnchor())};
     },
     {{7, 0}, {80, 40}},
     {{288, 0}, {80, 40}}},
    {"hugged above what stretches it",
     [](UIView& view, UIView& root) {
         return Constraints{view.leadingAnchor().constraintEqualTo(root.leadingAnchor()),
                            view.trailingAnchor().constraintEqualTo(root.trailingAnchor())->withPriority(249),
                            view.topAnchor().constraintEqualTo(root.topAnchor())};
     },
     {{0, 0}, {80, 40}},
     {{295, 0}, {80, 40}}},
    {"stretched above its hugging",
     [](UIView& view, UIView& root) {
         return Constraints{view.leadingAnchor().constraintEqualTo(root.leadingAnchor()),
                            view.trailingAnchor().constraintEqualTo(root.trailingAnchor())->withPriority(251),
                            view.topAnchor().constraintEqualTo(root.topAnchor())};
     },
     {{0, 0}, {375, 40}},
     {{0, 0}, {375, 40}}},
    {"without room, above a weaker resistance",
     [](UIView& view, UIView& root) {
         return Constraints{view.leadingAnchor().constraintEqualTo(root.leadingAnchor()),
                            view.widthAnchor().constraintEqualToConstant(0)->withPriority(751),
                            view.topAnchor().constraintEqualTo(root.topAnchor())};
     },
     {{0, 0}, {0, 40}},
     {{375, 0}, {0, 40}}},
};
INSTANTIATE_TEST_SUITE_P(Table, ConstraintPlacement, testing::ValuesIn(placements));

// --- Several views ---

TEST_F(ConstraintTest, NeighboursShareTheRoomByTheirPriorities) {
    const auto label = sized({200, 20}), value = sized({250, 20});
    NSLayoutConstraint::activate({label->leadingAnchor().constraintEqualTo(root->leadingAnchor()),
                                  value->leadingAnchor().constraintEqualTo(label->trailingAnchor(), 16),
                                  value->trailingAnchor().constraintEqualTo(root->trailingAnchor()),
                                  label->centerYAnchor().constraintEqualTo(value->centerYAnchor()),
                                  value->topAnchor().constraintEqualTo(root->topAnchor())});
    value->setContentCompressionResistancePriority(751, Axis::horizontal);

    EXPECT_EQ(frameOf(label), (Rect{{0, 0}, {109, 20}}));
    EXPECT_EQ(frameOf(value), (Rect{{125, 0}, {250, 20}}));

    label->setContentCompressionResistancePriority(752, Axis::horizontal);
    EXPECT_EQ(frameOf(value), (Rect{{216, 0}, {159, 20}}));
}

TEST_F(ConstraintTest, ConstraintsReachAcrossLevels) {
    const auto box = plain();
    const auto inner = added(std::make_shared<SizedView>(Size{30, 10}), *box), beside = sized({20, 10});
    NSLayoutConstraint::activate({inner->leadingAnchor().constraintEqualTo(box->leadingAnchor(), 5),
                                  inner->trailingAnchor().constraintEqualTo(box->trailingAnchor(), -5),
                                  inner->topAnchor().constraintEqualTo(box->topAnchor(), 5),
                                  inner->bottomAnchor().constraintEqualTo(box->bottomAnchor(), -5),
                                  box->centerXAnchor().constraintEqualTo(root->centerXAnchor()),
                                  box->topAnchor().constraintEqualTo(root->topAnchor(), 50),
                                  beside->topAnchor().constraintEqualTo(inner->topAnchor()),
                                  beside->leftAnchor().constraintEqualTo(inner->rightAnchor(), 20)});

    EXPECT_EQ(frameOf(box), (Rect{{167.5, 50}, {40, 20}}));
    EXPECT_EQ(frameOf(inner), (Rect{{5, 5}, {30, 10}}));
    EXPECT_EQ(frameOf(beside), (Rect{{222.5, 55}, {20, 10}}));
}

TEST_F(ConstraintTest, AViewThatConstraintsDoNotPlaceStandsFixedForTheOthers) {
    const auto fixed = viewAt({{100, 20}, {50, 30}});
    root->addSubview(fixed);
    const auto view = sized({10, 10});
    NSLayoutConstraint::activate({view->leftAnchor().constraintEqualTo(fixed->rightAnchor(), 4),
                                  view->topAnchor().constraintEqualTo(fixed->bottomAnchor())});
    EXPECT_EQ(frameOf(view), (Rect{{154, 50}, {10, 10}}));

    fixed->setFrame({{0, 0}, {50, 30}});

    EXPECT_EQ(frameOf(view), (Rect{{54, 30}, {10, 10}}));
    EXPECT_EQ(fixed->frame(), (Rect{{0, 0}, {50, 30}}));
}

TEST_F(ConstraintTest, APinnedViewAmongConstrainedOnesTakesPartInTheirSystem) {
    const auto box = plain();
    const auto pinned = std::make_shared<UIView>();
    box->addSubview(pinned);
    pinned->fillSuperview({.top = 1, .leading = 2, .bottom = 3, .trailing = 4});
    const auto inner = added(std::make_shared<SizedView>(Size{30, 10}), *pinned);
    NSLayoutConstraint::activate(
        {inner->leftAnchor().constraintEqualTo(pinned->leftAnchor()), inner->rightAnchor().constraintEqualTo(pinned->rightAnchor()),
         inner->topAnchor().constraintEqualTo(pinned->topAnchor()), inner->bottomAnchor().constraintEqualTo(pinned->bottomAnchor()),
         box->leftAnchor().constraintEqualTo(root->leftAnchor()), box->topAnchor().constraintEqualTo(root->topAnchor())});

    EXPECT_EQ(frameOf(box), (Rect{{0, 0}, {36, 14}}));
    EXPECT_EQ(frameOf(pinned), (Rect{{2, 1}, {30, 10}}));
}

TEST_F(ConstraintTest, TheOriginOfTheBoundsShiftsWhatIsInside) {
    root->setBoundsOrigin({10, 100});
    const auto view = sized({10, 10});
    NSLayoutConstraint::activate(
        {view->leftAnchor().constraintEqualTo(root->leftAnchor()), view->topAnchor().constraintEqualTo(root->topAnchor(), 1)});

    EXPECT_EQ(frameOf(view), (Rect{{10, 101}, {10, 10}}));
}

// --- Live changes ---

TEST_F(ConstraintTest, AConstantMayChangeWhileTheConstraintIsActive) {
    const auto view = sized({80, 40});
    const auto top = view->topAnchor().constraintEqualTo(root->topAnchor(), 16);
    top->setActive(true);
    view->leftAnchor().constraintEqualTo(root->leftAnchor())->setActive(true);
    EXPECT_EQ(frameOf(view).minY(), 16);

    top->setConstant(48);
    EXPECT_EQ(frameOf(view).minY(), 48);
}

TEST_F(ConstraintTest, FollowsNewNaturalSizesAndTheSuperviewsSize) {
    const auto view = sized({80, 40});
    NSLayoutConstraint::activate({view->centerXAnchor().constraintEqualTo(root->centerXAnchor()),
                                  view->bottomAnchor().constraintEqualTo(root->bottomAnchor())});
    EXPECT_EQ(frameOf(view), (Rect{{147.5, 160}, {80, 40}}));

    view->setNaturalSize({100, 50});
    EXPECT_EQ(frameOf(view), (Rect{{137.5, 150}, {100, 50}}));

    root->setFrame({{0, 0}, {200, 100}});
    EXPECT_EQ(frameOf(view), (Rect{{50, 50}, {100, 50}}));
}

TEST_F(ConstraintTest, NothingIsSolvedAnewAsLongAsNothingHasChanged) {
    const auto view = sized({80, 40});
    NSLayoutConstraint::activate(
        {view->centerXAnchor().constraintEqualTo(root->centerXAnchor()), view->topAnchor().constraintEqualTo(root->topAnchor())});
    root->layoutIfNeeded();
    const auto before = LayoutSystem::solvedCount();
    const int asked = view->askedCount;

    root->layoutIfNeeded();
    EXPECT_EQ(view->askedCount, asked);
    view->setNaturalSize({80, 40});
    root->setNeedsLayout();
    root->layoutIfNeeded();

    EXPECT_EQ(LayoutSystem::solvedCount(), before);
    view->setNaturalSize({81, 40});
    root->layoutIfNeeded();
    EXPECT_GT(LayoutSystem::solvedCount(), before);
}

// Labels and values below each other: sixty rows, 480 unknown edges and lengths.
TEST_F(ConstraintTest, AFormOfSixtyRowsIsSolvedAtOnce) {
    std::shared_ptr<UIView> above;
    for (int i = 0; i < 60; ++i) {
        const auto name = sized({100, 20}), value = sized({300, 30});
        value->setContentCompressionResistancePriority(749, Axis::horizontal);
        NSLayoutConstraint::activate({name->leadingAnchor().constraintEqualTo(root->leadingAnchor(), 16),
                                      value->leadingAnchor().constraintEqualTo(name->trailingAnchor(), 8),
                                      value->trailingAnchor().constraintLessThanOrEqualTo(root->trailingAnchor(), -16),
                                      name->centerYAnchor().constraintEqualTo(value->centerYAnchor()),
                                      value->topAnchor().constraintEqualTo(above ? above->bottomAnchor() : root->topAnchor())});
        above = value;
    }
    const auto before = LayoutSystem::solvedCount();
    const std::clock_t start = std::clock();

    root->layoutIfNeeded();

    EXPECT_EQ(above->frame(), (Rect{{124, 1770}, {235, 30}}));
    EXPECT_EQ(LayoutSystem::solvedCount(), before + 1);
    EXPECT_LT(double(std::clock() - start) / CLOCKS_PER_SEC, 5);
}

// --- Who holds constraints ---

TEST_F(ConstraintTest, AnActiveConstraintIsHeldByTheNearestViewAroundBoth) {
    const auto box = plain(), a = added(std::make_shared<UIView>(), *box), b = added(std::make_shared<UIView>(), *box);
    const auto between = a->topAnchor().constraintEqualTo(b->topAnchor());
    const auto own = a->widthAnchor().constraintEqualToConstant(5);

    NSLayoutConstraint::activate({between, own, own});

    EXPECT_THAT(box->constraints(), ElementsAre(between));
    EXPECT_THAT(a->constraints(), ElementsAre(own));
    between->setActive(false);
    EXPECT_THAT(box->constraints(), IsEmpty());
    EXPECT_FALSE(between->isActive());
}

TEST_F(ConstraintTest, ConstraintsEndWhenOneOfTheirViewsLeaves) {
    const auto box = plain(), a = added(std::make_shared<UIView>(), *box), b = plain();
    const auto out = a->topAnchor().constraintEqualTo(b->topAnchor());
    const auto inside = a->topAnchor().constraintEqualTo(box->topAnchor());
    NSLayoutConstraint::activate({out, inside});

    box->removeFromSuperview();

    EXPECT_FALSE(out->isActive());
    EXPECT_TRUE(inside->isActive());
    EXPECT_THAT(root->constraints(), IsEmpty());
}

TEST_F(ConstraintTest, AConstraintOutlivesItsViewsWithoutHarm) {
    auto box = plain();
    const auto constraint = box->widthAnchor().constraintEqualToConstant(5);
    const auto idle = box->widthAnchor().constraintEqualTo(root->widthAnchor());
    constraint->setActive(true);
    box->removeFromSuperview();
    box.reset();

    EXPECT_FALSE(constraint->isActive());
    EXPECT_EQ(idle->description(), "(gone).width = UIView.width");
    constraint->setConstant(6);
    constraint->setActive(false);
}

using ConstraintDeathTest = ConstraintTest;

TEST_F(ConstraintDeathTest, ViewsWithoutAViewAroundThemStopTheProgram) {
    const auto stranger = viewAt({});
    stranger->accessibilityIdentifier = "stranger";

    EXPECT_DEATH(stranger->topAnchor().constraintEqualTo(root->topAnchor())->setActive(true),
                 "NSLayoutConstraint: there is no view around both views of stranger.top = UIView.top");
}

// --- Descriptions ---

TEST_F(ConstraintTest, DescriptionsReadLikeTheConstraint) {
    const auto view = plain();
    view->accessibilityIdentifier = "bar";

    EXPECT_EQ(view->bottomAnchor().constraintEqualTo(root->safeAreaLayoutGuide().bottomAnchor(), -8)->description(),
              "bar.bottom = UIView.safeArea.bottom - 8");
    EXPECT_EQ(view->widthAnchor().constraintGreaterThanOrEqualToMultiplier(view->heightAnchor(), 1.5, 2)->description(),
              "bar.width >= 1.5 * bar.height + 2");
    EXPECT_EQ(view->widthAnchor().constraintLessThanOrEqualToConstant(300)->description(), "bar.width <= 300");
}

} // namespace
} // namespace proupsells::uikit

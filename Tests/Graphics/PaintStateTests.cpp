#include <numbers>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Platform/Graphics/PaintContext.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::graphics {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Transform;

void expectNear(const Rect& actual, const Rect& expected) {
    EXPECT_NEAR(actual.minX(), expected.minX(), 1e-9);
    EXPECT_NEAR(actual.minY(), expected.minY(), 1e-9);
    EXPECT_NEAR(actual.width(), expected.width(), 1e-9);
    EXPECT_NEAR(actual.height(), expected.height(), 1e-9);
}

TEST(PaintState, MovesCoordinatesByEachOffset) {
    const PaintState state = PaintState{}.movedBy({10, 20}).movedBy({1, 2});

    EXPECT_EQ(state.toWindow({{0, 0}, {5, 5}}), (Rect{{11, 22}, {5, 5}}));
}

TEST(PaintState, ScalesAboutTheCurrentOrigin) {
    const PaintState state = PaintState{}.movedBy({100, 100}).transformedBy(Transform::scaling(2, 2));

    expectNear(state.toWindow({{1, 1}, {10, 10}}), {{102, 102}, {20, 20}});
}

TEST(PaintState, MovesInsideScaledCoordinates) {
    const PaintState state = PaintState{}.movedBy({100, 0}).transformedBy(Transform::scaling(0.5, 0.5)).movedBy({10, 10});

    expectNear(state.toWindow({{0, 0}, {2, 2}}), {{105, 5}, {1, 1}});
}

TEST(PaintState, AppliesTheInnermostTransformFirst) {
    const PaintState state =
        PaintState{}.transformedBy(Transform::scaling(2, 1)).transformedBy(Transform::rotation(std::numbers::pi / 2));

    expectNear(state.toWindow({{0, 0}, {10, 1}}), {{-2, 0}, {2, 10}});
}

TEST(PaintState, TreatsATranslationAsAMove) {
    const PaintState state = PaintState{}.transformedBy(Transform::translation(3, 4));

    EXPECT_TRUE(state.transform.isIdentity());
    EXPECT_EQ(state.origin, (Point{3, 4}));
}

TEST(PaintState, ClipsToWhatEveryClipContains) {
    const PaintState state =
        PaintState{}.movedBy({10, 10}).clippedTo({{0, 0}, {20, 20}}).movedBy({10, 0}).clippedTo({{0, 0}, {20, 5}});

    EXPECT_EQ(state.clip, (Rect{{20, 10}, {10, 5}}));
}

TEST(PaintState, KeepsTheInnermostRoundedClip) {
    const PaintState outer = PaintState{}.clippedTo({{0, 0}, {40, 40}}, 10);
    const PaintState square = outer.clippedTo({{0, 0}, {40, 20}});
    const PaintState inner = square.clippedTo({{5, 5}, {10, 10}}, 50);

    EXPECT_EQ(square.clipRadius, 10);
    EXPECT_EQ(square.roundedClip, (Rect{{0, 0}, {40, 40}}));
    EXPECT_EQ(inner.clipRadius, 5); // cut to half the side
    EXPECT_EQ(inner.roundedClip, (Rect{{5, 5}, {10, 10}}));
}

TEST(PaintState, ScalesARoundedClipWithItsCoordinates) {
    const PaintState state = PaintState{}.transformedBy(Transform::scaling(2, 2)).clippedTo({{0, 0}, {40, 40}}, 5);

    EXPECT_EQ(state.clipRadius, 10);
    EXPECT_EQ(state.clip, (Rect{{0, 0}, {80, 80}}));
}

TEST(PaintState, MultipliesOpacities) {
    EXPECT_EQ(PaintState{}.fadedBy(0.5).fadedBy(0.5).opacity, 0.25);
    EXPECT_EQ(PaintState{}.fadedBy(-1).opacity, 0);
    EXPECT_EQ(PaintState{}.fadedBy(7).opacity, 1);
}

TEST(PaintState, HidesWhatIsClippedAwayOrTransparent) {
    const PaintState state = PaintState{}.clippedTo({{0, 0}, {10, 10}});
    const Rect inside{{5, 5}, {10, 10}}, outside{{10, 0}, {10, 10}};

    EXPECT_FALSE(state.hides(inside));
    EXPECT_TRUE(state.hides(outside));
    EXPECT_TRUE(state.fadedBy(0).hides(inside));
    EXPECT_TRUE(state.transformedBy(Transform::scaling(0, 0)).hides(inside));
}

RC_GTEST_PROP(PaintStateComposition, EqualsApplyingEveryStepToThePoint, ()) {
    // A transform is given in current coordinates: the steps are applied to a point from the innermost outwards.
    struct Step {
        bool isMove;
        Transform transform;
    };
    std::vector<Step> steps;
    const int count = *rc::gen::inRange(0, 6);
    for (int index = 0; index < count; ++index) {
        const double x = *rc::gen::inRange(-40, 40) / 4.0, y = *rc::gen::inRange(1, 12) / 4.0;
        if (*rc::gen::inRange(0, 2) == 0) {
            steps.push_back({true, Transform::translation(x, y)});
        } else {
            steps.push_back({false, Transform::scaling(y, y).then(Transform::rotation(x))});
        }
    }
    PaintState state;
    for (const Step& step : steps) {
        state = step.isMove ? state.movedBy({step.transform.tx, step.transform.ty}) : state.transformedBy(step.transform);
    }
    Point expected{3, 5};
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) expected = step->transform.apply(expected);

    const Point actual = state.toWindow({{3, 5}, {0, 0}}).origin;
    RC_ASSERT(std::abs(actual.x - expected.x) < 1e-6 && std::abs(actual.y - expected.y) < 1e-6);
}

TEST(PaintState, ScalesTheRadiusOfAClipWithItsPicture) {
    const PaintState turned = PaintState{}.transformedBy(Transform::rotation(std::numbers::pi / 4));
    EXPECT_NEAR(turned.clippedTo({{0, 0}, {50, 50}}, 8).clipRadius, 8, 1e-9);
    EXPECT_NEAR(turned.transformedBy(Transform::scaling(2, 0.5)).clippedTo({{0, 0}, {50, 50}}, 8).clipRadius, 8, 1e-9);
    EXPECT_NEAR(turned.transformedBy(Transform::scaling(3, 3)).clippedTo({{0, 0}, {50, 50}}, 8).clipRadius, 24, 1e-9);
}

} // namespace
} // namespace proupsells::graphics

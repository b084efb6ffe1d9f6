// Input that is no number is dropped where it comes in.
#include <limits>

#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Tests/UIKit/ScrollScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using host::TouchPhase;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Values;

constexpr double nan = std::numeric_limits<double>::quiet_NaN(), infinity = std::numeric_limits<double>::infinity();

class BrokenInput : public ScrollViewTest, public testing::WithParamInterface<double> {
protected:
    BrokenInput() {
        button = std::make_shared<UIButton>();
        button->setFrame({{100, 100}, {50, 50}});
        button->addAction([this](UIControl&) { calls.push_back("act"); }, UIControl::Event::touchUpInside);
        content->addSubview(button);
        bed.settle();
    }
    double broken() const { return GetParam(); }
    std::vector<Point> brokenPlaces() const { return {{broken(), 120}, {120, broken()}, {broken(), broken()}}; }

    std::shared_ptr<UIButton> button;
};

TEST_P(BrokenInput, PressesNothing) {
    for (const Point place : brokenPlaces()) {
        touch(TouchPhase::began, place);
        touch(TouchPhase::ended, place);
    }

    EXPECT_THAT(calls, IsEmpty());
}

TEST_P(BrokenInput, MovesNothing) {
    drag({180, 600}, {180, 500});
    const double before = y();
    for (const Point place : brokenPlaces()) move(place);
    window->touch({TouchPhase::moved, {180, 300}, broken()});
    EXPECT_EQ(y(), before);
    lift({180, 500});
    bed.runFor(3);
    const double rest = y();
    for (const Point place : brokenPlaces()) {
        window->scroll(place, {0, 10});
        window->scroll({180, 300}, place);
    }
    bed.runFor(1);

    EXPECT_EQ(y(), rest);
    window->scroll({180, 300}, {0, 10});
    EXPECT_EQ(y(), rest + 10);
}

TEST_P(BrokenInput, EndsATouchWithoutItsAction) {
    touch(TouchPhase::began, {120, 120});
    touch(TouchPhase::ended, {broken(), 120});
    EXPECT_THAT(calls, IsEmpty());

    tap({120, 120});
    EXPECT_THAT(calls, ElementsAre("act"));
}

TEST_P(BrokenInput, PointsAtNothing) {
    window->pointer(Point{120, 120});
    EXPECT_TRUE(window->pointsAtControl());
    window->pointer(Point{broken(), 120});

    EXPECT_FALSE(window->pointsAtControl());
}

INSTANTIATE_TEST_SUITE_P(Numbers, BrokenInput, Values(nan, infinity, -infinity));

} // namespace
} // namespace proupsells::uikit

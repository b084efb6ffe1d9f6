// What a frame costs in which nothing has changed: no memory.
#include "Tests/Support/AllocationCounter.hpp"
#include "Tests/SwiftUI/SampleScreen.hpp"
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using proupsells::tests::allocationsDuring;

class SteadyFrame : public testing::Test {
protected:
    Screen screen{[] { return SampleScreen{}; }, {375, 800}, {0, 0, 34, 0}};

    void frame() {
        screen.host().update();
        screen.host().displayList();
    }
    void SetUp() override {
        for (int i = 0; i < 3; ++i) {
            screen.host().dropCaches();
            frame();
        }
    }
};

TEST_F(SteadyFrame, AllocatesNothingWhenNothingHasChanged) {
    screen.host().setNeedsUpdate();

    EXPECT_EQ(allocationsDuring([&] { frame(); }), 0u);
}

TEST_F(SteadyFrame, AllocatesNothingWhenEverythingIsPaintedAgain) {
    screen.host().setNeedsDisplay();

    EXPECT_EQ(allocationsDuring([&] { frame(); }), 0u);
}

TEST_F(SteadyFrame, AllocatesNothingForLayoutAlone) {
    const Size sizes[] = {{375, 700}, {375, 800}};
    for (const Size size : {sizes[0], sizes[1]}) {
        screen.host().setSize(size, {0, 0, 34, 0});
        frame();
    }
    screen.host().setSize(sizes[0], {0, 0, 34, 0});

    EXPECT_EQ(allocationsDuring([&] { frame(); }), 0u);
}

TEST_F(SteadyFrame, AllocatesNothingWhileThingsMove) {
    screen.host().rootNode()->noteMovement(screen.host().now_s() + 1);
    frame();
    screen.runFor(0.5);

    EXPECT_EQ(allocationsDuring([&] { frame(); }), 0u);
}

struct Heavy {
    std::vector<std::string> pages;
    std::string title;

    View body(BuildContext&) const { return Text{"x"}; }
    bool operator==(const Heavy&) const = default;
};

TEST(SteadyRoot, AValueGivenToAHostIsNotCopiedAgain) {
    headless::TestBed bed;
    const auto host = ViewHost::create(Heavy{{"a", "b"}, std::string(100, 'x')});
    host->setSize({100, 100});
    host->update();
    host->displayList();
    host->setNeedsUpdate();
    bed.settle();
    host->setNeedsUpdate();

    EXPECT_EQ(allocationsDuring([&] { host->update(); }), 0u);
}

TEST(SampleScreenTest, ATapOnACardChoosesItAndChangesTheTexts) {
    Screen screen{[] { return SampleScreen{}; }, {375, 800}, {0, 0, 34, 0}};
    const geometry::Point monthly = screen.frame("Monthly").center();
    EXPECT_TRUE(screen.frame("Yearly").contains({100, 380}));
    EXPECT_TRUE(screen.frame("Monthly").contains({100, 490}));

    screen.host().touch({host::TouchPhase::began, monthly, 0});
    screen.host().touch({host::TouchPhase::ended, monthly, 0});
    screen.settle();

    EXPECT_THAT(screen.texts(), testing::Contains("Subscribe Now"));
}

} // namespace
} // namespace proupsells::swiftui::tests

// Timers of views, on hosts that come and go.
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A tree that writes down when it ticks, every 5 seconds.
class Ticking : public testing::Test {
protected:
    std::vector<double> ticks_s;
    double interval_s = 5;
    headless::TestBed bed;
    std::shared_ptr<ViewHost> host = ViewHost::create([this] {
        return Text{"x"} | onReceive(combine::TimerPublisher{interval_s}, [this](const double& time_s) {
                   ticks_s.push_back(time_s);
                   if (onTick) onTick();
               });
    });
    std::function<void()> onTick;

    void show() {
        host->setSize({100, 100});
        bed.settle();
    }
};

TEST_F(Ticking, StopsWhileTheHostIsInNoWindow) {
    show();
    bed.runUntil(7);
    host->setInWindow(false);
    bed.runUntil(60);

    EXPECT_THAT(ticks_s, ElementsAre(5));
    EXPECT_FALSE(bed.loop().nextDueTime_s());
}

TEST_F(Ticking, StartsAnewWhenTheHostComesBack) {
    show();
    bed.runUntil(7);
    host->setInWindow(false);
    bed.runUntil(8);
    host->setInWindow(true);
    bed.runUntil(20);

    EXPECT_THAT(ticks_s, ElementsAre(5, 13, 18));
}

TEST_F(Ticking, BeginsWhenTheHostFirstComesIntoAWindow) {
    host->setInWindow(false);
    show();
    bed.runUntil(3);
    host->setInWindow(true);
    bed.runUntil(9);

    EXPECT_THAT(ticks_s, ElementsAre(8));
}

TEST_F(Ticking, GoesOnWhileTheHostIsInAWindowAndNotVisible) {
    show();
    host->setVisible(false);
    bed.runUntil(10);

    EXPECT_THAT(ticks_s, ElementsAre(5, 10));
}

TEST_F(Ticking, TakesAnotherIntervalFromItsNextBuildOn) {
    show();
    bed.runUntil(6);
    interval_s = 2;
    host->setNeedsUpdate();
    bed.runUntil(10);

    EXPECT_THAT(ticks_s, ElementsAre(5, 8, 10));
}

TEST_F(Ticking, MayTakeItsHostOutOfTheWindow) {
    onTick = [this] { host->setInWindow(false); };
    show();
    bed.runUntil(20);

    EXPECT_THAT(ticks_s, ElementsAre(5));
    EXPECT_FALSE(bed.loop().nextDueTime_s());
}

TEST_F(Ticking, MayEndItsHost) {
    onTick = [this] { host.reset(); };
    show();
    bed.runUntil(20);

    EXPECT_THAT(ticks_s, ElementsAre(5));
}

} // namespace
} // namespace proupsells::swiftui::tests

// When another frame is worth making.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>

#include "Backends/Headless/TestBed.hpp"
#include "Backends/Qt/FramePacer.hpp"
#include "Tests/Qt/ShownWindow.hpp"

using namespace proupsells;

using qtbackend::FramePacer;
using qtbackend::framesPerSecondFor;

TEST(FramesPerSecond, AreThoseOfTheDisplayWhereThatIsNoNonsense) {
    EXPECT_EQ(framesPerSecondFor(59.95), 59.95);
    EXPECT_EQ(framesPerSecondFor(30), 30);
    EXPECT_EQ(framesPerSecondFor(240), 240);
    EXPECT_EQ(framesPerSecondFor(0), 30);
    EXPECT_EQ(framesPerSecondFor(-1), 30);
    EXPECT_EQ(framesPerSecondFor(1000), 240);
}

TEST(FramePacer, TakesTheRateOfItsDisplay) {
    headless::TestBed bed;
    const auto content = std::make_shared<tests::FakeContent>();
    rasterbackend::PixelView view(content);
    FramePacer pacer(view, [] {});
    pacer.setRunning(true, nullptr);
    view.setSize({10, 10});
    const auto secondsBetweenFrames = [&] {
        std::vector<std::uint32_t> pixels(100);
        content->animatedFrames = 100;
        content->changed();
        view.paint({pixels.data(), 10, 10, 40, rasterbackend::PixelFormat::rgb32}, 1);
        return view.nextFrameDelay_s().value();
    };
    const QScreen* const screen = QGuiApplication::primaryScreen();

    view.setRefreshRate(1);
    pacer.schedule(screen);
    EXPECT_DOUBLE_EQ(secondsBetweenFrames(), 1 / framesPerSecondFor(screen->refreshRate()));
    view.setRefreshRate(1);
    pacer.schedule(nullptr);
    EXPECT_DOUBLE_EQ(secondsBetweenFrames(), 1 / 60.0);
}

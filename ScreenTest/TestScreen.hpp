// A screen without a window, on a clock that stands still until it is told to move.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "Backends/Headless/TestBed.hpp"
#include "Backends/Raster/Picture.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ScreenTest/TestDevice.hpp"
#include "ScreenTest/Verdict.hpp"

namespace proupsells::tooling {
class Driver;
}

namespace proupsells::screentest {

// Shows what a host shows, over an empty screen of its own:
//
//     screentest::TestScreen screen;
//     screen.present(shop::newPaywall(purchases));
//     EXPECT_THAT(screen, screentest::shows("Subscribe Now"));
//     EXPECT_TRUE(screen.tap("subscribe"));
//     EXPECT_FALSE(screen.isShowing());
//
// `what` is a control's or a text's identifier, or what a person calls or reads it: "plan.pro.yearly", "Restore Purchases". Clips,
// pictures and texts are those that customers see. One at a time, made before the controllers that it shows.
class PROUPSELLS_EXPORT TestScreen {
public:
    // Installs what screens need, until it goes. The screen is empty.
    explicit TestScreen(TestDevice device = {});
    ~TestScreen();
    TestScreen(const TestScreen&) = delete;
    TestScreen& operator=(const TestScreen&) = delete;

    // Presents, animated, and lets time pass until the controller stands.
    void present(std::shared_ptr<uikit::UIViewController> controller);
    // Whether anything is presented.
    bool isShowing() const;
    // What everything stands in.
    uikit::UIWindow& window() const { return *m_window; }

    // What it is shown on.
    const TestDevice& device() const { return m_device; }
    // Changes what it is shown on, but for the fonts. What is shown follows.
    void setDevice(TestDevice device);

    // Lets time pass, in seconds. What is done below takes none, but that what is presented or dismissed by it comes to its end.
    void wait(double duration_s);
    // Seconds since the beginning.
    double now_s() const { return m_bed.now_s(); }

    // Touches the middle of the control, scrolled into sight where that is needed. Fails, with all controls that there are, unless
    // exactly one is meant.
    Verdict tap(std::string_view what);
    // Touches a point of the window.
    void tap(geometry::Point point);
    // Moves a finger evenly.
    void drag(geometry::Point from, geometry::Point to, double duration_s);
    // Presses a key. Fails where it means nothing.
    Verdict press(host::Key key);

    // What stands in front, laid out; pictures of it; what a screen reader says of it, line by line.
    accessibility::SemanticNode tree() const { return m_window->semanticTree(); }
    rasterbackend::Picture picture() const;
    std::vector<std::string> read() const;

    // What the screens have logged since the last call; what is never taken goes to standard error at the end.
    std::vector<commons::LogRecord> takeLogRecords() { return m_bed.takeLogRecords(); }

private:
    void applyDevice();

    TestDevice m_device;
    headless::TestBed m_bed;
    std::shared_ptr<uikit::UIWindow> m_window;
    std::unique_ptr<tooling::Driver> m_driver;
};

// The screen as text, as a failed test prints it.
PROUPSELLS_EXPORT std::ostream& operator<<(std::ostream& stream, const TestScreen& screen);

} // namespace proupsells::screentest

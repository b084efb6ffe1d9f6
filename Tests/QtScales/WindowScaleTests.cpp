#include <gtest/gtest.h>

#include <QPixmap>

#include "Backends/Qt/QtWindow.hpp"
#include "Tests/QtScales/Displays.hpp"

using namespace proupsells;

using rasterbackend::PixelRect;
using testing::ElementsAre;

namespace {

class WindowScales : public testing::Test {
protected:
    WindowScales() {
        content->setRootViewController(sample);
        window.setPosition(tests::placeOn(1));
        window.show();
        tests::settle();
    }

    void moveTo(double scale) {
        window.setPosition(tests::placeOn(scale));
        tests::settle();
    }
    // What the display has got. This platform gives no more pixels of it than the window has points.
    QImage shown() { return window.screen()->grabWindow(window.winId()).toImage(); }
    PixelRect wholePicture(double scale) const {
        return {0, 0, int(std::lround(window.width() * scale)), int(std::lround(window.height() * scale))};
    }

    std::shared_ptr<tests::Sample> sample = std::make_shared<tests::Sample>();
    std::shared_ptr<uikit::UIWindow> content = uikit::UIWindow::create();
    qtbackend::QtWindow window{content, {.title = "Test", .size = {375, 300}}};
};

} // namespace

TEST_F(WindowScales, AreFollowedAtOnceAndSharply) {
    for (const double scale : tests::changesOfScale) {
        const int frames = window.frameCount();
        const std::uint64_t contentPaints = content->paintCount();
        moveTo(scale);

        EXPECT_EQ(window.frameCount(), frames + 1) << scale;
        EXPECT_EQ(content->paintCount(), contentPaints + 1) << scale;
        EXPECT_THAT(window.view().lastDamage(), ElementsAre(wholePicture(scale))) << scale;
        const QImage part = shown();
        EXPECT_TRUE(tests::contains(part, tests::pictureOf(*content, scale).copy(part.rect()), {0, 0})) << scale;
    }
}

TEST_F(WindowScales, LeaveTouchesWhereTheyAre) {
    for (const double scale : tests::changesOfScale) {
        moveTo(scale);
        sample->presses.clear();
        tests::click(window, tests::inFirst);
        tests::click(window, tests::inSecond);

        EXPECT_THAT(sample->presses, ElementsAre("first", "second")) << scale;
    }
}

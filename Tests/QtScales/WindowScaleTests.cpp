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
        content->setRootViewController(tests::newPaywall());
        window.setPosition(tests::placeOn(1));
        window.show();
        tests::settle(*content);
    }

    void moveTo(double scale) {
        window.setPosition(tests::placeOn(scale));
        tests::settle(*content);
    }
    // What the display has got. This platform gives no more pixels of it than the window has points.
    QImage shown() { return window.screen()->grabWindow(window.winId()).toImage(); }
    PixelRect wholePicture(double scale) const {
        return {0, 0, int(std::lround(window.width() * scale)), int(std::lround(window.height() * scale))};
    }

    std::shared_ptr<uikit::UIWindow> content = uikit::UIWindow::create();
    qtbackend::QtWindow window{content, {.title = "Test", .size = {375, 800}}};
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
    std::string_view plan = "plan.pro.yearly", other = "plan.pro.monthly";
    for (const double scale : tests::changesOfScale) {
        moveTo(scale);
        std::swap(plan, other);
        tests::click(window, tests::centreOf(*content, plan));

        EXPECT_TRUE(tests::isSelected(*content, plan)) << scale;
        EXPECT_FALSE(tests::isSelected(*content, other)) << scale;
    }
}

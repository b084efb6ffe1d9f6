#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>

#include "Backends/Qt/PixelImage.hpp"
#include "Backends/Qt/QtWindow.hpp"
#include "Tests/Qt/Events.hpp"
#include "Tests/Qt/ShownWindow.hpp"

using namespace proupsells;

using rasterbackend::PixelRect;
using tests::FakeContent;
using tests::handleEventsUntil;
using tests::QtWindowTest;

TEST_F(QtWindowTest, ShowsItsContentAtItsSize) {
    ASSERT_TRUE(isShown);

    EXPECT_EQ(content->size, (geometry::Size{100, 80}));
    EXPECT_EQ(content->safeArea, (geometry::PhysicalInsets{1, 2, 3, 4}));
    const double scale = window.devicePixelRatio();
    const QImage shown = window.screen()->grabWindow(window.winId()).toImage();
    EXPECT_EQ(shown.size(), QSize(int(100 * scale), int(80 * scale)));
    EXPECT_EQ(shown.pixel(int(15 * scale), int(15 * scale)) & 0xFFFFFF, 0xFF0000u);
}

TEST_F(QtWindowTest, PaintsNothingWhileNothingChanges) {
    const int paints = content->paintCount, frames = window.frameCount();
    settle();

    EXPECT_EQ(content->paintCount, paints);
    EXPECT_EQ(window.frameCount(), frames);
}

TEST_F(QtWindowTest, RepaintsWhatATouchHasChanged) {
    const int frames = window.frameCount();
    mouse(QEvent::MouseButtonPress, {12, 34});
    mouse(QEvent::MouseButtonRelease, {12, 34});

    ASSERT_TRUE(handleEventsUntil([&] { return window.frameCount() > frames; }));

    const int scale = int(window.devicePixelRatio());
    EXPECT_THAT(window.view().lastDamage(),
                testing::UnorderedElementsAre(PixelRect{10 * scale, 10 * scale, 20 * scale, 20 * scale},
                                              PixelRect{30 * scale, 10 * scale, 40 * scale, 20 * scale}));
}

TEST_F(QtWindowTest, ShowsNoFrameForAChangeThatCannotBeSeen) {
    const int paints = content->paintCount, frames = window.frameCount();
    content->changed();

    ASSERT_TRUE(handleEventsUntil([&] { return content->paintCount > paints; }));

    EXPECT_EQ(window.frameCount(), frames);
}

TEST_F(QtWindowTest, ShowsFramesWhileTheContentIsAnimating) {
    const int frames = window.frameCount();
    content->animatedFrames = 5;
    content->changed();

    ASSERT_TRUE(handleEventsUntil([&] { return content->animatedFrames == 0; }));
    settle();

    EXPECT_EQ(window.frameCount(), frames + 5);
}

TEST_F(QtWindowTest, TellsItsContentOfANewSize) {
    window.resize(120, 90);
    ASSERT_TRUE(handleEventsUntil([&] { return content->size == geometry::Size{120, 90}; }));
    settle();

    const QImage shown = window.screen()->grabWindow(window.winId()).toImage();
    EXPECT_EQ(shown.width(), int(120 * window.devicePixelRatio()));
    window.setSafeArea({9, 0, 0, 0});
    EXPECT_EQ(content->safeArea.top, 9);
}

TEST_F(QtWindowTest, ReportsThatItWasClosed) {
    int closings = 0;
    window.setCloseHandler([&] { ++closings; });
    window.close();

    EXPECT_EQ(closings, 1);
}

TEST_F(QtWindowTest, MayReplaceItsHandlerWhenItWasClosed) {
    int closings = 0;
    window.setCloseHandler([&] {
        ++closings;
        window.setCloseHandler({});
    });
    window.close();
    window.show();
    window.close();

    EXPECT_EQ(closings, 1);
}

TEST_F(QtWindowTest, IsReadAsAWindowOfTheProgram) {
    QAccessibleInterface* const root = window.accessibleRoot();

    EXPECT_EQ(root->role(), QAccessible::Window);
    EXPECT_EQ(root->text(QAccessible::Name), "Test");
    EXPECT_EQ(root->rect(), QRect(window.mapToGlobal(QPoint(0, 0)), QSize(100, 80)));
    EXPECT_EQ(root->parent(), QAccessible::queryAccessibleInterface(qApp));
    EXPECT_EQ(root->window(), &window);
    EXPECT_FALSE(root->state().invisible);
    window.hide();
    EXPECT_TRUE(root->state().invisible);
}

TEST_F(QtWindowTest, IsReadAgainWhenTheFocusComesOrGoes) {
    const auto name = [&] { return window.accessibleRoot()->child(0)->text(QAccessible::Name).toStdString(); };
    content->tree.label = "Pro";
    ASSERT_EQ(name(), "Pro");
    for (const QEvent::Type type : {QEvent::FocusIn, QEvent::FocusOut}) {
        content->tree.label = std::to_string(type);
        settle();
        EXPECT_NE(name(), std::to_string(type));

        QFocusEvent event(type);
        QCoreApplication::sendEvent(&window, &event);
        settle();
        EXPECT_EQ(name(), std::to_string(type));
    }
}

TEST_F(QtWindowTest, HasWholePointsForItsSize) {
    const auto shown = std::make_shared<FakeContent>();
    const qtbackend::QtWindow other(shown, {.title = "Other", .size = {99.6, 80.4}, .safeArea = {1, 2, 3, 4}});

    EXPECT_EQ(other.size(), QSize(100, 80));
    EXPECT_EQ(shown->size, (geometry::Size{100, 80}));
    EXPECT_EQ(shown->safeArea, (geometry::PhysicalInsets{1, 2, 3, 4}));
    EXPECT_EQ(other.title(), "Other");
    EXPECT_EQ(other.surfaceType(), QSurface::RasterSurface);
}

TEST_F(QtWindowTest, ShowsNothingWhileItIsHidden) {
    window.hide();
    tests::settle();
    const int paints = content->paintCount;
    content->changed();
    tests::settle();
    EXPECT_EQ(content->paintCount, paints);

    window.show();
    EXPECT_TRUE(handleEventsUntil([&] { return content->paintCount > paints; }));
}

TEST(RegionsOfPixels, HoldEveryUnitThatAPixelTouches) {
    using qtbackend::regionOf;

    EXPECT_EQ(regionOf({}, 1.5), QRegion());
    EXPECT_EQ(regionOf({{1, 2, 4, 5}}, 1), QRegion(1, 2, 3, 3));
    EXPECT_EQ(regionOf({{1, 2, 4, 5}}, 1.5), QRegion(0, 1, 3, 3));
    EXPECT_EQ(regionOf({{2, 4, 6, 10}}, 2), QRegion(1, 2, 2, 3));
    EXPECT_EQ(regionOf({{0, 0, 2, 2}, {10, 20, 13, 21}}, 2), QRegion(0, 0, 1, 1) + QRegion(5, 10, 2, 1));
}

TEST_F(QtWindowTest, LetsGoOfItsContent) {
    const auto second = std::make_shared<FakeContent>();
    { const qtbackend::QtWindow other(second, {}); }

    EXPECT_FALSE(second->handler);
    EXPECT_EQ(second.use_count(), 1);
}

#include <gtest/gtest.h>

#include <QQuickWindow>

#include "Backends/QtQuick/ControllerItem.hpp"
#include "Tests/QtScales/Displays.hpp"

using namespace proupsells;

using testing::ElementsAre;

namespace {

class ItemScales : public testing::TestWithParam<QPoint> {
protected:
    ItemScales() {
        item.setController(sample);
        item.setParentItem(window.contentItem());
        item.setPosition(GetParam());
        item.setSize(tests::sampleSize);
        window.resize(tests::sampleSize + QSize(20, 20));
        window.setPosition(tests::placeOn(1));
        window.show();
        tests::settle();
    }

    void moveTo(double scale) {
        window.setPosition(tests::placeOn(scale));
        tests::settle();
    }

    std::shared_ptr<tests::Sample> sample = std::make_shared<tests::Sample>();
    QQuickWindow window;
    qtquick::ControllerItem item;
};

} // namespace

TEST_P(ItemScales, AreFollowedAtOnceAndSharply) {
    for (const double scale : tests::changesOfScale) {
        const std::uint64_t contentPaints = item.uiWindow().paintCount();
        moveTo(scale);

        EXPECT_EQ(item.uiWindow().traits().displayScale, scale);
        EXPECT_EQ(item.uiWindow().paintCount(), contentPaints + 1) << scale;
        const QImage shown = window.grabWindow();
        const QImage wanted = tests::pictureOf(item.uiWindow(), scale);
        EXPECT_TRUE(tests::contains(shown, wanted, QPointF(GetParam()) * scale)) << scale;
    }
}

TEST_P(ItemScales, LeaveTouchesWhereTheyAre) {
    for (const double scale : tests::changesOfScale) {
        moveTo(scale);
        sample->presses.clear();
        tests::click(window, item.mapToScene(tests::inFirst));
        tests::click(window, item.mapToScene(tests::inSecond));
        tests::settle();

        EXPECT_THAT(sample->presses, ElementsAre("first", "second")) << scale;
    }
}

INSTANTIATE_TEST_SUITE_P(Places, ItemScales, testing::Values(QPoint(0, 0), QPoint(5, 7)));

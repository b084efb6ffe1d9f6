#include <gtest/gtest.h>

#include <QQuickWindow>

#include "Backends/QtQuick/ControllerItem.hpp"
#include "Tests/QtScales/Displays.hpp"

using namespace proupsells;

namespace {

class ItemScales : public testing::TestWithParam<QPoint> {
protected:
    ItemScales() {
        item.setController(tests::newPaywall());
        item.setParentItem(window.contentItem());
        item.setPosition(GetParam());
        item.setSize(tests::paywallSize);
        window.resize(tests::paywallSize + QSize(20, 20));
        window.setPosition(tests::placeOn(1));
        window.show();
        tests::settle(item.uiWindow());
    }

    void moveTo(double scale) {
        window.setPosition(tests::placeOn(scale));
        tests::settle(item.uiWindow());
    }

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
    std::string_view plan = "plan.pro.yearly", other = "plan.pro.monthly";
    for (const double scale : tests::changesOfScale) {
        moveTo(scale);
        std::swap(plan, other);
        tests::click(window, item.mapToScene(tests::centreOf(item.uiWindow(), plan)));
        tests::settle(item.uiWindow());

        EXPECT_TRUE(tests::isSelected(item.uiWindow(), plan)) << scale;
        EXPECT_FALSE(tests::isSelected(item.uiWindow(), other)) << scale;
    }
}

INSTANTIATE_TEST_SUITE_P(Places, ItemScales, testing::Values(QPoint(0, 0), QPoint(5, 7)));

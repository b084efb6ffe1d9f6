#include <gtest/gtest.h>

#include <QBackingStore>

#include "Backends/QtWidgets/ControllerWidget.hpp"
#include "Tests/QtScales/Displays.hpp"

using namespace proupsells;

using testing::ElementsAre;

namespace {

class PaintCounter : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++count;
        return false;
    }
    int count = 0;
};

class WidgetScales : public testing::TestWithParam<QPoint> {
protected:
    WidgetScales() {
        top.resize(tests::sampleSize + QSize(20, 20));
        widget.setGeometry(QRect(GetParam(), tests::sampleSize));
        widget.installEventFilter(&paints);
        top.move(tests::placeOn(1));
        top.show();
        tests::settle();
    }

    void moveTo(double scale) {
        paints.count = 0;
        top.move(tests::placeOn(scale));
        tests::settle();
    }
    // What the window has in its own memory.
    const QImage& shown() { return *dynamic_cast<QImage*>(top.backingStore()->paintDevice()); }

    std::shared_ptr<tests::Sample> sample = std::make_shared<tests::Sample>();
    QWidget top;
    qtwidgets::ControllerWidget widget{sample, &top};
    PaintCounter paints;
};

} // namespace

TEST_P(WidgetScales, AreFollowedAtOnceAndSharply) {
    for (const double scale : tests::changesOfScale) {
        const std::uint64_t contentPaints = widget.uiWindow().paintCount();
        moveTo(scale);

        EXPECT_EQ(widget.uiWindow().traits().displayScale, scale);
        EXPECT_EQ(paints.count, 1) << scale;
        EXPECT_EQ(widget.uiWindow().paintCount(), contentPaints + 1) << scale;
        EXPECT_TRUE(tests::contains(shown(), tests::pictureOf(widget.uiWindow(), scale), QPointF(GetParam()) * scale)) << scale;
    }
}

TEST_P(WidgetScales, LeaveTouchesWhereTheyAre) {
    for (const double scale : tests::changesOfScale) {
        moveTo(scale);
        sample->presses.clear();
        tests::click(widget, tests::inFirst);
        tests::click(widget, tests::inSecond);

        EXPECT_THAT(sample->presses, ElementsAre("first", "second")) << scale;
    }
}

INSTANTIATE_TEST_SUITE_P(Places, WidgetScales, testing::Values(QPoint(0, 0), QPoint(5, 7)));

// A list in a window, and a delegate that writes down what it is told.
#pragma once

#include "Platform/UIKit/Views/UIScrollView.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {

class RecordingScrollDelegate : public UIScrollViewDelegate {
public:
    void scrollViewDidScroll(UIScrollView&) override { ++scrollCount; }
    void scrollViewWillBeginDragging(UIScrollView&) override { calls.push_back("willBeginDragging"); }
    void scrollViewDidEndDragging(UIScrollView&, bool goesOn) override {
        calls.push_back(goesOn ? "didEndDragging, goes on" : "didEndDragging");
    }
    void scrollViewDidEndDecelerating(UIScrollView&) override { calls.push_back("didEndDecelerating"); }
    void scrollViewDidEndScrollingAnimation(UIScrollView&) override { calls.push_back("didEndScrollingAnimation"); }

    Calls calls;
    int scrollCount = 0;
};

// A list of 2,000 points in a window of 800.
class ScrollViewTest : public ScreenTest {
protected:
    ScrollViewTest() : root(showRoot()), list(std::make_shared<UIScrollView>()), content(viewAt({{0, 0}, {375, 2000}})) {
        root->view()->addSubview(list);
        list->setFrame({{0, 0}, {375, 800}});
        list->addSubview(content);
        list->setContentSize({375, 2000});
        bed.settle();
    }

    void move(geometry::Point location) { touch(host::TouchPhase::moved, location); }
    // In steps of 1/100 s.
    void drag(geometry::Point from, geometry::Point to, int steps = 10) {
        touch(host::TouchPhase::began, from);
        for (int i = 1; i <= steps; ++i) {
            bed.runFor(0.01);
            move({from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps});
        }
    }
    void lift(geometry::Point location) { touch(host::TouchPhase::ended, location); }
    double y() const { return list->contentOffset().y; }

    std::shared_ptr<RecordingController> root;
    std::shared_ptr<UIScrollView> list;
    std::shared_ptr<UIView> content;
};

} // namespace proupsells::uikit

// Told of what a scroll view does.
#pragma once

namespace proupsells::uikit {

class UIScrollView;

class UIScrollViewDelegate {
public:
    virtual ~UIScrollViewDelegate() = default;

    // The offset has changed, whoever changed it. At most 60 times a second while the content moves by itself.
    virtual void scrollViewDidScroll(UIScrollView&) {}
    virtual void scrollViewWillBeginDragging(UIScrollView&) {}
    virtual void scrollViewDidEndDragging(UIScrollView&, bool /*willDecelerate*/) {}
    // Came to rest after a flick or after being pulled past an end.
    virtual void scrollViewDidEndDecelerating(UIScrollView&) {}
    virtual void scrollViewDidEndScrollingAnimation(UIScrollView&) {}
};

} // namespace proupsells::uikit

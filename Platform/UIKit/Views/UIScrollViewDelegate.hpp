// What a scroll view tells about its movements.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells::uikit {

class UIScrollView;

class PROUPSELLS_EXPORT UIScrollViewDelegate {
public:
    virtual ~UIScrollViewDelegate() = default;

    // The offset has changed, whoever changed it. At most 60 times a second while the content moves by itself.
    virtual void scrollViewDidScroll(UIScrollView&) {}
    // A finger has begun to move the content, or has left it; `willDecelerate` says whether the content moves on by itself.
    virtual void scrollViewWillBeginDragging(UIScrollView&) {}
    virtual void scrollViewDidEndDragging(UIScrollView&, bool /*willDecelerate*/) {}
    // The content has come to rest after a flick, or after a pull past an end.
    virtual void scrollViewDidEndDecelerating(UIScrollView&) {}
    // An animated change of the offset has come to its end.
    virtual void scrollViewDidEndScrollingAnimation(UIScrollView&) {}
};

} // namespace proupsells::uikit

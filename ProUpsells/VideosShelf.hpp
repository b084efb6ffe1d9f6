// A shelf that shows clips; its page makes them.
#pragma once

#include <memory>
#include <vector>

#include "Platform/VelaUIKit/VideoView.hpp"

namespace proupsells {

// Found at run time: a shelf may have this interface beside its own.
class VideosShelf {
public:
    virtual ~VideosShelf() = default;

    virtual void createVideosShelf(const std::vector<std::shared_ptr<velauikit::VideoView>>& videoViews) = 0;
};

} // namespace proupsells

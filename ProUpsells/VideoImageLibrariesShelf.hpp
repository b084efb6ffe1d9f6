// Stock pictures and clips, two rows that drift apart.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"
#include "ProUpsells/VideosShelf.hpp"

namespace proupsells {

// Empty until it is given its clips.
class VideoImageLibrariesShelf : public LazyStorePageShelf, public VideosShelf {
public:
    VideoImageLibrariesShelf();

    void createVideosShelf(const std::vector<std::shared_ptr<velauikit::VideoView>>& videoViews) override;

protected:
    Controller makeViewController() const override { return nullptr; }
};

} // namespace proupsells

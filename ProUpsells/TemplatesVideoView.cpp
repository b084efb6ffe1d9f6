#include "ProUpsells/TemplatesVideoView.hpp"

#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

TemplatesVideoView::TemplatesVideoView(const geometry::Rect&) : TemplatesVideoView() {
    stopAtUnimplementedInitializer("init(frame:)", "TemplatesVideoView");
}

TemplatesVideoView::TemplatesVideoView(const foundation::Coder&) : TemplatesVideoView() { stopAtInitializerFromArchive(); }

} // namespace proupsells

// The clip of templates being filled in.
#pragma once

#include "ProUpsells/AppearanceVideoView.hpp"

namespace proupsells {

class TemplatesVideoView : public AppearanceVideoView {
public:
    TemplatesVideoView() : AppearanceVideoView("StorePageTemplatesVideo", "StorePageTemplatesVideo_dark") {}
    // Stops the program: there is no such view at a frame of its own, and none from an archive.
    [[noreturn]] explicit TemplatesVideoView(const geometry::Rect& frame);
    [[noreturn]] explicit TemplatesVideoView(const foundation::Coder& coder);
    std::string_view typeName() const override { return "TemplatesVideoView"; }
};

} // namespace proupsells

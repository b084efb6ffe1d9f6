// The clip of templates being filled in.
#pragma once

#include "ProUpsells/AppearanceVideoView.hpp"

namespace proupsells {

class TemplatesVideoView : public AppearanceVideoView {
public:
    TemplatesVideoView() : AppearanceVideoView("StorePageTemplatesVideo", "StorePageTemplatesVideo_dark") {}
    // Both stop the program.
    explicit TemplatesVideoView(const geometry::Rect& frame) : AppearanceVideoView(frame, "TemplatesVideoView") {}
    explicit TemplatesVideoView(const foundation::Coder& coder) : AppearanceVideoView(coder) {}
    std::string_view typeName() const override { return "TemplatesVideoView"; }
};

} // namespace proupsells

// A button whose content is given by its maker.
#pragma once

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controls/UIControl.hpp"

namespace proupsells::uikit {

// Of the custom type: no title, tint or background of its own. Shows its image at its natural size in the centre, and its subviews,
// which should not take touches. Answers a finger by dimming, and the mouse that rests on it by
// dimming a little.
class PROUPSELLS_EXPORT UIButton : public UIControl {
public:
    std::string_view typeName() const override { return "UIButton"; }

    // Null for none.
    const UIImage& image() const { return m_image; }
    void setImage(UIImage image);

    // The image's size.
    geometry::Size intrinsicContentSize() const override;

protected:
    void draw(graphics::PaintContext& context, const graphics::PaintState& state) const override;
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override;
    double presentationAlpha() const override;

private:
    UIImage m_image;
};

} // namespace proupsells::uikit

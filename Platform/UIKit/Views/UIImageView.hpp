// A picture.
#pragma once

#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

class UIImageView : public UIView {
public:
    enum class ContentMode { scaleToFill, aspectFit, aspectFill, center };

    explicit UIImageView(UIImage image = nullptr);
    std::string_view typeName() const override { return "UIImageView"; }

    const UIImage& image() const { return m_image; }
    void setImage(UIImage image);
    ContentMode contentMode() const { return m_contentMode; }
    void setContentMode(ContentMode mode);

    // The image's size; nothing without an image.
    geometry::Size intrinsicContentSize() const override;
    // Where the image is painted, in the view's coordinates. It may reach over the bounds, which clip it only when told to.
    geometry::Rect imageFrame() const;

protected:
    void draw(graphics::PaintContext& context, const graphics::PaintState& state) const override;
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override;

private:
    UIImage m_image;
    ContentMode m_contentMode = ContentMode::scaleToFill;
};

} // namespace proupsells::uikit

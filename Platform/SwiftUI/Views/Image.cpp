#include "Platform/SwiftUI/Views/Image.hpp"

#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::Size;

namespace {

class ImageNode final : public Node {
public:
    void adopt(Image&& image, UpdatePass& pass) {
        const bool hasOtherSize = naturalSize(image) != naturalSize(m_image) || image.isResizable != m_image.isResizable;
        if (!isNew() && hasOtherSize) invalidateLayout();
        if (!isNew() && (environmentChanged() || !(image == m_image))) setNeedsDisplay();
        m_tint.set(environment().foregroundStyle, isNew() ? nullptr : pass.animation, pass.now_s);
        host().noteAnimation(m_tint.end_s());
        m_image = std::move(image);
    }
    LengthRange lengthRange(Axis axis, std::optional<double>) override {
        const Size size = naturalSize(m_image);
        const double length = axis == Axis::horizontal ? size.width : size.height;
        return m_image.isResizable ? LengthRange{0, geometry::infinity} : LengthRange{length, length};
    }

protected:
    std::string_view semanticType() const override { return "Image"; }
    bool isHittable() const override { return true; }

    Size measure(const geometry::ProposedSize& proposal) override {
        const Size natural = naturalSize(m_image);
        return m_image.isResizable ? proposal.orReplacing(natural) : natural;
    }
    void paintContent(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) override {
        if (!m_image.image) return;
        const bool isTinted = m_image.image->renderingMode == graphics::RenderingMode::tinted;
        const graphics::RGBA tint = isTinted ? m_tint.valueAt(now_s).resolved(environment().colorScheme) : graphics::RGBA{};
        context.image(state, {{}, presentationFrame(now_s).size}, m_image.image, tint);
    }
    void describe(accessibility::SemanticNode& node, const graphics::PaintState&, double) const override {
        if (m_image.image) node.image = m_image.image->name;
    }

private:
    static Size naturalSize(const Image& image) { return image.image ? image.image->size : Size{}; }

    Image m_image;
    Animated<graphics::Color> m_tint;
};

} // namespace

Element* Image::makeElement() && { return newElement<ImageNode>(std::move(*this)); }

} // namespace proupsells::swiftui

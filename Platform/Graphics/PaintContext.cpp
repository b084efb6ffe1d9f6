#include "Platform/Graphics/PaintContext.hpp"

namespace proupsells::graphics {

using geometry::CornerStyle;
using geometry::Rect;

namespace {

// A frame that a stroke can follow; it may be flat.
bool canBeStroked(const Rect& rect, double lineWidth) { return lineWidth > 0 && rect.width() >= 0 && rect.height() >= 0; }

} // namespace

Command* PaintContext::add(const PaintState& state, CommandKind kind, const Rect& frame, const Rect& touched) {
    if (state.hides(touched) || (m_looksAhead && kind != CommandKind::image)) return nullptr;
    Command& command = (m_looksAhead ? m_list.ahead : m_list.commands).emplace_back();
    command.kind = kind;
    command.scheme = state.scheme;
    command.opacity = float(state.opacity);
    command.clip = state.clip;
    command.clipRadius = state.clipRadius;
    command.roundedClip = state.roundedClip;
    command.frame = frame.offsetBy(windowOffset(state));
    command.bounds = state.toWindow(touched).intersection(state.clip);
    if (!state.transform.isTranslation()) command.transform = m_list.addTransform(state.transform);
    return &command;
}

// A transform that only moves needs no entry of its own.
geometry::Point PaintContext::windowOffset(const PaintState& state) const {
    if (!state.transform.isTranslation()) return state.origin;
    return state.origin + geometry::Point{state.transform.tx, state.transform.ty};
}

void PaintContext::fillRectangle(const PaintState& state, const Rect& rect, RGBA color) {
    if (rect.isEmpty() || color.alpha == 0) return;
    if (Command* command = add(state, CommandKind::fillRectangle, rect, rect)) command->color = color;
}

void PaintContext::fillRoundedRectangle(const PaintState& state, const Rect& rect, double radius, CornerStyle style, RGBA color) {
    if (!(radius > 0)) return fillRectangle(state, rect, color);
    if (rect.isEmpty() || color.alpha == 0) return;
    Command* command = add(state, CommandKind::fillRoundedRectangle, rect, rect);
    if (!command) return;
    command->cornerRadius = radius;
    command->cornerStyle = style;
    command->color = color;
}

void PaintContext::strokeRoundedRectangle(const PaintState& state, const Rect& rect, double radius, CornerStyle style,
                                          double lineWidth, RGBA color) {
    if (!canBeStroked(rect, lineWidth) || color.alpha == 0) return;
    Command* command = add(state, CommandKind::strokeRoundedRectangle, rect, rect.insetBy(-lineWidth / 2, -lineWidth / 2));
    if (!command) return;
    command->cornerRadius = std::max(0.0, radius);
    command->cornerStyle = style;
    command->lineWidth = lineWidth;
    command->color = color;
}

void PaintContext::fillEllipse(const PaintState& state, const Rect& rect, RGBA color) {
    if (rect.isEmpty() || color.alpha == 0) return;
    if (Command* command = add(state, CommandKind::fillEllipse, rect, rect)) command->color = color;
}

void PaintContext::strokeEllipse(const PaintState& state, const Rect& rect, double lineWidth, RGBA color) {
    if (!canBeStroked(rect, lineWidth) || color.alpha == 0) return;
    Command* command = add(state, CommandKind::strokeEllipse, rect, rect.insetBy(-lineWidth / 2, -lineWidth / 2));
    if (!command) return;
    command->lineWidth = lineWidth;
    command->color = color;
}

void PaintContext::fillPath(const PaintState& state, const geometry::Path& path, RGBA color) {
    const Rect bounds = path.bounds();
    if (bounds.isEmpty() || color.alpha == 0) return;
    Command* command = add(state, CommandKind::fillPath, bounds, bounds);
    if (!command) return;
    command->color = color;
    command->resource = m_list.addPath(path, windowOffset(state));
}

void PaintContext::strokePath(const PaintState& state, const geometry::Path& path, double lineWidth, RGBA color) {
    const Rect bounds = path.bounds();
    if (path.isEmpty() || !canBeStroked(bounds, lineWidth) || color.alpha == 0) return;
    Command* command = add(state, CommandKind::strokePath, bounds, bounds.insetBy(-lineWidth / 2, -lineWidth / 2));
    if (!command) return;
    command->lineWidth = lineWidth;
    command->color = color;
    command->resource = m_list.addPath(path, windowOffset(state));
}

void PaintContext::image(const PaintState& state, const Rect& rect, const ImageRef& image, RGBA tint) {
    if (!image || rect.isEmpty()) return;
    if (image->renderingMode == RenderingMode::tinted && tint.alpha == 0) return;
    Command* command = add(state, CommandKind::image, rect, rect);
    if (!command) return;
    command->color = tint;
    command->resource = m_list.addImage(image->standIn ? image->standIn : image);
}

void PaintContext::bitmap(const PaintState& state, const Rect& rect, const std::shared_ptr<const Bitmap>& bitmap) {
    if (!bitmap || rect.isEmpty()) return;
    if (Command* command = add(state, CommandKind::bitmap, rect, rect)) command->resource = m_list.addBitmap(bitmap);
}

void PaintContext::text(const PaintState& state, geometry::Point baseline, const Rect& lineBox,
                        const std::shared_ptr<const ShapedText>& text, std::uint32_t firstCluster, std::uint32_t endCluster,
                        RGBA color) {
    if (!text || firstCluster >= endCluster || color.alpha == 0) return;
    // Slanted letters, swashes and stacked accents reach out of the line's box.
    const Rect touched = lineBox.insetBy(-lineBox.height() * 0.25, -lineBox.height() * 0.2);
    Command* command = add(state, CommandKind::text, {baseline, lineBox.size}, touched);
    if (!command) return;
    command->color = color;
    command->firstCluster = firstCluster;
    command->endCluster = endCluster;
    command->resource = m_list.addText(text);
}

void PaintContext::shadow(const PaintState& state, const Rect& rect, double blurRadius, geometry::Point offset, RGBA color) {
    if (rect.isEmpty() || color.alpha == 0) return;
    const double reach = 2 * std::max(0.0, blurRadius);
    const Rect frame = rect.offsetBy(offset);
    Command* command = add(state, CommandKind::shadow, frame, frame.insetBy(-reach, -reach));
    if (!command) return;
    command->blurRadius = std::max(0.0, blurRadius);
    command->color = color;
}

} // namespace proupsells::graphics

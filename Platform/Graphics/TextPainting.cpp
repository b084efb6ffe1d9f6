#include "Platform/Graphics/TextPainting.hpp"

namespace proupsells::graphics {

using geometry::LayoutDirection;
using geometry::Point;
using geometry::Rect;

namespace {

class LinePainter {
public:
    LinePainter(PaintContext& context, const PaintState& state, const TextLayout& layout,
                const std::shared_ptr<const ShapedText>& text, std::span<const TextRunPaint> paints)
        : m_context(context), m_state(state), m_layout(layout), m_text(text), m_paints(paints) {}

    void paint(const TextLine& line, Point topLeft, const std::shared_ptr<const ShapedText>& ellipsis) {
        const double baseline = topLeft.y + line.ascent;
        for (std::uint32_t index = line.firstFragment; index < line.endFragment; ++index) {
            const TextFragment& fragment = m_layout.fragments[index];
            const double x = topLeft.x + fragment.x;
            const TextRunPaint& paint = paintOf(fragment.run);
            m_context.text(m_state, {x, baseline}, {{x, topLeft.y}, {fragment.width, line.height}}, m_text, fragment.firstCluster,
                           fragment.endCluster, paint.color);
            if (paint.isStruckThrough) strikeThrough(fragment, {x, baseline}, paint.color);
        }
        if (line.isTruncated && ellipsis) paintEllipsis(line, topLeft, ellipsis);
    }

private:
    const TextRunPaint& paintOf(std::uint16_t run) const { return m_paints[std::min<std::size_t>(run, m_paints.size() - 1)]; }

    // Through the middle between the baseline and the capitals' top, where digits have theirs.
    void strikeThrough(const TextFragment& fragment, Point baseline, RGBA color) {
        const double ascent = fragment.run < m_text->metrics.size() ? m_text->metrics[fragment.run].ascent : 0;
        const double size = fragment.run < m_text->runs.size() ? m_text->runs[fragment.run].font.size : 0;
        const double thickness = size / 16;
        m_context.fillRectangle(m_state, {{baseline.x, baseline.y - 0.3 * ascent - thickness / 2}, {fragment.width, thickness}},
                                color);
    }

    void paintEllipsis(const TextLine& line, Point topLeft, const std::shared_ptr<const ShapedText>& ellipsis) {
        const double x = topLeft.x + (line.isRightToLeft ? 0 : line.width - line.ellipsisWidth);
        m_context.text(m_state, {x, topLeft.y + line.ascent}, {{x, topLeft.y}, {line.ellipsisWidth, line.height}}, ellipsis, 0,
                       std::uint32_t(ellipsis->clusters.size()), paintOf(line.ellipsisRun).color);
    }

    PaintContext& m_context;
    const PaintState& m_state;
    const TextLayout& m_layout;
    const std::shared_ptr<const ShapedText>& m_text;
    std::span<const TextRunPaint> m_paints;
};

} // namespace

double lineOffset(double boxWidth, double lineWidth, TextAlignment alignment, LayoutDirection direction) {
    const double room = boxWidth - lineWidth;
    switch (alignment) {
    case TextAlignment::leading: return direction == LayoutDirection::rightToLeft ? room : 0;
    case TextAlignment::center: return room / 2;
    case TextAlignment::trailing: return direction == LayoutDirection::rightToLeft ? 0 : room;
    }
    return 0;
}

void paintTextLayout(PaintContext& context, const PaintState& state, const TextLayout& layout,
                     const std::shared_ptr<const ShapedText>& text, const std::shared_ptr<const ShapedText>& ellipsis,
                     const Rect& box, TextAlignment alignment, std::span<const TextRunPaint> paints) {
    if (!text || paints.empty()) return;
    LinePainter painter(context, state, layout, text, paints);
    const auto visible = state.visibleRect();
    double y = box.minY();
    for (const TextLine& line : layout.lines) {
        // Letters reach out of their line, but not past the next one.
        const bool isOutOfSight = visible && (y + 2 * line.height < visible->minY() || y - line.height > visible->maxY());
        if (!isOutOfSight) {
            const double x = box.minX() + lineOffset(box.width(), line.width, alignment, layout.direction);
            painter.paint(line, {x, y}, ellipsis);
        }
        y += line.height + layout.lineSpacing;
    }
}

} // namespace proupsells::graphics

#include "Platform/SwiftUI/Views/Text.hpp"

#include <algorithm>
#include <cmath>

#include "Platform/Foundation/Locale.hpp"
#include "Platform/Graphics/TextPainting.hpp"
#include "Platform/Host/TextCache.hpp"
#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Platform/SwiftUI/Views/TextStyle.hpp"

namespace swiftui {

using geometry::ProposedSize;
using geometry::Size;
using graphics::TextLayout;

namespace {

// Room that is short of a line by less than this is a rounding error.
constexpr double tolerance = 0.005;
// In how many steps a text shrinks to its minimum scale.
constexpr double scaleStep = 0.05;

class TextNode final : public Node {
public:
    void adopt(Text&& text, UpdatePass& pass);

    LengthRange lengthRange(Axis axis, std::optional<double> cross) override {
        if (axis == Axis::horizontal) return {0, idealSize().width};
        return Node::lengthRange(axis, cross);
    }
    double firstBaseline(const ProposedSize& proposal) override {
        layOutFor(proposal);
        return m_layout.lines.empty() ? 0 : m_layout.lines.front().ascent;
    }

protected:
    std::string_view semanticType() const override { return "Text"; }
    bool isHittable() const override { return true; }
    double paintOutset() const override { return m_style.font.size / 4; } // glyphs lean out of their lines
    Size measure(const ProposedSize& proposal) override;
    void layOut(const ProposedSize& proposal, Size) override { layOutFor(proposal); }
    void paintContent(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) override;
    void describe(accessibility::Node& node, const graphics::PaintState& state, double now_s) const override;

private:
    void shape(double scale);
    const Size& idealSize();
    // Whether the text needs no wrapping and no cutting in the room.
    bool fits(const ProposedSize& proposal);
    void layOutFor(const ProposedSize& proposal);
    void layOutAtScale(double scale, const ProposedSize& proposal);
    void forgetShape();

    Text m_text{std::string()};
    TextStyle m_style;
    Animated<graphics::Color> m_color;

    std::vector<graphics::StyledRun> m_runs; // as shaped last
    std::shared_ptr<const graphics::ShapedText> m_shaped;
    std::shared_ptr<const graphics::ShapedText> m_ellipsis; // at the shown scale; made when something is cut
    double m_shapedScale = 0;
    std::optional<Size> m_idealSize;
    int m_idealLineCount = 0;
    bool m_idealIsCut = false; // by the line limit alone
    TextLayout m_layout;
    std::optional<ProposedSize> m_layoutProposal; // what m_layout is for
    std::vector<graphics::TextRunPaint> m_paints;
};

void TextNode::adopt(Text&& text, UpdatePass& pass) {
    const bool isOtherText = isNew() || !(text == m_text);
    if (!isOtherText && !environmentChanged()) return;
    if (isOtherText) m_text = std::move(text);
    TextStyle style = TextStyle::of(m_text, environment());
    if (isOtherText || !(style == m_style)) {
        m_style = std::move(style);
        forgetShape();
        if (!isNew()) invalidateLayout();
    }
    m_color.set(environment().foregroundStyle, isNew() ? nullptr : pass.animation, pass.now_s);
    if (isNew()) return;
    host().noteAnimation(m_color.end_s());
    setNeedsDisplay();
}

void TextNode::forgetShape() {
    m_shaped = nullptr;
    m_ellipsis = nullptr;
    m_shapedScale = 0;
    m_idealSize.reset();
    m_layoutProposal.reset();
}

void TextNode::shape(double scale) {
    if (m_shaped && m_shapedScale == scale) return;
    m_style.makeRuns(m_text, environment(), scale, m_runs);
    m_shaped = host::TextCache::shared().shaped(m_runs, m_style.language, m_style.direction);
    m_ellipsis = nullptr;
    m_shapedScale = scale;
}

const Size& TextNode::idealSize() {
    if (!m_idealSize) {
        layOutAtScale(1, {});
        m_layoutProposal.reset();
        m_idealSize = m_layout.size;
        m_idealLineCount = int(m_layout.lines.size());
        m_idealIsCut = m_layout.isTruncated;
    }
    return *m_idealSize;
}

bool TextNode::fits(const ProposedSize& proposal) {
    const Size& ideal = idealSize();
    return !m_idealIsCut && (!proposal.width || *proposal.width + tolerance >= ideal.width) &&
           (!proposal.height || m_idealLineCount <= 1 || *proposal.height + tolerance >= ideal.height);
}

Size TextNode::measure(const ProposedSize& proposal) {
    if (fits(proposal)) return *m_idealSize;
    layOutFor(proposal);
    return m_layout.size;
}

void TextNode::layOutFor(const ProposedSize& proposal) {
    const ProposedSize room = fits(proposal) ? ProposedSize{} : proposal;
    if (m_layoutProposal == room) return;
    layOutAtScale(1, room);
    for (double scale = 1 - scaleStep; m_layout.isTruncated && scale >= m_style.minimumScaleFactor - 1e-9; scale -= scaleStep)
        layOutAtScale(scale, room);
    m_layoutProposal = room;
}

void TextNode::layOutAtScale(double scale, const ProposedSize& proposal) {
    shape(scale);
    graphics::TextLayoutRequest request;
    if (proposal.width && std::isfinite(*proposal.width)) request.width = *proposal.width + tolerance;
    if (proposal.height && std::isfinite(*proposal.height)) request.height = *proposal.height + tolerance;
    request.lineLimit = m_style.lineLimit;
    request.lineSpacing = m_style.lineSpacing;
    request.direction = m_style.direction;
    if (request.width || request.height || request.lineLimit) {
        if (!m_ellipsis)
            m_ellipsis = host::TextCache::shared().ellipsis(m_runs.front().font, m_style.language, m_style.direction);
        request.ellipsisWidth = host::totalAdvance(*m_ellipsis);
    }
    graphics::layOutText(*m_shaped, request, m_layout);
}

void TextNode::paintContent(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) {
    if (!m_shaped) return;
    const graphics::ColorScheme scheme = environment().colorScheme;
    const graphics::Color inherited = m_color.valueAt(now_s);
    m_paints.clear();
    if (!m_text.isAttributed()) m_paints.push_back({inherited.resolved(scheme)});
    for (const graphics::AttributedRun& run : m_text.attributed().runs()) {
        const graphics::Color& color = run.attributes.color.name.empty() ? inherited : run.attributes.color;
        m_paints.push_back({color.resolved(scheme), run.attributes.isStruckThrough});
    }
    graphics::paintTextLayout(context, state, m_layout, m_shaped, m_ellipsis, {{}, presentationFrame(now_s).size}, m_style.alignment,
                              m_paints);
}

void TextNode::describe(accessibility::Node& node, const graphics::PaintState&, double) const {
    accessibility::TextInfo info;
    info.text = m_text.isAttributed() ? m_text.attributed().text() : m_text.plain();
    info.lineCount = int(m_layout.lines.size());
    info.isTruncated = m_layout.isTruncated;
    for (std::size_t i = 0; m_text.isAttributed() && i < m_text.attributed().runs().size(); ++i) {
        const graphics::AttributedRun& run = m_text.attributed().runs()[i];
        const graphics::Font font = i < m_runs.size() ? m_runs[i].font : run.attributes.font;
        const graphics::Color& color = run.attributes.color.name.empty() ? m_color.target() : run.attributes.color;
        info.runs.push_back({run.text, std::string(font.name), font.size, font.weightOption, std::string(color.name),
                             run.attributes.isStruckThrough});
    }
    const graphics::Font font = m_runs.empty() ? m_style.font : m_runs.front().font;
    info.font = std::string(font.name);
    info.size = font.size;
    info.weight = font.weightOption;
    info.color = info.runs.empty() ? std::string(m_color.target().name) : info.runs.front().color;
    node.text = std::move(info);
}

} // namespace

Element* Text::makeElement() && { return newElement<TextNode>(std::move(*this)); }

} // namespace swiftui

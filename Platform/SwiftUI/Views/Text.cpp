#include "Platform/SwiftUI/Views/Text.hpp"

#include <algorithm>
#include <cmath>

#include "Platform/Graphics/TextPainting.hpp"
#include "Platform/Host/TextCache.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Platform/SwiftUI/Views/TextStyle.hpp"

namespace proupsells::swiftui {

using geometry::ProposedSize;
using geometry::Size;
using graphics::TextLayout;

namespace {

// Room that is short of a line by less than this is a rounding error.
constexpr double tolerance = 0.005;
// In how many steps a text shrinks to its minimum scale.
constexpr double scaleStep = 0.05;

// A text as it is laid out in some room.
struct Lines {
    TextLayout layout;
    std::shared_ptr<const graphics::ShapedText> shaped;
    std::shared_ptr<const graphics::ShapedText> ellipsis; // null where nothing can be cut
    std::optional<ProposedSize> room;                     // absent: out of date
};

class TextNode final : public Node {
public:
    void adopt(Text&& text, UpdatePass& pass);

    LengthRange lengthRange(Axis axis, std::optional<double> cross) override {
        if (axis == Axis::horizontal) return {0, idealSize().width};
        return Node::lengthRange(axis, cross);
    }
    double firstBaseline(const ProposedSize& proposal) override {
        measureIn(roomFor(proposal));
        return m_measured.layout.lines.empty() ? 0 : m_measured.layout.lines.front().ascent;
    }

protected:
    std::string_view semanticType() const override { return "Text"; }
    bool isHittable() const override { return true; }
    double paintOutset() const override { return m_style.font.size / 4; } // glyphs lean out of their lines
    Size measure(const ProposedSize& proposal) override;
    void layOut(const ProposedSize& proposal, Size size) override;
    void paintContent(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) override;
    void describe(accessibility::Node& node, const graphics::PaintState& state, double now_s) const override;

private:
    const Size& idealSize();
    // The proposal, or no limits at all where the text needs no wrapping and no cutting in it.
    ProposedSize roomFor(const ProposedSize& proposal);
    void measureIn(const ProposedSize& room);
    void measureAtScale(double scale, const ProposedSize& room);
    void forgetLines();

    Text m_text{std::string()};
    TextStyle m_style;
    Animated<graphics::Color> m_color;
    std::optional<Size> m_idealSize;
    int m_idealLineCount = 0;
    bool m_idealIsCut = false; // by the line limit alone

    // A stack measures its views in rooms that they do not get, so what is shown is kept apart from what was measured last.
    Lines m_measured;
    Lines m_shown;
    std::vector<graphics::StyledRun> m_runs; // as shaped last
    double m_shapedScale = 0;                // of m_runs and m_measured.shaped; 0: none yet
    std::vector<graphics::TextRunPaint> m_paints;
};

void TextNode::adopt(Text&& text, UpdatePass& pass) {
    const bool isOtherText = isNew() || !(text == m_text);
    if (!isOtherText && !environmentChanged()) return;
    if (isOtherText) m_text = std::move(text);
    TextStyle style = TextStyle::of(m_text, environment());
    if (isOtherText || !(style == m_style)) {
        m_style = std::move(style);
        forgetLines();
        if (!isNew()) invalidateLayout();
    }
    m_color.set(environment().foregroundStyle, isNew() ? nullptr : pass.animation, pass.now_s);
    if (isNew()) return;
    host().noteAnimation(m_color.end_s());
    setNeedsDisplay();
}

void TextNode::forgetLines() {
    m_measured.shaped = nullptr;
    m_measured.room.reset();
    m_shown.room.reset();
    m_shapedScale = 0;
    m_idealSize.reset();
}

const Size& TextNode::idealSize() {
    if (!m_idealSize) {
        measureAtScale(1, {});
        m_measured.room.emplace();
        m_idealSize = m_measured.layout.size;
        m_idealLineCount = int(m_measured.layout.lines.size());
        m_idealIsCut = m_measured.layout.isTruncated;
    }
    return *m_idealSize;
}

ProposedSize TextNode::roomFor(const ProposedSize& proposal) {
    const Size& ideal = idealSize();
    const bool fits = !m_idealIsCut && (!proposal.width || *proposal.width + tolerance >= ideal.width) &&
                      (!proposal.height || m_idealLineCount <= 1 || *proposal.height + tolerance >= ideal.height);
    return fits ? ProposedSize{} : proposal;
}

Size TextNode::measure(const ProposedSize& proposal) {
    const ProposedSize room = roomFor(proposal);
    if (room == ProposedSize{} && !m_idealIsCut) return *m_idealSize;
    measureIn(room);
    return m_measured.layout.size;
}

void TextNode::layOut(const ProposedSize& proposal, Size) {
    const ProposedSize room = roomFor(proposal);
    if (m_shown.room == room) return;
    measureIn(room);
    std::swap(m_shown, m_measured);
    m_measured.room.reset();
    m_shapedScale = 0;
}

void TextNode::measureIn(const ProposedSize& room) {
    if (m_measured.room == room) return;
    measureAtScale(1, room);
    for (double scale = 1 - scaleStep; m_measured.layout.isTruncated && scale >= m_style.minimumScaleFactor - 1e-9;
         scale -= scaleStep)
        measureAtScale(scale, room);
    m_measured.room = room;
}

void TextNode::measureAtScale(double scale, const ProposedSize& room) {
    host::TextCache& cache = host::TextCache::shared();
    if (m_shapedScale != scale || !m_measured.shaped) {
        m_style.makeRuns(m_text, environment(), scale, m_runs);
        m_measured.shaped = cache.shaped(m_runs, m_style.language, m_style.direction);
        m_measured.ellipsis = nullptr;
        m_shapedScale = scale;
    }
    graphics::TextLayoutRequest request;
    if (room.width && std::isfinite(*room.width)) request.width = *room.width + tolerance;
    if (room.height && std::isfinite(*room.height)) request.height = *room.height + tolerance;
    request.lineLimit = m_style.lineLimit;
    request.lineSpacing = m_style.lineSpacing;
    request.direction = m_style.direction;
    if (request.height || request.lineLimit) {
        if (!m_measured.ellipsis) m_measured.ellipsis = cache.ellipsis(m_runs.front().font, m_style.language, m_style.direction);
        request.ellipsisWidth = host::totalAdvance(*m_measured.ellipsis);
    }
    graphics::layOutText(*m_measured.shaped, request, m_measured.layout);
}

void TextNode::paintContent(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) {
    if (!m_shown.shaped) return;
    const graphics::ColorScheme scheme = environment().colorScheme;
    const graphics::Color inherited = m_color.valueAt(now_s);
    m_paints.clear();
    if (!m_text.isAttributed()) m_paints.push_back({inherited.resolved(scheme)});
    for (const graphics::AttributedRun& run : m_text.attributed().runs()) {
        const graphics::Color& color = run.attributes.color.name.empty() ? inherited : run.attributes.color;
        m_paints.push_back({color.resolved(scheme), run.attributes.isStruckThrough});
    }
    graphics::paintTextLayout(context, state, m_shown.layout, m_shown.shaped, m_shown.ellipsis, {{}, presentationFrame(now_s).size},
                              m_style.alignment, m_paints);
}

void TextNode::describe(accessibility::Node& node, const graphics::PaintState&, double) const {
    accessibility::TextInfo info;
    info.text = m_text.isAttributed() ? m_text.attributed().text() : m_text.plain();
    info.lineCount = int(m_shown.layout.lines.size());
    info.isTruncated = m_shown.layout.isTruncated;
    const auto fontOf = [this](std::size_t run) {
        return m_shown.shaped && run < m_shown.shaped->runs.size() ? m_shown.shaped->runs[run].font : m_style.font;
    };
    for (std::size_t i = 0; m_text.isAttributed() && i < m_text.attributed().runs().size(); ++i) {
        const graphics::AttributedRun& run = m_text.attributed().runs()[i];
        const graphics::Font font = fontOf(i);
        const graphics::Color& color = run.attributes.color.name.empty() ? m_color.target() : run.attributes.color;
        info.runs.push_back({run.text, std::string(font.name), font.size, font.weightOption, std::string(color.name),
                             run.attributes.isStruckThrough});
    }
    const graphics::Font font = fontOf(0);
    info.font = std::string(font.name);
    info.size = font.size;
    info.weight = font.weightOption;
    info.color = info.runs.empty() ? std::string(m_color.target().name) : info.runs.front().color;
    node.text = std::move(info);
}

} // namespace

Element* Text::makeElement() && { return newElement<TextNode>(std::move(*this)); }

} // namespace proupsells::swiftui

#include "Platform/UIKit/Views/UILabel.hpp"

#include <algorithm>

#include "Platform/Foundation/Locale.hpp"
#include "Platform/Host/TextCache.hpp"

namespace proupsells::uikit {

namespace {

std::string_view language() { return foundation::Locale::current().languageChain().front(); }

std::string_view nameOf(const UIFont& font) {
    if (!font.name.empty()) return font.name;
    return font.face ? std::string_view(font.face->name) : std::string_view("system");
}

} // namespace

UILabel::UILabel() {
    constexpr UILayoutPriority hugging = 251; // before plain views
    constexpr double defaultSize = 17;
    setContentHuggingPriority(hugging, Axis::horizontal);
    setContentHuggingPriority(hugging, Axis::vertical);
    setUserInteractionEnabled(false);
    m_attributes.font.size = defaultSize;
    m_attributes.color = {"label", graphics::rgb(0x000000), graphics::rgb(0xFFFFFF)};
    contentDidChange();
}

// --- Content ---

void UILabel::setText(std::string text) {
    m_isPlain = true;
    m_content = graphics::AttributedString(std::move(text), m_attributes);
    contentDidChange();
}

void UILabel::setAttributedText(graphics::AttributedString text) {
    m_isPlain = false;
    m_content = std::move(text);
    if (m_content.paragraphStyle) m_alignment = m_content.paragraphStyle->alignment;
    contentDidChange();
}

void UILabel::setFont(const UIFont& font) {
    m_attributes.font = font;
    restylePlainText();
}

void UILabel::setTextColor(const UIColor& color) {
    m_attributes.color = color;
    restylePlainText();
}

void UILabel::restylePlainText() {
    if (m_isPlain) setText(text());
}

void UILabel::setTextAlignment(graphics::TextAlignment alignment) {
    m_alignment = alignment;
    setNeedsDisplay();
}

void UILabel::setNumberOfLines(int count) {
    m_numberOfLines = std::max(0, count);
    m_drawn.reset();
    invalidateIntrinsicContentSize();
}

void UILabel::setPreferredMaxLayoutWidth(double width) {
    if (m_preferredMaxLayoutWidth == width) return;
    m_preferredMaxLayoutWidth = width;
    invalidateIntrinsicContentSize();
}

void UILabel::setMinimumScaleFactor(double factor) {
    m_minimumScaleFactor = std::clamp(factor, 0.0, 1.0);
    m_drawn.reset();
    setNeedsDisplay();
}

void UILabel::contentDidChange() {
    m_drawn.reset();
    m_runs.clear();
    for (const graphics::AttributedRun& run : m_content.runs())
        m_runs.push_back({run.text, run.attributes.font, run.attributes.kern});
    if (m_runs.empty()) m_runs.push_back({{}, m_attributes.font, 0});
    invalidateIntrinsicContentSize();
    setNeedsDisplay();
}

void UILabel::traitCollectionDidChange(const UITraitCollection& previous) {
    UIView::traitCollectionDidChange(previous);
    if (previous.layoutDirection != direction()) invalidateIntrinsicContentSize();
}

// --- Measures ---

const UIFont& UILabel::firstFont() const { return m_runs.front().font; }

const std::shared_ptr<const graphics::ShapedText>& UILabel::shaped(const std::vector<graphics::StyledRun>& runs) const {
    return host::TextCache::shared().shaped(runs, language(), direction());
}

std::vector<graphics::StyledRun> UILabel::runsScaledBy(double scale) const {
    std::vector<graphics::StyledRun> runs = m_runs;
    for (graphics::StyledRun& run : runs) run.font.size *= scale;
    return runs;
}

double UILabel::scaleIn(geometry::Size size) const {
    constexpr double step = 0.05;
    for (double scale = 1; scale > m_minimumScaleFactor; scale = std::max(scale - step, m_minimumScaleFactor))
        if (!laidOut(runsScaledBy(scale), size).isTruncated) return scale;
    return m_minimumScaleFactor;
}

std::shared_ptr<const graphics::ShapedText> UILabel::ellipsis() const {
    return host::TextCache::shared().ellipsis(firstFont(), language(), direction());
}

graphics::TextLayout UILabel::laidOut(const std::vector<graphics::StyledRun>& runs, const geometry::ProposedSize& proposal) const {
    graphics::TextLayoutRequest request;
    request.width = proposal.width;
    request.height = proposal.height;
    if (m_numberOfLines > 0) request.lineLimit = m_numberOfLines;
    if (m_content.paragraphStyle) request.lineSpacing = m_content.paragraphStyle->lineSpacing;
    request.direction = direction();
    request.ellipsisWidth = host::totalAdvance(*ellipsis());
    graphics::TextLayout layout;
    graphics::layOutText(*shaped(runs), request, layout);
    return layout;
}

geometry::Size UILabel::intrinsicContentSize() const {
    const bool wraps = m_numberOfLines != 1 && m_preferredMaxLayoutWidth > 0;
    if (m_content.isEmpty()) return {0, 0};
    return laidOut(m_runs, {wraps ? std::optional(m_preferredMaxLayoutWidth) : std::nullopt, std::nullopt}).size;
}

geometry::Size UILabel::naturalSizeFor(geometry::Size given) const {
    const geometry::Size natural = intrinsicContentSize();
    if (m_numberOfLines == 1 || m_preferredMaxLayoutWidth > 0 || given.width >= natural.width) return natural;
    return sizeThatFits({given.width, std::nullopt});
}

geometry::Size UILabel::sizeThatFits(const geometry::ProposedSize& proposal) const {
    if (m_content.isEmpty()) return {0, 0};
    return laidOut(m_runs, proposal).size;
}

// --- Picture ---

const UILabel::Drawn& UILabel::drawn(graphics::ColorScheme scheme) const {
    const bool isCurrent = m_drawn && m_drawn->size == bounds().size && m_drawn->direction == direction() &&
                           m_drawn->scheme == scheme && m_drawn->language == language();
    if (isCurrent) return *m_drawn;
    const auto runs = runsScaledBy(scaleIn(bounds().size));
    Drawn drawn{bounds().size, direction(), scheme, std::string(language()), laidOut(runs, bounds().size),
                shaped(runs),  ellipsis(),  {}};
    for (const graphics::AttributedRun& run : m_content.runs())
        drawn.paints.push_back({run.attributes.color.resolved(scheme), run.attributes.isStruckThrough});
    m_drawn = std::move(drawn);
    return *m_drawn;
}

void UILabel::draw(graphics::PaintContext& context, const graphics::PaintState& state) const {
    if (m_content.isEmpty() || state.hides(bounds())) return;
    const Drawn& drawn = this->drawn(state.scheme);
    const double height = drawn.layout.size.height;
    const geometry::Rect box{{bounds().minX(), bounds().midY() - height / 2}, {bounds().width(), height}};
    graphics::paintTextLayout(context, state, drawn.layout, drawn.text, drawn.ellipsis, box, m_alignment, drawn.paints);
}

void UILabel::describe(accessibility::Node& node, const graphics::PaintState&) const {
    node.traits = node.traits | accessibility::Traits::staticText;
    const double scale = scaleIn(bounds().size);
    const graphics::TextLayout layout = laidOut(runsScaledBy(scale), bounds().size);
    const graphics::TextAttributes first = m_content.isEmpty() ? m_attributes : m_content.runs().front().attributes;
    accessibility::TextInfo info;
    info.text = m_content.text();
    info.font = nameOf(first.font);
    info.size = first.font.size * scale;
    info.weight = first.font.weightOption;
    info.color = first.color.name;
    info.lineCount = m_content.isEmpty() ? 0 : int(layout.lines.size());
    info.isTruncated = layout.isTruncated;
    if (m_content.runs().size() > 1)
        for (const graphics::AttributedRun& run : m_content.runs())
            info.runs.push_back({run.text, std::string(nameOf(run.attributes.font)), run.attributes.font.size * scale,
                                 run.attributes.font.weightOption, std::string(run.attributes.color.name),
                                 run.attributes.isStruckThrough});
    node.text = std::move(info);
}

} // namespace proupsells::uikit

#include "Platform/UIKit/Views/UILabel.hpp"

#include <algorithm>

#include "Platform/Foundation/LanguageChanges.hpp"
#include "Platform/Foundation/Locale.hpp"

namespace proupsells::uikit {

UILabel::UILabel() {
    constexpr UILayoutPriority hugging = 251; // before plain views
    constexpr double defaultSize = 17;
    setContentHuggingPriority(hugging, Axis::horizontal);
    setContentHuggingPriority(hugging, Axis::vertical);
    setUserInteractionEnabled(false);
    m_rules.lineLimit = 1;
    m_attributes.font.size = defaultSize;
    m_attributes.color = {"label", graphics::rgb(0x15191C), graphics::rgb(0xF3F5F4)};
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
    m_rules.lineLimit = count > 0 ? std::optional(count) : std::nullopt;
    invalidateIntrinsicContentSize();
}

void UILabel::setPreferredMaxLayoutWidth(double width) {
    if (m_preferredMaxLayoutWidth == width) return;
    m_preferredMaxLayoutWidth = width;
    invalidateIntrinsicContentSize();
}

void UILabel::setMinimumScaleFactor(double factor) {
    m_rules.minimumScale = std::clamp(factor, 0.0, 1.0);
    setNeedsDisplay();
}

void UILabel::setLargestTextSize(graphics::ContentSizeCategory largest) {
    m_largestTextSize = largest;
    contentDidChange();
}

void UILabel::setAvoidsShortLastLine(bool avoids) {
    m_rules.avoidsShortLastLine = avoids;
    contentDidChange();
}

graphics::ContentSizeCategory UILabel::textSize() const {
    if (!m_largestTextSize) return graphics::ContentSizeCategory::large;
    return std::min(traitCollection().preferredContentSizeCategory, *m_largestTextSize);
}

void UILabel::fitRuns() const {
    m_fittedTextSize = textSize();
    m_rules.wordScale = host::wordScale(m_fittedTextSize);
    const double factor = graphics::scaleFactor(m_fittedTextSize);
    std::vector<graphics::StyledRun> runs;
    for (const graphics::AttributedRun& run : m_content.runs())
        runs.push_back({run.text, run.attributes.font, run.attributes.kern * factor});
    if (runs.empty()) runs.push_back({{}, m_attributes.font, 0});
    for (graphics::StyledRun& run : runs) run.font.size = graphics::scaledSize(run.font.size, m_fittedTextSize);
    m_fitted.setRuns(std::move(runs));
}

void UILabel::contentDidChange() {
    fitRuns();
    m_rules.lineSpacing = m_content.paragraphStyle ? m_content.paragraphStyle->lineSpacing : 0;
    invalidateIntrinsicContentSize();
    setNeedsDisplay();
}

void UILabel::traitCollectionDidChange(const UITraitCollection& previous) {
    const bool hasOtherTextSize =
        m_largestTextSize && previous.preferredContentSizeCategory != traitCollection().preferredContentSizeCategory;
    if (hasOtherTextSize) contentDidChange();
    if (previous.layoutDirection != traitCollection().layoutDirection) invalidateIntrinsicContentSize();
}

// --- Measures ---

host::FittedText& UILabel::fitted() const {
    if (m_fittedTextSize != textSize()) fitRuns();
    m_rules.language = foundation::Locale::current().languageTag();
    m_rules.languageChangeCount = foundation::LanguageChanges::count();
    m_rules.direction = traitCollection().layoutDirection;
    m_fitted.setRules(m_rules);
    return m_fitted;
}

geometry::Size UILabel::intrinsicContentSize() const {
    const bool wraps = numberOfLines() != 1 && m_preferredMaxLayoutWidth > 0;
    if (m_content.isEmpty()) return {0, 0};
    return fitted().sizeIn({wraps ? std::optional(m_preferredMaxLayoutWidth) : std::nullopt, std::nullopt});
}

geometry::Size UILabel::naturalSizeFor(geometry::Size given) const {
    const geometry::Size natural = intrinsicContentSize();
    if (numberOfLines() == 1 || m_preferredMaxLayoutWidth > 0 || given.width >= natural.width) return natural;
    return sizeThatFits({given.width, std::nullopt});
}

geometry::Size UILabel::sizeThatFits(const geometry::ProposedSize& proposal) const {
    if (m_content.isEmpty()) return {0, 0};
    return fitted().sizeIn(proposal);
}

// --- Picture ---

void UILabel::draw(graphics::PaintContext& context, const graphics::PaintState& state) const {
    if (m_content.isEmpty() || state.hides(bounds())) return;
    fitted().showIn(bounds().size);
    const double height = m_fitted.shownSize().height;
    const geometry::Rect box{{bounds().minX(), bounds().midY() - height / 2}, {bounds().width(), height}};
    m_fitted.paint(context, state, box, m_alignment, m_content, m_attributes.color);
}

void UILabel::describe(accessibility::SemanticNode& node, const graphics::PaintState&) const {
    node.traits = node.traits | accessibility::Traits::staticText;
    fitted().showIn(bounds().size);
    node.text = m_fitted.described(m_content, m_attributes.color);
    if (m_content.isEmpty()) node.text->lineCount = 0;
    if (m_content.runs().size() < 2) node.text->runs.clear();
}

} // namespace proupsells::uikit

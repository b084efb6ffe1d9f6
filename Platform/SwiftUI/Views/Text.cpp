#include "Platform/SwiftUI/Views/Text.hpp"

#include "Platform/Foundation/Locale.hpp"
#include "Platform/Host/FittedText.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::ProposedSize;
using geometry::Size;

namespace {

// What a text takes from around it.
struct TextStyle {
    graphics::Font font; // of plain texts and of runs without one; at the size shown
    graphics::ContentSizeCategory contentSize = graphics::ContentSizeCategory::large;
    TextCase textCase = TextCase::asWritten;
    graphics::TextAlignment alignment = graphics::TextAlignment::leading;
    host::TextRules rules;

    bool operator==(const TextStyle&) const = default;
};

TextStyle styleOf(const Text& text, const EnvironmentValues& environment) {
    const auto& paragraph = text.attributed().paragraphStyle;
    return {.font = environment.scaled(environment.font),
            .contentSize = environment.contentSize,
            .textCase = environment.textCase,
            .alignment = paragraph ? paragraph->alignment : environment.multilineTextAlignment,
            .rules = {.language = foundation::languageTagOf(environment.localeIdentifier),
                      .languageChangeCount = environment.languageChangeCount,
                      .direction = environment.layoutDirection,
                      .lineLimit = environment.lineLimit,
                      .lineSpacing = paragraph ? paragraph->lineSpacing : environment.lineSpacing,
                      .avoidsShortLastLine = environment.avoidsShortLastLine,
                      .minimumScale = environment.minimumScaleFactor,
                      .wordScale = host::wordScale(environment.contentSize),
                      .keepsWordsWhole = environment.keepsWordsWhole}};
}

// The runs to shape, in the case shown.
std::vector<graphics::StyledRun> runsOf(const Text& text, const graphics::Font& font, const EnvironmentValues& environment) {
    const auto shown = [&](const std::string& words) {
        if (environment.textCase == TextCase::asWritten) return words;
        return foundation::LocaleServices::current().upperCased(words, foundation::Locale(environment.localeIdentifier));
    };
    if (!text.isAttributed()) return {{shown(text.plain()), font, 0}};
    std::vector<graphics::StyledRun> runs;
    for (const graphics::AttributedRun& run : text.attributed().runs()) {
        const bool hasFont = run.attributes.font.size > 0;
        runs.push_back({shown(run.text), hasFont ? environment.scaled(run.attributes.font) : font, run.attributes.kern});
    }
    return runs;
}

class TextNode final : public Node {
public:
    void adopt(Text&& text, UpdatePass& pass);

    LengthRange lengthRange(Axis axis, std::optional<double> cross) override {
        if (axis == Axis::horizontal) return {0, m_fitted.idealSize().width};
        return Node::lengthRange(axis, cross);
    }
    double firstBaseline(const ProposedSize& proposal) override { return m_fitted.firstBaselineIn(proposal); }

protected:
    std::string_view semanticType() const override { return "Text"; }
    bool isHittable() const override { return true; }
    double paintOutset() const override { return m_style.font.size / 4; } // glyphs lean out of their lines
    Size measure(const ProposedSize& proposal) override { return m_fitted.sizeIn(proposal); }
    void layOut(const ProposedSize& proposal, Size) override { m_fitted.showIn(proposal); }
    void paintContent(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) override {
        m_fitted.paint(context, state, {{}, presentationFrame(now_s).size}, m_style.alignment, m_text.attributed(),
                       m_color.valueAt(now_s));
    }
    void describe(accessibility::SemanticNode& node, const graphics::PaintState&, double) const override {
        node.text = m_fitted.described(m_text.attributed(), m_color.target());
        if (!m_text.isAttributed()) node.text->text = m_text.plain();
    }

private:
    Text m_text{std::string()};
    TextStyle m_style;
    Animated<graphics::Color> m_color;
    host::FittedText m_fitted;
};

void TextNode::adopt(Text&& text, UpdatePass& pass) {
    const bool isOtherText = isNew() || !(text == m_text);
    if (!isOtherText && !environmentChanged()) return;
    if (isOtherText) m_text = std::move(text);
    TextStyle style = styleOf(m_text, environment());
    if (isOtherText || !(style == m_style)) {
        m_style = std::move(style);
        const bool hasOtherRuns = m_fitted.setRuns(runsOf(m_text, m_style.font, environment()));
        const bool hasOtherRules = m_fitted.setRules(m_style.rules);
        if (!isNew() && (hasOtherRuns || hasOtherRules)) invalidateLayout();
    }
    m_color.set(environment().foregroundStyle, isNew() ? nullptr : pass.animation, pass.now_s);
    if (isNew()) return;
    host().noteAnimation(m_color.end_s());
    setNeedsDisplay();
}

} // namespace

Element* Text::makeElement() && { return newElement<TextNode>(std::move(*this)); }

} // namespace proupsells::swiftui

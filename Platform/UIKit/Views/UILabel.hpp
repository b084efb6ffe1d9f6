// Text that is only read.
#pragma once

#include "Platform/Host/FittedText.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

// Plain text in one font and colour, or attributed text. Stands vertically centred in its bounds; what does not fit is cut with
// "…".
class UILabel : public UIView {
public:
    UILabel();
    std::string_view typeName() const override { return "UILabel"; }

    std::string text() const { return m_content.text(); }
    void setText(std::string text);
    const graphics::AttributedString& attributedText() const { return m_content; }
    // Replaces the label's font, colour and, where the text has a paragraph style, its alignment.
    void setAttributedText(graphics::AttributedString text);

    const UIFont& font() const { return m_attributes.font; }
    void setFont(const UIFont& font);
    const UIColor& textColor() const { return m_attributes.color; }
    void setTextColor(const UIColor& color);
    graphics::TextAlignment textAlignment() const { return m_alignment; }
    void setTextAlignment(graphics::TextAlignment alignment);
    // 0: as many as are needed. It is 1 until it is set.
    int numberOfLines() const { return m_rules.lineLimit.value_or(0); }
    void setNumberOfLines(int count);
    // A text that would be cut is set smaller instead, down to this share of its size. It is 1 until it is set, which means never.
    double minimumScaleFactor() const { return m_rules.minimumScale; }
    void setMinimumScaleFactor(double factor);
    // The person's text size up to which the text follows it; absent, until it is set: the text keeps its size.
    std::optional<graphics::ContentSizeCategory> largestTextSize() const { return m_largestTextSize; }
    void setLargestTextSize(graphics::ContentSizeCategory largest);
    // See graphics::layOutText.
    void setAvoidsShortLastLine(bool avoids);
    // The width at which the natural size is measured where the label may have several lines; 0: the text's own width.
    double preferredMaxLayoutWidth() const { return m_preferredMaxLayoutWidth; }
    void setPreferredMaxLayoutWidth(double width);

    geometry::Size intrinsicContentSize() const override;
    // The text's size when it is wrapped at the proposed width and cut at the proposed height.
    geometry::Size sizeThatFits(const geometry::ProposedSize& proposal) const override;
    // Where the label may have several lines and has no preferred width of its own: wrapped at the given one.
    geometry::Size naturalSizeFor(geometry::Size given) const override;
    void traitCollectionDidChange(const UITraitCollection& previous) override;
    void languageDidChange() override { contentDidChange(); }

protected:
    void draw(graphics::PaintContext& context, const graphics::PaintState& state) const override;
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override;

private:
    void contentDidChange();
    void restylePlainText();
    void fitRuns() const;
    graphics::ContentSizeCategory textSize() const;
    // The text in the current language, direction and size.
    host::FittedText& fitted() const;

    graphics::AttributedString m_content;
    graphics::TextAttributes m_attributes;
    graphics::TextAlignment m_alignment = graphics::TextAlignment::leading;
    bool m_isPlain = true;
    std::optional<graphics::ContentSizeCategory> m_largestTextSize;
    double m_preferredMaxLayoutWidth = 0;
    mutable host::TextRules m_rules;
    mutable graphics::ContentSizeCategory m_fittedTextSize = graphics::ContentSizeCategory::large;
    mutable host::FittedText m_fitted;
};

} // namespace proupsells::uikit

// Text that is only read.
#pragma once

#include "Platform/Graphics/TextLayout.hpp"
#include "Platform/Graphics/TextPainting.hpp"
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
    // 0: as many as are needed. 1 unless set.
    int numberOfLines() const { return m_numberOfLines; }
    void setNumberOfLines(int count);
    // The smallest share of its size to which a text that would be cut is set instead; 1, unless set, never shrinks it.
    double minimumScaleFactor() const { return m_minimumScaleFactor; }
    void setMinimumScaleFactor(double factor);
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
    void describe(accessibility::Node& node, const graphics::PaintState& state) const override;

private:
    // What is painted, kept until the text, its room or the way of reading changes.
    struct Drawn {
        geometry::Size size;
        geometry::LayoutDirection direction;
        graphics::ColorScheme scheme;
        std::string language;
        graphics::TextLayout layout;
        std::shared_ptr<const graphics::ShapedText> text, ellipsis;
        std::vector<graphics::TextRunPaint> paints;
    };

    void contentDidChange();
    void restylePlainText();
    const std::shared_ptr<const graphics::ShapedText>& shaped(const std::vector<graphics::StyledRun>& runs) const;
    // The share of its size at which the text is set in `size`.
    double scaleIn(geometry::Size size) const;
    std::vector<graphics::StyledRun> runsScaledBy(double scale) const;
    std::shared_ptr<const graphics::ShapedText> ellipsis() const;
    graphics::TextLayout laidOut(const std::vector<graphics::StyledRun>& runs, const geometry::ProposedSize& proposal) const;
    const UIFont& firstFont() const;
    const Drawn& drawn(graphics::ColorScheme scheme) const;
    geometry::LayoutDirection direction() const { return traitCollection().layoutDirection; }

    graphics::AttributedString m_content;
    std::vector<graphics::StyledRun> m_runs;
    graphics::TextAttributes m_attributes;
    graphics::TextAlignment m_alignment = graphics::TextAlignment::leading;
    bool m_isPlain = true;
    int m_numberOfLines = 1;
    double m_preferredMaxLayoutWidth = 0;
    double m_minimumScaleFactor = 1;
    mutable std::optional<Drawn> m_drawn;
};

} // namespace proupsells::uikit

#include "ProUpsells/TitleSubtitleLabels.hpp"

#include <utility>

#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/CenteredText.hpp"

namespace proupsells {

namespace {

constexpr double lineSpacing = 9;

} // namespace

TitleSubtitleLabels::TitleSubtitleLabels(const uikit::UIFont& titleFont)
    : m_titleFont(titleFont), m_titleLabel(makeCenteredLabel()), m_subtitleLabel(makeCenteredLabel()) {
    m_titleLabel->accessibilitySpoken.role = accessibility::Role::heading;
}

// The uneven distances are deliberate: the explanation stands in a narrow column of at most 300 points, the headline may take the
// whole width but for 25 points on each side.
void TitleSubtitleLabels::addTo(uikit::UIView& container) const {
    container.addSubview(m_titleLabel);
    container.addSubview(m_subtitleLabel);
    uikit::NSLayoutConstraint::activate({
        m_titleLabel->topAnchor().constraintEqualTo(container.topAnchor()),
        m_titleLabel->centerXAnchor().constraintEqualTo(container.centerXAnchor()),
        m_titleLabel->leadingAnchor().constraintEqualTo(container.leadingAnchor(), 25),
        m_subtitleLabel->topAnchor().constraintEqualTo(m_titleLabel->bottomAnchor(), 16),
        m_subtitleLabel->centerXAnchor().constraintEqualTo(container.centerXAnchor()),
        m_subtitleLabel->widthAnchor().constraintLessThanOrEqualToConstant(300),
        m_subtitleLabel->leadingAnchor().constraintEqualTo(container.leadingAnchor(), 19)->withPriority(uikit::layoutPriorityLow),
    });
}

void TitleSubtitleLabels::setTitle(std::string text) {
    m_title = std::move(text);
    m_titleLabel->setAttributedText(centeredText(m_title, {.font = m_titleFont, .color = velauikit::dynamicColor(9)}, lineSpacing));
}

void TitleSubtitleLabels::setSubtitle(std::string text) {
    static const graphics::TextAttributes attributes{
        .font = velauikit::velaDefaultFont(velauikit::FontOption::regular, 16), .color = velauikit::dynamicColor(10), .kern = 0.2};
    m_subtitle = std::move(text);
    m_subtitleLabel->setAttributedText(centeredText(m_subtitle, attributes, lineSpacing));
}

} // namespace proupsells

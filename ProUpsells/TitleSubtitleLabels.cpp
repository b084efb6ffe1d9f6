#include "ProUpsells/TitleSubtitleLabels.hpp"

#include <algorithm>
#include <utility>

#include "Platform/Host/TextCache.hpp"
#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/CenteredText.hpp"

namespace proupsells {

namespace {

constexpr double labelLineSpacing = 9;
constexpr double titleInset = 25, subtitleInset = 19, widestSubtitle = 300, distance = 16;

} // namespace

TitleSubtitleLabels::TitleSubtitleLabels(const uikit::UIFont& titleFont)
    : m_titleFont(titleFont), m_titleLabel(makeCenteredLabel()), m_subtitleLabel(makeCenteredLabel()) {
    m_titleLabel->accessibilitySpoken.role = accessibility::Role::heading;
    m_titleLabel->setLargestTextSize(lumokit::LargestSize::headline);
    m_subtitleLabel->setLargestTextSize(lumokit::LargestSize::mainText);
    for (const auto& label : {m_titleLabel, m_subtitleLabel}) label->setAvoidsShortLastLine(true);
}

// The uneven distances are deliberate: the explanation stands in a narrow column of at most 300 points, the headline may take the
// whole width but for 25 points on each side.
void TitleSubtitleLabels::addTo(uikit::UIView& container) const {
    container.addSubview(m_titleLabel);
    container.addSubview(m_subtitleLabel);
    uikit::NSLayoutConstraint::activate({
        m_titleLabel->topAnchor().constraintEqualTo(container.topAnchor()),
        m_titleLabel->centerXAnchor().constraintEqualTo(container.centerXAnchor()),
        m_titleLabel->leadingAnchor().constraintEqualTo(container.leadingAnchor(), titleInset),
        m_subtitleLabel->topAnchor().constraintEqualTo(m_titleLabel->bottomAnchor(), distance),
        m_subtitleLabel->centerXAnchor().constraintEqualTo(container.centerXAnchor()),
        m_subtitleLabel->widthAnchor().constraintLessThanOrEqualToConstant(widestSubtitle),
        m_subtitleLabel->leadingAnchor()
            .constraintEqualTo(container.leadingAnchor(), subtitleInset)
            ->withPriority(uikit::layoutPriorityLow),
    });
}

double TitleSubtitleLabels::heightIn(double width, const uikit::UITraitCollection& traits) const {
    const auto heightOf = [&](uikit::UILabel& label, double labelWidth) {
        label.setOverrideTraitCollection(traits);
        return label.sizeThatFits({labelWidth, std::nullopt}).height;
    };
    return heightOf(*m_titleLabel, width - 2 * titleInset) + distance +
           heightOf(*m_subtitleLabel, std::min(widestSubtitle, width - 2 * subtitleInset));
}

double TitleSubtitleLabels::scaleInto(double room, double width, const uikit::UITraitCollection& traits) {
    constexpr double smallest = 0.8, step = 0.02;
    const graphics::StyledRun sample{"x", m_titleFont, 0};
    if (host::TextCache::shared().shaped({&sample, 1}, {}, traits.layoutDirection)->keepsGreedyLines) return 1;
    for (setScale(1); heightIn(width, traits) > room && m_scale - step >= smallest;) setScale(m_scale - step);
    return m_scale;
}

void TitleSubtitleLabels::setScale(double scale) {
    if (m_scale == scale) return;
    m_scale = scale;
    setTitle(m_title);
    setSubtitle(m_subtitle);
}

void TitleSubtitleLabels::setTitle(std::string text) {
    m_title = std::move(text);
    graphics::TextAttributes attributes{.font = m_titleFont, .color = velauikit::dynamicColor(9)};
    attributes.font.size *= m_scale;
    m_titleLabel->setAttributedText(centeredText(m_title, attributes, labelLineSpacing));
}

void TitleSubtitleLabels::setSubtitle(std::string text) {
    graphics::TextAttributes attributes{
        .font = velauikit::velaDefaultFont(velauikit::FontOption::regular, 16), .color = velauikit::dynamicColor(10), .kern = 0.2};
    attributes.font.size *= m_scale;
    m_subtitle = std::move(text);
    m_subtitleLabel->setAttributedText(centeredText(m_subtitle, attributes, labelLineSpacing));
}

} // namespace proupsells

#include "ProUpsells/FooterView.hpp"

#include <utility>

#include "Platform/VelaUIKit/Colors.hpp"
#include "ProUpsells/TitleSubtitleLabels.hpp"

namespace proupsells {

namespace {

constexpr double lineSpacing = 9;

const graphics::TextAttributes& titleAttributes() {
    static const graphics::TextAttributes attributes{.font = velauikit::velaDefaultFont(velauikit::FontOption::medium, 20),
                                                     .color = velauikit::dynamicColor(9)};
    return attributes;
}

const graphics::TextAttributes& subtitleAttributes() {
    static const graphics::TextAttributes attributes{
        .font = velauikit::velaDefaultFont(velauikit::FontOption::regular, 16), .color = velauikit::dynamicColor(10), .kern = 0.2};
    return attributes;
}

} // namespace

FooterView::FooterView() : m_footerTitleLabel(makeCenteredLabel()), m_subtitleLabel(makeCenteredLabel()) {
    addSubview(m_footerTitleLabel);
    addSubview(m_subtitleLabel);
    uikit::NSLayoutConstraint::activate(titleSubtitleConstraints(*this, *m_footerTitleLabel, *m_subtitleLabel));
}

void FooterView::setFooterTitle(std::string text) {
    m_footerTitle = std::move(text);
    m_footerTitleLabel->setAttributedText(centeredText(m_footerTitle, titleAttributes(), lineSpacing));
}

void FooterView::setSubtitle(std::string text) {
    m_subtitle = std::move(text);
    m_subtitleLabel->setAttributedText(centeredText(m_subtitle, subtitleAttributes(), lineSpacing));
}

} // namespace proupsells

#include "ProUpsells/VelaProHeaderView.hpp"

#include <cmath>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "Platform/VelaUIKit/Colors.hpp"
#include "Platform/VelaUIKit/VelaUIKitImage.hpp"
#include "ProUpsells/TitleSubtitleLabels.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

std::optional<double> aspectRatio(geometry::Size size) {
    const double ratio = size.width / size.height;
    return std::isfinite(ratio) ? std::optional(ratio) : std::nullopt;
}

VelaProHeaderView::VelaProHeaderView(const geometry::Rect& frame)
    : UIView(frame),
      m_proLogoImageView(std::make_shared<uikit::UIImageView>(velauikit::VelaUIKitImage::marwickFolioWithProBadge())),
      m_titleLabel(makeCenteredLabel()) {
    m_proLogoImageView->setTintColor(velauikit::velaLabel);
    m_proLogoImageView->setContentMode(uikit::UIImageView::ContentMode::aspectFit);
    // The shelf is of a fixed height: rather smaller than cut.
    m_titleLabel->setMinimumScaleFactor(0.7);
    m_titleLabel->setAttributedText(centeredText(
        foundation::localizedString("It's never been easier to look professional."),
        {.font = velauikit::velaDefaultFont(velauikit::FontOption::bold, 26), .color = velauikit::dynamicColor(9)}, 8));
    layOut();
}

VelaProHeaderView::VelaProHeaderView(const foundation::Coder&) { stopAtInitializerFromArchive(); }

void VelaProHeaderView::layOut() {
    if (const auto ratio = aspectRatio(m_proLogoImageView->image()->size))
        m_proLogoImageView->widthAnchor().constraintEqualToMultiplier(m_proLogoImageView->heightAnchor(), *ratio)->setActive(true);

    const auto stack = std::make_shared<uikit::UIStackView>(uikit::Axis::horizontal);
    stack->addArrangedSubview(m_proLogoImageView);
    stack->setTranslatesAutoresizingMaskIntoConstraints(false);
    stack->setSpacing(8);
    addSubview(m_titleLabel);
    addSubview(stack);
    uikit::NSLayoutConstraint::activate({
        stack->centerXAnchor().constraintEqualTo(centerXAnchor()),
        stack->topAnchor().constraintEqualTo(topAnchor(), 57),
        stack->heightAnchor().constraintEqualToConstant(28),
        stack->leadingAnchor().constraintGreaterThanOrEqualTo(leadingAnchor()),
        m_titleLabel->topAnchor().constraintEqualTo(stack->bottomAnchor(), 16),
        m_titleLabel->centerXAnchor().constraintEqualTo(centerXAnchor()),
        m_titleLabel->leadingAnchor().constraintEqualTo(leadingAnchor(), 62),
        m_titleLabel->bottomAnchor().constraintEqualTo(bottomAnchor(), -30),
    });
}

} // namespace proupsells

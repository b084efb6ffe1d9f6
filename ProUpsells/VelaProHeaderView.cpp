#include "ProUpsells/VelaProHeaderView.hpp"

#include <cmath>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "Platform/VelaUIKit/VelaUIKitImage.hpp"

namespace proupsells {

std::optional<double> aspectRatio(geometry::Size size) {
    const double ratio = size.width / size.height;
    return std::isfinite(ratio) ? std::optional(ratio) : std::nullopt;
}

VelaProHeaderView::VelaProHeaderView(const geometry::Rect& frame)
    : StoreHeaderView(frame, foundation::localizable("It's never been easier to look professional."), 26),
      m_proLogoImageView(std::make_shared<uikit::UIImageView>(velauikit::VelaUIKitImage::marwickFolioWithProBadge())) {
    m_proLogoImageView->setTintColor(velauikit::velaLabel);
    m_proLogoImageView->setContentMode(uikit::UIImageView::ContentMode::aspectFit);
    // The shelf's height is fixed, so a long headline is set smaller before it is cut.
    titleLabel()->setMinimumScaleFactor(0.7);
    layOut();
}

void VelaProHeaderView::layOut() {
    if (const auto ratio = aspectRatio(m_proLogoImageView->image()->size))
        m_proLogoImageView->widthAnchor().constraintEqualToMultiplier(m_proLogoImageView->heightAnchor(), *ratio)->setActive(true);

    const auto stack = std::make_shared<uikit::UIStackView>(uikit::Axis::horizontal);
    stack->addArrangedSubview(m_proLogoImageView);
    stack->setTranslatesAutoresizingMaskIntoConstraints(false);
    stack->setSpacing(8);
    addSubview(stack);
    uikit::NSLayoutConstraint::activate({
        stack->centerXAnchor().constraintEqualTo(centerXAnchor()),
        stack->topAnchor().constraintEqualTo(topAnchor(), 57),
        stack->heightAnchor().constraintEqualToConstant(28),
        stack->leadingAnchor().constraintGreaterThanOrEqualTo(leadingAnchor()),
        titleLabel()->topAnchor().constraintEqualTo(stack->bottomAnchor(), 16),
        titleLabel()->centerXAnchor().constraintEqualTo(centerXAnchor()),
        titleLabel()->leadingAnchor().constraintEqualTo(leadingAnchor(), 62),
        titleLabel()->bottomAnchor().constraintEqualTo(bottomAnchor(), -30),
    });
}

} // namespace proupsells

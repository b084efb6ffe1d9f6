#include "ProUpsells/VelaProHeaderView.hpp"

#include <algorithm>
#include <cmath>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "Platform/VelaUIKit/VelaUIKitImage.hpp"

namespace proupsells {

namespace {

constexpr double logoTop = 57, logoHeight = 28, headlineTop = 16, headlineBottom = 30, headlineInset = 62;

} // namespace

std::optional<double> aspectRatio(geometry::Size size) {
    const double ratio = size.width / size.height;
    return std::isfinite(ratio) ? std::optional(ratio) : std::nullopt;
}

VelaProHeaderView::VelaProHeaderView(const geometry::Rect& frame)
    : StoreHeaderView(frame, headline, 26),
      m_proLogoImageView(std::make_shared<uikit::UIImageView>(velauikit::VelaUIKitImage::marwickFolioWithProBadge())) {
    m_proLogoImageView->setTintColor(velauikit::velaLabel);
    m_proLogoImageView->setContentMode(uikit::UIImageView::ContentMode::aspectFit);
    // The shelf's height is fixed, so a long headline is set smaller before it is cut.
    titleLabel()->setMinimumScaleFactor(0.7);
    applyLogoName();
    layOut();
}

void VelaProHeaderView::languageDidChange() {
    StoreHeaderView::languageDidChange();
    applyLogoName();
}

void VelaProHeaderView::applyLogoName() {
    m_proLogoImageView->accessibilitySpoken = {.role = accessibility::Role::image,
                                               .name = foundation::localizedString("Marwick Folio Pro")};
}

double VelaProHeaderView::heightAddedForHeadline(double width, const uikit::UITraitCollection& traits) const {
    constexpr double usualRoom = 220 - logoTop - logoHeight - headlineTop - headlineBottom;
    titleLabel()->setOverrideTraitCollection(traits);
    const double height = titleLabel()->sizeThatFits({width - 2 * headlineInset, std::nullopt}).height;
    titleLabel()->setOverrideTraitCollection(std::nullopt);
    return std::max(0.0, height - usualRoom);
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
        stack->topAnchor().constraintEqualTo(topAnchor(), logoTop),
        stack->heightAnchor().constraintEqualToConstant(logoHeight),
        stack->leadingAnchor().constraintGreaterThanOrEqualTo(leadingAnchor()),
        titleLabel()->topAnchor().constraintEqualTo(stack->bottomAnchor(), headlineTop),
        titleLabel()->centerXAnchor().constraintEqualTo(centerXAnchor()),
        titleLabel()->leadingAnchor().constraintEqualTo(leadingAnchor(), headlineInset),
        titleLabel()->bottomAnchor().constraintEqualTo(bottomAnchor(), -headlineBottom),
    });
}

} // namespace proupsells

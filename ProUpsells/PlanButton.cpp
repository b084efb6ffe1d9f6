#include "ProUpsells/PlanButton.hpp"

#include <algorithm>
#include <utility>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Graphics/ContentSize.hpp"
#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/ImageResource.hpp"

namespace proupsells {

namespace {

constexpr double titleSize = 18;

const uikit::UIColor& textAndIconColor() {
    static const uikit::UIColor color = velauikit::dynamicColor(16);
    return color;
}

// Drawn pointing to the right; points to the left where the language runs that way.
class ForwardArrow : public uikit::UIImageView {
public:
    ForwardArrow() : UIImageView(proupsells::image(ImageResource::buttonArrowRight(), graphics::RenderingMode::tinted)) {
        setTranslatesAutoresizingMaskIntoConstraints(false);
        setTintColor(textAndIconColor());
        setContentMode(ContentMode::center);
    }

protected:
    geometry::Transform presentationTransform() const override {
        return isRightToLeft() ? geometry::Transform::scaling(-1, 1) : geometry::Transform{};
    }
};

} // namespace

PlanButton::PlanButton() : m_titleLabel(std::make_shared<uikit::UILabel>()) {
    setBackgroundColor(velauikit::dynamicColor(22));
    setTranslatesAutoresizingMaskIntoConstraints(false);
    m_titleLabel->setTranslatesAutoresizingMaskIntoConstraints(false);
    m_titleLabel->setLargestTextSize(lumokit::LargestSize::buttonText);
    // The title gives way before the arrow does.
    m_titleLabel->setContentCompressionResistancePriority(uikit::layoutPriorityHigh - 1, uikit::Axis::horizontal);
    applyTexts();
    layOut(std::make_shared<ForwardArrow>());
}

void PlanButton::layoutSubviews() {
    setCornerRadius(bounds().height() / 2);
    // There is one line for the title, so a long one is set smaller until it fits.
    const auto category = std::min(traitCollection().preferredContentSizeCategory, lumokit::LargestSize::buttonText);
    m_titleLabel->setMinimumScaleFactor(graphics::leastTextSize / graphics::scaledSize(titleSize, category));
}

void PlanButton::applyTexts() {
    const std::string title = foundation::LocaleServices::current().titleCased(foundation::localizedString("choose your plan"),
                                                                               foundation::Locale::current());
    graphics::AttributedString text(
        title,
        {.font = velauikit::velaDefaultFont(velauikit::FontOption::bold, titleSize), .color = textAndIconColor(), .kern = 2});
    text.paragraphStyle = graphics::ParagraphStyle{5, graphics::TextAlignment::center};
    m_titleLabel->setAttributedText(std::move(text));
    accessibilityLabel = title;
}

void PlanButton::layOut(const std::shared_ptr<uikit::UIView>& arrow) {
    const auto container = std::make_shared<uikit::UIView>();
    container->setTranslatesAutoresizingMaskIntoConstraints(false);
    container->setUserInteractionEnabled(false);
    container->addSubview(m_titleLabel);
    container->addSubview(arrow);
    addSubview(container);

    // The container is as wide as what is in it, so the pair stays in the button's middle.
    uikit::NSLayoutConstraint::activate({
        m_titleLabel->trailingAnchor().constraintEqualTo(arrow->leadingAnchor(), -16),
        m_titleLabel->centerYAnchor().constraintEqualTo(arrow->centerYAnchor()),
        m_titleLabel->centerYAnchor().constraintEqualTo(container->centerYAnchor()),
        m_titleLabel->leadingAnchor().constraintEqualTo(container->leadingAnchor()),
        arrow->trailingAnchor().constraintEqualTo(container->trailingAnchor()),
        container->centerXAnchor().constraintEqualTo(centerXAnchor()),
        container->leadingAnchor().constraintGreaterThanOrEqualTo(leadingAnchor(), 16),
        container->heightAnchor().constraintEqualTo(heightAnchor()),
        container->topAnchor().constraintEqualTo(topAnchor()),
    });
}

} // namespace proupsells

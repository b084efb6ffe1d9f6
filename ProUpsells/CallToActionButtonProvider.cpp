#include "ProUpsells/CallToActionButtonProvider.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "Platform/VelaUIKit/Colors.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "ProUpsells/ImageResource.hpp"

namespace proupsells {

namespace {

const uikit::UIColor& textAndIconColor() {
    static const uikit::UIColor color = velauikit::dynamicColor(16);
    return color;
}

std::shared_ptr<uikit::UILabel> makeTitle() {
    const std::string title = foundation::LocaleServices::current().titleCased(foundation::localizedString("choose your plan"),
                                                                               foundation::Locale::current());
    graphics::AttributedString text(
        title, {.font = velauikit::velaDefaultFont(velauikit::FontOption::bold, 18), .color = textAndIconColor(), .kern = 2});
    text.paragraphStyle = graphics::ParagraphStyle{5, graphics::TextAlignment::center};
    const auto label = std::make_shared<uikit::UILabel>();
    label->setTranslatesAutoresizingMaskIntoConstraints(false);
    label->setAttributedText(std::move(text));
    return label;
}

std::shared_ptr<uikit::UIImageView> makeArrow() {
    const auto arrow =
        std::make_shared<uikit::UIImageView>(image(ImageResource::buttonArrowRight(), graphics::RenderingMode::tinted));
    arrow->setTranslatesAutoresizingMaskIntoConstraints(false);
    arrow->setTintColor(textAndIconColor());
    arrow->setContentMode(uikit::UIImageView::ContentMode::center);
    return arrow;
}

} // namespace

std::shared_ptr<uikit::UIButton> CallToActionButtonProvider::button(std::nullptr_t, uikit::Selector action,
                                                                    std::initializer_list<uikit::UIControl::Event> events) {
    const auto made = plainButton();
    for (const auto event : events) made->addTarget(nullptr, action, event);
    return made;
}

std::shared_ptr<uikit::UIButton> CallToActionButtonProvider::plainButton() {
    const auto button = std::make_shared<uikit::UIButton>();
    button->setBackgroundColor(velauikit::dynamicColor(22));
    button->setTranslatesAutoresizingMaskIntoConstraints(false);

    const auto label = makeTitle();
    const auto arrow = makeArrow();
    const auto container = std::make_shared<uikit::UIView>();
    container->setTranslatesAutoresizingMaskIntoConstraints(false);
    container->setUserInteractionEnabled(false);
    container->addSubview(label);
    container->addSubview(arrow);
    button->addSubview(container);
    button->accessibilityLabel = label->text();

    // The container is as wide as what is in it, so the pair stays in the button's middle.
    uikit::NSLayoutConstraint::activate({
        label->trailingAnchor().constraintEqualTo(arrow->leadingAnchor(), -16),
        label->centerYAnchor().constraintEqualTo(arrow->centerYAnchor()),
        label->centerYAnchor().constraintEqualTo(container->centerYAnchor()),
        label->leadingAnchor().constraintEqualTo(container->leadingAnchor()),
        arrow->trailingAnchor().constraintEqualTo(container->trailingAnchor()),
        container->centerXAnchor().constraintEqualTo(button->centerXAnchor()),
        container->heightAnchor().constraintEqualTo(button->heightAnchor()),
        container->topAnchor().constraintEqualTo(button->topAnchor()),
    });
    return button;
}

} // namespace proupsells

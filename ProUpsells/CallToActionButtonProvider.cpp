#include "ProUpsells/CallToActionButtonProvider.hpp"

#include "ProUpsells/PlanButton.hpp"

namespace proupsells {

std::shared_ptr<uikit::UIButton> CallToActionButtonProvider::button(std::nullptr_t, uikit::Selector action,
                                                                    std::initializer_list<uikit::UIControl::Event> events) {
    const auto made = makeButton();
    for (const auto event : events) made->addTarget(nullptr, action, event);
    return made;
}

std::shared_ptr<uikit::UIButton> CallToActionButtonProvider::makeButton() { return std::make_shared<PlanButton>(); }

} // namespace proupsells

// The bar at the top of a navigation controller.
#pragma once

#include "Platform/UIKit/Controllers/UINavigationItem.hpp"
#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"

namespace proupsells::uikit {

// The title in the middle, the right bar-button item at the trailing end. Its unsafe top is part of the background only.
class UINavigationBar final : public UIView {
public:
    UINavigationBar();
    std::string_view typeName() const override { return "UINavigationBar"; }

    void setItem(const UINavigationItem& item);
    void layoutSubviews() override;

private:
    void showButton(const std::optional<UIBarButtonItem>& item);
    std::shared_ptr<UIButton> makeButton();

    std::shared_ptr<UILabel> m_title;
    std::shared_ptr<UIButton> m_button; // null without an item
    UIBarButtonItem m_item;             // of the button
};

} // namespace proupsells::uikit

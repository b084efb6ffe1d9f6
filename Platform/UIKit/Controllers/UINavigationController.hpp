// A bar with a title and a button above one controller's view.
#pragma once

#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells::uikit {

class UINavigationBar;

class UINavigationController : public UIViewController {
    struct Creation {};

public:
    explicit UINavigationController(Creation) {}
    static constexpr double barHeight = 56;

    static std::shared_ptr<UINavigationController> create(std::shared_ptr<UIViewController> root);
    std::string_view typeName() const override { return "UINavigationController"; }

    UIViewController* topViewController() const { return children().empty() ? nullptr : children().back().get(); }
    UIViewController& contentViewController() override;
    // Behind the bar, and behind content that has no background of its own.
    void setBarBackgroundColor(const UIColor& color);
    // What the bar's tinted images are painted in; absent: what the bar inherits.
    void setBarTintColor(const std::optional<UIColor>& color);

    void viewDidLoad() override;
    void viewDidLayoutSubviews() override;

protected:
    geometry::PhysicalInsets safeAreaForChildren(const geometry::PhysicalInsets& own) const override;

private:
    friend class UIViewController;

    void updateBar();

    std::shared_ptr<UINavigationBar> m_bar;
    std::optional<UIColor> m_barTintColor;
    UIColor m_barBackgroundColor = {"systemBackground", graphics::rgb(0xFFFFFF), graphics::rgb(0x000000)};
};

} // namespace proupsells::uikit

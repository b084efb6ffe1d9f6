// A view controller around a declarative view.
#pragma once

#include "Platform/Hosting/UIHostingView.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells::hosting {

class UIHostingController : public uikit::UIViewController {
    struct Creation {};

public:
    UIHostingController(Creation, std::function<swiftui::View()> root);
    // `root` is called whenever the tree is built from its root.
    static std::shared_ptr<UIHostingController> create(std::function<swiftui::View()> root);
    // Shows `value`, which must be copyable.
    template <class Value>
    requires(swiftui::CompositeView<Value> ||
             swiftui::PrimitiveView<Value>) static std::shared_ptr<UIHostingController> create(Value value) {
        return create(std::function<swiftui::View()>([value = std::move(value)]() -> swiftui::View { return Value(value); }));
    }
    std::string_view typeName() const override { return "UIHostingController"; }

    void setRootView(std::function<swiftui::View()> root);
    template <class Value>
    requires(swiftui::CompositeView<Value> || swiftui::PrimitiveView<Value>) void setRootView(Value value) {
        setRootView(std::function<swiftui::View()>([value = std::move(value)]() -> swiftui::View { return Value(value); }));
    }
    // Loads the view on first use.
    UIHostingView& hostingView();
    swiftui::ViewHost& host() { return hostingView().host(); }

    void loadView() override;
    void viewWillAppear(bool animated) override;
    void viewDidDisappear(bool animated) override;

private:
    std::function<swiftui::View()> m_root;
    std::shared_ptr<UIHostingView> m_hostingView;
};

} // namespace proupsells::hosting

// Rules over one view and what is in it: loading, appearing, containment and presentation.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIModalPresentationStyle.hpp"
#include "Platform/UIKit/Controllers/UINavigationItem.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

class UINavigationController;

// Made with std::make_shared, or with the static `create` of classes whose making needs a weak reference to the new controller.
// Parents own children, presenters own what they present, a controller owns its view.
class PROUPSELLS_EXPORT UIViewController : public UIResponder {
public:
    UIViewController() = default;
    ~UIViewController() override;

    std::string_view typeName() const override { return "UIViewController"; }

    // --- View ---

    // Loads the view on first use.
    const std::shared_ptr<UIView>& view();
    // Null before it is loaded.
    UIView* viewIfLoaded() const { return m_view.get(); }
    bool isViewLoaded() const { return m_view != nullptr; }

    UIResponder* nextResponder() const override;

    // Makes the view and hands it to setView; a plain view unless overridden.
    virtual void loadView();
    // Told once, when the view is there, before anybody else gets it. The class itself does nothing about what it is told, here and
    // below: an override need not call it.
    virtual void viewDidLoad() {}
    // Told before and after the view comes into sight, and before and after it goes.
    virtual void viewWillAppear(bool /*animated*/) {}
    virtual void viewDidAppear(bool /*animated*/) {}
    virtual void viewWillDisappear(bool /*animated*/) {}
    virtual void viewDidDisappear(bool /*animated*/) {}
    // Told after the view has placed its subviews.
    virtual void viewDidLayoutSubviews() {}
    // Told after the view's unsafe edges have become other ones.
    virtual void viewSafeAreaInsetsDidChange() {}
    // Told after the view (see there).
    virtual void windowVisibilityDidChange() {}

    // What a navigation bar shows of the controller.
    const std::string& title() const { return m_title; }
    void setTitle(std::string title);
    const UINavigationItem& navigationItem() const { return m_navigationItem; }
    void setRightBarButtonItem(UIBarButtonItem item);

    // --- Traits ---

    // The view's; before it is in a window, those of the place that the controller is made for, as far as that is known.
    UITraitCollection traitCollection() const;
    // Told of changes while the view is shown.
    virtual void traitCollectionDidChange(const UITraitCollection& /*previous*/) {}
    // Told after the view (see there): texts that the controller keeps are to be read again.
    virtual void languageDidChange() {}

    // --- Containment ---

    // Null for none.
    UIViewController* parent() const { return m_parent; }
    // In the order in which they were added.
    const std::vector<std::shared_ptr<UIViewController>>& children() const { return m_children; }
    // Takes the child from its former parent and tells it that it will move; telling it that it did (didMoveToParent) is the
    // caller's. A child appears and disappears with its view, as far as this controller appears.
    void addChild(const std::shared_ptr<UIViewController>& child);
    // Tells the controller that it did move. Telling it before (willMoveToParent(nullptr)) is the caller's.
    void removeFromParent();
    // Told before and after the parent becomes another one; null for none.
    virtual void willMoveToParent(UIViewController* /*parent*/) {}
    virtual void didMoveToParent(UIViewController* /*parent*/) {}
    // The nearest navigation controller around this one; null for none.
    UINavigationController* navigationController() const;
    // What a container shows in the first place: a navigation controller's top controller, otherwise the controller itself.
    virtual UIViewController& contentViewController() { return *this; }

    // The person wants to leave this screen without a choice: does what its close button does, and returns true. Unless overridden,
    // the children are asked, the last one first.
    virtual bool accessibilityPerformEscape();
    // What the screen is called by those who hear it. Unless overridden the title, or where there is none a child's name, the last
    // one's first; empty for none.
    virtual std::string accessibilityScreenName() const;

    // --- Presentation ---

    // How the controller stands in the window when it is presented; to be set before.
    UIModalPresentationStyle modalPresentationStyle() const { return m_modalPresentationStyle; }
    void setModalPresentationStyle(UIModalPresentationStyle style) { m_modalPresentationStyle = style; }
    // How large a form sheet is to be, in points. Zero: none.
    geometry::Size preferredContentSize() const { return m_preferredContentSize; }
    void setPreferredContentSize(geometry::Size size) { m_preferredContentSize = size; }

    // Shows `controller` over the window, on behalf of this controller's outermost parent, which must be in a window. Ignored with
    // one log line when that parent presents already, or is in no window. While another presentation or dismissal is on its way,
    // this one waits for it. `completion` runs after viewDidAppear.
    void present(const std::shared_ptr<UIViewController>& controller, bool animated, std::function<void()> completion = {});
    // Takes away what this controller or one of its parents presents, with all that stands on it; if they present nothing, takes
    // away the presented one of them itself. Waits like `present`. Where nothing is presented, it asks whoever shows the window to
    // take its root controller away (UIWindow::setRootDismissalHandler); `completion` does not run then.
    void dismiss(bool animated, std::function<void()> completion = {});

    // What this controller or one of its parents presents; null for none. Stays until it has gone.
    UIViewController* presentedViewController() const;
    // Who presents this controller or one of its parents; null for none.
    UIViewController* presentingViewController() const;
    // From the call of `present` until the controller has appeared.
    bool isBeingPresented() const { return m_isBeingPresented; }
    // From the call of `dismiss` until the controller has disappeared.
    bool isBeingDismissed() const { return m_isBeingDismissed; }

    // Whether the appearance calls say that the view can be seen.
    bool isAppeared() const { return m_appearance == Appearance::appeared; }

protected:
    // From inside loadView(): the view that the controller owns from now on.
    void setView(std::shared_ptr<UIView> view);
    // What of this controller's unsafe edges its children's views reach under.
    virtual geometry::PhysicalInsets safeAreaForChildren(const geometry::PhysicalInsets& own) const { return own; }

private:
    friend class UIView;
    friend class UIWindow;
    friend class PresentationStack;

    enum class Appearance { disappeared, appearing, appeared, disappearing };

    const UIViewController& outermostParent() const;
    UIViewController& outermostParent();
    UIWindow* window() const;
    std::shared_ptr<UIWindow> windowForPresenting() const;
    void askForDismissal();
    bool viewStandsIn(const UIViewController& parent) const;
    // Begins and ends what the appearance calls announce; children whose views stand in this one's follow.
    void beginAppearance(bool appearing, bool animated);
    void endAppearance();
    void followedByChildren();
    // Brings a child to where its parent is, after one of them moved.
    void followParent();
    void navigationItemChanged();
    // The place that the controller is made for, while its view is in no window.
    UITraitCollection expectedTraits() const;
    geometry::PhysicalInsets expectedSafeArea() const;
    geometry::Rect expectedFrame(const UIWindow& window) const;

    std::shared_ptr<UIView> m_view;
    std::string m_title;
    UINavigationItem m_navigationItem;

    UIViewController* m_parent = nullptr;
    std::vector<std::shared_ptr<UIViewController>> m_children;

    std::shared_ptr<UIViewController> m_presented;
    std::weak_ptr<UIViewController> m_presenting;
    UIModalPresentationStyle m_modalPresentationStyle = UIModalPresentationStyle::automatic;
    geometry::Size m_preferredContentSize;

    Appearance m_appearance = Appearance::disappeared;
    bool m_appearanceIsAnimated = false;
    bool m_isBeingPresented = false;
    bool m_isBeingDismissed = false;
    std::weak_ptr<UIWindow> m_expectedWindow; // of the root controller and of presented ones
};

} // namespace proupsells::uikit

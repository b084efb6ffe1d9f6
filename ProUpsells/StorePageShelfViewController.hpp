// A strip that scrolls sideways: one image, one view, or a long row of tiles that may drift by itself.
#pragma once

#include <memory>

#include "Platform/Foundation/Coder.hpp"
#include "Platform/RunLoop/Timer.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"
#include "Platform/UIKit/Views/UIScrollView.hpp"
#include "ProUpsells/RepeatableView.hpp"

namespace proupsells {

// Drifts only while it is on the screen and nobody touches it or rests on it, at 50 points a second, until it comes to its end.
// Stands still where motion is to be reduced.
class StorePageShelfViewController : public uikit::UIViewController {
public:
    // Where the content drifts.
    enum class ScrollDirection { left, none, right };

    // One image, centred; null gives an empty strip.
    static std::shared_ptr<StorePageShelfViewController> create(const uikit::UIImage& image);
    // One view, centred.
    static std::shared_ptr<StorePageShelfViewController> createWithCustomView(const std::shared_ptr<uikit::UIView>& view);
    // One view with 16 points on both sides.
    static std::shared_ptr<StorePageShelfViewController> createWithPaddedCustomView(const std::shared_ptr<uikit::UIView>& view);
    // 21 tiles, `spacing` points apart, with 16 points on both sides.
    static std::shared_ptr<StorePageShelfViewController> create(const RepeatableView& repeatingView, double spacing);
    // Stops the program.
    [[noreturn]] static std::shared_ptr<StorePageShelfViewController> create(const foundation::Coder& coder);
    ~StorePageShelfViewController() override;

    std::string_view typeName() const override { return "StorePageShelfViewController"; }

    const std::shared_ptr<uikit::UIScrollView>& scrollView() const { return m_scrollView; }
    ScrollDirection scrollDirection() const { return m_scrollDirection; }
    // Goes back to the direction's start, also when it is the same one again.
    virtual void setScrollDirection(ScrollDirection direction);
    // Whether a timer runs.
    bool isAutoScrolling() const { return m_autoScrollTimer && m_autoScrollTimer->isValid(); }

    // One step of the drift: 5 points in 0.1 seconds.
    virtual void autoScroll();

    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    void viewDidDisappear(bool animated) override;
    void viewDidLayoutSubviews() override;
    void traitCollectionDidChange(const uikit::UITraitCollection& previous) override;
    void windowVisibilityDidChange() override;

protected:
    StorePageShelfViewController();
    virtual void startAutoScrollTimer();
    virtual void embedCenteredContent(const std::shared_ptr<uikit::UIView>& content);
    virtual void embedPaddedContent(const std::shared_ptr<uikit::UIView>& content);
    virtual void resetScrollOffset();

private:
    struct Maker;

    void stopAutoScrollTimer();
    void followSight();
    bool isInHiddenWindow() const;
    bool isAtItsContent() const;

    std::shared_ptr<uikit::UIScrollView> m_scrollView;
    std::shared_ptr<runloop::Timer> m_autoScrollTimer;
    ScrollDirection m_scrollDirection = ScrollDirection::none;
    bool m_isShown = false; // between viewWillAppear and viewDidDisappear
};

} // namespace proupsells

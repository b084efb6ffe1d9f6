// A window onto content that may be larger than itself.
#pragma once

#include "Platform/Graphics/ScrollIndicator.hpp"
#include "Platform/Motion/ScrollAxis.hpp"
#include "Platform/RunLoop/Timer.hpp"
#include "Platform/UIKit/Views/UIScrollViewDelegate.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

// The frames of its subviews are in content coordinates; the content offset is the origin of its bounds. For its subviews, the edge
// anchors of a scroll view are the content's edges; width, height and centre are those of its frame.
class UIScrollView : public UIView {
public:
    enum class ContentInsetAdjustmentBehavior { automatic, never };

    UIScrollView();
    ~UIScrollView() override;
    std::string_view typeName() const override { return "UIScrollView"; }

    // Held weakly.
    virtual void setDelegate(std::weak_ptr<UIScrollViewDelegate> delegate) { m_delegate = std::move(delegate); }

    // --- Content ---

    // A length that constraints between the content and this view's edges give wins over the one that is set.
    geometry::Size contentSize() const { return m_contentSize; }
    void setContentSize(geometry::Size size);
    geometry::PhysicalInsets contentInset() const { return m_contentInset; }
    void setContentInset(const geometry::PhysicalInsets& inset);
    // The content inset, plus the safe area's insets where the behaviour asks for them.
    geometry::PhysicalInsets adjustedContentInset() const;
    ContentInsetAdjustmentBehavior contentInsetAdjustmentBehavior() const { return m_adjustmentBehavior; }
    void setContentInsetAdjustmentBehavior(ContentInsetAdjustmentBehavior behavior);

    // --- Offset ---

    // Where the content stands at this very moment.
    geometry::Point contentOffset() const;
    // Goes there even if there is nothing to see. When sizes change, an offset that the program has set stays; one that a person
    // has scrolled to moves back to where there is content. A finger that drags the content holds it in the new place, without an
    // animation.
    void setContentOffset(geometry::Point offset, bool animated = false);
    void setContentOffset(geometry::Point offset, const motion::Animation& animation);

    // A finger is down on the content.
    bool isTracking() const { return m_isTracking; }
    // The content follows a finger.
    bool isDragging() const { return m_isDragging; }
    // The content goes on by itself after a finger has let go.
    bool isDecelerating() const;

    bool isScrollEnabled() const { return m_isScrollEnabled; }
    // Only for fingers and wheels.
    void setScrollEnabled(bool enabled);
    // Whether a finger can pull content that fits, too.
    bool alwaysBounceVertical() const { return m_alwaysBouncesVertically; }
    void setAlwaysBounceVertical(bool bounces);
    bool showsVerticalScrollIndicator() const { return m_showsIndicators[1]; }
    void setShowsVerticalScrollIndicator(bool shows);
    bool showsHorizontalScrollIndicator() const { return m_showsIndicators[0]; }
    void setShowsHorizontalScrollIndicator(bool shows);

    // Moves the bounds of all moving scroll views to where their content stands at this moment.
    static void followTime();

    // --- UIView ---

    bool isAnimating() const override;
    bool takesOverTouch(const UITouch& touch) override;
    bool keepsTouch() const override { return m_isDragging; }
    void touchesBegan(const UITouch& touch) override;
    void touchesMoved(const UITouch& touch) override;
    void touchesEnded(const UITouch& touch) override;
    void touchesCancelled(const UITouch& touch) override;
    bool scrollsItsContent() const override { return true; }
    bool scrollBy(geometry::Point location, geometry::Point delta) override;
    void scrollRectToVisible(const geometry::Rect& rect) override;
    void safeAreaInsetsDidChange() override;

protected:
    // Moves the offset back to where there is content, whoever has set it. Content that is held or moves stays where it is.
    void clampOffset();
    // Called after every change of the offset.
    virtual void contentOffsetDidChange() {}
    // Whether contentOffsetDidChange must be called while the content moves by itself, and not only when the picture is made.
    virtual bool followsMovement() const { return !m_delegate.expired(); }

    void frameDidChange(const geometry::Rect& previous) override;
    void paintSubviews(graphics::PaintContext& context, const graphics::PaintState& state) const override;
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override;

private:
    friend class LayoutSystem;

    // A call of the delegate.
    using Event = void (UIScrollViewDelegate::*)(UIScrollView&);

    // The content offset is the only way to move the bounds.
    using UIView::setBounds;
    using UIView::setBoundsOrigin;

    motion::ScrollAxis& axisAlong(Axis axis) { return m_axes[std::size_t(axis)]; }
    const motion::ScrollAxis& axisAlong(Axis axis) const { return m_axes[std::size_t(axis)]; }
    // Whether there is more content than the viewport shows.
    bool overflows(Axis axis) const;
    bool canScroll(Axis axis) const;
    void setContentSizeFromConstraints(std::optional<double> width, std::optional<double> height);
    void adoptContentSize();
    // After a change of the content's, the viewport's or the insets' size.
    void adoptRanges();

    // The finger in the viewport, whose origin stands still.
    geometry::Point fingerAt(geometry::Point location) const { return location - bounds().origin; }
    std::optional<geometry::Point> dragOrigin(const UITouch& touch) const;
    void beginDragging(geometry::Point finger, double time_s);
    void endTouch(double time_s, bool isFlick);
    // Scrolls by as little as makes what lies between the two visible; returns whether it has moved.
    bool reveal(Axis axis, double first, double last);

    bool isMovingAt(double now_s) const;
    double movementEnd_s() const;
    // The axes have been set going: follows them until they come to rest, and then tells the delegate.
    void startMovement(Event atEnd);
    // Does not follow the axes any more.
    void endMovement();
    // Stops the axes where they stand now.
    void stopMovement();
    void stepMovement();
    // Moves the bounds to where the axes stand.
    void adoptOffset();
    void tellDelegate(Event event);
    bool showsIndicator(Axis axis) const;
    void paintIndicator(Axis axis, graphics::PaintContext& context, const graphics::PaintState& state) const;

    std::weak_ptr<UIScrollViewDelegate> m_delegate;
    geometry::Size m_ownContentSize, m_contentSize;
    std::optional<double> m_constrainedWidth, m_constrainedHeight;
    geometry::PhysicalInsets m_contentInset;
    ContentInsetAdjustmentBehavior m_adjustmentBehavior = ContentInsetAdjustmentBehavior::automatic;
    bool m_alwaysBouncesVertically = false;
    bool m_showsIndicators[2] = {true, true};
    bool m_isScrollEnabled = true;

    bool m_isTracking = false;
    bool m_isDragging = false;
    motion::ScrollAxis m_axes[2];
    Event m_movementEnd = nullptr; // what the delegate is told then; null while nothing moves by itself
    std::shared_ptr<runloop::Timer> m_steps;
    graphics::ScrollIndicator m_indicator;
};

} // namespace proupsells::uikit

// A window onto content that may be larger than itself.
#pragma once

#include "Platform/Graphics/ScrollIndicator.hpp"
#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/Motion/VelocityTracker.hpp"
#include "Platform/RunLoop/Timer.hpp"
#include "Platform/UIKit/Views/ScrollMovement.hpp"
#include "Platform/UIKit/Views/UIScrollViewDelegate.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

// Its subviews' frames are in content coordinates; the content offset is the origin of its bounds. Seen from the content, the
// scroll view's edge anchors are the content's edges; its width, height and centre are the frame's.
class UIScrollView : public UIView {
public:
    enum class ContentInsetAdjustmentBehavior { automatic, never };

    UIScrollView();
    ~UIScrollView() override;
    std::string_view typeName() const override { return "UIScrollView"; }

    // Held weakly.
    virtual void setDelegate(std::weak_ptr<UIScrollViewDelegate> delegate) { m_delegate = std::move(delegate); }

    // --- Content ---

    // What the constraints between the content and this view's edges say comes before what is set.
    geometry::Size contentSize() const { return m_contentSize; }
    void setContentSize(geometry::Size size);
    geometry::PhysicalInsets contentInset() const { return m_contentInset; }
    void setContentInset(const geometry::PhysicalInsets& inset);
    // With the safe area's insets, as far as the behaviour says so.
    geometry::PhysicalInsets adjustedContentInset() const;
    ContentInsetAdjustmentBehavior contentInsetAdjustmentBehavior() const { return m_adjustmentBehavior; }
    void setContentInsetAdjustmentBehavior(ContentInsetAdjustmentBehavior behavior);

    // --- Offset ---

    // Where the content stands at this very moment.
    geometry::Point contentOffset() const;
    // Goes there even where nothing is to be seen. An offset that the program has set is left alone when sizes change; one that a
    // person has scrolled to is moved back to where there is content.
    void setContentOffset(geometry::Point offset, bool animated = false);
    // With an animation of one's own.
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
    // Whether content that fits can be pulled all the same.
    bool alwaysBounceVertical() const { return m_alwaysBounces[1]; }
    void setAlwaysBounceVertical(bool bounces) { m_alwaysBounces[1] = bounces; }
    bool alwaysBounceHorizontal() const { return m_alwaysBounces[0]; }
    void setAlwaysBounceHorizontal(bool bounces) { m_alwaysBounces[0] = bounces; }
    bool showsVerticalScrollIndicator() const { return m_showsIndicators[1]; }
    void setShowsVerticalScrollIndicator(bool shows);
    bool showsHorizontalScrollIndicator() const { return m_showsIndicators[0]; }
    void setShowsHorizontalScrollIndicator(bool shows);

    // Brings all scroll views that move to where they stand at this moment.
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
    // Moves an offset that a person has scrolled to back to where there is content, unless it moves.
    void keepOffsetInRange();
    // The same, whoever has set the offset.
    void clampOffset();
    // After every change of the offset.
    virtual void contentOffsetDidChange() {}
    // Whether contentOffsetDidChange must be called while the content moves by itself, and not only when the picture is made.
    virtual bool followsMovement() const { return !m_delegate.expired(); }

    void frameDidChange(const geometry::Rect& previous) override;
    void paintSubviews(graphics::PaintContext& context, const graphics::PaintState& state) const override;
    void describe(accessibility::Node& node, const graphics::PaintState& state) const override;

private:
    friend class LayoutSystem;

    motion::ScrollRange rangeAlong(Axis axis) const;
    bool canScroll(Axis axis) const;
    void setContentSizeFromConstraints(std::optional<double> width, std::optional<double> height);
    void adoptContentSize();
    void adoptInset();

    // The finger in the viewport, whose origin stands still.
    geometry::Point fingerAt(geometry::Point location) const { return location - bounds().origin; }
    std::optional<geometry::Point> dragOrigin(const UITouch& touch) const;
    void beginDragging(geometry::Point finger, double time_s);
    void holdContentAt(geometry::Point finger);
    void drag(geometry::Point finger, double time_s);
    void endTouch(double time_s, bool isFlick);
    // Goes on within the ranges. Returns whether there is a way to go.
    bool decelerate(geometry::Point velocity, double now_s);

    void startMovement(const ScrollMovement& movement);
    // Where it stands now.
    void stopMovement();
    void stepMovement();
    void finishMovement();
    void applyOffset(geometry::Point offset);
    void tellDelegate(void (UIScrollViewDelegate::*call)(UIScrollView&));
    // Whether there is something that a bar could show.
    bool showsIndicator(Axis axis) const;
    void paintIndicator(Axis axis, graphics::PaintContext& context, const graphics::PaintState& state) const;

    std::weak_ptr<UIScrollViewDelegate> m_delegate;
    geometry::Size m_ownContentSize, m_contentSize;
    std::optional<double> m_constrainedWidth, m_constrainedHeight;
    geometry::PhysicalInsets m_contentInset;
    geometry::PhysicalInsets m_adoptedInset; // what the offset was last brought in line with
    ContentInsetAdjustmentBehavior m_adjustmentBehavior = ContentInsetAdjustmentBehavior::automatic;
    bool m_alwaysBounces[2] = {false, false};
    bool m_showsIndicators[2] = {true, true};
    bool m_isScrollEnabled = true;
    bool m_isOffsetOfPerson = false; // not the program's

    bool m_isTracking = false;
    bool m_isDragging = false;
    geometry::Point m_finger, m_fingerAtStart;
    geometry::Point m_draggedAtStart; // the offset before the rubber band, when the finger took hold
    motion::VelocityTracker m_speeds[2];
    std::optional<ScrollMovement> m_movement;
    std::shared_ptr<runloop::Timer> m_steps;
    graphics::ScrollIndicator m_indicator;
};

} // namespace proupsells::uikit

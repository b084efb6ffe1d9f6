// What a presented controller's view stands in: dims what is behind it and moves the card in and out.
#pragma once

#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells::uikit {

class UIPresentationCard;

// Fills the window. Its layout is the final one from the start; only the picture moves, as a function of time. Where motion is to
// be reduced the card fades instead.
class UIPresentationView final : public UIView {
public:
    static constexpr motion::Animation transition{motion::TimingCurve::easeInOut(), 0.5, 0};

    explicit UIPresentationView(const std::shared_ptr<UIViewController>& controller);
    std::string_view typeName() const override { return "UIPresentationView"; }
    // Touches beside the card are nobody's.
    UIResponder* nextResponder() const override { return nullptr; }

    // Begins to move in, or out, at the main run loop's time.
    void enter();
    void leave();
    // Stands where it belongs from now on.
    void rest();
    // How far the card is in, from 0 to 1.
    double progress() const;
    // What is presented over this one, if anything. A card goes back behind it, so that no strip of one looks out behind another.
    void setPresentationInFront(std::weak_ptr<const UIPresentationView> front) { m_front = std::move(front); }

    void layoutSubviews() override;
    UITraitCollection traitsForSubviews() const override;
    bool covers(const geometry::Rect& rect) const override;
    bool isAnimating() const override;
    // The controller's view alone.
    accessibility::SemanticNode contentNode(const graphics::PaintState& state) const;

protected:
    void draw(graphics::PaintContext& context, const graphics::PaintState& state) const override;

private:
    enum class Phase { entering, resting, leaving };

    friend class UIPresentationCard;

    geometry::Rect cardFrame(geometry::Size windowSize) const;
    double progressInFront() const;
    double cardOpacity() const;

    UIModalPresentationStyle m_style;
    geometry::Size m_preferredSize;
    std::shared_ptr<UIPresentationCard> m_card;
    std::weak_ptr<const UIPresentationView> m_front;
    Phase m_phase = Phase::resting;
    double m_start_s = 0;
};

} // namespace proupsells::uikit

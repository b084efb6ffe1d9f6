#include "Platform/UIKit/Controllers/UIPresentationView.hpp"

#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

// Clips the presented view to its corners where it does not fill the window.
class UIPresentationCard final : public UIView {
public:
    static constexpr double cornerRadius = 12;

    UIPresentationCard(const UIPresentationView& stage, std::shared_ptr<UIView> content)
        : m_stage(stage), m_content(std::move(content)) {
        addSubview(m_content);
    }
    std::string_view typeName() const override { return "UIPresentationCard"; }

    const UIView& content() const { return *m_content; }

    // A card that reaches the window's bottom hangs over it by its lower corners, which so stay straight.
    void place(const geometry::Rect& frame, geometry::Size windowSize) {
        const bool fills = frame == geometry::Rect{{}, windowSize};
        const bool reachesBottom = frame.maxY() >= windowSize.height;
        setClipsToBounds(!fills);
        setCornerRadius(fills ? 0 : cornerRadius);
        m_contentSize = frame.size;
        m_distance = windowSize.height - frame.minY();
        setFrame({frame.origin, {frame.width(), frame.height() + (reachesBottom && !fills ? cornerRadius : 0)}});
        setNeedsLayout();
    }

    void layoutSubviews() override { m_content->setFrame({{}, m_contentSize}); }

    // The content alone: what hangs over the window's bottom is not to be seen anyway.
    bool covers(const geometry::Rect& rect) const override {
        const bool moves = m_stage.progress() < 1;
        return !moves && !clipsToBounds() && m_content->covers(rect);
    }

protected:
    geometry::Transform presentationTransform() const override {
        const double missing = traitCollection().reduceMotion ? 0 : 1 - m_stage.progress();
        return geometry::Transform::translation(0, missing * m_distance);
    }
    double presentationAlpha() const override { return traitCollection().reduceMotion ? m_stage.progress() : 1; }

private:
    const UIPresentationView& m_stage;
    std::shared_ptr<UIView> m_content;
    geometry::Size m_contentSize;
    double m_distance = 0;
};

UIPresentationView::UIPresentationView(const std::shared_ptr<UIViewController>& controller)
    : m_style(controller->modalPresentationStyle()), m_preferredSize(controller->preferredContentSize()),
      m_card(std::make_shared<UIPresentationCard>(*this, controller->view())) {
    addSubview(m_card);
}

void UIPresentationView::enter() {
    m_phase = Phase::entering;
    m_start_s = runloop::MainRunLoop::main().now_s();
    setNeedsDisplay();
}

void UIPresentationView::leave() {
    m_phase = Phase::leaving;
    m_start_s = runloop::MainRunLoop::main().now_s();
    setNeedsDisplay();
}

void UIPresentationView::rest() {
    m_phase = Phase::resting;
    setNeedsDisplay();
}

double UIPresentationView::progress() const {
    if (m_phase == Phase::resting) return 1;
    const double share = transition.progressAt(runloop::MainRunLoop::main().now_s() - m_start_s);
    return m_phase == Phase::entering ? share : 1 - share;
}

geometry::Rect UIPresentationView::cardFrame(geometry::Size windowSize) const {
    return presentationFrame(m_style, m_preferredSize, windowSize);
}

void UIPresentationView::layoutSubviews() { m_card->place(cardFrame(bounds().size), bounds().size); }

UITraitCollection UIPresentationView::traitsForSubviews() const {
    UITraitCollection traits = traitCollection();
    if (const UIWindow* window = UIView::window()) {
        const double width = cardFrame(window->frame().size).width();
        traits.horizontalSizeClass = width < regularWidth ? UIUserInterfaceSizeClass::compact : UIUserInterfaceSizeClass::regular;
    }
    return traits;
}

bool UIPresentationView::covers(const geometry::Rect& rect) const {
    if (m_phase != Phase::resting || isHidden()) return false;
    return m_style == UIModalPresentationStyle::fullScreen || m_card->covers(rect);
}

void UIPresentationView::draw(graphics::PaintContext& context, const graphics::PaintState& state) const {
    constexpr double dimming = 0.4;
    if (m_style == UIModalPresentationStyle::fullScreen || covers(bounds())) return;
    context.fillRectangle(state.fadedBy(dimming * progress()), bounds(), UIColor::black.resolved(state.scheme));
}

accessibility::SemanticNode UIPresentationView::contentNode(const graphics::PaintState& state) const {
    accessibility::SemanticNode card = std::move(semanticNode(state).children.front());
    return std::move(card.children.front());
}

} // namespace proupsells::uikit

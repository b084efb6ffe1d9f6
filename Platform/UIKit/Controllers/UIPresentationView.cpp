#include "Platform/UIKit/Controllers/UIPresentationView.hpp"

#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

namespace {

// Around a card in the dark, where the dimmed surroundings are hardly darker than the card.
constexpr UIColor cardEdge{"cardEdge", graphics::rgb(0, 0), graphics::rgb(0x343C40)};

} // namespace

// Clips the presented view to its corners where it does not fill the window.
class UIPresentationCard final : public UIView {
public:
    static constexpr double cornerRadius = 12, edgeWidth = 1;

    UIPresentationCard(const UIPresentationView& stage, std::shared_ptr<UIView> content)
        : m_stage(stage), m_content(std::move(content)) {
        addSubview(m_content);
    }
    std::string_view typeName() const override { return "UIPresentationCard"; }

    const UIView& content() const { return *m_content; }

    void place(const geometry::Rect& frame, geometry::Size windowSize) {
        const bool fills = frame == geometry::Rect{{}, windowSize};
        setClipsToBounds(!fills);
        setCornerRadius(fills ? 0 : cornerRadius);
        m_distance = windowSize.height - frame.minY();
        setFrame(frame);
        m_content->setFrame(bounds());
    }
    bool fillsWindow() const { return !clipsToBounds(); }

    // The inner half of the line lies below the card.
    void drawEdge(graphics::PaintContext& context, const graphics::PaintState& state) const {
        if (fillsWindow()) return;
        const geometry::Transform transform = presentationTransform();
        context.strokeRoundedRectangle(state.fadedBy(presentationAlpha()), frame().offsetBy({transform.tx, transform.ty}),
                                       cornerRadius, geometry::CornerStyle::circular, 2 * edgeWidth,
                                       cardEdge.resolved(state.scheme));
    }

    bool covers(const geometry::Rect& rect) const override {
        const bool moves = m_stage.progress() < 1;
        return !moves && fillsWindow() && m_content->covers(rect);
    }

protected:
    geometry::Transform presentationTransform() const override {
        const double missing = traitCollection().reduceMotion ? 0 : 1 - m_stage.progress();
        return geometry::Transform::translation(0, missing * m_distance);
    }
    double presentationAlpha() const override { return m_stage.cardOpacity(); }

private:
    const UIPresentationView& m_stage;
    std::shared_ptr<UIView> m_content;
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

// How far the foremost card in front is in. One that is hidden leaves together with those on it.
double UIPresentationView::progressInFront() const {
    const auto front = m_front.lock();
    if (!front || front->m_style == UIModalPresentationStyle::fullScreen) return 0;
    return std::max(front->isHidden() ? 0 : front->progress(), front->progressInFront());
}

double UIPresentationView::cardOpacity() const {
    const double own = traitCollection().reduceMotion ? progress() : 1;
    return m_card->fillsWindow() ? own : own * (1 - progressInFront());
}

bool UIPresentationView::isAnimating() const {
    const bool isSeen = m_card->fillsWindow() || progressInFront() < 1;
    return m_phase != Phase::resting || (isSeen && UIView::isAnimating());
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

// All that is presented dims the window together: what is in front dims this one's surroundings, too, which so need only the rest.
void UIPresentationView::draw(graphics::PaintContext& context, const graphics::PaintState& state) const {
    constexpr double dimming = 0.4;
    if (m_style == UIModalPresentationStyle::fullScreen || covers(bounds())) return;
    const double wanted = dimming * progress(), inFront = dimming * progressInFront();
    if (wanted > inFront)
        context.fillRectangle(state.fadedBy((wanted - inFront) / (1 - inFront)), bounds(), UIColor::black.resolved(state.scheme));
    m_card->drawEdge(context, state);
}

accessibility::SemanticNode UIPresentationView::contentNode(const graphics::PaintState& state) const {
    accessibility::SemanticNode card = std::move(semanticNode(state).children.front());
    return std::move(card.children.front());
}

} // namespace proupsells::uikit

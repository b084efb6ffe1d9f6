#include "Platform/SwiftUI/Views/TabView.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Platform/Motion/DragOrigin.hpp"
#include "Platform/Motion/ScrollAxis.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/SwiftUI/Animation/PageFade.hpp"
#include "Platform/SwiftUI/Animation/Transaction.hpp"
#include "Platform/SwiftUI/Tree/GestureHandler.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {
namespace {

// A finger that is faster than this turns the page, however far it has come. Points a second.
constexpr double turningSpeed = 250;

class TabViewNode;

class TagNode final : public ModifierNode {
public:
    void adopt(TagModifier&& modifier, UpdatePass&) { m_tag = modifier.tag; }
    int tag() const { return m_tag; }
    void setPlace(const TabViewNode& tabView, int page) {
        m_tabView = &tabView;
        m_page = page;
    }

    void applyEffects(graphics::PaintState& state, double now_s) const override;

protected:
    bool allowsHitTesting() const override;

private:
    int m_tag = 0;
    const TabViewNode* m_tabView = nullptr; // null outside pages
    int m_page = 0;
};

// The tag of a page, which may itself be a view made of others.
TagNode* tagOf(Node* node) {
    while (node) {
        if (auto* tagged = dynamic_cast<TagNode*>(node)) return tagged;
        node = node->children().size() == 1 ? node->onlyChild() : nullptr;
    }
    return nullptr;
}

class TabViewNode final : public Node, public GestureHandler {
public:
    ~TabViewNode() override { stopWaiting(); }

    void adopt(TabView&& view, UpdatePass& pass);

    LengthRange lengthRange(Axis, std::optional<double>) override { return {0, geometry::infinity}; }
    geometry::Point contentTranslation(double now_s) const override {
        const double shift = m_position.offsetAt(now_s) * frame().width();
        return {environment().isRightToLeft() ? shift : -shift, 0};
    }
    std::optional<geometry::Rect> viewport() const override { return bounds(); }
    // Puts a page that fades where the one is that stays.
    void applyFade(graphics::PaintState& state, int page, double now_s) const;
    bool isFadingOut(int page, double now_s) const { return page != m_target && m_fade.includes(page, now_s); }
    void applyEffects(graphics::PaintState& state, double) const override { state = state.clippedTo(bounds()); }

    // --- Touches
    GestureHandler* gestureHandler() override { return m_pages.size() > 1 ? this : nullptr; }
    bool interceptsTouch(const TouchEvent& event) override {
        m_isHeld = m_position.isMovingAt(event.time_s);
        return m_isHeld;
    }
    bool touchBegan(const TouchEvent& event) override {
        if (m_isHeld) beginDragging(event.location, event.time_s);
        return true;
    }
    void touchMoved(const TouchEvent& event) override;
    void touchEnded(const TouchEvent& event) override;
    void touchCancelled() override { letGo(host().now_s()); }
    bool claims(const TouchEvent& event) override {
        m_isHeld = false;
        return motion::dragOrigin(Axis::horizontal, event.start, event.location).has_value();
    }
    bool holdsTouch() const override { return m_position.isTracking(); }

protected:
    geometry::Size measure(const geometry::ProposedSize& proposal) override;
    void layOut(const geometry::ProposedSize& proposal, geometry::Size size) override;
    // While nothing moves, the page that comes next is looked at.
    void paintOverlay(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) override;
    bool isHittable() const override { return true; }
    std::string_view semanticType() const override { return "TabView"; }

private:
    geometry::Rect bounds() const { return {{}, frame().size}; }
    void turnTo(int page, const motion::Animation* animation, double now_s);
    // A page that slides in by an animation is there at once.
    void endSlide(double now_s);
    // In pages.
    double fingerAt(geometry::Point location) const {
        return (environment().isRightToLeft() ? -location.x : location.x) / frame().width();
    }
    int lastPage() const { return std::max(0, int(m_pages.size()) - 1); }
    // The page of the selection; the one shown so far if no page has it.
    int selectedPage() const;
    int tagOfPage(int page) const;
    // The page to go to when the finger lifts now.
    int pageForLift(double now_s) const;
    void keepToExistingPages(double now_s);
    void beginDragging(geometry::Point finger, double now_s);
    void letGo(double now_s);
    void noteMoving();
    void stopWaiting();

    std::optional<Binding<int>> m_selection;
    std::vector<Node*> m_pages;
    motion::ScrollAxis m_position;
    int m_target = 0;      // the page to rest on
    PageFade m_fade;       // while it is under way, the position is at rest
    bool m_isHeld = false; // the next touch takes hold at once
    std::shared_ptr<runloop::Timer> m_arrival;
};

void TabViewNode::adopt(TabView&& view, UpdatePass& pass) {
    const bool isFirst = isNew();
    m_selection.emplace(std::move(view.selection));
    updateChildren(view.content, pass);
    m_pages.clear();
    collectLayoutChildren(m_pages);
    for (std::size_t page = 0; page < m_pages.size(); ++page)
        if (TagNode* tagged = tagOf(m_pages[page])) tagged->setPlace(*this, int(page));
    keepToExistingPages(pass.now_s);
    if (environmentChanged() && environment().reduceMotion) endSlide(pass.now_s);
    const int page = selectedPage();
    if (!isFirst && page == m_target) return;
    turnTo(page, isFirst ? nullptr : pass.animation, pass.now_s);
}

void TabViewNode::turnTo(int page, const motion::Animation* animation, double now_s) {
    const int former = std::exchange(m_target, page);
    // A finger keeps what it holds.
    if (m_position.isTracking()) return;
    const bool fades = animation && environment().reduceMotion;
    if (fades)
        m_fade.begin(int(m_pages.size()), former, page, *animation, now_s);
    else
        m_fade.end();
    if (animation && !fades)
        m_position.animateTo(page, *animation, now_s);
    else
        m_position.moveTo(page);
    // A page that fades stands where the other one is.
    for (Node* faded : m_pages)
        if (TagNode* tagged = fades ? tagOf(faded) : nullptr) tagged->noteMovement(m_fade.end_s());
    noteMoving();
}

void TabViewNode::endSlide(double now_s) {
    if (!m_position.isMovingAt(now_s) || m_position.isCoastingAt(now_s)) return;
    m_position.moveTo(m_target);
    noteMoving();
}

void TabViewNode::applyFade(graphics::PaintState& state, int page, double now_s) const {
    if (!m_fade.includes(page, now_s)) return;
    const double shift = (m_position.offsetAt(now_s) - page) * frame().width();
    state = state.movedBy({environment().isRightToLeft() ? -shift : shift, 0}).fadedBy(m_fade.opacityOf(page, now_s));
}

void TabViewNode::keepToExistingPages(double now_s) {
    const int last = lastPage();
    m_position.setPages(int(m_pages.size()), frame().width(), now_s);
    if (m_target <= last && m_position.offsetAt(now_s) <= last) return;
    m_target = std::min(m_target, last);
    if (!m_position.isTracking()) m_position.moveTo(m_target);
}

int TabViewNode::selectedPage() const {
    const int selected = m_selection->get();
    for (int page = 0; page < int(m_pages.size()); ++page)
        if (tagOfPage(page) == selected) return page;
    return m_target;
}

int TabViewNode::tagOfPage(int page) const {
    const TagNode* tagged = tagOf(m_pages[std::size_t(page)]);
    return tagged ? tagged->tag() : page;
}

// --- Layout

geometry::Size TabViewNode::measure(const geometry::ProposedSize& proposal) {
    geometry::Size ideal;
    if (!proposal.width || !proposal.height) {
        for (Node* page : m_pages) {
            const geometry::Size size = page->sizeThatFits(proposal);
            ideal = {std::max(ideal.width, size.width), std::max(ideal.height, size.height)};
        }
    }
    return proposal.orReplacing(ideal);
}

void TabViewNode::layOut(const geometry::ProposedSize&, geometry::Size size) {
    m_position.setPages(int(m_pages.size()), size.width, host().now_s());
    for (std::size_t page = 0; page < m_pages.size(); ++page) {
        const geometry::Size shown = m_pages[page]->sizeThatFits(size);
        placeChild(*m_pages[page], {size.width * double(page) + (size.width - shown.width) / 2, (size.height - shown.height) / 2},
                   size);
    }
    settleTransparentChildren(size);
}

void TabViewNode::paintOverlay(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) {
    const bool isAtRest = !m_position.isTracking() && !m_position.isMovingAt(now_s) && !m_fade.isFadingAt(now_s);
    if (m_pages.size() < 2 || !isAtRest) return;
    const std::size_t next = std::size_t(m_target + 1) % m_pages.size();
    const double shift = double(next) * frame().width();
    const graphics::PaintState there = state.movedBy({environment().isRightToLeft() ? shift : -shift, 0});
    context.lookAhead([&] { m_pages[next]->paint(context, there, now_s); });
}

// --- Touches

void TabViewNode::beginDragging(geometry::Point finger, double now_s) {
    stopWaiting();
    m_fade.end();
    m_position.beginTracking(fingerAt(finger), now_s);
    setNeedsDisplay();
}

void TabViewNode::touchMoved(const TouchEvent& event) {
    if (!m_position.isTracking()) {
        if (const auto origin = motion::dragOrigin(Axis::horizontal, event.start, event.location))
            beginDragging(*origin, event.time_s);
    }
    if (!m_position.isTracking()) return;
    m_position.track(fingerAt(event.location), event.time_s);
    setNeedsDisplay();
    host().setNeedsAppearanceUpdate();
}

void TabViewNode::touchEnded(const TouchEvent& event) { letGo(event.time_s); }

int TabViewNode::pageForLift(double now_s) const {
    const double position = m_position.offsetAt(now_s), speed = m_position.velocityAt(now_s) * frame().width();
    const double page = speed > turningSpeed    ? std::floor(position) + 1
                        : speed < -turningSpeed ? std::ceil(position) - 1
                                                : std::round(position);
    return std::clamp(int(page), 0, lastPage());
}

void TabViewNode::letGo(double now_s) {
    m_isHeld = false;
    if (!m_position.isTracking()) return;
    const int page = pageForLift(now_s);
    const Binding<int> selection = *m_selection;
    const bool hasTurned = !m_pages.empty() && selection.get() != tagOfPage(page);
    if (hasTurned) withAnimation([&] { selection.set(tagOfPage(page)); });
    // Whoever owns the selection may have chosen otherwise.
    m_target = selectedPage();
    m_position.settleAt(m_target, now_s);
    noteMoving();
}

void TabViewNode::noteMoving() {
    setNeedsDisplay();
    host().setNeedsAppearanceUpdate();
    stopWaiting();
    const double now_s = host().now_s();
    if (!m_position.isMovingAt(now_s)) return;
    host().noteAnimation(m_position.end_s());
    m_arrival = runloop::MainRunLoop::main().schedule(m_position.end_s() - now_s, [this] { host().setNeedsAppearanceUpdate(); });
}

void TabViewNode::stopWaiting() {
    if (m_arrival) m_arrival->invalidate();
    m_arrival = nullptr;
}

void TagNode::applyEffects(graphics::PaintState& state, double now_s) const {
    if (m_tabView) m_tabView->applyFade(state, m_page, now_s);
}

bool TagNode::allowsHitTesting() const { return !m_tabView || !m_tabView->isFadingOut(m_page, host().now_s()); }

} // namespace

Element* TabView::makeElement() && { return newElement<TabViewNode>(std::move(*this)); }

View TagModifier::modified(View content) && { return newModifier<TagNode>(std::move(*this), content); }

} // namespace proupsells::swiftui

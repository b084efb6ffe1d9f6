#include "Platform/Hosting/UIHostingView.hpp"

#include <unordered_map>

#include "Platform/Foundation/LanguageChanges.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Hosting/RepresentableStage.hpp"
#include "Platform/Hosting/Traits.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::hosting {

namespace {

std::unordered_map<const swiftui::ViewHost*, UIHostingView*>& showingViews() {
    static std::unordered_map<const swiftui::ViewHost*, UIHostingView*> views;
    return views;
}

} // namespace

UIHostingView::UIHostingView(Creation, std::shared_ptr<swiftui::ViewHost> host) : m_host(std::move(host)) {
    showingViews()[m_host.get()] = this;
    m_host->setVisible(false);
    m_host->setInWindow(false);
}

std::shared_ptr<UIHostingView> UIHostingView::create(std::function<swiftui::View()> root) {
    auto view = std::make_shared<UIHostingView>(Creation{}, swiftui::ViewHost::create(std::move(root)));
    const auto self = std::weak_ptr(view);
    view->m_host->setNeedsDisplayHandler([self] {
        if (const auto held = self.lock()) held->setNeedsDisplay();
    });
    view->m_host->setAttentionHandler([self](const geometry::Rect& rect) {
        const auto held = self.lock();
        return held && held->window() && held->window()->isAttended(held->convertTo(rect, nullptr));
    });
    // Only constraints ask for the natural size; a view that is given its frame keeps it whatever the content wants.
    view->m_host->setLayoutHandler([self] {
        if (const auto held = self.lock(); held && !held->translatesAutoresizingMaskIntoConstraints())
            held->invalidateIntrinsicContentSize();
    });
    return view;
}

UIHostingView::~UIHostingView() {
    m_host->setNeedsDisplayHandler({});
    m_host->setLayoutHandler({});
    m_host->setAttentionHandler({});
    // The tree, which goes next, must not look for its places here any more.
    const auto places = subviews();
    for (const auto& place : places) place->removeFromSuperview();
    showingViews().erase(m_host.get());
}

UIHostingView* UIHostingView::showing(const swiftui::ViewHost& host) {
    const auto found = showingViews().find(&host);
    return found == showingViews().end() ? nullptr : found->second;
}

// --- What the tree is told ---

void UIHostingView::adoptEnvironment() {
    swiftui::EnvironmentValues environment = m_host->environment();
    hosting::adoptTraits(environment, traitCollection());
    environment.localeIdentifier = foundation::Locale::current().identifier();
    environment.languageChangeCount = foundation::LanguageChanges::count();
    if (!environment.hasSameContent(m_host->environment())) m_host->setEnvironment(environment);
}

// The environment comes before the size, with which the tree is first built.
void UIHostingView::layoutSubviews() {
    adoptEnvironment();
    m_host->setSize(bounds().size, safeAreaInsets());
    if (m_host->needsUpdate()) m_host->update();
}

void UIHostingView::traitCollectionDidChange(const uikit::UITraitCollection&) { adoptEnvironment(); }

void UIHostingView::didMoveToWindow() {
    if (window()) adoptEnvironment();
    windowVisibilityDidChange();
    updateVisibility();
}

void UIHostingView::windowVisibilityDidChange() { m_host->setInWindow(window() && window()->isSeen()); }

void UIHostingView::setShown(bool isShown) {
    m_isShown = isShown;
    updateVisibility();
}

// Leaving is told at once: there may be no later turn for this tree.
void UIHostingView::updateVisibility() {
    const bool isVisible = m_isShown && window();
    if (isVisible == m_host->isVisible()) return;
    m_host->setVisible(isVisible);
    if (!isVisible) m_host->update();
}

geometry::Size UIHostingView::intrinsicContentSize() const { return m_host->sizeThatFits({}); }

geometry::Size UIHostingView::sizeThatFits(const geometry::ProposedSize& proposal) const { return m_host->sizeThatFits(proposal); }

// --- Touches ---

uikit::UIView* UIHostingView::hitTest(geometry::Point point) {
    const bool takesTouches = !isHidden() && isUserInteractionEnabled() && alpha() > 0 && pointInside(point);
    return takesTouches ? this : nullptr;
}

bool UIHostingView::forward(const uikit::UITouch& touch) {
    const auto kept = m_host;
    return kept->touch({touch.phase, touch.location(*this), touch.time_s});
}

void UIHostingView::touchesBegan(const uikit::UITouch& touch) {
    const auto kept = uikit::strongReference(*this);
    if (!forward(touch)) UIView::touchesBegan(touch);
}

void UIHostingView::touchesMoved(const uikit::UITouch& touch) { forward(touch); }

void UIHostingView::touchesEnded(const uikit::UITouch& touch) { forward(touch); }

bool UIHostingView::hover(std::optional<geometry::Point> location) {
    const auto kept = m_host;
    return kept->hover(location);
}

void UIHostingView::touchesCancelled(const uikit::UITouch& touch) { forward(touch); }

bool UIHostingView::scrollBy(geometry::Point location, geometry::Point delta) {
    return m_host->scroll(location, delta) || UIView::scrollBy(location, delta);
}

// --- Picture and semantics ---

bool UIHostingView::isAnimating() const { return !isHidden() && (m_host->isAnimating() || UIView::isAnimating()); }

void UIHostingView::paintSubviews(graphics::PaintContext& context, const graphics::PaintState& state) const {
    m_host->paint(context, state);
    for (const auto& subview : subviews())
        if (!dynamic_cast<const RepresentableStage*>(subview.get())) subview->paint(context, state);
}

void UIHostingView::appendSubviewNodes(std::vector<accessibility::SemanticNode>& nodes, const graphics::PaintState& state) const {
    const auto reveal = [self = uikit::weakReference(const_cast<UIHostingView&>(*this))](const geometry::Rect& inWindow,
                                                                                         swiftui::Revealed revealed) {
        const auto held = self.lock();
        if (!held || !held->window()) return;
        const geometry::Rect rect{held->convertFrom(inWindow.origin, nullptr), inWindow.size};
        const bool isWhole = revealed == swiftui::Revealed::whole;
        held->scrollRectToVisible(isWhole ? rect.insetBy(0, -accessibility::roomAroundRevealed) : rect);
    };
    for (accessibility::SemanticNode& node : m_host->semanticNodes(state, state.clip, reveal)) nodes.push_back(std::move(node));
    for (const auto& subview : subviews())
        if (!dynamic_cast<const RepresentableStage*>(subview.get())) nodes.push_back(subview->semanticNode(state));
}

} // namespace proupsells::hosting

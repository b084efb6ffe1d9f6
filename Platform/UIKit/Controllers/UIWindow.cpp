#include "Platform/UIKit/Controllers/UIWindow.hpp"

#include <cmath>

#include "Platform/Commons/ScopeEnd.hpp"
#include "Platform/RunLoop/MainActor.hpp"
#include "Platform/UIKit/Controllers/KeyboardFocus.hpp"
#include "Platform/UIKit/Controllers/PresentationStack.hpp"
#include "Platform/UIKit/Controllers/TouchRouter.hpp"
#include "Platform/UIKit/Views/UIScrollView.hpp"

namespace proupsells::uikit {

namespace {

// False for what a broken device says.
bool isPlace(geometry::Point point) { return std::isfinite(point.x) && std::isfinite(point.y); }

// Does what `operation` does as long as the screen that is in front now stands there, and none is on its way.
template <class... Arguments>
std::function<void(Arguments...)> whileInFront(UIWindow& window, UIViewController& front,
                                               std::function<void(Arguments...)> operation) {
    return
        [window = weakReference(window), front = weakReference(front), operation = std::move(operation)](Arguments... arguments) {
            const auto held = window.lock();
            const auto screen = front.lock();
            if (held && screen && held->frontMostViewController() == screen.get() && !held->isTransitioning())
                operation(arguments...);
        };
}

// Whoever operates a screen without a finger may have looked at it long ago.
void guardOperations(accessibility::SemanticNode& node, UIWindow& window, UIViewController& front) {
    if (node.activate) node.activate = whileInFront(window, front, std::move(node.activate));
    if (node.adjust) node.adjust = whileInFront(window, front, std::move(node.adjust));
    for (accessibility::SemanticNode& child : node.children) guardOperations(child, window, front);
}

} // namespace

UIWindow::UIWindow(Creation)
    : m_presentations(std::make_unique<PresentationStack>(*this)), m_touches(std::make_unique<TouchRouter>(*this)),
      m_focus(std::make_unique<KeyboardFocus>(*this)) {
    m_window = this;
    m_traits = m_windowTraits;
    m_languageChanges = foundation::LanguageChanges::publisher().sink([this](std::uint64_t) { requestUpdate(); });
}

UIWindow::~UIWindow() {
    // Views that outlive the window must not find it any more.
    for (const auto& subview : subviews()) subview->movedToWindow(nullptr);
}

std::shared_ptr<UIWindow> UIWindow::create(geometry::Size size, geometry::PhysicalInsets safeArea) {
    runloop::MainActor::assertIsolated("UIWindow::create");
    auto window = std::make_shared<UIWindow>(Creation{});
    window->setSize(size, safeArea);
    return window;
}

void UIWindow::setRootViewController(std::shared_ptr<UIViewController> controller) {
    m_presentations->removeAll();
    cancelTouch();
    if (const auto former = std::exchange(m_root, nullptr)) {
        former->beginAppearance(false, false);
        former->view()->removeFromSuperview();
        former->endAppearance();
        former->m_expectedWindow.reset();
    }
    m_root = controller;
    if (!controller) return;
    controller->m_expectedWindow = weakReference(*this);
    const auto root = controller->view();
    if (m_root != controller) return; // replaced while it loaded
    controller->beginAppearance(true, false);
    insertSubview(root, 0);
    layoutIfNeeded();
    controller->endAppearance();
}

void UIWindow::layoutSubviews() {
    for (const auto& subview : subviews()) subview->setFrame(bounds());
}

// --- What the person sees ---

void UIWindow::setTraits(const UITraitCollection& traits) { adoptWindowTraits(traits); }

void UIWindow::adoptWindowTraits(UITraitCollection traits) {
    traits.horizontalSizeClass =
        frame().width() < regularWidth ? UIUserInterfaceSizeClass::compact : UIUserInterfaceSizeClass::regular;
    m_windowTraits = traits;
    const auto kept = strongReference(*this);
    m_traits = traits;
    setNeedsLayout();
    setNeedsDisplay();
    const auto all = subviews();
    for (const auto& subview : all)
        if (subview->superview() == this) subview->adoptTraits(traits);
}

void UIWindow::setSize(geometry::Size size, geometry::PhysicalInsets safeArea) {
    const bool unsafeEdgesChange = m_safeArea != safeArea;
    m_safeArea = safeArea;
    setFrame({{}, size});
    adoptWindowTraits(m_windowTraits);
    if (unsafeEdgesChange) setTreeNeedsLayout();
}

UIViewController* UIWindow::frontMostViewController() const {
    UIViewController* const presented = m_presentations->frontMost();
    return presented ? presented : m_root.get();
}

bool UIWindow::isTransitioning() const { return m_presentations->isTransitioning(); }

void UIWindow::setPresentationObserver(std::weak_ptr<PresentationObserver> observer) {
    m_presentations->setObserver(std::move(observer));
}

void UIWindow::setSeen(bool isSeen) {
    if (std::exchange(m_isSeen, isSeen) == isSeen) return;
    const auto kept = strongReference(*this);
    noticeWindowVisibility();
}

// --- Updates ---

void UIWindow::subtreeNeedsLayout() { requestUpdate(); }

void UIWindow::subtreeNeedsDisplay() {
    m_needsDisplay = true;
    m_hasChanged = true;
    requestUpdate();
}

// A change of the language in the middle of an update waits for another one in the same turn.
void UIWindow::requestUpdate() {
    const bool isUpToDate = m_isUpdating && m_languageChangeCount == foundation::LanguageChanges::count();
    if (m_updateIsRequested || isUpToDate || !runloop::MainRunLoop::exists()) return;
    const auto self = weakReference(*this);
    if (self.expired()) return; // still being made; setSize follows
    m_updateIsRequested = true;
    runloop::MainRunLoop::main().requestUpdate(self);
}

void UIWindow::update() {
    const auto kept = strongReference(*this);
    m_updateIsRequested = false;
    {
        m_isUpdating = true;
        const commons::Finally end([this] { m_isUpdating = false; });
        layOutInCurrentLanguage();
    }
    if (!std::exchange(m_needsDisplay, false)) return;
    if (const auto handler = m_needsDisplayHandler) handler();
}

void UIWindow::layOutInCurrentLanguage() {
    if (m_languageChangeCount != foundation::LanguageChanges::count()) followLanguage();
    layoutIfNeeded();
}

void UIWindow::setNeedsDisplayHandler(std::function<void()> handler) { m_needsDisplayHandler = std::move(handler); }

graphics::PaintState UIWindow::windowState() const {
    graphics::PaintState state;
    state.clip = {{}, frame().size};
    state.scheme = m_windowTraits.userInterfaceStyle;
    return state;
}

// What is fully covered costs nothing.
std::size_t UIWindow::firstVisibleLayer() const {
    std::size_t first = subviews().empty() ? 0 : subviews().size() - 1;
    while (first > 0 && !subviews()[first]->covers(bounds())) --first;
    return first;
}

// What becomes due while the picture is made is part of it and asks for no other.
void UIWindow::paint(graphics::DisplayList& list) {
    const auto kept = strongReference(*this);
    m_isUpdating = true;
    const commons::Finally end([this] { m_isUpdating = false; });
    ++m_paintCount;
    UIScrollView::followTime();
    layOutInCurrentLanguage();
    list.clear();
    graphics::PaintContext context(list);
    const graphics::PaintState state = windowState();
    for (std::size_t i = firstVisibleLayer(); i < subviews().size(); ++i) subviews()[i]->paint(context, state);
    m_focus->paintRing(context, std::exchange(m_hasChanged, false));
    m_needsDisplay = false;
}

bool UIWindow::isAnimating() const {
    for (std::size_t i = firstVisibleLayer(); i < subviews().size(); ++i)
        if (subviews()[i]->isAnimating()) return true;
    return false;
}

accessibility::SemanticNode UIWindow::semanticTree() {
    UIScrollView::followTime();
    layOutInCurrentLanguage();
    accessibility::SemanticNode tree = frontMostNode(windowState());
    if (UIViewController* const front = frontMostViewController()) guardOperations(tree, *this, *front);
    return tree;
}

accessibility::SemanticNode UIWindow::seenTree() const {
    graphics::PaintState state = windowState();
    state.readsOnlyWhatIsSeen = true;
    return frontMostNode(state);
}

accessibility::SemanticNode UIWindow::frontMostNode(const graphics::PaintState& state) const {
    if (const UIPresentationView* front = m_presentations->frontMostView()) return front->contentNode(state);
    if (m_root && m_root->viewIfLoaded()) return m_root->viewIfLoaded()->semanticNode(state);
    return semanticNode(state);
}

// --- Input ---

void UIWindow::touch(const host::Touch& touch) {
    const auto kept = strongReference(*this);
    if (!isPlace(touch.location) || !std::isfinite(touch.time_s)) {
        // Where the finger was lifted cannot be said; that it was can.
        if (touch.phase == host::TouchPhase::ended || touch.phase == host::TouchPhase::cancelled) cancelTouch();
        return;
    }
    if (touch.phase == host::TouchPhase::began) {
        if (isTransitioning()) return cancelTouch();
        m_focus->drop();
        UIScrollView::followTime();
        layOutInCurrentLanguage();
    }
    m_touches->touch(touch);
}

void UIWindow::pointer(std::optional<geometry::Point> location) {
    if (location && !isPlace(*location)) location.reset();
    if (m_pointer == location) return;
    m_pointer = location;
    setNeedsDisplay();
}

bool UIWindow::pointsAtControl() {
    const auto kept = strongReference(*this);
    const bool canTap = m_pointer && !isTransitioning();
    UIView* over = canTap ? hitTest(*m_pointer) : nullptr;
    while (over && over != this && !over->hover(over->convertFrom(*m_pointer, nullptr))) over = over->superview();
    if (over == this) over = nullptr;
    if (const auto before = m_hovered.lock(); before && before.get() != over) before->hover(std::nullopt);
    m_hovered = over ? weakReference(*over) : std::weak_ptr<UIView>{};
    return over;
}

bool UIWindow::isAttended(const geometry::Rect& rect) const {
    if (m_pointer && rect.contains(*m_pointer)) return true;
    const std::optional<geometry::Rect> focused = m_focus->lastFrame();
    return focused && (focused->contains(rect.center()) || rect.contains(focused->center()));
}

void UIWindow::cancelTouch() { m_touches->cancel(); }

void UIWindow::scroll(geometry::Point location, geometry::Point delta) {
    if (isTransitioning() || !isPlace(location) || !isPlace(delta)) return;
    const auto kept = strongReference(*this);
    UIScrollView::followTime();
    layOutInCurrentLanguage();
    if (UIView* hit = hitTest(location)) hit->scrollBy(hit->convertFrom(location, nullptr), delta);
}

} // namespace proupsells::uikit

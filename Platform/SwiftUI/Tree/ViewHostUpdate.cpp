// How a host brings its tree up to date.
#include <algorithm>
#include <cmath>

#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Commons/ScopeEnd.hpp"
#include "Platform/SwiftUI/Tree/Alignment.hpp"
#include "Platform/SwiftUI/Tree/RootNode.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::ProposedSize;
using geometry::Rect;
using geometry::Size;

namespace {

// Handlers that keep changing what they watch would never end.
constexpr int maximumPassCount = 32;

} // namespace

void ViewHost::update() {
    if (m_isUpdating) return;
    bringUpToDate();
    if (m_needsDisplay && !m_hasToldDisplay) {
        m_hasToldDisplay = true;
        if (m_needsDisplayHandler) m_needsDisplayHandler();
    }
}

void ViewHost::bringUpToDate() {
    if (!m_needsBuild && !m_needsLayout && !m_needsAppearanceUpdate && m_observers.empty()) return;
    const auto self = weak_from_this().lock(); // a handler may let go of the host
    const bool hasLaidOut = makePasses();
    if (hasLaidOut && m_layoutHandler) m_layoutHandler();
}

bool ViewHost::makePasses() {
    m_isUpdating = true;
    const commons::Finally end([this] {
        m_updateAnimation.reset();
        m_isUpdating = false;
    });
    bool hasLaidOut = false;
    int pass = 0;
    for (; pass < maximumPassCount; ++pass) {
        const ElementArena::Build scope;
        if (m_needsBuild) build();
        if (m_needsLayout && m_hasSize) {
            layOutContent();
            hasLaidOut = true;
        }
        const bool hasAppeared = updateAppearances();
        const bool hasRun = runObservers();
        if (m_holdCount == 0) m_departed.clear();
        const bool isDone = !m_needsBuild && !(m_needsLayout && m_hasSize) && !m_needsAppearanceUpdate && m_observers.empty();
        if (isDone || (!hasAppeared && !hasRun && !m_needsBuild && !m_needsLayout)) break;
    }
    if (pass == maximumPassCount)
        commons::DefaultLogger::shared().log(
            commons::DefaultLogger::errorSeverity,
            "Views keep changing in answer to their own changes; the rest is left for the next update", "ViewHost.update()");
    return hasLaidOut;
}

void ViewHost::build() {
    m_needsBuild = false;
    const std::optional<motion::Animation> animation = std::exchange(m_rootAnimation, std::nullopt);
    UpdatePass pass{*this, &m_environment, animation ? &*animation : nullptr, now_s()};
    m_rootNode->build(m_root ? m_root() : View{}, pass);
    noteOtherPlaces();
}

void ViewHost::layOutContent() {
    m_needsLayout = false;
    m_layoutAnimation = m_updateAnimation ? &*m_updateAnimation : nullptr;
    m_hasPositionChanged = std::exchange(m_hasResized, false);
    const commons::Finally end([this] {
        m_hasPositionChanged = false;
        m_layoutAnimation = nullptr;
        m_updateAnimation.reset();
    });
    m_rootNode->layOutIn(m_size);
    ++m_layoutCount;
    m_needsLayout = false; // geometry readers have built what they have laid out themselves
    m_needsDisplay = true;
    noteOtherPlaces();
}

void ViewHost::dropCaches() {
    m_environment.version = EnvironmentValues::nextVersion();
    m_rootNode->dropSizes();
    m_needsBuild = true;
    m_listIsOwn = false;
    setNeedsLayout();
}

void ViewHost::addPostLayoutObserver(PostLayoutObserver& observer) {
    observer.m_observedHost = this;
    if (std::find(m_observers.begin(), m_observers.end(), &observer) == m_observers.end()) m_observers.push_back(&observer);
    requestUpdate();
}

bool ViewHost::runObservers() {
    if (m_observers.empty()) return false;
    std::swap(m_observers, m_runningObservers);
    const commons::Finally end([this] { m_runningObservers.clear(); });
    // By index: the list may change in a call, and an observer that goes away leaves a null in its place.
    for (std::size_t i = 0; i < m_runningObservers.size(); ++i)
        if (m_runningObservers[i]) m_runningObservers[i]->afterLayout();
    return true;
}

PostLayoutObserver::~PostLayoutObserver() {
    if (!m_observedHost) return;
    std::erase(m_observedHost->m_observers, this);
    std::replace(m_observedHost->m_runningObservers.begin(), m_observedHost->m_runningObservers.end(), this,
                 static_cast<PostLayoutObserver*>(nullptr));
}

bool ViewHost::updateAppearances() {
    m_needsAppearanceUpdate = false;
    return m_appearances.update(m_isVisible && m_hasSize, now_s());
}

// Where the views are has changed by more than scrolling.
void ViewHost::noteOtherPlaces() {
    m_appearances.forgetPlaces();
    m_needsAppearanceUpdate = true;
}

void ViewHost::departed(std::unique_ptr<Node> node) {
    m_departed.push_back(std::move(node));
    setNeedsDisplay();
    setNeedsAppearanceUpdate();
}

RootNode::RootNode(ViewHost& host) {
    m_host = &host;
    m_environment = &host.environment();
}

void RootNode::build(const View& root, UpdatePass& pass) {
    const std::unique_ptr<const motion::Animation> animation = std::move(m_buildAnimation);
    m_needsBuild = false;
    m_hasDirtyDescendant = false;
    UpdatePass own = pass.with(animation ? animation.get() : pass.animation);
    updateChild(0, root, own);
    m_isNew = false;
}

void RootNode::layOutIn(Size size) { place({}, ProposedSize(size)); }

Size RootNode::measure(const ProposedSize& proposal) {
    return onlyChild() && !onlyChild()->isAbsent() ? onlyChild()->sizeThatFits(proposal) : Size{};
}

void RootNode::layOut(const ProposedSize&, Size) {
    m_frame.size = host().size();
    if (!onlyChild() || onlyChild()->isAbsent()) return;
    const geometry::PhysicalInsets& insets = host().safeArea();
    const Size whole = host().size();
    const Size safe{std::max(0.0, whole.width - insets.left - insets.right),
                    std::max(0.0, whole.height - insets.top - insets.bottom)};
    const geometry::Point origin = alignedOrigin(onlyChild()->sizeThatFits(safe), safe, Alignment::center);
    onlyChild()->place(origin + geometry::Point{insets.left, insets.top}, safe);
}

} // namespace proupsells::swiftui

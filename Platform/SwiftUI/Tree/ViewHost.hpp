// Keeps a declarative tree alive and shows it somewhere.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/Combine/PassthroughSubject.hpp"
#include "Platform/Graphics/DisplayList.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/Host/WindowContent.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/SwiftUI/Tree/Appearances.hpp"
#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"
#include "Platform/SwiftUI/Tree/SemanticContext.hpp"
#include "Platform/SwiftUI/Tree/TouchDispatcher.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

class PostLayoutObserver;
class RootNode;
struct ControlSearch;

// All changes of a turn of the run loop become one update at its end. Nothing is built before the first size, sizeThatFits or
// update.
class ViewHost final : public runloop::UpdateClient, public std::enable_shared_from_this<ViewHost> {
public:
    // `root` is called in every update that builds. What it returns is compared with what is on screen.
    static std::shared_ptr<ViewHost> create(std::function<View()> root);
    template <class Value>
    requires(CompositeView<Value> || PrimitiveView<Value>) static std::shared_ptr<ViewHost> create(Value value) {
        return create([value = std::move(value)]() -> View {
            if constexpr (CompositeView<Value>)
                return View(static_cast<Element*>(ElementArena::current().make<LastingCompositeElement<Value>>(value)));
            else
                return Value(value);
        });
    }
    ~ViewHost() override;

    // --- What and where
    void setRoot(std::function<View()> root);
    // In points. The content is laid out in what the insets leave of the rectangle.
    void setSize(geometry::Size size, geometry::PhysicalInsets safeArea = {});
    geometry::Size size() const { return m_size; }
    const geometry::PhysicalInsets& safeArea() const { return m_environment.safeAreaInsets; }
    // What the whole tree inherits. The safe-area insets in it are ignored: setSize gives them.
    void setEnvironment(const EnvironmentValues& environment);
    const EnvironmentValues& environment() const { return m_environment; }
    // Views count as on screen only while the host is visible; onAppear and onDisappear are told.
    void setVisible(bool isVisible);
    bool isVisible() const { return m_isVisible; }
    // Whether the host stands in a window, be it covered by another screen; true unless set. Timers of views tick only then.
    void setInWindow(bool isInWindow);
    bool isInWindow() const { return m_isInWindow; }
    // Sends the new value after each change.
    const combine::PassthroughSubject<bool>& inWindowChanges() const { return m_inWindowChanges; }

    // Whether a person rests on a part of the host, with the pointer or with the focus of the keys; never, unless a handler says
    // so.
    bool isAttended(const geometry::Rect& rect) const { return m_attentionHandler && m_attentionHandler(rect); }
    void setAttentionHandler(std::function<bool(const geometry::Rect&)> handler) { m_attentionHandler = std::move(handler); }

    // --- Bringing up to date
    // The root and everything that has changed is built again at the end of the turn.
    void setNeedsUpdate();
    // Builds, lays out and tells change handlers until nothing is left to do. Does nothing inside itself.
    void update() override;
    bool needsUpdate() const { return m_needsBuild || m_needsLayout; }
    // The content's size for a proposal, safe areas not counted; brings it up to date first.
    geometry::Size sizeThatFits(const geometry::ProposedSize& proposal);
    // Forgets every cached size, evaluates every body and lays everything out again in the next update.
    void dropCaches();

    // --- Showing
    // Writes the picture at now_s(). `state.origin` is where the host's top left corner stands in the window.
    void paint(graphics::PaintContext& context, const graphics::PaintState& state);
    // The picture with the corner at (0, 0). As long as nothing changes or moves, this is the list of the last call.
    const graphics::DisplayList& displayList();
    // One tree for each outermost view, in window points; `window` is what can be seen at all.
    std::vector<accessibility::SemanticNode> semanticNodes(const graphics::PaintState& state, const geometry::Rect& window,
                                                           Revealer reveal = {});
    // The semantic tree with the host's corner at (0, 0) and its rectangle as window.
    accessibility::SemanticNode semanticTree();
    bool isAnimating() const;
    // How many nodes all paintings together have looked at.
    std::uint64_t paintVisitCount() const { return m_paintVisitCount; }
    // Told when the picture has changed, once until the next painting.
    void setNeedsDisplayHandler(std::function<void()> handler) { m_needsDisplayHandler = std::move(handler); }
    // Told after an update in which the content's sizes may have changed.
    void setLayoutHandler(std::function<void()> handler) { m_layoutHandler = std::move(handler); }

    // --- Input, in the host's coordinates
    // Whether something inside has the touch. What has it when it begins gets its moves and its end too.
    bool touch(const host::Touch& touch) { return m_touches.touch(touch); }
    bool hits(geometry::Point location);
    // Where the mouse rests, absent once it has left. Whether a control that can be used is there.
    bool hover(std::optional<geometry::Point> location) { return m_touches.hover(location); }
    bool scroll(geometry::Point location, geometry::Point delta) { return m_touches.scroll(location, delta); }
    TouchDispatcher& touches() { return m_touches; }
    // What a touch at the place would hit; null for nothing. Brings the tree up to date.
    Node* nodeAt(geometry::Point location);
    // The control that a finger means which hits none there. Right after nodeAt.
    ControlSearch controlNear(geometry::Point finger);

    // --- For nodes
    double now_s() const { return runloop::MainRunLoop::main().now_s(); }
    void setNeedsDisplay();
    // The picture changes by itself until `end_s`. What leaves its place meanwhile notes a movement instead.
    void noteAnimation(double end_s);
    // Calls its afterLayout() once: after the layout of the update under way, or of the next one if there is none.
    void addPostLayoutObserver(PostLayoutObserver& observer);
    // To be called when views may have come on screen or left it without a layout, as when a scroll view moves. onAppear and
    // onDisappear are told in the next update.
    void setNeedsAppearanceUpdate();
    Appearances& appearances() { return m_appearances; }
    Node* rootNode() const;
    // The animation by which frames change in the layout under way; null outside layouts and for changes that are not animated.
    const motion::Animation* layoutAnimation() const { return m_layoutAnimation; }
    void setLayoutAnimation(const motion::Animation* animation) { m_layoutAnimation = animation; }

    // Keeps the host alive, and also the nodes that leave the tree meanwhile. Held during calls to actions, which may do anything.
    class Hold {
    public:
        explicit Hold(ViewHost& host);
        ~Hold();
        Hold(const Hold&) = delete;

    private:
        std::shared_ptr<ViewHost> m_host;
    };

private:
    friend class Node;
    friend class CompositeNode;
    friend class PostLayoutObserver;
    friend class TouchDispatcher;

    explicit ViewHost(std::function<View()> root);
    void requestUpdate();
    // For changes inside the tree: the animation in force is used only for what has changed.
    void setNeedsBuild();
    void bringUpToDate();
    // Returns whether the content was laid out.
    bool makePasses();
    void build();
    void layOutContent();
    bool runObservers();
    bool updateAppearances();
    void noteOtherPlaces();
    // The node has left the tree; it is destroyed when the handlers of this update have run.
    void departed(std::unique_ptr<Node> node);
    // The node has left the tree and can still be seen.
    void noteLeaving(const Node&) { noteOtherPlaces(); }
    void setNeedsLayout();

    std::function<View()> m_root;
    std::unique_ptr<RootNode> m_rootNode;
    EnvironmentValues m_environment;
    geometry::Size m_size;
    TouchDispatcher m_touches{*this};
    graphics::DisplayList m_displayList;
    std::function<void()> m_needsDisplayHandler;
    std::function<bool(const geometry::Rect&)> m_attentionHandler;
    std::function<void()> m_layoutHandler;
    combine::PassthroughSubject<bool> m_inWindowChanges;
    std::vector<PostLayoutObserver*> m_observers;
    std::vector<PostLayoutObserver*> m_runningObservers;
    Appearances m_appearances;
    std::vector<std::unique_ptr<Node>> m_departed;
    std::optional<motion::Animation> m_rootAnimation;   // of changes to what the root gives
    std::optional<motion::Animation> m_updateAnimation; // of the changes since the last layout
    const motion::Animation* m_layoutAnimation = nullptr;
    double m_animatingUntil_s = -1e300;
    double m_paintedAt_s = -1e300;
    std::uint64_t m_paintVisitCount = 0;
    unsigned m_layoutCount = 1;
    int m_holdCount = 0;
    bool m_hasSize = false;
    bool m_isVisible = true;
    bool m_isInWindow = true;
    bool m_isUpdating = false;
    bool m_needsBuild = true;
    bool m_needsLayout = true;
    bool m_needsDisplay = true;
    bool m_hasToldDisplay = false;
    bool m_needsAppearanceUpdate = true;
    bool m_hasResized = false;
    bool m_listIsOwn = false;          // m_displayList is the newest picture
    bool m_hasPositionChanged = false; // a node around the one being placed has moved
};

// Something that waits for a layout to end: change and appearance handlers.
class PostLayoutObserver {
public:
    virtual ~PostLayoutObserver();
    virtual void afterLayout() = 0;

protected:
    // The host that knows it, which must forget it when it ends.
    ViewHost* m_observedHost = nullptr;
    friend class ViewHost;
};

} // namespace proupsells::swiftui

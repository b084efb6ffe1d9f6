// The retained tree: one node for each view that is on screen. Docs/adding-a-view.md shows how to add a kind of view.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Geometry/Intervals.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/SwiftUI/Animation/Animated.hpp"
#include "Platform/SwiftUI/Tree/Alignment.hpp"
#include "Platform/SwiftUI/Tree/Key.hpp"
#include "Platform/SwiftUI/Tree/StoredProposal.hpp"
#include "Platform/SwiftUI/Tree/UpdatePass.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::runloop {
class Timer;
}

namespace proupsells::swiftui {

class GestureHandler;
class TransitionHandler;
class ViewHost;
struct ControlSearch;
struct SemanticContext;

// How short and how long a view can be along an axis.
struct LengthRange {
    double minimum = 0;
    double maximum = 0;
};

class Node {
public:
    Node();
    virtual ~Node();
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    // --- Place in the tree
    Node* parent() const { return m_parent; }
    ViewHost& host() const { return *m_host; }
    const EnvironmentValues& environment() const { return *m_environment; }
    // The node of each slot; null for an absent branch. Leaving nodes are not among them.
    const std::vector<std::unique_ptr<Node>>& children() const { return m_children; }
    Node* onlyChild() const { return m_children.empty() ? nullptr : m_children.front().get(); }
    TypeKey type() const { return m_type; }
    // See accessibility::SemanticNode::id.
    std::uint64_t id() const { return m_id; }
    // Whether it, or a node around it, has left the tree. It may still be seen while a transition runs, but it must not act.
    bool hasLeft() const;
    // True until its first update has ended.
    bool isNew() const { return m_isNew; }

    // --- Changes
    // The views from here down are built again in the next update. The changes are shown by the animation in force now.
    void setNeedsBuild();
    // The sizes found so far no longer hold, neither here nor around. They are found again in the next layout.
    void invalidateLayout();
    void setNeedsDisplay();
    // Until `end_s` the node may be seen outside the place that the layout has given it. Its picture moves by itself that long.
    void noteMovement(double end_s);

    // --- Layout
    // In points. Never negative and never not-a-number; infinite only if the proposal is. Zero for absent nodes.
    geometry::Size sizeThatFits(const geometry::ProposedSize& proposal);
    // Puts the node at `origin` in its parent's coordinates (x from the left) and lays out what is inside.
    void place(geometry::Point origin, const geometry::ProposedSize& proposal);
    // Moves it without a new layout and without animation.
    void moveTo(geometry::Point origin);
    // Ends the movements of what is inside: all of it is where the last layout has put it.
    void bringToRest();
    // Where the last layout has put it, in its parent's coordinates. While it moves there, presentationFrame is where it is seen.
    const geometry::Rect& frame() const { return m_frame; }
    geometry::Rect presentationFrame(double now_s) const;
    // Where it is seen in the host's coordinates, scroll offsets included. Effects such as scaling are left out.
    geometry::Rect frameInHost(double now_s) const;
    // True for a view without content, which takes no place in a stack.
    virtual bool isAbsent() const { return false; }
    // A group or a loop: its children are laid out by the container around it.
    virtual bool isTransparent() const { return false; }
    virtual double layoutPriority() const { return 0; }
    // How short and how long the node can be, for the stack along `axis` that shares out its length.
    virtual LengthRange lengthRange(Axis axis, std::optional<double> crossProposal);
    // Distance of the first line's baseline from the top; the height where there is no text.
    virtual double firstBaseline(const geometry::ProposedSize& proposal);
    // The axis along which spacers inside stretch. Absent: a node further out decides.
    virtual std::optional<Axis> stackAxis() const { return std::nullopt; }
    // Whether spacers inside look further out for that axis. They do through modifiers, groups and composites, but not through
    // layered stacks.
    virtual bool sharesStackAxis() const { return isTransparent(); }
    // Whether it takes the room that is left over, and needs none by itself.
    virtual bool isSpacer() const { return false; }
    // Whether spacers inside may become shorter than their minimum.
    virtual bool squeezesSpacers() const { return false; }
    // Adds the nodes that a container lays out: its children, and those of groups and loops among them; no absent ones.
    void collectLayoutChildren(std::vector<Node*>& result) const;

    // --- Picture
    void paint(graphics::PaintContext& context, const graphics::PaintState& parentState, double now_s);
    virtual void applyEffects(graphics::PaintState& state, double now_s) const;
    virtual geometry::Point contentTranslation(double now_s) const;
    // The part of its own coordinates that can be seen. Absent: everything.
    virtual std::optional<geometry::Rect> viewport() const { return std::nullopt; }

    // --- Touches
    // The front-most deepest node at a point of the window; null when nothing there takes touches.
    Node* hitTest(geometry::Point inWindow, const graphics::PaintState& parentState, double now_s);
    // Offers every control here and inside whose target may reach the finger.
    void findControl(ControlSearch& search, const graphics::PaintState& parentState, double now_s);
    virtual GestureHandler* gestureHandler() { return nullptr; }

    // --- Semantics
    virtual void appendSemantics(SemanticContext& context, const graphics::PaintState& parentState,
                                 std::vector<accessibility::SemanticNode>& result);

protected:
    // --- For subclasses to say what they are
    virtual geometry::Size measure(const geometry::ProposedSize& proposal);
    virtual void layOut(const geometry::ProposedSize& proposal, geometry::Size size);
    virtual void paintContent(graphics::PaintContext&, const graphics::PaintState&, double now_s);
    virtual void paintOverlay(graphics::PaintContext&, const graphics::PaintState&, double now_s);
    // By how much the node's own picture may reach past its frame on any side.
    virtual double paintOutset() const { return 0; }
    // Where the picture may be when it would be in `bounds` without the node's effects.
    virtual geometry::Rect effectBounds(const geometry::Rect& bounds) const { return bounds; }
    // Whether the frame itself stops touches. Those of texts, images and filled shapes do; those of containers do not.
    virtual bool isHittable() const { return false; }
    // False: touches pass through everything inside.
    virtual bool allowsHitTesting() const { return true; }
    // True: a touch in the frame that hits nothing inside goes to the first handler inside.
    virtual bool forwardsTouches() const { return false; }
    // The type's name in the semantic tree; empty: no node of its own.
    virtual std::string_view semanticType() const { return {}; }
    virtual void describe(accessibility::SemanticNode& node, const graphics::PaintState& state, double now_s) const;
    // Modifiers that say something about the view inside write it to context.pending.
    virtual void addAttributes(SemanticContext& context, const graphics::PaintState& state) const;
    // The slot of the child that pending attributes go to, where the others are only layers around it.
    virtual std::size_t primarySlot() const { return 0; }
    // How the node comes and goes; null: at once. And whether the transitions of the only child act for this node too.
    virtual TransitionHandler* transitionHandler() { return nullptr; }
    virtual bool passesTransitionsOn() const { return false; }
    // To be called by a node whose layout depends on safe areas or on the window's edges.
    void setDependsOnPosition();

    // --- For subclasses to work with
    // Adds the semantic nodes of what is inside. `state` is the node's own, with its effects.
    void appendChildSemantics(SemanticContext& context, const graphics::PaintState& state,
                              std::vector<accessibility::SemanticNode>& result);
    void updateChildren(const ViewList& views, UpdatePass& pass);
    void updateChild(std::size_t slot, const View& view, UpdatePass& pass);
    // By key: moved children keep their nodes. Keys that occur twice are told apart by their order.
    void updateKeyedChildren(const ViewList& views, UpdatePass& pass);
    // Places a child. The x of its origin grows from the leading edge.
    void placeChild(Node& child, geometry::Point leadingOrigin, const geometry::ProposedSize& proposal);
    // The same for nodes inside transparent children. The node mirrors x in its own width.
    void placeAt(Node& child, geometry::Point leadingOrigin, geometry::Size childSize, const geometry::ProposedSize& proposal);
    // Whether nothing has been measured since something inside has changed.
    bool isFirstMeasure() const { return m_sizeCount == 0; }
    // To be called by layOut() for a child that the layout leaves out. It may have been placed before.
    void leaveOut(Node& child);
    // Gives the transparent and absent children the whole size, once those inside them have been placed.
    void settleTransparentChildren(geometry::Size size);
    // Whether a state or an observed object has changed, here or inside.
    bool mustBuild() const { return m_mustBuild; }
    // Whether an inherited value has changed since the last update.
    bool environmentChanged() const { return m_environmentChanged; }
    // Makes the first slot the front-most one, as it is where a background stands behind a view.
    void setPaintsInReverse(bool paintsInReverse) { m_paintsInReverse = paintsInReverse; }
    // Calls `function(Node&)` for children and leaving nodes, back to front.
    template <class Function>
    void forEachPainted(Function&& function) const;
    // The same, without most of the children that stand outside the rectangle, which is in the content's coordinates; absent: all.
    template <class Function>
    void forEachIn(const std::optional<geometry::Rect>& rect, double now_s, Function&& function) const;

private:
    friend class CompositeNode;
    friend class RootNode;
    friend class ViewHost;
    template <class NodeType, class Value>
    friend class ValueElement;
    template <class NodeType, class Value>
    friend class ModifierElement;

    struct CachedSize {
        StoredProposal proposal;
        geometry::Size size;
    };
    // Which of many children are where, along the axis on which they follow one another.
    struct ChildExtents {
        Axis axis = Axis::vertical;
        geometry::Intervals intervals;
    };
    struct Leaving {
        std::unique_ptr<Node> node;
        std::size_t slot = 0;
        std::shared_ptr<runloop::Timer> timer;

        Leaving(std::unique_ptr<Node> node, std::size_t slot);
        Leaving(Leaving&&) noexcept;
        Leaving& operator=(Leaving&&) noexcept;
        ~Leaving();
    };

    void reconcile(std::unique_ptr<Node>& slot, std::size_t index, const View& view, UpdatePass& pass);
    void updateNode(Node& node, Element& element, UpdatePass& pass);
    std::unique_ptr<Node> insert(Element& element, UpdatePass& pass);
    void remove(std::unique_ptr<Node> node, std::size_t index, UpdatePass& pass);
    std::unique_ptr<Node> revive(const Element& element, std::size_t index, UpdatePass& pass);
    // The transitions of a subtree that is about to come or go.
    void collectTransitions(std::vector<TransitionHandler*>& result);
    void matchKeyedChildren(const ViewList& views, UpdatePass& pass);
    void appendSemanticsAt(const geometry::Rect& frame, SemanticContext& context, const graphics::PaintState& parentState,
                           std::vector<accessibility::SemanticNode>& result);
    void animateFrameTo(const geometry::Rect& target);
    void withdrawAbsentChildren();
    // Whether something inside is on its way out.
    bool holdsLeaving() const;
    // Back to where a node is that was never placed: nowhere, neither painted nor touched nor told.
    void withdraw();
    void paintChildren(graphics::PaintContext& context, const graphics::PaintState& state, double now_s);
    void updatePaintBounds();
    void updateChildExtents();
    // The range [first, end) of children outside of which none touches the rectangle, which is in their coordinates. Of many only.
    std::pair<std::size_t, std::size_t> childrenNear(const std::optional<geometry::Rect>& rect) const;
    std::pair<std::size_t, std::size_t> childrenTouched(geometry::Point inWindow, const graphics::PaintState& inner,
                                                        double now_s) const;
    bool isMovingAt(double now_s) const { return now_s < m_movesUntil_s; }
    Node* firstHandlerNode();
    void removeLeaving(Node* node);
    // Forgets all sizes, here and inside.
    void dropSizes();

    Node* m_parent = nullptr;
    ViewHost* m_host = nullptr;
    const EnvironmentValues* m_environment = nullptr;
    std::uint64_t m_environmentVersion = 0;
    const std::uint64_t m_id;
    TypeKey m_type = nullptr;
    std::vector<std::unique_ptr<Node>> m_children;
    std::unique_ptr<std::vector<Leaving>> m_leaving;

    geometry::Rect m_frame;
    geometry::Rect m_paintBounds;                 // of the node and everything inside, in its own coordinates
    std::unique_ptr<ChildExtents> m_childExtents; // null for few children
    StoredProposal m_placedProposal;
    std::unique_ptr<AnimatedFrame> m_frameAnimation;
    CachedSize m_sizes[4];
    std::uint8_t m_sizeCount = 0;
    std::uint8_t m_nextSize = 0;
    std::uint16_t m_depth = 0; // how many nodes stand around it

    StoredKey m_key;
    std::unique_ptr<motion::Animation> m_buildAnimation; // of the changes that made it need a build
    double m_movesUntil_s = -1e300;                      // the node itself, or something inside

    unsigned m_invalidation = 0; // the host's layout count when this node and all around it were last told to be laid out again

    bool m_isNew = true;
    bool m_environmentChanged = true;
    bool m_isRightToLeft = false;
    bool m_needsBuild = false;
    bool m_mustBuild = false; // during its update: something here or inside has changed
    bool m_hasDirtyDescendant = false;
    bool m_needsLayout = true;
    bool m_hasBeenPlaced = false;
    bool m_paintsInReverse = false;
    bool m_isLeaving = false;         // it has left the tree, though it may still be seen
    bool m_dependsOnPosition = false; // itself or something inside
};

template <class Function>
void Node::forEachPainted(Function&& function) const {
    const bool someLeave = m_leaving && !m_leaving->empty();
    for (std::size_t i = 0; i < m_children.size(); ++i) {
        const std::size_t slot = m_paintsInReverse ? m_children.size() - 1 - i : i;
        // A leaving node stands right behind what took its slot.
        if (someLeave)
            for (const Leaving& leaving : *m_leaving)
                if (leaving.slot == slot) function(*leaving.node);
        if (m_children[slot]) function(*m_children[slot]);
    }
    if (!someLeave) return;
    for (const Leaving& leaving : *m_leaving)
        if (leaving.slot >= m_children.size()) function(*leaving.node);
}

template <class Function>
void Node::forEachIn(const std::optional<geometry::Rect>& rect, double now_s, Function&& function) const {
    if (!rect || !m_childExtents || isMovingAt(now_s) || (m_leaving && !m_leaving->empty())) return forEachPainted(function);
    const auto [first, end] = childrenNear(rect);
    for (std::size_t i = 0; i < end - first; ++i) {
        const auto& child = m_children[m_paintsInReverse ? end - 1 - i : first + i];
        if (child) function(*child);
    }
}

} // namespace proupsells::swiftui

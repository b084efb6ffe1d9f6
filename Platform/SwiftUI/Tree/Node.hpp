// The retained tree: one node for each view that is on screen.
//
// How to add a kind of view
//
// 1. The value, in a header of its own among the views or modifiers. A plain struct with == (leave it out where it holds Views) and
//
//        Element* makeElement() &&;                  // a view; defined in the source file
//        View modified(View content) &&;             // or a modifier, to be written behind `|`
//
// 2. The node, in the source file's anonymous namespace:
//
//        class StarNode final : public Node {
//        public:
//            void adopt(Star&& star, UpdatePass& pass) {
//                if (star.points != m_star.points) setNeedsDisplay();      // only the picture
//                if (star.radius != m_star.radius) invalidateLayout();     // sizes; implies the picture
//                m_star = std::move(star);                                 // always: actions are equal, yet newer
//                updateChildren(m_star.content, pass);                     // where it has any; see below
//            }
//            geometry::Size measure(const geometry::ProposedSize&) override;
//            void paintContent(...) override;
//            std::string_view semanticType() const override { return "Star"; }
//            ...
//        };
//
//        Element* Star::makeElement() && { return newElement<StarNode>(std::move(*this)); }                  // Element of a view
//        View Glow::modified(View content) && { return newModifier<GlowNode>(std::move(*this), content); }   // of a modifier
//
//    A new node gets its first adopt with default member values in place: compare against them or with isNew(). A modifier's node
//    derives from ModifierNode, whose child has been updated with `content` by the time that adopt returns.
//
// 3. Children. `updateChildren(list, pass)` reconciles them with the slots by position, type and key; `updateChild(slot, view,
// pass)`
//    one of them. Views inside the value are good during adopt only: never use a stored View later. A node that changes what its
//    children inherit gives them a pass with another environment, which must live in the node.
//
// 4. Layout. `measure` answers a proposal, asking the children with sizeThatFits (both are cached; ask freely, change nothing).
//    `layOut` is told the proposal and the resulting size and calls placeChild for every child, with coordinates whose x grows from
//    the leading edge; mirroring happens there. For stacks and scroll contents use collectLayoutChildren, which looks through
//    groups, loops and absent branches. Never measure or place from adopt or paint. A node whose children move without a new layout
//    (a scroll view) overrides contentTranslation and calls setNeedsDisplay; one that shows a part of them overrides viewport.
//
// 5. Picture. `applyEffects` changes what holds for the node and everything inside it (opacity, clip, transform); `paintContent`
//    paints what is below the children, `paintOverlay` what is above. All three are functions of now_s; things that move call
//    host().noteAnimation(end_s), and use Animated for what gets to its target over time. Touches and the semantic tree go through
//    applyEffects too, so they always agree with the picture.
//
// 6. Touches. `gestureHandler` returns what answers them, `isHittable` whether the frame itself stops them.
//
// 7. Semantics. A node with a `semanticType` appears in the semantic tree, `describe` adds to it; one without lends its place to
// its
//    children. A scroll view overrides `appendSemantics` to hand its content a `reveal`.
//
// Nodes are created, updated and destroyed by their parents during updates. Host views of other toolkits: keep the foreign view in
// the node, create it in adopt when isNew(), place it in layOut or paintContent (where its window coordinates are known), remove it
// in the destructor; call invalidateLayout when its own size changes.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "Platform/Accessibility/Node.hpp"
#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/SwiftUI/Animation/Animated.hpp"
#include "Platform/SwiftUI/Layout/Alignment.hpp"
#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"
#include "Platform/SwiftUI/Tree/Key.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::runloop {
class Timer;
}

namespace proupsells::swiftui {

class GestureHandler;
class TransitionNode;
class ViewHost;
struct SemanticContext;

// What holds while a part of the tree is brought up to date.
struct UpdatePass {
    ViewHost& host;
    const EnvironmentValues* environment = nullptr;
    const motion::Animation* animation = nullptr; // by which changes are shown; null: at once
    double now_s = 0;

    UpdatePass with(const EnvironmentValues& other) const {
        UpdatePass result = *this;
        result.environment = &other;
        return result;
    }
    UpdatePass with(const motion::Animation* other) const {
        UpdatePass result = *this;
        result.animation = other;
        return result;
    }
};

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
    // During the first update of its life.
    bool isNew() const { return m_isNew; }

    // --- Changes
    // The views from here down are built again in the next update, by the animation of the transaction in force.
    void setNeedsBuild();
    // Sizes asked before no longer hold, here and further out.
    void invalidateLayout();
    void setNeedsDisplay();

    // --- Layout
    // In points; absent nodes have no size. Never negative, never not-a-number; infinite only for an infinite proposal.
    geometry::Size sizeThatFits(const geometry::ProposedSize& proposal);
    // Puts the node at `origin` in its parent's coordinates (x from the left) and lays out what is inside.
    void place(geometry::Point origin, const geometry::ProposedSize& proposal);
    // Moves it without a new layout and without animation.
    void moveTo(geometry::Point origin);
    // Where it was placed, in its parent's coordinates, animations disregarded.
    const geometry::Rect& frame() const { return m_frame; }
    geometry::Rect presentationFrame(double now_s) const;
    // Where the frame stands in the host's coordinates; scroll offsets and running animations counted in, effects not.
    geometry::Rect frameInHost(double now_s) const;
    // True for a view without content, which takes no place in a stack.
    virtual bool isAbsent() const { return false; }
    // A group or a loop: its children are laid out by the container around it.
    virtual bool isTransparent() const { return false; }
    virtual double layoutPriority() const { return 0; }
    // What the stack at `axis` may count on when it shares out its length.
    virtual LengthRange lengthRange(Axis axis, std::optional<double> crossProposal);
    // Distance of the first line's baseline from the top; the height where there is no text.
    virtual double firstBaseline(const geometry::ProposedSize& proposal);
    // The axis along which spacers inside stretch; absent where the node has no say.
    virtual std::optional<Axis> stackAxis() const { return std::nullopt; }
    // Whether spacers inside may look further out for it: modifiers, groups and composites, but not layered stacks.
    virtual bool sharesStackAxis() const { return isTransparent(); }
    // Stretches to take the room that is left over, and is nothing by itself.
    virtual bool isSpacer() const { return false; }
    // Whether spacers inside take what they are given, be it less than their minimum.
    virtual bool squeezesSpacers() const { return false; }
    // The nodes that a container lays out: children, seen through groups and loops, absent ones left out.
    void collectLayoutChildren(std::vector<Node*>& result) const;

    // --- Picture
    void paint(graphics::PaintContext& context, const graphics::PaintState& parentState, double now_s);
    virtual void applyEffects(graphics::PaintState& state, double now_s) const;
    virtual geometry::Point contentTranslation(double now_s) const;
    // The part of the own coordinates in which content counts as on screen; absent: all.
    virtual std::optional<geometry::Rect> viewport() const { return std::nullopt; }

    // --- Touches
    // The front-most deepest node at a point of the window; null when nothing there takes touches.
    Node* hitTest(geometry::Point inWindow, const graphics::PaintState& parentState, double now_s);
    virtual GestureHandler* gestureHandler() { return nullptr; }

    // --- Semantics
    virtual void appendSemantics(SemanticContext& context, const graphics::PaintState& parentState,
                                 std::vector<accessibility::Node>& result);

protected:
    // --- For subclasses to say what they are
    virtual geometry::Size measure(const geometry::ProposedSize& proposal);
    virtual void layOut(const geometry::ProposedSize& proposal, geometry::Size size);
    virtual void paintContent(graphics::PaintContext&, const graphics::PaintState&, double now_s);
    virtual void paintOverlay(graphics::PaintContext&, const graphics::PaintState&, double now_s);
    // By how much the picture may reach past the frame on any side, children not counted.
    virtual double paintOutset() const { return 0; }
    // Where the picture may be, given where it would be without the node's effects.
    virtual geometry::Rect effectBounds(const geometry::Rect& bounds) const { return bounds; }
    // Whether the own frame stops touches (texts, images, filled shapes do; containers do not).
    virtual bool isHittable() const { return false; }
    // False: touches pass through everything inside.
    virtual bool allowsHitTesting() const { return true; }
    // True: a touch in the frame that hits nothing inside goes to the first handler inside.
    virtual bool forwardsTouches() const { return false; }
    // The type's name in the semantic tree; empty: no node of its own.
    virtual std::string_view semanticType() const { return {}; }
    virtual void describe(accessibility::Node& node, const graphics::PaintState& state, double now_s) const;
    // Modifiers that say something about the view inside write it to context.pending.
    virtual void addAttributes(SemanticContext& context, const graphics::PaintState& state) const;
    // The slot that pending attributes and first baselines belong to, where children stand around a primary one.
    virtual std::size_t primarySlot() const { return 0; }
    // The transition that the node is; and whether the only child's count as the node's own.
    virtual TransitionNode* asTransition() { return nullptr; }
    virtual bool passesTransitionsOn() const { return false; }
    // The node has come to a place where safe areas or the window's edges count.
    void setDependsOnPosition();

    // --- For subclasses to work with
    // The semantic nodes of what is inside; `state` is the node's own, effects included.
    void appendChildSemantics(SemanticContext& context, const graphics::PaintState& state,
                              std::vector<accessibility::Node>& result);
    void updateChildren(const ViewList& views, UpdatePass& pass);
    void updateChild(std::size_t slot, const View& view, UpdatePass& pass);
    // By key: moved children keep their nodes. Keys that occur twice are told apart by their order.
    void updateKeyedChildren(const ViewList& views, UpdatePass& pass);
    // Places a child whose origin is given in coordinates whose x grows from the leading edge.
    void placeChild(Node& child, geometry::Point leadingOrigin, const geometry::ProposedSize& proposal);
    // The same for nodes that stand under transparent ones. `width` is what x is mirrored in.
    void placeAt(Node& child, geometry::Point leadingOrigin, geometry::Size childSize, const geometry::ProposedSize& proposal);
    // The first measuring since something inside has changed.
    bool isFirstMeasure() const { return m_sizeCount == 0; }
    // Gives the transparent and absent children the whole size, once those inside them have been placed.
    void settleTransparentChildren(geometry::Size size);
    // Whether a state or an observed object has changed, here or inside.
    bool mustBuild() const { return m_mustBuild; }
    // Whether anything inherited differs from the last update.
    bool environmentChanged() const { return m_environmentChanged; }
    // Slots in front come first in the list: backgrounds.
    void setPaintsInReverse(bool paintsInReverse) { m_paintsInReverse = paintsInReverse; }
    // Calls `function(Node&)` for children and leaving nodes, back to front.
    template <class Function>
    void forEachPainted(Function&& function) const;

private:
    friend class CompositeNode;
    friend class RootNode;
    friend class TransitionNode;
    friend class ViewHost;
    template <class NodeType, class Value>
    friend class ValueElement;
    template <class NodeType, class Value>
    friend class ModifierElement;

    struct CachedSize {
        geometry::ProposedSize proposal;
        geometry::Size size;
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
    std::unique_ptr<Node> insert(Element& element, std::size_t index, UpdatePass& pass);
    void remove(std::unique_ptr<Node> node, std::size_t index, UpdatePass& pass);
    std::unique_ptr<Node> revive(const Element& element, std::size_t index, UpdatePass& pass);
    // The transitions of a subtree that is about to come or go.
    void collectTransitions(std::vector<TransitionNode*>& result);
    void matchKeyedChildren(const ViewList& views, UpdatePass& pass);
    void animateFrameTo(const geometry::Rect& target);
    void updatePaintBounds();
    Node* firstHandlerNode();
    void removeLeaving(Node* node);
    // Every size asked before, here and inside.
    void dropSizes();
    bool hasLeft() const;

    Node* m_parent = nullptr;
    ViewHost* m_host = nullptr;
    const EnvironmentValues* m_environment = nullptr;
    std::uint64_t m_environmentVersion = 0;
    TypeKey m_type = nullptr;
    std::vector<std::unique_ptr<Node>> m_children;
    std::unique_ptr<std::vector<Leaving>> m_leaving;

    geometry::Rect m_frame;
    geometry::Rect m_paintBounds; // of the node and everything inside, in its own coordinates
    geometry::ProposedSize m_placedProposal;
    std::unique_ptr<Animated<geometry::Rect>> m_frameAnimation;
    CachedSize m_sizes[4];
    std::uint8_t m_sizeCount = 0;
    std::uint8_t m_nextSize = 0;

    StoredKey m_key;
    std::optional<motion::Animation> m_buildAnimation; // of the changes that made it need a build

    unsigned m_invalidation = 0; // the host's layout count at which it and everything further out was told to be laid out again

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

// Base of modifiers' nodes: one child, whose size and place are the node's unless overridden.
class ModifierNode : public Node {
public:
    bool isAbsent() const override { return !onlyChild() || onlyChild()->isAbsent(); }
    bool isSpacer() const override { return onlyChild() && onlyChild()->isSpacer(); }
    double layoutPriority() const override { return onlyChild() ? onlyChild()->layoutPriority() : 0; }
    double firstBaseline(const geometry::ProposedSize& proposal) override;
    // The child's: a modifier that changes sizes overrides it, if only with Node's.
    LengthRange lengthRange(Axis axis, std::optional<double> crossProposal) override;
    bool passesTransitionsOn() const override { return true; }
    bool sharesStackAxis() const override { return true; }

    // Updates the child; a modifier that changes the environment overrides it.
    virtual void adoptContent(const View& content, UpdatePass& pass) { updateChild(0, content, pass); }

protected:
    geometry::Size measure(const geometry::ProposedSize& proposal) override;
    void layOut(const geometry::ProposedSize& proposal, geometry::Size size) override;
};

// The element of a value whose node adopts it whole.
template <class NodeType, class Value>
class ValueElement final : public Element {
public:
    explicit ValueElement(Value&& value) : Element(typeKey<NodeType>()), m_value(std::move(value)) {}

    std::unique_ptr<Node> makeNode() override { return std::make_unique<NodeType>(); }
    void update(Node& node, UpdatePass& pass) override { static_cast<NodeType&>(node).adopt(std::move(m_value), pass); }

private:
    Value m_value;
};

template <class NodeType, class Value>
class ModifierElement final : public Element {
public:
    ModifierElement(Value&& value, const View& content)
        : Element(typeKey<NodeType>()), m_value(std::move(value)), m_content(content) {}

    std::unique_ptr<Node> makeNode() override { return std::make_unique<NodeType>(); }
    void update(Node& node, UpdatePass& pass) override {
        auto& modifier = static_cast<NodeType&>(node);
        modifier.adopt(std::move(m_value), pass);
        modifier.adoptContent(m_content, pass);
    }

private:
    Value m_value;
    View m_content;
};

template <class NodeType, class Value>
Element* newElement(Value&& value) {
    return ElementArena::current().make<ValueElement<NodeType, std::remove_cvref_t<Value>>>(std::move(value));
}
template <class NodeType, class Value>
View newModifier(Value&& value, const View& content) {
    Element* element =
        ElementArena::current().make<ModifierElement<NodeType, std::remove_cvref_t<Value>>>(std::move(value), content);
    // A modified view is who the view inside is, so that a transition behind an id() sees it come and go.
    if (const Element* inside = content.element()) element->key = inside->key;
    return View(element);
}

} // namespace proupsells::swiftui

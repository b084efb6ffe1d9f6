// How the views of a build meet the nodes of the last one.
#include <algorithm>
#include <string>
#include <unordered_map>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Host/TreeDepth.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/SwiftUI/Tree/TransitionHandler.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

namespace {

bool matches(const Element& element, TypeKey type, const StoredKey& key) { return element.type() == type && key == element.key; }

} // namespace

void Node::updateChildren(const ViewList& views, UpdatePass& pass) {
    for (std::size_t slot = views.size(); slot < m_children.size(); ++slot)
        if (m_children[slot]) remove(std::move(m_children[slot]), slot, pass);
    if (m_children.size() != views.size()) {
        m_children.resize(views.size());
        m_childExtents.reset(); // until the next layout
        invalidateLayout();
    }
    for (std::size_t slot = 0; slot < views.size(); ++slot) reconcile(m_children[slot], slot, views[slot], pass);
}

void Node::updateChild(std::size_t slot, const View& view, UpdatePass& pass) {
    if (slot >= m_children.size()) m_children.resize(slot + 1);
    reconcile(m_children[slot], slot, view, pass);
}

void Node::reconcile(std::unique_ptr<Node>& slot, std::size_t index, const View& view, UpdatePass& pass) {
    Element* element = view.element();
    if (slot && element && matches(*element, slot->m_type, slot->m_key)) return updateNode(*slot, *element, pass);
    if (!slot && !element) return;
    std::unique_ptr<Node> old = std::move(slot);
    // Looked for before the old one starts to leave, or it would find that one.
    std::unique_ptr<Node> revived = element ? revive(*element, index, pass) : nullptr;
    if (old) remove(std::move(old), index, pass);
    if (revived) {
        slot = std::move(revived);
        updateNode(*slot, *element, pass);
    } else if (element) {
        slot = insert(*element, pass);
    }
    invalidateLayout();
}

void Node::updateNode(Node& node, Element& element, UpdatePass& pass) {
    node.m_environmentChanged = node.m_isNew || node.m_environmentVersion != pass.environment->version;
    node.m_environmentVersion = pass.environment->version;
    node.m_environment = pass.environment;
    // When the direction changes, everything is placed anew.
    const bool wasRightToLeft = std::exchange(node.m_isRightToLeft, pass.environment->isRightToLeft());
    if (!node.m_isNew && wasRightToLeft != node.m_isRightToLeft) node.invalidateLayout();
    node.m_mustBuild = node.m_needsBuild || node.m_hasDirtyDescendant;
    node.m_needsBuild = false;
    node.m_hasDirtyDescendant = false;
    if (node.m_buildAnimation) {
        const std::unique_ptr<const motion::Animation> animation = std::move(node.m_buildAnimation);
        UpdatePass animated = pass.with(animation.get());
        element.update(node, animated);
    } else {
        element.update(node, pass);
    }
    node.m_isNew = false;
    node.m_environmentChanged = false;
    node.m_mustBuild = false;
}

std::unique_ptr<Node> Node::insert(Element& element, UpdatePass& pass) {
    std::unique_ptr<Node> node = element.makeNode();
    if (m_depth == host::maximumTreeDepth)
        commons::fatalError("Views are nested too deeply: more than " + std::to_string(host::maximumTreeDepth) +
                            " stand inside each other. Is one of them its own content?");
    node->m_depth = std::uint16_t(m_depth + 1);
    node->m_parent = this;
    node->m_host = m_host;
    node->m_type = element.type();
    node->m_key = StoredKey(element.key);
    updateNode(*node, element, pass);
    if (m_isNew) return node; // a part of what is being inserted further out
    std::vector<TransitionHandler*> transitions;
    node->collectTransitions(transitions);
    for (TransitionHandler* transition : transitions) transition->enter(pass);
    return node;
}

void Node::remove(std::unique_ptr<Node> node, std::size_t index, UpdatePass& pass) {
    node->m_isLeaving = true;
    m_host->m_touches.nodeGone(*node);
    m_host->setNeedsDisplay();
    std::vector<TransitionHandler*> transitions;
    node->collectTransitions(transitions);
    double end_s = pass.now_s;
    for (TransitionHandler* transition : transitions) end_s = std::max(end_s, transition->leave(pass));
    if (!(end_s > pass.now_s)) return m_host->departed(std::move(node));

    m_host->noteLeaving(*node);
    if (!m_leaving) m_leaving = std::make_unique<std::vector<Leaving>>();
    Leaving& leaving = m_leaving->emplace_back(std::move(node), index);
    leaving.timer = runloop::MainRunLoop::main().schedule(
        end_s - pass.now_s, [parent = this, gone = leaving.node.get()] { parent->removeLeaving(gone); });
}

void Node::removeLeaving(Node* node) {
    const auto leaving =
        std::find_if(m_leaving->begin(), m_leaving->end(), [node](const Leaving& l) { return l.node.get() == node; });
    if (leaving == m_leaving->end()) return;
    m_host->departed(std::move(leaving->node));
    if (isAbsent()) invalidateLayout();
    // Last, since it ends the timer whose callback this is.
    m_leaving->erase(leaving);
}

std::unique_ptr<Node> Node::revive(const Element& element, std::size_t index, UpdatePass& pass) {
    if (!m_leaving) return nullptr;
    const auto leaving = std::find_if(m_leaving->begin(), m_leaving->end(), [&](const Leaving& l) {
        return l.slot == index && matches(element, l.node->m_type, l.node->m_key);
    });
    if (leaving == m_leaving->end()) return nullptr;
    std::unique_ptr<Node> node = std::move(leaving->node);
    m_leaving->erase(leaving);
    node->m_isLeaving = false;
    std::vector<TransitionHandler*> transitions;
    node->collectTransitions(transitions);
    for (TransitionHandler* transition : transitions) transition->comeBack(pass);
    return node;
}

void Node::collectTransitions(std::vector<TransitionHandler*>& result) {
    if (auto* transition = transitionHandler()) result.push_back(transition);
    if (passesTransitionsOn() && onlyChild()) onlyChild()->collectTransitions(result);
}

void Node::updateKeyedChildren(const ViewList& views, UpdatePass& pass) {
    bool isInOrder = views.size() == m_children.size();
    for (std::size_t slot = 0; isInOrder && slot < views.size(); ++slot) {
        const Element* element = views[slot].element();
        isInOrder =
            element ? m_children[slot] && matches(*element, m_children[slot]->m_type, m_children[slot]->m_key) : !m_children[slot];
    }
    if (isInOrder) {
        for (std::size_t slot = 0; slot < views.size(); ++slot)
            if (m_children[slot]) updateNode(*m_children[slot], *views[slot].element(), pass);
        return;
    }
    matchKeyedChildren(views, pass);
    invalidateLayout();
}

void Node::matchKeyedChildren(const ViewList& views, UpdatePass& pass) {
    std::vector<std::unique_ptr<Node>> before = std::move(m_children);
    m_childExtents.reset();
    std::unordered_multimap<std::size_t, std::size_t> byKey;
    // Backwards, because of equal keys the entry made last is found first. So nodes with equal keys keep their order.
    for (std::size_t slot = before.size(); slot-- > 0;)
        if (before[slot]) byKey.emplace(before[slot]->m_key.key().hash(), slot);

    m_children.clear();
    m_children.resize(views.size());
    for (std::size_t slot = 0; slot < views.size(); ++slot) {
        const Element* element = views[slot].element();
        if (!element) continue;
        const auto [first, last] = byKey.equal_range(element->key.hash());
        auto best = last;
        for (auto candidate = first; candidate != last; ++candidate) {
            const Node& node = *before[candidate->second];
            if (matches(*element, node.m_type, node.m_key) && (best == last || candidate->second < best->second)) best = candidate;
        }
        if (best == last) continue;
        m_children[slot] = std::move(before[best->second]);
        byKey.erase(best);
    }
    for (std::size_t slot = 0; slot < before.size(); ++slot)
        if (before[slot]) remove(std::move(before[slot]), slot, pass);
    for (std::size_t slot = 0; slot < views.size(); ++slot) reconcile(m_children[slot], slot, views[slot], pass);
}

} // namespace proupsells::swiftui

#include "Platform/SwiftUI/Tree/CompositeNode.hpp"

#include <algorithm>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells::swiftui {

CompositeNode::~CompositeNode() {
    for (const auto& state : m_states) state->detach();
}

void CompositeNode::build(UpdatePass& pass) {
    for (Observation& observation : m_observations) observation.isUsed = false;
    BuildContext context(*this, environment());
    const View view = evaluate(context);
    std::erase_if(m_observations, [](const Observation& observation) { return !observation.isUsed; });
    updateChild(0, view, pass);
}

void CompositeNode::buildUnless(bool isSameValue, UpdatePass& pass) {
    if (!isSameValue || environmentChanged() || mustBuild()) build(pass);
}

double CompositeNode::firstBaseline(const geometry::ProposedSize& proposal) {
    return onlyChild() ? onlyChild()->firstBaseline(proposal) : 0;
}

LengthRange CompositeNode::lengthRange(Axis axis, std::optional<double> crossProposal) {
    return onlyChild() ? onlyChild()->lengthRange(axis, crossProposal) : LengthRange{};
}

geometry::Size CompositeNode::measure(const geometry::ProposedSize& proposal) {
    return onlyChild() ? onlyChild()->sizeThatFits(proposal) : geometry::Size{};
}

void CompositeNode::layOut(const geometry::ProposedSize& proposal, geometry::Size) {
    if (onlyChild()) onlyChild()->place({}, proposal);
}

void CompositeNode::observe(combine::ObservableObject& object) {
    for (Observation& observation : m_observations) {
        if (observation.object != &object) continue;
        observation.isUsed = true;
        return;
    }
    m_observations.push_back(
        {&object, object.objectWillChange.sink([this](const combine::WillChange&) { setNeedsBuild(); }), true});
}

void StateSlotBase::announceChange() const {
    if (m_owner) m_owner->stateChanged();
}

std::shared_ptr<StateSlotBase>* BuildContext::nextSlot() {
    return m_nextSlot < m_node.m_states.size() ? &m_node.m_states[m_nextSlot++] : nullptr;
}

void BuildContext::addSlot(std::shared_ptr<StateSlotBase> slot) {
    m_node.m_states.push_back(std::move(slot));
    ++m_nextSlot;
    m_node.own(*m_node.m_states.back());
}

void BuildContext::observe(combine::ObservableObject& object) { m_node.observe(object); }

void BuildContext::missingObject(std::string_view type) {
    commons::fatalError("No object of type " + std::string(type) +
                        " in the environment; an environmentObject() further out is missing");
}

} // namespace proupsells::swiftui

// The node of a view that is made of other views: its states, what it observes, and when it is built again.
#pragma once

#include <memory>
#include <vector>

#include "Platform/Combine/ObservableObject.hpp"
#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/SwiftUI/Tree/State.hpp"

namespace proupsells::swiftui {

class CompositeNode : public Node {
public:
    ~CompositeNode() override;

    // Evaluates the body and brings what is inside up to date.
    void build(UpdatePass& pass);
    // Does so only if the value is another one, or the environment is, or a state or an observed object has changed here or inside.
    void buildUnless(bool isSameValue, UpdatePass& pass);
    void stateChanged() { setNeedsBuild(); }

    bool isAbsent() const override { return !onlyChild() || onlyChild()->isAbsent(); }
    bool isTransparent() const override { return onlyChild() && onlyChild()->isTransparent(); }
    bool sharesStackAxis() const override { return true; }
    bool isSpacer() const override { return onlyChild() && onlyChild()->isSpacer(); }
    double layoutPriority() const override { return onlyChild() ? onlyChild()->layoutPriority() : 0; }
    double firstBaseline(const geometry::ProposedSize& proposal) override;
    LengthRange lengthRange(Axis axis, std::optional<double> crossProposal) override;

protected:
    bool passesTransitionsOn() const override { return true; }
    virtual View evaluate(BuildContext& context) = 0;
    geometry::Size measure(const geometry::ProposedSize& proposal) override;
    void layOut(const geometry::ProposedSize& proposal, geometry::Size size) override;

private:
    friend class BuildContext;
    struct Observation {
        combine::ObservableObject* object = nullptr;
        combine::AnyCancellable subscription;
        bool isUsed = false;
    };

    void observe(combine::ObservableObject& object);
    void own(StateSlotBase& state) { state.m_owner = this; }

    std::vector<std::shared_ptr<StateSlotBase>> m_states;
    std::vector<Observation> m_observations;
};

} // namespace proupsells::swiftui

// The declarative tree's node around a view of the retained layer.
#pragma once

#include "Platform/SwiftUI/Tree/GestureHandler.hpp"
#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/UIKit/Controllers/TouchRouter.hpp"

namespace proupsells::hosting {

class RepresentableStage;

class RepresentableNode : public swiftui::Node, private swiftui::GestureHandler {
public:
    RepresentableNode();
    ~RepresentableNode() override;

protected:
    // Once, on a new node.
    void setView(const std::shared_ptr<uikit::UIView>& view, swiftui::UpdatePass& pass);
    void adoptEnvironment(const swiftui::EnvironmentValues& environment);

    geometry::Size measure(const geometry::ProposedSize& proposal) override;
    void layOut(const geometry::ProposedSize& proposal, geometry::Size size) override;
    void paintContent(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) override;
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state, double now_s) const override;
    bool isHittable() const override { return true; }
    swiftui::GestureHandler* gestureHandler() override { return this; }

private:
    bool isControl() const override;
    bool touchBegan(const swiftui::TouchEvent& event) override;
    void touchMoved(const swiftui::TouchEvent& event) override;
    void touchEnded(const swiftui::TouchEvent& event) override;
    void touchCancelled() override;
    void hovered(bool isHovered) override;

    void send(host::TouchPhase phase, const swiftui::TouchEvent& event);
    // Brings the view's place in the retained tree up to date with where the declarative tree shows it.
    void followPlace();

    std::shared_ptr<RepresentableStage> m_stage;
    std::shared_ptr<uikit::UIView> m_view;
    std::unique_ptr<uikit::TouchRouter> m_touches;
};

} // namespace proupsells::hosting

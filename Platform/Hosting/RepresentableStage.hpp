// Stands for a place in the declarative tree among the hosting view's subviews.
#pragma once

#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::hosting {

// Tells the node of its view's changes. The hosting view leaves it out when it paints, since the declarative tree paints what is on
// it.
class RepresentableStage final : public uikit::UIView {
public:
    explicit RepresentableStage(swiftui::Node& node) : m_node(&node) {}
    std::string_view typeName() const override { return "RepresentableStage"; }

    // The node goes away.
    void forgetNode() { m_node = nullptr; }

    void layoutSubviews() override {
        for (const auto& view : subviews()) view->setFrame(bounds());
    }
    void subviewDidInvalidateIntrinsicContentSize(uikit::UIView&) override;

    // Touches come from the declarative tree and must not go back to it.
    uikit::UIView* hitTest(geometry::Point point) override {
        UIView* const hit = UIView::hitTest(point);
        return hit == this ? nullptr : hit;
    }
    void touchesBegan(const uikit::UITouch&) override {}
    void touchesMoved(const uikit::UITouch&) override {}
    void touchesEnded(const uikit::UITouch&) override {}
    void touchesCancelled(const uikit::UITouch&) override {}

protected:
    void subtreeNeedsDisplay() override;

private:
    swiftui::Node* m_node;
};

} // namespace proupsells::hosting

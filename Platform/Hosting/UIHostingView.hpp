// A declarative tree as a view of the retained layer.
#pragma once

#include <functional>
#include <memory>

#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::hosting {

// Gives the tree its size, safe area, environment and touches, and shows its picture and its semantics. The tree counts as visible
// while the view is in a window and nobody has said that it is not shown. Views of the retained layer inside the tree are subviews
// of this one; the tree paints them where they stand.
class UIHostingView : public uikit::UIView {
    struct Creation {};

public:
    UIHostingView(Creation, std::shared_ptr<swiftui::ViewHost> host);
    static std::shared_ptr<UIHostingView> create(std::function<swiftui::View()> root);
    ~UIHostingView() override;
    std::string_view typeName() const override { return "UIHostingView"; }

    swiftui::ViewHost& host() const { return *m_host; }
    // The hosting view that shows the tree; null for a tree that is shown otherwise.
    static UIHostingView* showing(const swiftui::ViewHost& host);
    // What the appearance calls of a controller say; true unless set.
    void setShown(bool isShown);

    void layoutSubviews() override;
    // The content's ideal size.
    geometry::Size intrinsicContentSize() const override;
    geometry::Size sizeThatFits(const geometry::ProposedSize& proposal) const override;
    void didMoveToWindow() override;
    void windowVisibilityDidChange() override;
    void traitCollectionDidChange(const uikit::UITraitCollection& previous) override;
    void languageDidChange() override { adoptEnvironment(); }
    void safeAreaInsetsDidChange() override { setNeedsLayout(); }

    uikit::UIView* hitTest(geometry::Point point) override;
    void touchesBegan(const uikit::UITouch& touch) override;
    void touchesMoved(const uikit::UITouch& touch) override;
    void touchesEnded(const uikit::UITouch& touch) override;
    void touchesCancelled(const uikit::UITouch& touch) override;
    bool hover(std::optional<geometry::Point> location) override;
    bool scrollBy(geometry::Point location, geometry::Point delta) override;
    bool isAnimating() const override;

protected:
    void paintSubviews(graphics::PaintContext& context, const graphics::PaintState& state) const override;
    void appendSubviewNodes(std::vector<accessibility::SemanticNode>& nodes, const graphics::PaintState& state) const override;

private:
    void adoptEnvironment();
    void updateVisibility();
    bool forward(const uikit::UITouch& touch);

    std::shared_ptr<swiftui::ViewHost> m_host;
    bool m_isShown = true;
};

} // namespace proupsells::hosting

// A rectangle on the screen: what it looks like, what is inside it, and how it is laid out.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/Foundation/LanguageChanges.hpp"
#include "Platform/Geometry/Transform.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Views/NSLayoutAnchor.hpp"
#include "Platform/UIKit/Views/UIKitTypes.hpp"
#include "Platform/UIKit/Views/UIResponder.hpp"
#include "Platform/UIKit/Views/UITraitCollection.hpp"

namespace proupsells::uikit {

class LayoutProblem;
class LayoutSystem;
class NSLayoutConstraint;
class UIViewController;
class UIWindow;

// Made with std::make_shared. A view owns its subviews; everything else that points to a view does so weakly.
class PROUPSELLS_EXPORT UIView : public UIResponder {
public:
    UIView();
    // Stands at `frame` until somebody lays it out.
    explicit UIView(const geometry::Rect& frame);
    ~UIView() override;

    std::string_view typeName() const override { return "UIView"; }

    // --- Hierarchy ---

    // Null for none.
    UIView* superview() const { return m_superview; }
    // Back to front.
    const std::vector<std::shared_ptr<UIView>>& subviews() const { return m_subviews; }
    // In front of all others. A view that stands somewhere else is moved. Adding a view to itself or to one inside it stops the
    // program.
    void addSubview(const std::shared_ptr<UIView>& view);
    // As addSubview(), at a place among the subviews: 0 is the backmost one.
    void insertSubview(const std::shared_ptr<UIView>& view, std::size_t index);
    // `sibling` must be a subview; otherwise stops the program.
    void insertSubviewAbove(const std::shared_ptr<UIView>& view, const UIView& sibling);
    void insertSubviewBelow(const std::shared_ptr<UIView>& view, const UIView& sibling);
    // Lets go of the view; nothing happens where it has no superview.
    void removeFromSuperview();
    // True for the view itself too.
    bool isDescendantOf(const UIView& view) const;
    // Null while the view is in no window.
    virtual UIWindow* window() const;
    // The controller whose root view this is; null for all others.
    UIViewController* viewController() const { return m_viewController; }

    UIResponder* nextResponder() const override;

    // Told after a subview has come in, and before one leaves.
    virtual void didAddSubview(UIView&) {}
    virtual void willRemoveSubview(UIView&) {}
    // Told after the superview has become another one, or none.
    virtual void didMoveToSuperview() {}
    // Told after the window has become another one, or none; every view inside is told, too.
    virtual void didMoveToWindow() {}
    // Told when the window, in which the view stands, comes into sight or goes out of it.
    virtual void windowVisibilityDidChange() {}

    // --- Geometry ---

    // In the superview's coordinates, before `transform`; in points.
    const geometry::Rect& frame() const { return m_frame; }
    void setFrame(const geometry::Rect& frame);
    // The view's own coordinates; the origin is not 0 in a scrolled view.
    geometry::Rect bounds() const { return {m_boundsOrigin, m_frame.size}; }
    void setBounds(const geometry::Rect& bounds);
    void setBoundsOrigin(geometry::Point origin);
    // About the centre. Moves what is painted and touched, not the layout.
    const geometry::Transform& transform() const { return m_transform; }
    void setTransform(const geometry::Transform& transform);

    // Between this view's coordinates and those of `view`; null means the window's, or the outermost view's.
    geometry::Point convertTo(geometry::Point point, const UIView* view) const;
    geometry::Point convertFrom(geometry::Point point, const UIView* view) const;
    geometry::Rect convertTo(const geometry::Rect& rect, const UIView* view) const;

    // --- Layout ---

    // The view is laid out again in the window's next update.
    void setNeedsLayout();
    // Lays out this view and what is inside it now, as far as it is due.
    void layoutIfNeeded();
    // Places the subviews. Runs after the pinned and the constrained ones have got their frames.
    virtual void layoutSubviews() {}
    // Whether a layout pass is due.
    bool needsLayout() const { return m_needsLayout; }

    // Keeps the view at these distances from its superview's edges from the next layout on. Absent: the frame is left alone.
    void fillSuperview(const geometry::EdgeInsets& insets = {}) { setSuperviewInsets(insets); }
    void setSuperviewInsets(const std::optional<geometry::EdgeInsets>& insets);
    const std::optional<geometry::EdgeInsets>& superviewInsets() const { return m_superviewInsets; }

    // The natural size; noIntrinsicMetric where an axis has none.
    virtual geometry::Size intrinsicContentSize() const { return {noIntrinsicMetric, noIntrinsicMetric}; }
    // Tells whoever lays this view out that its natural size is another one now.
    void invalidateIntrinsicContentSize();
    // Told of a subview whose natural size is another one now.
    virtual void subviewDidInvalidateIntrinsicContentSize(UIView&) {}
    // The size that suits the view where it is offered `proposal`; its natural size, or where it has none the offer.
    virtual geometry::Size sizeThatFits(const geometry::ProposedSize& proposal) const;

    // The natural size of a view that layout makes as large as `given`: texts wrap.
    virtual geometry::Size naturalSizeFor(geometry::Size given) const;

    // How strongly the view keeps from growing beyond its natural size, and from being squeezed below it.
    UILayoutPriority contentHuggingPriority(Axis axis) const { return m_hugging[std::size_t(axis)]; }
    void setContentHuggingPriority(UILayoutPriority priority, Axis axis);
    UILayoutPriority contentCompressionResistancePriority(Axis axis) const { return m_compressionResistance[std::size_t(axis)]; }
    void setContentCompressionResistancePriority(UILayoutPriority priority, Axis axis);
    // What constraints keep the natural size with: the view's own priorities, or those of what decides about its size.
    virtual UILayoutPriority effectiveHuggingPriority(Axis axis) const { return contentHuggingPriority(axis); }
    virtual UILayoutPriority effectiveCompressionResistancePriority(Axis axis) const {
        return contentCompressionResistancePriority(axis);
    }

    // Whether the frame stands as it was set. Set to false to let constraints decide.
    bool translatesAutoresizingMaskIntoConstraints() const { return m_translatesAutoresizingMask; }
    void setTranslatesAutoresizingMaskIntoConstraints(bool translates);
    // The constraints that this view holds, in the order in which they were added.
    const std::vector<std::shared_ptr<NSLayoutConstraint>>& constraints() const { return m_constraints; }

    // The view's edges, centre and lengths, to make constraints with.
    NSLayoutXAxisAnchor leadingAnchor() { return anchors().leadingAnchor(); }
    NSLayoutXAxisAnchor trailingAnchor() { return anchors().trailingAnchor(); }
    NSLayoutXAxisAnchor leftAnchor() { return anchors().leftAnchor(); }
    NSLayoutXAxisAnchor rightAnchor() { return anchors().rightAnchor(); }
    NSLayoutXAxisAnchor centerXAnchor() { return anchors().centerXAnchor(); }
    NSLayoutYAxisAnchor topAnchor() { return anchors().topAnchor(); }
    NSLayoutYAxisAnchor bottomAnchor() { return anchors().bottomAnchor(); }
    NSLayoutYAxisAnchor centerYAnchor() { return anchors().centerYAnchor(); }
    NSLayoutDimension widthAnchor() { return anchors().widthAnchor(); }
    NSLayoutDimension heightAnchor() { return anchors().heightAnchor(); }
    // The view without the window's unsafe edges.
    UILayoutGuide safeAreaLayoutGuide() { return {layoutItem(), true}; }
    // The size that the view's constraints and those inside it ask for, with given lengths kept and absent ones as small as can be.
    geometry::Size systemLayoutSizeFitting(const geometry::ProposedSize& proposal);
    // Whether the view has constraints of its own, or subviews that constraints place.
    bool isSizedByConstraints() const { return !m_constraints.empty() || hasConstrainedSubviews(); }
    // Whether the view places this subview in its layoutSubviews, whatever constraints say.
    virtual bool arranges(const UIView& /*subview*/) const { return false; }

    // --- Traits, language and safe area ---

    // The window's traits as they arrive here; before the view is in a window, those of the place that it is made for.
    UITraitCollection traitCollection() const;
    // Told of changes while the view is shown, not of the first traits.
    virtual void traitCollectionDidChange(const UITraitCollection& /*previous*/) {}
    // The texts read so far may be in another language now: those that the view keeps are to be read again. Told in the window's
    // next update, or when the view comes back into a window, however often the language has changed meanwhile.
    virtual void languageDidChange() {}
    // Stands in for what the superview hands down; absent again: inherits.
    void setOverrideTraitCollection(const std::optional<UITraitCollection>& traits);
    // What a subview inherits.
    virtual UITraitCollection traitsForSubviews() const { return traitCollection(); }
    // Whether rows and texts run from right to left here.
    bool isRightToLeft() const { return traitCollection().layoutDirection == geometry::LayoutDirection::rightToLeft; }

    // How much of each edge is under the window's unsafe edges. Known before the view is in the window, when its controller is.
    geometry::PhysicalInsets safeAreaInsets() const;
    // The view's coordinates without the unsafe edges.
    geometry::Rect safeAreaRect() const;
    // Told when they have become other ones.
    virtual void safeAreaInsetsDidChange() {}

    // --- Appearance ---

    // Behind what the view draws; absent for none.
    const std::optional<UIColor>& backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const std::optional<UIColor>& color);
    // From 0, when the view is not seen, to 1; what is inside fades with it.
    double alpha() const { return m_alpha; }
    void setAlpha(double alpha);
    // A hidden view, with what is inside it, is neither seen nor touched, and not on screen for the semantic tree. Stacks leave no
    // room for it.
    bool isHidden() const { return m_isHidden; }
    void setHidden(bool hidden);
    // Whether what is inside is cut off at the view's edges.
    bool clipsToBounds() const { return m_clipsToBounds; }
    void setClipsToBounds(bool clips);
    // Of the background, and of the clip where there is one.
    double cornerRadius() const { return m_cornerRadius; }
    void setCornerRadius(double radius);
    // The superview's, up to the first one that is set; absent when none is.
    std::optional<UIColor> tintColor() const;
    void setTintColor(const std::optional<UIColor>& color);

    // Says that the picture is another one now.
    void setNeedsDisplay();
    // Paints the view and what is inside it. `state` is the superview's.
    void paint(graphics::PaintContext& context, const graphics::PaintState& state) const;
    // True when the view paints every point of `rect`, in its own coordinates, so that nothing behind it can be seen.
    virtual bool covers(const geometry::Rect& rect) const;
    // Whether the picture changes by itself, in this view or inside it.
    virtual bool isAnimating() const;

    // --- Touches ---

    // Where it is off, the view and what is inside it are passed by.
    bool isUserInteractionEnabled() const { return m_isUserInteractionEnabled; }
    void setUserInteractionEnabled(bool enabled);
    // The front-most view at `point`, in this view's coordinates, that takes touches; null for none.
    virtual UIView* hitTest(geometry::Point point);
    // Whether the point, in the view's coordinates, is the view's.
    virtual bool pointInside(geometry::Point point) const { return bounds().contains(point); }
    // Asked, from the touched view outwards, for the first touch and for each of its moves: true takes the touch away from the view
    // that has it, which is told that it was cancelled.
    virtual bool takesOverTouch(const UITouch&) { return false; }
    // Whether the views around must leave the touch that this view has alone.
    virtual bool keepsTouch() const { return false; }
    // Asked, from the view under the mouse outwards, where the mouse rests: whether there is something to be tapped, which then
    // shows it. Absent once the mouse has left what was under it.
    virtual bool hover(std::optional<geometry::Point> /*location*/) { return false; }
    // Whether scrollRectToVisible moves something here.
    virtual bool scrollsItsContent() const { return false; }
    // A wheel: moves what the view shows by `delta` and returns true, or returns false to let the superview try.
    virtual bool scrollBy(geometry::Point location, geometry::Point delta);
    // Scrolls by as little as makes `rect`, in this view's coordinates, visible in all scroll views around it, at once.
    virtual void scrollRectToVisible(const geometry::Rect& rect);

    // --- Accessibility ---

    // What tests and tools know the view by; empty for none.
    std::string accessibilityIdentifier;
    // What is read to a person; empty: whatever texts are inside.
    std::string accessibilityLabel;
    // What is said of the view besides what its class says.
    accessibility::Traits accessibilityTraits = accessibility::Traits::none;
    // Whether a person rests on the view, with the pointer or with the focus of the keys; see UIWindow. Never outside of a window.
    bool isAttended() const;

    // What only those are told who hear the view or steer it by keys.
    accessibility::SpokenInfo accessibilitySpoken;
    // The view's state in words, such as a page number; empty for none.
    virtual std::string accessibilityValue() const { return m_accessibilityValue; }
    void setAccessibilityValue(std::string value) { m_accessibilityValue = std::move(value); }

    // The view and what is inside it, as it stands now. `state` is the superview's.
    accessibility::SemanticNode semanticNode(const graphics::PaintState& state) const;

protected:
    // Paints what is above the background and below the subviews, in the view's coordinates.
    virtual void draw(graphics::PaintContext&, const graphics::PaintState&) const {}
    // The subviews' turn in paint().
    virtual void paintSubviews(graphics::PaintContext& context, const graphics::PaintState& state) const;
    // Adds what is particular to the class.
    virtual void describe(accessibility::SemanticNode&, const graphics::PaintState&) const {}
    // The subviews' turn in semanticNode().
    virtual void appendSubviewNodes(std::vector<accessibility::SemanticNode>& nodes, const graphics::PaintState& state) const;
    // A change of the coordinates that is seen only: painted and described, but neither laid out nor touched.
    virtual geometry::Transform presentationTransform() const { return m_transform; }
    // Likewise of the opacity.
    virtual double presentationAlpha() const { return m_alpha; }
    // The colour's value in the view's light or dark scheme.
    graphics::RGBA resolved(const UIColor& color) const { return color.resolved(traitCollection().userInterfaceStyle); }
    // After every change of the frame.
    virtual void frameDidChange(const geometry::Rect& /*previous*/) {}
    // Told to the outermost view: something inside waits for a layout pass.
    virtual void subtreeNeedsLayout() {}
    // Told to every view around the one whose picture has changed, and to itself.
    virtual void subtreeNeedsDisplay() {}

private:
    friend class UIViewController;
    friend class UIWindow;
    friend class NSLayoutConstraint;
    friend class LayoutProblem;
    friend class LayoutSystem;

    void insert(const std::shared_ptr<UIView>& view, std::size_t index);
    std::size_t indexOf(const UIView& subview) const;
    std::vector<std::shared_ptr<UIViewController>> outermostControllers();
    void movedToWindow(UIWindow* window);
    void noticeWindowVisibility();
    void adoptTraits(const UITraitCollection& inherited);
    void noticeLanguage();
    // The same for the views inside as well.
    void followLanguage();
    void noticeSafeArea();
    // Of a rectangle in the view's coordinates.
    geometry::PhysicalInsets safeAreaInsetsOf(const geometry::Rect& rect) const;
    void setTreeNeedsLayout();
    void layOutPinnedSubviews();
    void layOutConstrainedSubviews();
    void layOutTree();
    void tellControllerOfLayout();
    // --- Of constraints ---
    const std::shared_ptr<LayoutItem>& layoutItem() { return m_layoutItem.itemOf(*this); }
    LayoutAnchors anchors() { return {layoutItem(), false}; }
    bool hasConstrainedSubviews() const;
    // Whether the frame comes from the same system of constraints as the superview's subviews do.
    bool isPlacedByConstraints() const;
    // The view whose size is given and inside which constraints place this one; the view itself where none do.
    UIView& layoutRoot();
    // A constraint in the system around has changed, or something that it depends on.
    void layoutSystemDidChange();
    // The same, told by a view that constraints place, or whose frame they refer to.
    void constraintInputDidChange();
    void endConstraintsAcross(const UIView& leaving);
    geometry::Transform toSuperview() const;
    geometry::Transform toOutermost() const;
    graphics::PaintState contentState(const graphics::PaintState& state) const;
    void describeTransform(accessibility::SemanticNode& node) const;
    void describeReveal(accessibility::SemanticNode& node) const;

    const std::uint64_t m_id;
    UIView* m_superview = nullptr;
    std::vector<std::shared_ptr<UIView>> m_subviews;
    UIViewController* m_viewController = nullptr;
    UIWindow* m_window = nullptr;

    geometry::Rect m_frame;
    geometry::Point m_boundsOrigin;
    geometry::Transform m_transform;
    std::optional<geometry::EdgeInsets> m_superviewInsets;

    bool m_needsLayout = true;
    bool m_subtreeNeedsLayout = true;
    bool m_translatesAutoresizingMask = true;
    bool m_isHidden = false;
    bool m_clipsToBounds = false;
    bool m_isUserInteractionEnabled = true;

    UILayoutPriority m_hugging[2] = {layoutPriorityLow, layoutPriorityLow};
    UILayoutPriority m_compressionResistance[2] = {layoutPriorityHigh, layoutPriorityHigh};
    std::vector<std::shared_ptr<NSLayoutConstraint>> m_constraints;
    LayoutItemOwner m_layoutItem;
    std::shared_ptr<LayoutSystem> m_layoutSystem; // of a layout root, as of its last layout

    std::optional<UITraitCollection> m_traits; // absent until the view has been in a window
    std::optional<UITraitCollection> m_overrideTraits;
    std::uint64_t m_languageChangeCount = foundation::LanguageChanges::count(); // when the texts were read
    geometry::PhysicalInsets m_lastSafeArea;

    std::optional<UIColor> m_backgroundColor;
    std::optional<UIColor> m_tintColor;
    double m_alpha = 1;
    double m_cornerRadius = 0;
    std::string m_accessibilityValue;
};

} // namespace proupsells::uikit

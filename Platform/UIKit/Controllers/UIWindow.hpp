// The outermost view: stands between a backend's window and the controllers that fill it.
#pragma once

#include <cstdint>
#include <memory>

#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/PresentationObserver.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells::uikit {

class KeyboardFocus;
class PresentationStack;
class TouchRouter;

// Layout and picture changes of one turn of the run loop are brought together in one update at the turn's end.
class PROUPSELLS_EXPORT UIWindow : public UIView, public host::WindowContent, public runloop::UpdateClient {
    struct Creation {};

public:
    // For create() only.
    explicit UIWindow(Creation);
    // A window of a size, with unsafe edges, in points. A host changes both by setSize().
    static std::shared_ptr<UIWindow> create(geometry::Size size = {}, geometry::PhysicalInsets safeArea = {});
    ~UIWindow() override;

    std::string_view typeName() const override { return "UIWindow"; }

    // Appears at once. Null takes the former one away, with all that is presented.
    void setRootViewController(std::shared_ptr<UIViewController> controller);
    // Null for none.
    UIViewController* rootViewController() const { return m_root.get(); }

    // What the person sees, except horizontalSizeClass, which follows the width.
    void setTraits(const UITraitCollection& traits);
    const UITraitCollection& traits() const { return m_windowTraits; }
    // The unsafe edges, as they were set.
    geometry::PhysicalInsets windowSafeArea() const { return m_safeArea; }

    // The presented controller in front of all others; the root controller when nothing is presented; null without one.
    UIViewController* frontMostViewController() const;
    // Whether a presentation or dismissal is on its way or waits for its turn.
    bool isTransitioning() const;
    // Told when the root controller is to be dismissed, by its close button for example: whoever shows the window closes it.
    // Without a handler nothing happens. It may let go of the window.
    void setRootDismissalHandler(std::function<void()> handler) { m_rootDismissalHandler = std::move(handler); }
    // Held weakly.
    void setPresentationObserver(std::weak_ptr<PresentationObserver> observer);

    // --- host::WindowContent ---
    void setSize(geometry::Size size, geometry::PhysicalInsets safeArea) override;
    void touch(const host::Touch& touch) override;
    void pointer(std::optional<geometry::Point> location) override;
    bool pointsAtControl() override;
    void scroll(geometry::Point location, geometry::Point delta) override;
    // Of the front-most presentation: Tab moves the focus ring through its controls; activate and space tap the one in focus,
    // arrows choose a neighbour, turn a page or open and close; what means nothing to it scrolls the page; escape leaves the
    // screen. Nothing is tapped or left again while the key is held down, and no key does anything during a transition.
    bool key(host::Key key, bool isRepeated = false) override;

    void setFocusLeaves(bool leaves) override { m_focusLeaves = leaves; }
    bool takeFocus(host::FocusEnd end) override;
    void dropFocus() override;
    void setSeen(bool isSeen) override;

    // Whether a person rests on what stands there, with the pointer or with the focus of the keys: what moves by itself is held
    // then. In window points.
    bool isAttended(const geometry::Rect& rect) const;

    // Whether anybody can see the window.
    bool isSeen() const { return m_isSeen; }

    void paint(graphics::DisplayList& list) override;
    bool isAnimating() const override;
    // How often `paint` was called, with a call that is running.
    std::uint64_t paintCount() const { return m_paintCount; }

    void setNeedsDisplayHandler(std::function<void()> handler) override;
    // Of the front-most presentation, from its controller's view on. What operates a control does nothing once another one is in
    // front, and while one is on its way.
    accessibility::SemanticNode semanticTree() override;
    // A dialog by its controller's name.
    accessibility::ReadingElement reading() override;

    void update() override;
    UIWindow* window() const override { return const_cast<UIWindow*>(this); }
    UITraitCollection traitsForSubviews() const override { return m_windowTraits; }
    void layoutSubviews() override;

protected:
    void subtreeNeedsLayout() override;
    void subtreeNeedsDisplay() override;

private:
    friend class UIViewController;
    friend class KeyboardFocus;
    friend class PresentationStack;
    friend class UIView;

    PresentationStack& presentations() { return *m_presentations; }
    // The finger that is down, if any, has nobody any more.
    void cancelTouch();
    void adoptWindowTraits(UITraitCollection traits);
    void layOutInCurrentLanguage();
    void requestUpdate();
    graphics::PaintState windowState() const;
    accessibility::SemanticNode frontMostNode(const graphics::PaintState& state) const;
    // As semanticTree(), of what is laid out, without most of what stands outside the window and the scroll views in it.
    accessibility::SemanticNode seenTree() const;
    std::size_t firstVisibleLayer() const;
    bool escape();
    bool scrollPage(host::Key key);

    std::shared_ptr<UIViewController> m_root;
    std::unique_ptr<PresentationStack> m_presentations;
    std::unique_ptr<TouchRouter> m_touches;
    std::unique_ptr<KeyboardFocus> m_focus;
    UITraitCollection m_windowTraits;
    geometry::PhysicalInsets m_safeArea;
    std::function<void()> m_needsDisplayHandler;
    std::uint64_t m_paintCount = 0;
    combine::AnyCancellable m_languageChanges;
    bool m_needsDisplay = false; // and nobody has been told yet
    bool m_hasChanged = true;    // since the last picture
    bool m_updateIsRequested = false;
    bool m_isUpdating = false;
    bool m_isSeen = true;
    bool m_focusLeaves = false;
    std::optional<geometry::Point> m_pointer; // absent while there is none
    std::weak_ptr<UIView> m_hovered;          // what the mouse can tap
    std::function<void()> m_rootDismissalHandler;
};

} // namespace proupsells::uikit

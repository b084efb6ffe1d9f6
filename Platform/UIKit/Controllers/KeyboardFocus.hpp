// Which control the keys operate.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "Platform/Host/WindowContent.hpp"

namespace proupsells::graphics {
class PaintContext;
}

namespace proupsells::uikit {

class UIViewController;
class UIWindow;

// Nobody has the focus until a key asks for it. From then on each screen has a control of its own that it belongs to: a screen that
// is presented gives it to its first one, and one that comes to the front again to the one that had it. A control that goes or is
// disabled takes the focus with it; Tab goes on from its place, and no other key does anything.
class KeyboardFocus {
public:
    // The window must live longer.
    explicit KeyboardFocus(UIWindow& window) : m_window(window) {}

    // To the next control (1) or the one before (-1). False where it leaves, or where there is no control.
    bool move(int step, bool leavesAtEnds);
    // Comes in from outside. False where there is no control.
    bool take(host::FocusEnd end);
    // Nobody has it any more, on no screen.
    void drop();
    // What the key means to the control in focus. False where it means nothing.
    bool use(host::Key key);

    void paintRing(graphics::PaintContext& context);

private:
    using Controls = std::vector<accessibility::SemanticNode>;
    // The control of a screen that has, or had, the focus.
    struct Place {
        std::weak_ptr<UIViewController> screen;
        std::uint64_t control = 0;
        std::size_t index = 0; // among the controls when it was last there
    };

    Controls controls() const;
    // Of the screen in front. Null before it was given to one of its controls.
    Place* place();
    std::optional<std::size_t> indexInFocus(const Controls& controls);
    void give(const Controls& controls, std::size_t index);
    void giveInSight(const Controls& controls, std::size_t index);

    UIWindow& m_window;
    bool m_isThere = false;
    std::vector<Place> m_places;
};

} // namespace proupsells::uikit

// Which control the keys operate.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Accessibility/Reading.hpp"
#include "Platform/Host/WindowContent.hpp"

namespace proupsells::graphics {
class PaintContext;
}

namespace proupsells::uikit {

class UIViewController;
class UIWindow;

// Nobody has the focus until a key asks for it. From then on each screen has a control of its own that it belongs to: a screen that
// is presented gives it to its first one, and one that comes to the front again to the one that had it. A control that goes or is
// disabled takes the focus with it; Tab goes on from its place, and no other key operates anything.
// Controls follow each other as they are read. Of a group of radio buttons Tab meets one; arrows move and choose among them.
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
    // What the key means to the control in focus, which is not tapped again while the key is held down. False where it means
    // nothing.
    bool use(host::Key key, bool isRepeated);

    // Says of the window's reading who has the focus, and lets it be given to others.
    void mark(accessibility::ReadingElement& reading);
    // Where what is seen of the control in focus stood when it was given or painted last, in window points. Absent while nobody had
    // it or while it could not be seen.
    const std::optional<geometry::Rect>& lastFrame() const { return m_lastFrame; }
    // `isNew` where the picture is another than the last one.
    void paintRing(graphics::PaintContext& context, bool isNew);

private:
    using Element = accessibility::ReadingElement;
    // A control, and the group of radio buttons that it belongs to, or null.
    struct Stop {
        const Element* element;
        const Element* group;
    };
    // What is read, and the controls in it.
    struct Stops {
        Element reading;
        std::vector<Stop> all;
    };
    // The control of a screen that has, or had, the focus.
    struct Place {
        std::weak_ptr<UIViewController> screen;
        std::uint64_t id = 0;
        std::string identifier;
        std::size_t index = 0; // among the controls when it was last there
    };

    static void collect(const Element& element, const Element* group, std::vector<Stop>& stops);
    static Stops stopsIn(const accessibility::SemanticNode& screen);
    Stops stops() const;
    void findRing();
    std::optional<geometry::Rect> frameInFocus(const accessibility::SemanticNode& screen);
    // Of the screen in front. Null before it was given to one of its controls.
    Place* place();
    // Gives the focus to the screen's first control where none has it yet.
    std::optional<std::size_t> indexInFocus(const std::vector<Stop>& stops);
    // Absent where the control in focus is none of them.
    static std::optional<std::size_t> indexOf(const Place& place, const std::vector<Stop>& stops);
    // Where Tab goes from a place among the controls, which may be before the first one or after the last one; absent for out.
    static std::optional<std::size_t> nextStop(const std::vector<Stop>& stops, std::ptrdiff_t from, int step, const Element* group);
    void give(const Stop& stop, std::size_t index);
    void giveInSight(const std::vector<Stop>& stops, std::size_t index);
    bool isFocusSeen();
    void revealFocus();
    bool chooseNeighbour(const std::vector<Stop>& stops, std::size_t index, int step);
    // By how much a key steps along what reads from left to right or from right to left: 1, -1, or 0 for other keys.
    int horizontalStep(host::Key key) const;

    UIWindow& m_window;
    bool m_isThere = false;
    std::vector<Place> m_places;
    std::optional<geometry::Rect> m_lastFrame;
    std::optional<geometry::Rect> m_ring; // as painted last
    bool m_mustFindRing = true;           // whatever the window says of its picture
};

} // namespace proupsells::uikit

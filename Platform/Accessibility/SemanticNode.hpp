// The semantic tree of a screen: what assistive technology, tests and the screen dump read.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::accessibility {

// What a node is and how it stands, any number of them at once.
enum class Traits : std::uint16_t {
    none = 0,
    button = 1,
    selected = 2,
    disabled = 4,
    header = 8,
    image = 16,
    staticText = 32,
    adjustable = 64,
    link = 128,
};
// All of both.
constexpr Traits operator|(Traits a, Traits b) { return Traits(std::uint16_t(a) | std::uint16_t(b)); }
// Whether `all` has every one of `one`.
constexpr bool contains(Traits all, Traits one) { return (std::uint16_t(all) & std::uint16_t(one)) == std::uint16_t(one); }

// A stretch of a rich text, as it was laid out. Fonts and colours by their design-system names, sizes in points.
struct TextRunInfo {
    std::string text;
    std::string font;
    double size = 0;
    std::optional<int> weight;
    std::string color;
    bool isStruckThrough = false;
};

// A text as it was laid out. Fonts and colours by their design-system names, sizes in points.
struct TextInfo {
    std::string text; // the whole text before any change of case
    std::string font;
    double size = 0;
    std::optional<int> weight;
    std::string color;
    int lineCount = 0;
    bool isTruncated = false;
    std::vector<TextRunInfo> runs; // of rich texts only
};

// Colours by their design-system names; empty for none.
struct ShapeInfo {
    std::string fill;
    std::string stroke;
    std::optional<double> lineWidth;
    std::optional<double> cornerRadius;
};

// How far a scroll view has been scrolled, and how much there is to scroll; in points.
struct ScrollInfo {
    geometry::Point contentOffset;
    geometry::Size contentSize;
    geometry::PhysicalInsets contentInset;
};

// Which clip a view plays.
struct ClipInfo {
    std::string name;
    std::optional<double> time_s; // of the picture in the clip; absent while none is shown
};

// What a node is to somebody who hears the screen or steers it by keys.
enum class Role : std::uint8_t {
    unstated, // as the node's traits and parts have it
    dialog,
    group,
    radioGroup,
    heading,
    text,
    image,
    button,
    link,
    radioButton,
    disclosure, // opens and closes what follows it
    pager,      // turns to the page before or after
};

// What only those are told who hear a screen or steer it by keys, where a node's other parts do not say it.
struct SpokenInfo {
    Role role = Role::unstated;
    std::string name; // instead of the label and of the texts inside; empty for those
    // Of radio buttons and disclosures; absent for others.
    std::optional<bool> isChecked;
    std::optional<bool> isExpanded;
    // Of pagers: which page is shown, from 1, of how many; 0 of others.
    int page = 0;
    int pageCount = 0;
    int order = 0;         // lower ones are read earlier, among all that stand in the same group
    bool isSilent = false; // neither it nor anything inside is read
    // Keys stop at it, be it only to hold what moves in it.
    bool takesFocus = false;
    // All that is seen of the control that it is in, whose own frame is larger.
    bool isPlate = false;

    bool operator==(const SpokenInfo&) const = default;
};

// How much is to be seen around what is revealed as a whole, in points: more than what fades out at the edges of a page.
inline constexpr double roomAroundRevealed = 48;

// A view and what is inside it, front-most last. Frames are in window points, after every transform. Texts are empty and optional
// parts absent where the view has none of the kind.
struct SemanticNode {
    std::string type;     // as in the code
    std::uint64_t id = 0; // of the view, as long as it lives, and of no other one; 0 for none
    geometry::Rect frame;
    bool isOnScreen = false;
    std::string identifier;
    std::string label;
    std::string value;
    Traits traits = Traits::none;
    std::optional<TextInfo> text;
    std::string image; // asset name
    std::optional<ShapeInfo> shape;
    double opacity = 1; // ancestors' included
    std::optional<double> scale;
    std::optional<double> rotation_degrees;
    std::optional<geometry::Rect> clip;
    std::optional<ScrollInfo> scroll;
    std::optional<ClipInfo> clipView;
    SpokenInfo spoken;

    // Something that a person can tap.
    bool isControl = false;
    // Of controls: how wide and how high what may be touched is at least, in points, around the frame's centre, where no other
    // control is nearer; 0 where it is just the frame.
    double leastTarget = 0;
    // Of controls: does what a tap at the control's centre does. Empty when it is disabled.
    std::function<void()> activate;
    // Of adjustable controls: one step up (1) or down (-1). Empty for others and when it is disabled.
    std::function<void(int step)> adjust;
    // Scrolls whatever scroll views are around the node by as little as makes its centre reachable, at once. Empty outside scroll
    // views.
    std::function<void()> reveal;
    // Likewise until the whole node can be seen with some room around, or its beginning where it is too large for that.
    std::function<void()> revealWhole;

    std::vector<SemanticNode> children;

    // Of lists that have views only for the items in sight: the items before those, in order.
    std::vector<SemanticNode> itemsBefore;
    // Likewise the items after them.
    std::vector<SemanticNode> itemsAfter;
};

} // namespace proupsells::accessibility

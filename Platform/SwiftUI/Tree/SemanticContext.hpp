// How nodes write themselves into the semantic tree.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/Graphics/PaintContext.hpp"

namespace proupsells::swiftui {

// What modifiers say about the first node inside them that appears in the semantic tree.
struct SemanticAttributes {
    std::string identifier;
    std::string label;
    std::string value;
    accessibility::Traits traits = accessibility::Traits::none;
    bool isHidden = false;
    accessibility::SpokenInfo spoken;
    std::optional<geometry::Rect> frame; // in window points; the identified frame
    bool isFrameIdentified = false;      // set with an identifier, so that no label replaces it
    std::optional<double> scale;
    std::optional<double> rotation_degrees;
    std::optional<geometry::Rect> clip;
    bool isControl = false;         // a tap on it does something
    std::uint64_t id = 0;           // of what makes a control of it; 0 where it speaks for itself
    std::function<void()> activate; // see accessibility::SemanticNode
};

// How much of a rectangle is to come in sight; see accessibility::SemanticNode::reveal and revealWhole.
enum class Revealed : std::uint8_t { centre, whole };
using Revealer = std::function<void(const geometry::Rect& inWindow, Revealed revealed)>;

struct SemanticContext {
    geometry::Rect window; // what can be seen at all, in window points
    double now_s = 0;
    // Goes to the next node that appears.
    SemanticAttributes pending;
    // Scrolls the scroll views around. Each scroll view puts its own in place for its content.
    Revealer reveal;
    // By how far what is described still moves in the innermost scroll view's content before it rests, in points.
    geometry::Point movement;
    // Brings that content to rest at once. Empty outside scroll views.
    std::function<void()> bringToRest;

    // Makes a node of the type. The pending attributes go into it and are empty afterwards.
    accessibility::SemanticNode makeNode(std::string_view type, const graphics::PaintState& state, const geometry::Rect& frame);

private:
    std::function<void()> revealing(const geometry::Rect& frame, Revealed revealed) const;
};

} // namespace proupsells::swiftui

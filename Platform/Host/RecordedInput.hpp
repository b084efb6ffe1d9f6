// What a person, a backend and a host have done with a content, and when.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Platform/Host/WindowContent.hpp"

namespace proupsells::host {

// --- What comes into a WindowContent, as its operations have it. A Touch is one of them. ---

// The window has another size, or another part of it is covered.
struct SizeInput {
    geometry::Size size;               // points
    geometry::PhysicalInsets safeArea; // points
};

// The mouse rests there or goes there.
struct PointerInput {
    std::optional<geometry::Point> location; // absent once it has left
};

// A wheel or trackpad.
struct ScrollInput {
    geometry::Point location; // window points
    geometry::Point delta;    // points
};

// A key has been pressed.
struct KeyInput {
    Key key = Key::escape;   // which one
    bool isRepeated = false; // whether it is held down and comes again
};

// Whether the focus leaves at the last control.
struct FocusRule {
    bool leaves = false;
};

// The focus comes in from outside, or goes out where the end is absent.
struct FocusInput {
    std::optional<FocusEnd> end;
};

// Whether anybody can see the content.
struct SightInput {
    bool isSeen = true; // as at first
};

// --- What is done to an element of a reading. ---

// As the element of a reading has them.
enum class AssistiveAction { activate, increase, decrease, reveal, revealWhole, focus };

// Somebody who hears the screen has operated an element.
struct AssistiveInput {
    std::size_t element = 0;                            // among accessibility::elementsOf() the reading at that time
    AssistiveAction action = AssistiveAction::activate; // what was done
};

// --- Looking, which brings what moves to where it is at that time. ---

// A frame was painted.
struct FrameLook {};
// The content was read, outside of a frame.
struct ReadingLook {};

// --- What the host did besides. ---

// Something that only the host can play back. `json` is a member of a JSON object, such as `"set": { "appearance": "dark" }`.
struct HostInput {
    std::string json;
};

// Time passes until then.
struct EndOfRecording {};

// One of the above.
using Input = std::variant<Touch, SizeInput, PointerInput, ScrollInput, KeyInput, FocusRule, FocusInput, SightInput, AssistiveInput,
                           FrameLook, ReadingLook, HostInput, EndOfRecording>;

// An input and its time.
struct RecordedInput {
    double time_s = 0;    // on the main run loop's clock
    Input input;          // what came
    bool isEarly = false; // of looks: what was due at that time had not run yet
};

} // namespace proupsells::host

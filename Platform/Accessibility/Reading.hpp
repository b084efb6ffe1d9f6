// A screen as somebody meets it who hears it or steers it by keys.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Accessibility/SemanticNode.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::accessibility {

// One thing that is told of a screen, with what stands in it. Only dialogs and groups have something in them.
struct ReadingElement {
    Role role = Role::text; // never unstated
    std::uint64_t id = 0;   // of the view, see SemanticNode; 0 for an item that has no view yet
    std::string identifier; // empty for none
    std::string name;       // in the person's language; never empty, except where a host's own view has no words
    std::string value;      // such as the page of a pager; empty for none
    geometry::Rect frame;   // window points
    geometry::Rect plate;   // what is seen of it, in window points; as a rule the frame
    bool isOnScreen = false;
    bool isDisabled = false;
    bool isBusy = false; // of dialogs: it is on its way, and nothing in it can be operated before it stands
    // Of radio buttons and disclosures; absent for others.
    std::optional<bool> isChecked;
    std::optional<bool> isExpanded;
    // Of radio buttons: the how-manieth of how many. Of pagers: the page of how many. 0 of others.
    int position = 0;
    int count = 0;

    // Whether the keys operate it.
    bool isFocused = false;
    // Whether they stop at it.
    bool takesFocus = false;

    // As of SemanticNode; empty where there is nothing of the kind to do. A pager only adjusts.
    std::function<void()> activate;
    std::function<void(int step)> adjust;
    std::function<void()> reveal;
    std::function<void()> revealWhole;
    // Gives it to the keys. Empty where they do not stop.
    std::function<void()> focus;

    std::vector<ReadingElement> children;

    // Whether something can be done with it.
    bool isOperable() const { return activate || adjust; }
};

// What is told of a screen, in the order in which it is told, inside of a dialog. `screen` is the whole of it.
PROUPSELLS_EXPORT ReadingElement readingOf(const SemanticNode& screen);

// All elements of a reading, the outermost first, in the order in which they are told. Good as long as the reading is.
PROUPSELLS_EXPORT std::vector<const ReadingElement*> elementsOf(const ReadingElement& reading);
std::vector<const ReadingElement*> elementsOf(ReadingElement&& reading) = delete;

} // namespace proupsells::accessibility

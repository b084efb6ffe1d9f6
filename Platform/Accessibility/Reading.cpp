#include "Platform/Accessibility/Reading.hpp"

#include <algorithm>

namespace proupsells::accessibility {

namespace {

// An element and the order that was asked for it.
struct Ordered {
    ReadingElement element;
    int order = 0;
};

Role roleOf(const SemanticNode& node) {
    if (node.spoken.role != Role::unstated) return node.spoken.role;
    if (contains(node.traits, Traits::link)) return Role::link;
    if (contains(node.traits, Traits::adjustable)) return Role::pager;
    if (node.isControl || contains(node.traits, Traits::button)) return Role::button;
    if (contains(node.traits, Traits::header)) return Role::heading;
    if (contains(node.traits, Traits::image) || (!node.image.empty() && !node.text)) return Role::image;
    return Role::text;
}

bool isContainer(Role role) { return role == Role::dialog || role == Role::group || role == Role::radioGroup; }

std::string spokenTexts(const SemanticNode& node) {
    std::string joined = node.text ? node.text->text : std::string();
    for (const SemanticNode& child : node.children) {
        const std::string text = spokenTexts(child);
        if (!joined.empty() && !text.empty()) joined += ", ";
        joined += text;
    }
    return joined;
}

std::string spokenName(const SemanticNode& node) {
    if (!node.spoken.name.empty()) return node.spoken.name;
    return node.label.empty() ? spokenTexts(node) : node.label;
}

// Null where there is none inside.
const SemanticNode* plateIn(const SemanticNode& node) {
    for (const SemanticNode& child : node.children) {
        if (child.spoken.isPlate) return &child;
        if (const SemanticNode* const found = child.isControl ? nullptr : plateIn(child)) return found;
    }
    return nullptr;
}

ReadingElement elementOf(const SemanticNode& node) {
    ReadingElement element;
    element.role = roleOf(node);
    element.id = node.id;
    element.identifier = node.identifier;
    element.name = isContainer(element.role) ? node.spoken.name : spokenName(node);
    element.value = node.value;
    element.frame = node.frame;
    const SemanticNode* const plate = node.isControl ? plateIn(node) : nullptr;
    element.plate = plate ? plate->frame : node.frame;
    element.isOnScreen = node.isOnScreen;
    element.isDisabled = contains(node.traits, Traits::disabled);
    element.isChecked = node.spoken.isChecked;
    element.isExpanded = node.spoken.isExpanded;
    element.position = node.spoken.page;
    element.count = node.spoken.pageCount;
    if (element.role != Role::pager) element.activate = node.activate;
    element.adjust = node.adjust;
    element.takesFocus = !element.isDisabled && (node.spoken.takesFocus || element.isOperable());
    element.reveal = node.reveal;
    element.revealWhole = node.revealWhole;
    return element;
}

void collect(const SemanticNode& node, std::vector<Ordered>& result, int order, bool isInsideControl);

void collectInside(const SemanticNode& node, std::vector<Ordered>& result, int order, bool isInsideControl) {
    for (const auto* const nodes : {&node.itemsBefore, &node.children, &node.itemsAfter})
        for (const SemanticNode& inner : *nodes) collect(inner, result, order, isInsideControl);
}

std::vector<ReadingElement> childrenOf(const SemanticNode& node) {
    std::vector<Ordered> ordered;
    collectInside(node, ordered, 0, false);
    std::stable_sort(ordered.begin(), ordered.end(), [](const Ordered& a, const Ordered& b) { return a.order < b.order; });
    std::vector<ReadingElement> children;
    children.reserve(ordered.size());
    for (Ordered& one : ordered) children.push_back(std::move(one.element));
    return children;
}

void countRadioButtons(ReadingElement& group) {
    const auto isRadioButton = [](const ReadingElement& element) { return element.role == Role::radioButton; };
    const auto count = int(std::count_if(group.children.begin(), group.children.end(), isRadioButton));
    int position = 0;
    for (ReadingElement& element : group.children) {
        if (!isRadioButton(element)) continue;
        element.position = ++position;
        element.count = count;
    }
}

bool canBeReached(const SemanticNode& node) { return node.opacity > 0 && (node.isOnScreen || node.reveal); }

// What is inside of a control belongs to its name, unless it has one of its own.
void collect(const SemanticNode& node, std::vector<Ordered>& result, int order, bool isInsideControl) {
    if (node.spoken.isSilent) return;
    order += node.spoken.order;
    const bool isNamed = !node.spoken.name.empty() || isContainer(node.spoken.role);
    const bool hasWords = isNamed || node.text || !node.label.empty();
    const bool isElement = canBeReached(node) && (isInsideControl ? isNamed : node.isControl || hasWords);
    bool isTold = false;
    if (isElement) {
        ReadingElement element = elementOf(node);
        if (isContainer(element.role)) {
            element.children = childrenOf(node);
            countRadioButtons(element);
            result.push_back({std::move(element), order});
            return;
        }
        isTold = !element.name.empty() || node.isControl;
        if (isTold) result.push_back({std::move(element), order});
        if (isTold && isNamed && !node.isControl) return;
    }
    collectInside(node, result, order, isInsideControl || (isTold && node.isControl));
}

void append(const ReadingElement& element, std::vector<const ReadingElement*>& all) {
    all.push_back(&element);
    for (const ReadingElement& child : element.children) append(child, all);
}

} // namespace

ReadingElement readingOf(const SemanticNode& screen) {
    ReadingElement dialog = elementOf(screen);
    dialog.role = Role::dialog;
    dialog.name = screen.spoken.name.empty() ? screen.label : screen.spoken.name;
    dialog.activate = nullptr;
    dialog.adjust = nullptr;
    dialog.takesFocus = false;
    dialog.children = childrenOf(screen);
    return dialog;
}

std::vector<const ReadingElement*> elementsOf(const ReadingElement& reading) {
    std::vector<const ReadingElement*> all;
    append(reading, all);
    return all;
}

} // namespace proupsells::accessibility

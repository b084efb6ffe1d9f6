#include "Platform/Host/RecordedInputText.hpp"

#include <cmath>

#include "Platform/Foundation/DecimalText.hpp"

namespace proupsells::host {

namespace {

// A JSON number, by which the same double is read again.
std::string textOf(double number) {
    if (number == 0) return std::signbit(number) ? "-0.0" : "0";
    const foundation::Decimal decimal = foundation::shortestDecimal(std::abs(number));
    const std::string& digits = decimal.digits;
    const int point = decimal.pointPosition, count = int(digits.size());
    // Beyond these, zeros would only be counted.
    constexpr int mostZeros = 5, mostDigits = 17;
    std::string text = number < 0 ? "-" : "";
    if (point > mostDigits || point < -mostZeros) return text + "0." + digits + "e" + std::to_string(point);
    if (point <= 0) return text + "0." + std::string(std::size_t(-point), '0') + digits;
    if (point >= count) return text + digits + std::string(std::size_t(point - count), '0');
    return text + digits.substr(0, std::size_t(point)) + "." + digits.substr(std::size_t(point));
}

std::string textOf(geometry::Point point) { return "[" + textOf(point.x) + ", " + textOf(point.y) + "]"; }

std::string textOf(geometry::Size size) { return "[" + textOf(size.width) + ", " + textOf(size.height) + "]"; }

std::string textOf(const geometry::PhysicalInsets& insets) {
    return "[" + textOf(insets.top) + ", " + textOf(insets.left) + ", " + textOf(insets.bottom) + ", " + textOf(insets.right) + "]";
}

std::string textOf(bool isSo) { return isSo ? "true" : "false"; }

std::string quoted(std::string_view word) { return '"' + std::string(word) + '"'; }

// What stands beside the time.
struct Members {
    std::string operator()(const Touch& touch) const {
        return "\"touch\": " + quoted(wordFor(touch.phase)) + ", \"at\": " + textOf(touch.location);
    }
    std::string operator()(const SizeInput& input) const {
        return "\"size\": " + textOf(input.size) + ", \"safeArea\": " + textOf(input.safeArea);
    }
    std::string operator()(const PointerInput& input) const {
        return "\"pointer\": " + (input.location ? textOf(*input.location) : "null");
    }
    std::string operator()(const ScrollInput& input) const {
        return "\"scroll\": " + textOf(input.delta) + ", \"at\": " + textOf(input.location);
    }
    std::string operator()(const KeyInput& input) const {
        return "\"key\": " + quoted(wordFor(input.key)) + (input.isRepeated ? ", \"isRepeated\": true" : "");
    }
    std::string operator()(const FocusRule& rule) const { return "\"focusLeaves\": " + textOf(rule.leaves); }
    std::string operator()(const FocusInput& input) const {
        return "\"focus\": " + (input.end ? quoted(wordFor(*input.end)) : "null");
    }
    std::string operator()(const SightInput& input) const { return "\"isSeen\": " + textOf(input.isSeen); }
    std::string operator()(const AssistiveInput& input) const {
        return "\"assist\": " + quoted(wordFor(input.action)) + ", \"element\": " + std::to_string(input.element);
    }
    std::string operator()(const FrameLook&) const { return "\"look\": \"frame\""; }
    std::string operator()(const ReadingLook&) const { return "\"look\": \"reading\""; }
    std::string operator()(const HostInput& input) const { return input.json; }
    std::string operator()(const EndOfRecording&) const { return {}; }
};

std::string lineOf(const RecordedInput& recorded) {
    const std::string members = std::visit(Members{}, recorded.input);
    return "{ \"time\": " + textOf(recorded.time_s) + (members.empty() ? "" : ", ") + members +
           (recorded.isEarly ? ", \"isEarly\": true" : "") + " }";
}

bool isPlainFrame(const RecordedInput& recorded) { return std::holds_alternative<FrameLook>(recorded.input) && !recorded.isEarly; }

// Whether the content is read right after a frame, as it is where somebody hears it.
bool isRead(const std::vector<RecordedInput>& inputs, std::size_t frame) {
    if (frame + 1 >= inputs.size()) return false;
    const RecordedInput& next = inputs[frame + 1];
    return std::holds_alternative<ReadingLook>(next.input) && !next.isEarly && next.time_s == inputs[frame].time_s;
}

// The frames from an index on; moves it behind them.
std::string lineOfFrames(const std::vector<RecordedInput>& inputs, std::size_t& index) {
    const bool areRead = isRead(inputs, index);
    std::string times;
    for (; index < inputs.size() && isPlainFrame(inputs[index]) && isRead(inputs, index) == areRead; index += areRead ? 2 : 1)
        times += (times.empty() ? "" : ", ") + textOf(inputs[index].time_s);
    return "{ \"frames\": [" + times + "]" + (areRead ? ", \"areRead\": true" : "") + " }";
}

} // namespace

std::string_view wordFor(TouchPhase phase) {
    constexpr std::string_view words[] = {"began", "moved", "ended", "cancelled"};
    return words[std::size_t(phase)];
}

std::string_view wordFor(Key key) {
    constexpr std::string_view words[] = {"escape", "tab",   "backTab", "return",   "space", "up", "down",
                                          "left",   "right", "pageUp",  "pageDown", "home",  "end"};
    return words[std::size_t(key)];
}

std::string_view wordFor(FocusEnd end) { return end == FocusEnd::first ? "first" : "last"; }

std::string_view wordFor(AssistiveAction action) {
    constexpr std::string_view words[] = {"activate", "increase", "decrease", "reveal", "revealWhole", "focus"};
    return words[std::size_t(action)];
}

std::string inputsAsJson(const std::vector<RecordedInput>& inputs) {
    std::string json = "[";
    for (std::size_t index = 0; index < inputs.size();) {
        json += json.size() > 1 ? ",\n" : "\n";
        json += isPlainFrame(inputs[index]) ? lineOfFrames(inputs, index) : lineOf(inputs[index++]);
    }
    return json + "\n]";
}

} // namespace proupsells::host

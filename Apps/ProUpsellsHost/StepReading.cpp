#include "Apps/ProUpsellsHost/StepReading.hpp"

#include <nlohmann/json.hpp>

namespace proupsells::hostprogram {

namespace {

TapStep readTap(const JsonCursor& value) {
    if (value.isText()) return {TapText{value.text()}};
    if (value.isArray()) return {readPoint(value)};
    if (!value.isObject()) value.fail("this cannot be tapped, expected a text, a point or an object with an identifier");
    value.expectObject({"identifier"});
    return {TapIdentifier{value.at("identifier").text()}};
}

DragStep readDrag(const JsonCursor& value) {
    value.expectObject({"from", "to", "duration"});
    return {readPoint(value.at("from")), readPoint(value.at("to")), readTime(value.at("duration"))};
}

PressStep readPress(const JsonCursor& value) {
    value.expectObject({"at", "duration"});
    return {readPoint(value.at("at")), readTime(value.at("duration"))};
}

std::optional<std::string> textOrNull(const JsonCursor& value) {
    return value.isNull() ? std::nullopt : std::optional(value.text());
}

SnapshotStep readSnapshot(const JsonCursor& value) {
    const std::string name = value.text();
    const bool isPlain = !name.empty() && name != "." && name != ".." && name.size() <= 255 &&
                         name.find('/') == std::string::npos && name.find('\0') == std::string::npos;
    if (!isPlain) value.fail("\"" + name + "\" is no plain file name, expected one such as \"paywall.png\"");
    return {name};
}

std::vector<std::string> readTraits(const JsonCursor& value) {
    std::vector<std::string> traits;
    for (const JsonCursor& element : value.elements()) traits.push_back(element.text());
    return traits;
}

ExpectStep readExpect(const JsonCursor& value) {
    if (value.has("absent")) {
        value.expectObject({"absent"});
        return {.identifier = value.at("absent").text(), .isAbsent = true};
    }
    value.expectObject({"identifier", "label", "value", "text", "onScreen", "traits", "frame"});
    ExpectStep step{.identifier = value.at("identifier").text()};
    if (value.has("label")) step.label = value.at("label").text();
    if (value.has("value")) step.value = value.at("value").text();
    if (value.has("text")) step.text = value.at("text").text();
    if (value.has("onScreen")) step.onScreen = value.at("onScreen").boolean();
    if (value.has("traits")) step.traits = readTraits(value.at("traits"));
    if (value.has("frame")) {
        const auto numbers = value.at("frame").numbers(4, -1e6, "a frame, x, y, width and height");
        step.frame = geometry::Rect{{numbers[0], numbers[1]}, {numbers[2], numbers[3]}};
    }
    return step;
}

using TapEvent = UpsellViewModel::TapEvent;

const Word<TapEvent> sentEvents[] = {
    {"cancel", {TapEvent::Cancel{}}},
    {"restorePurchases", {TapEvent::RestorePurchases{}}},
    {"whatIsPro", {TapEvent::WhatIsPro{}}},
    {"privacyPolicy", {TapEvent::PrivacyPolicy{}}},
    {"termsOfService", {TapEvent::TermsOfService{}}},
    {"comparePlans", {TapEvent::ComparePlans{}}},
};
constexpr Word<HostPart> hostParts[] = {
    {"delegate", HostPart::delegate},
    {"tracker", HostPart::tracker},
};
constexpr Word<host::Key> keyWords[] = {
    {"tab", host::Key::tab},       {"backTab", host::Key::backTab}, {"return", host::Key::activate},   {"space", host::Key::space},
    {"escape", host::Key::escape}, {"up", host::Key::up},           {"down", host::Key::down},         {"left", host::Key::left},
    {"right", host::Key::right},   {"pageUp", host::Key::pageUp},   {"pageDown", host::Key::pageDown}, {"home", host::Key::home},
    {"end", host::Key::end},
};
constexpr Word<DumpStep> dumps[] = {
    {"screen", {}},
};

using ReadStep = Step (*)(const JsonCursor&, Surroundings&);

constexpr Word<ReadStep> stepReaders[] = {
    {"tap", [](const JsonCursor& value, Surroundings&) -> Step { return readTap(value); }},
    {"drag", [](const JsonCursor& value, Surroundings&) -> Step { return readDrag(value); }},
    {"press", [](const JsonCursor& value, Surroundings&) -> Step { return readPress(value); }},
    {"key", [](const JsonCursor& value, Surroundings&) -> Step { return KeyStep{readKey(value)}; }},
    {"wait", [](const JsonCursor& value, Surroundings&) -> Step { return WaitStep{readTime(value)}; }},
    {"send", [](const JsonCursor& value, Surroundings&) -> Step { return readSend(value); }},
    {"set", [](const JsonCursor& value, Surroundings& surroundings) -> Step { return readSet(value, surroundings); }},
    {"release", [](const JsonCursor& value, Surroundings&) -> Step { return ReleaseStep{value.oneOf(hostParts)}; }},
    {"dump", [](const JsonCursor& value, Surroundings&) -> Step { return value.oneOf(dumps); }},
    {"snapshot", [](const JsonCursor& value, Surroundings&) -> Step { return readSnapshot(value); }},
    {"expect", [](const JsonCursor& value, Surroundings&) -> Step { return readExpect(value); }},
};

} // namespace

double readTime(const JsonCursor& value) {
    // What is waited for is played.
    constexpr double longestTime_s = 86'400;
    return value.number(0, longestTime_s, "seconds, not negative, a day at most");
}

geometry::Point readPoint(const JsonCursor& value) {
    const auto numbers = value.numbers(2, -1e6, "a point, x and y");
    return {numbers[0], numbers[1]};
}

host::Key readKey(const JsonCursor& value) { return value.oneOf(keyWords); }

std::string_view sentToOpen(StartScreen screen) { return screen == StartScreen::comparison ? "comparePlans" : "whatIsPro"; }

SendStep readSend(const JsonCursor& value) { return {value.oneOf(sentEvents)}; }

SetStep readSet(const JsonCursor& value, Surroundings& surroundings) {
    SetStep step;
    if (value.keys().empty()) value.fail("nothing is set here, expected at least one key");
    for (const std::string& key : value.keys()) {
        const JsonCursor member = value.at(key);
        if (key == "options")
            step.options = readOptions(member);
        else if (key == "annualSubscriptionPriceForComparisonWithPromotionalPrice")
            step.annualPrice = textOrNull(member);
        else if (key == "monthlySubscriptionPriceForComparisonWithPromotionalPrice")
            step.monthlyPrice = textOrNull(member);
        else if (key == "shouldMentioniCloudSync")
            step.shouldMentioniCloudSync = member.boolean();
        else if (!isDeviceKey(key))
            member.fail("unknown key \"" + key +
                        "\", expected options, a comparison price, shouldMentioniCloudSync or a key of a device");
    }
    if (readDeviceKeys(surroundings.device, value, surroundings.folder)) step.device = surroundings.device;
    return step;
}

Step readStep(const JsonCursor& step, Surroundings& surroundings) {
    step.expectObject(wordsOf(stepReaders));
    const auto keys = step.keys();
    if (keys.size() != 1) step.fail(std::to_string(keys.size()) + " keys stand here, expected exactly one");
    const auto entry = entryFor(keys.front(), stepReaders);
    return entry->value(step.at(keys.front()), surroundings);
}

} // namespace proupsells::hostprogram

#include "Apps/ProUpsellsHost/InputReading.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr Word<host::TouchPhase> touchPhases[] = {
    {"began", host::TouchPhase::began},
    {"moved", host::TouchPhase::moved},
    {"ended", host::TouchPhase::ended},
    {"cancelled", host::TouchPhase::cancelled},
};
constexpr Word<host::FocusEnd> focusEnds[] = {
    {"first", host::FocusEnd::first},
    {"last", host::FocusEnd::last},
};
constexpr Word<host::AssistiveAction> assistiveActions[] = {
    {"activate", host::AssistiveAction::activate},       {"increase", host::AssistiveAction::increase},
    {"decrease", host::AssistiveAction::decrease},       {"reveal", host::AssistiveAction::reveal},
    {"revealWhole", host::AssistiveAction::revealWhole}, {"focus", host::AssistiveAction::focus},
};
const Word<host::Input> looks[] = {
    {"frame", host::FrameLook{}},
    {"reading", host::ReadingLook{}},
};

// Reads what stands beside the time.
class InputReader {
public:
    explicit InputReader(Surroundings& surroundings) : m_surroundings(surroundings) {}

    std::vector<ScenarioInput> inputs;

    void read(const JsonCursor& entry) {
        if (entry.has("frames")) return readFrames(entry);
        ScenarioInput input;
        input.recorded.time_s = readNextTime(entry.at("time"));
        readKind(entry, input);
        inputs.push_back(std::move(input));
    }

private:
    void readFrames(const JsonCursor& entry) {
        entry.expectObject({"frames", "areRead"});
        const bool areRead = entry.has("areRead") && entry.at("areRead").boolean();
        for (const JsonCursor& time : entry.at("frames").elements()) {
            const double time_s = readNextTime(time);
            inputs.push_back({{time_s, host::FrameLook{}}, {}});
            if (areRead) inputs.push_back({{time_s, host::ReadingLook{}}, {}});
        }
    }

    double readNextTime(const JsonCursor& value) {
        constexpr double longestRecording_s = 1e7;
        const double time_s = value.number(0, longestRecording_s, "seconds, not negative");
        if (!inputs.empty() && time_s < inputs.back().recorded.time_s)
            value.fail("the time lies before the last one, expected times that do not go back");
        return time_s;
    }

    void readKind(const JsonCursor& entry, ScenarioInput& input) {
        entry.expectObject({"time", "touch", "at", "pointer", "scroll", "key", "isRepeated", "focusLeaves", "focus", "isSeen",
                            "size", "safeArea", "assist", "element", "look", "isEarly", "set", "send", "offers"});
        using Read = host::Input (*)(const JsonCursor& entry, const JsonCursor& value);
        struct Kind {
            std::string_view key;
            std::string_view companion; // another key that belongs to it; empty for none
            Read read;
        };
        static constexpr Kind kinds[] = {
            {"touch", "at", readTouch},         {"pointer", {}, readPointer},
            {"scroll", "at", readScroll},       {"key", "isRepeated", readPressedKey},
            {"focusLeaves", {}, readFocusRule}, {"focus", {}, readFocus},
            {"isSeen", {}, readSight},          {"size", "safeArea", readSize},
            {"assist", "element", readAssist},  {"look", "isEarly", readLook},
        };
        for (const Kind& kind : kinds) {
            if (!entry.has(kind.key)) continue;
            if (kind.companion.empty())
                entry.expectObject({"time", kind.key});
            else
                entry.expectObject({"time", kind.key, kind.companion});
            input.recorded.input = kind.read(entry, entry.at(kind.key));
            input.recorded.isEarly = kind.key == "look" && entry.has("isEarly") && entry.at("isEarly").boolean();
            return adoptSize(input.recorded.input);
        }
        readHostInput(entry, input);
    }

    void readHostInput(const JsonCursor& entry, ScenarioInput& input) {
        if (!entry.has("set") && !entry.has("send") && !entry.has("offers")) {
            entry.expectObject({"time"});
            input.recorded.input = host::EndOfRecording{};
            return;
        }
        input.recorded.input = host::HostInput{};
        if (entry.has("set")) {
            entry.expectObject({"time", "set"});
            input.step = readSet(entry.at("set"), m_surroundings);
        } else if (entry.has("offers")) {
            entry.expectObject({"time", "offers"});
            input.step = readOffers(entry.at("offers"));
        } else {
            entry.expectObject({"time", "send"});
            input.step = readSend(entry.at("send"));
        }
    }

    // What is set later is set on a device of that size.
    void adoptSize(const host::Input& input) {
        const auto* size = std::get_if<host::SizeInput>(&input);
        if (!size) return;
        m_surroundings.device.size = size->size;
        m_surroundings.device.safeArea = size->safeArea;
    }

    static host::Input readTouch(const JsonCursor& entry, const JsonCursor& value) {
        return host::Touch{value.oneOf(touchPhases), readPoint(entry.at("at"))};
    }
    static host::Input readPointer(const JsonCursor&, const JsonCursor& value) {
        return host::PointerInput{value.isNull() ? std::nullopt : std::optional(readPoint(value))};
    }
    static host::Input readScroll(const JsonCursor& entry, const JsonCursor& value) {
        return host::ScrollInput{readPoint(entry.at("at")), readPoint(value)};
    }
    static host::Input readPressedKey(const JsonCursor& entry, const JsonCursor& value) {
        return host::KeyInput{readKey(value), entry.has("isRepeated") && entry.at("isRepeated").boolean()};
    }
    static host::Input readFocusRule(const JsonCursor&, const JsonCursor& value) { return host::FocusRule{value.boolean()}; }
    static host::Input readFocus(const JsonCursor&, const JsonCursor& value) {
        return host::FocusInput{value.isNull() ? std::nullopt : std::optional(value.oneOf(focusEnds))};
    }
    static host::Input readSight(const JsonCursor&, const JsonCursor& value) { return host::SightInput{value.boolean()}; }
    static host::Input readSize(const JsonCursor& entry, const JsonCursor& value) {
        // A window may be smaller than a device, also than what is covered of it.
        const auto lengths = value.numbers(2, 0, "a width and a height in points");
        for (const double length : lengths)
            if (length > 20000) value.fail("a length is out of range, expected a width and a height up to 20000 points");
        const auto insets = entry.at("safeArea").numbers(4, 0, "the insets top, left, bottom, right in points, not negative");
        return host::SizeInput{{lengths[0], lengths[1]}, {insets[0], insets[1], insets[2], insets[3]}};
    }
    static host::Input readAssist(const JsonCursor& entry, const JsonCursor& value) {
        const JsonCursor element = entry.at("element");
        const std::int64_t index = element.wholeNumber();
        if (index < 0) element.fail("the number is negative, expected that of an element of the reading, from 0");
        return host::AssistiveInput{std::size_t(index), value.oneOf(assistiveActions)};
    }
    static host::Input readLook(const JsonCursor&, const JsonCursor& value) { return value.oneOf(looks); }

    Surroundings& m_surroundings;
};

} // namespace

std::vector<ScenarioInput> readInputs(const JsonCursor& array, Surroundings& surroundings) {
    InputReader reader(surroundings);
    for (const JsonCursor& entry : array.elements()) reader.read(entry);
    return std::move(reader.inputs);
}

} // namespace proupsells::hostprogram

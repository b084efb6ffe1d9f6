// A recording as text: every word, every number and every line.
#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Host/RecordedInputText.hpp"

namespace proupsells::host {
namespace {

std::string lineOf(Input input, double time_s = 0) { return inputsAsJson({{time_s, std::move(input)}}); }

TEST(RecordedLine, SaysWhatWasDoneWhereAndWhen) {
    EXPECT_EQ(inputsAsJson({}), "[\n]");
    EXPECT_EQ(lineOf(Touch{TouchPhase::moved, {1.5, -2}, 9}, 0.25),
              "[\n{ \"time\": 0.25, \"touch\": \"moved\", \"at\": [1.5, -2] }\n]");
    EXPECT_EQ(lineOf(SizeInput{{375, 800}, {1, 2, 3, 4}}),
              "[\n{ \"time\": 0, \"size\": [375, 800], \"safeArea\": [1, 2, 3, 4] }\n]");
    EXPECT_EQ(lineOf(PointerInput{geometry::Point{1, 2}}), "[\n{ \"time\": 0, \"pointer\": [1, 2] }\n]");
    EXPECT_EQ(lineOf(PointerInput{}), "[\n{ \"time\": 0, \"pointer\": null }\n]");
    EXPECT_EQ(lineOf(ScrollInput{{1, 2}, {3, 4}}), "[\n{ \"time\": 0, \"scroll\": [3, 4], \"at\": [1, 2] }\n]");
    EXPECT_EQ(lineOf(KeyInput{Key::tab, false}), "[\n{ \"time\": 0, \"key\": \"tab\" }\n]");
    EXPECT_EQ(lineOf(KeyInput{Key::down, true}), "[\n{ \"time\": 0, \"key\": \"down\", \"isRepeated\": true }\n]");
    EXPECT_EQ(lineOf(FocusRule{true}), "[\n{ \"time\": 0, \"focusLeaves\": true }\n]");
    EXPECT_EQ(lineOf(FocusRule{false}), "[\n{ \"time\": 0, \"focusLeaves\": false }\n]");
    EXPECT_EQ(lineOf(FocusInput{FocusEnd::last}), "[\n{ \"time\": 0, \"focus\": \"last\" }\n]");
    EXPECT_EQ(lineOf(FocusInput{}), "[\n{ \"time\": 0, \"focus\": null }\n]");
    EXPECT_EQ(lineOf(SightInput{false}), "[\n{ \"time\": 0, \"isSeen\": false }\n]");
    EXPECT_EQ(lineOf(AssistiveInput{7, AssistiveAction::reveal}), "[\n{ \"time\": 0, \"assist\": \"reveal\", \"element\": 7 }\n]");
    EXPECT_EQ(lineOf(HostInput{"\"own\": 1"}), "[\n{ \"time\": 0, \"own\": 1 }\n]");
    EXPECT_EQ(lineOf(EndOfRecording{}, 3), "[\n{ \"time\": 3 }\n]");
    EXPECT_EQ(lineOf(ReadingLook{}), "[\n{ \"time\": 0, \"look\": \"reading\" }\n]");
}

TEST(RecordedLine, StandsOnALineOfItsOwn) {
    EXPECT_EQ(inputsAsJson({{0, FocusRule{true}}, {1, EndOfRecording{}}}),
              "[\n{ \"time\": 0, \"focusLeaves\": true },\n{ \"time\": 1 }\n]");
}

TEST(RecordedFrames, StandTogetherAsLongAsNothingComesBetween) {
    EXPECT_EQ(inputsAsJson({{0, FrameLook{}}, {0.5, FrameLook{}}, {1, EndOfRecording{}}, {2, FrameLook{}}}),
              "[\n{ \"frames\": [0, 0.5] },\n{ \"time\": 1 },\n{ \"frames\": [2] }\n]");
}

TEST(RecordedFrames, ThatAreReadAtTheirMomentStandApart) {
    EXPECT_EQ(inputsAsJson({{0, FrameLook{}}, {1, FrameLook{}}, {1, ReadingLook{}}, {2, FrameLook{}}, {2, ReadingLook{}}}),
              "[\n{ \"frames\": [0] },\n{ \"frames\": [1, 2], \"areRead\": true }\n]");
    EXPECT_EQ(inputsAsJson({{1, FrameLook{}}, {1.5, ReadingLook{}}}),
              "[\n{ \"frames\": [1] },\n{ \"time\": 1.5, \"look\": \"reading\" }\n]");
    EXPECT_EQ(inputsAsJson({{1, FrameLook{}}, {1, ReadingLook{}, true}}),
              "[\n{ \"frames\": [1] },\n{ \"time\": 1, \"look\": \"reading\", \"isEarly\": true }\n]");
}

TEST(RecordedFrames, ThatAreEarlySaySo) {
    EXPECT_EQ(inputsAsJson({{0, FrameLook{}}, {1, FrameLook{}, true}}),
              "[\n{ \"frames\": [0] },\n{ \"time\": 1, \"look\": \"frame\", \"isEarly\": true }\n]");
}

TEST(RecordedNumbers, AreAsShortAsTheyCanBe) {
    const auto written = [](double time_s) {
        const std::string line = lineOf(EndOfRecording{}, time_s);
        return line.substr(12, line.size() - 12 - 4);
    };
    EXPECT_EQ(written(0), "0");
    EXPECT_EQ(written(-0.0), "-0.0");
    EXPECT_EQ(written(1), "1");
    EXPECT_EQ(written(-1.5), "-1.5");
    EXPECT_EQ(written(0.1), "0.1");
    EXPECT_EQ(written(0.05), "0.05");
    EXPECT_EQ(written(120), "120");
    EXPECT_EQ(written(0.00000123), "0.00000123");
    EXPECT_EQ(written(0.000000123), "0.123e-6");
    EXPECT_EQ(written(1e16), "10000000000000000");
    EXPECT_EQ(written(1e17), "0.1e18");
    EXPECT_EQ(written(12345.678), "12345.678");
    EXPECT_EQ(written(-1e-9), "-0.1e-8");
}

TEST(RecordedWords, NameEveryPhaseKeyEndAndAction) {
    EXPECT_EQ(wordFor(TouchPhase::began), "began");
    EXPECT_EQ(wordFor(TouchPhase::moved), "moved");
    EXPECT_EQ(wordFor(TouchPhase::ended), "ended");
    EXPECT_EQ(wordFor(TouchPhase::cancelled), "cancelled");
    EXPECT_EQ(wordFor(FocusEnd::first), "first");
    EXPECT_EQ(wordFor(FocusEnd::last), "last");
    const std::pair<Key, std::string_view> keys[] = {
        {Key::escape, "escape"}, {Key::tab, "tab"},       {Key::backTab, "backTab"},   {Key::activate, "return"},
        {Key::space, "space"},   {Key::up, "up"},         {Key::down, "down"},         {Key::left, "left"},
        {Key::right, "right"},   {Key::pageUp, "pageUp"}, {Key::pageDown, "pageDown"}, {Key::home, "home"},
        {Key::end, "end"}};
    for (const auto& [key, word] : keys) EXPECT_EQ(wordFor(key), word);
    const std::pair<AssistiveAction, std::string_view> actions[] = {
        {AssistiveAction::activate, "activate"},       {AssistiveAction::increase, "increase"},
        {AssistiveAction::decrease, "decrease"},       {AssistiveAction::reveal, "reveal"},
        {AssistiveAction::revealWhole, "revealWhole"}, {AssistiveAction::focus, "focus"}};
    for (const auto& [action, word] : actions) EXPECT_EQ(wordFor(action), word);
}

} // namespace
} // namespace proupsells::host

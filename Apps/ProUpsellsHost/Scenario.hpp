// A script for a headless run, checked whole before anything is shown.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Apps/ProUpsellsHost/Device.hpp"
#include "Apps/ProUpsellsHost/HostScreen.hpp"
#include "Apps/ProUpsellsHost/Offers.hpp"
#include "Platform/Host/RecordedInput.hpp"
#include "ProUpsells/UpsellViewModel.hpp"

namespace proupsells::hostprogram {

// What a step taps: a control by identifier, a control by its label or shown text, or a point.
struct TapIdentifier {
    std::string identifier;
};
struct TapText {
    std::string text;
};
using TapTarget = std::variant<TapIdentifier, TapText, geometry::Point>;

struct TapStep {
    TapTarget target;
};
struct DragStep {
    geometry::Point from, to;
    double duration_s = 0;
};
struct PressStep {
    geometry::Point at;
    double duration_s = 0;
};
struct KeyStep {
    host::Key key;
};
struct WaitStep {
    double duration_s = 0;
};

struct SendStep {
    UpsellViewModel::TapEvent event;
};

// Absent members change nothing.
struct SetStep {
    std::optional<std::vector<SubscriptionOption>> options;
    std::optional<std::optional<std::string>> annualPrice;
    std::optional<std::optional<std::string>> monthlyPrice;
    std::optional<bool> shouldMentioniCloudSync;
    std::optional<Device> device; // the whole device as it is from this step on
};

enum class HostPart { delegate, tracker };
struct ReleaseStep {
    HostPart part;
};
struct DumpStep {};
struct SnapshotStep {
    std::string file;
};

// Absent members are not compared.
struct ExpectStep {
    std::string identifier;
    bool isAbsent = false;
    std::optional<std::string> label, value, text;
    std::optional<bool> onScreen;
    std::optional<std::vector<std::string>> traits;
    std::optional<geometry::Rect> frame;
};

using Step = std::variant<TapStep, DragStep, PressStep, KeyStep, WaitStep, SendStep, SetStep, ReleaseStep, DumpStep, SnapshotStep,
                          ExpectStep>;

// What was recorded. Where that is something of the host's, it is one of these steps.
struct ScenarioInput {
    host::RecordedInput recorded;
    std::variant<std::monostate, SetStep, SendStep, Offers> step;
};

struct Scenario {
    std::filesystem::path file;
    Offers offers;
    Device device;
    bool hasTracker = true;
    bool hasDelegate = true;
    HostScreen screen = HostScreen::plain;
    std::vector<ScenarioInput> inputs; // played before the steps; their times ascend
    std::vector<Step> steps;
    std::vector<std::string> stepTexts; // each step as JSON, on one line
};

// Throws InputError.
Scenario readScenario(const std::filesystem::path& file);

} // namespace proupsells::hostprogram

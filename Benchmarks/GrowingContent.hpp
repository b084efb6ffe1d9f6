// Screens with as much content as is asked for.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "Platform/UIKit/Controllers/UIViewController.hpp"
#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells::benchmarks {

using Screens = std::vector<std::shared_ptr<uikit::UIViewController>>;

// One kind of content that grows.
struct GrowingContent {
    enum class Place : std::uint8_t {
        oneWindow, // each screen is presented by the one before
        windowsOfTheirOwn,
    };

    std::string name;
    std::string unit; // what is counted
    std::vector<int> counts;
    // Screens that have not been shown yet.
    Screens (*screens)(int count);
    Place place = Place::oneWindow;
    // Whether a tap in the middle of the screen changes something.
    bool hasPlans = false;
};

std::span<const GrowingContent> growingContents();

} // namespace proupsells::benchmarks

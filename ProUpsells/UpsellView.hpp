// The paywall.
#pragma once

#include <memory>
#include <vector>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "ProUpsells/Page.hpp"
#include "ProUpsells/UpsellViewModel.hpp"

namespace proupsells {

// Sends every tap into the model's stream and decides nothing. Needs an UpsellEnvironment in its environment.
struct UpsellView {
    std::shared_ptr<UpsellViewModel> model;
    std::shared_ptr<const std::vector<Page>> carouselPageList = defaultCarouselPageList();

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const UpsellView&) const = default;

    // What the subscription is good for, in four pages.
    static std::shared_ptr<const std::vector<Page>> defaultCarouselPageList();
};

} // namespace proupsells

// The small print under the subscribe button, and the legal links.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "ProUpsells/UpsellViewModel.hpp"

namespace proupsells {

struct DisclaimerBlock {
    std::optional<std::string> payment; // absent when there is no plan to speak of
    bool isCompact = false;
    std::shared_ptr<UpsellViewModel> model; // the links' taps go into its stream

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const DisclaimerBlock&) const = default;

private:
    swiftui::View paymentText() const;
    swiftui::View links() const;
    swiftui::View link(const char* key, UpsellViewModel::TapEvent event, const char* identifier) const;
};

} // namespace proupsells

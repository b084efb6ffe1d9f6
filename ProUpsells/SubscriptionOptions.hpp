// The plans of the model, in a picker that shares the paywall's selected index.
#pragma once

#include <memory>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "ProUpsells/UpsellEnvironment.hpp"
#include "ProUpsells/UpsellViewModel.hpp"

namespace proupsells {

struct SubscriptionOptions {
    std::shared_ptr<UpsellEnvironment> upsellEnvironment;
    std::shared_ptr<UpsellViewModel> model;
    // Among the model's options; see selectedOption.
    swiftui::Binding<int> selectedIndex;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const SubscriptionOptions&) const = default;
};

// The option at the index; null when the list is empty. An index outside a list that is not empty stops the program: "Index out of
// range: the selected option is number 1 of 1".
const SubscriptionOption* selectedOption(const UpsellViewModel& model, int selectedIndex);

} // namespace proupsells

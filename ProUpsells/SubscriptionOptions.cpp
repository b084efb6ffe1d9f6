#include "ProUpsells/SubscriptionOptions.hpp"

#include <algorithm>

#include "Platform/Commons/FatalError.hpp"
#include "ProUpsells/RadioPicker.hpp"
#include "ProUpsells/SubscriptionOptionFormatter.hpp"

namespace proupsells {

using namespace swiftui;

namespace {

std::string selectedSKU(const UpsellViewModel& model, int selectedIndex) {
    const SubscriptionOption* option = selectedOption(model, selectedIndex);
    return option ? option->SKU() : std::string();
}

// Of the first option with the SKU; 0 when there is none.
int indexOfSKU(const UpsellViewModel& model, const std::string& SKU) {
    const auto& options = model.options.get();
    const auto found =
        std::find_if(options.begin(), options.end(), [&](const SubscriptionOption& option) { return option.SKU() == SKU; });
    return found == options.end() ? 0 : static_cast<int>(found - options.begin());
}

} // namespace

const SubscriptionOption* selectedOption(const UpsellViewModel& model, int selectedIndex) {
    const auto& options = model.options.get();
    if (options.empty()) return nullptr;
    if (selectedIndex < 0 || static_cast<std::size_t>(selectedIndex) >= options.size())
        commons::fatalError("Index out of range: the selected option is number " + std::to_string(selectedIndex) + " of " +
                            std::to_string(options.size()));
    return &options[static_cast<std::size_t>(selectedIndex)];
}

View SubscriptionOptions::body(BuildContext& context) const {
    context.observe(model);
    context.observe(upsellEnvironment);
    return RadioPicker{.items = SubscriptionOptionFormatter::makePickerRows(*model),
                       .selectedItem = Binding<std::string>(
                           [model = model, index = selectedIndex] { return selectedSKU(*model, index.get()); },
                           [model = model, index = selectedIndex](const std::string& SKU) { index.set(indexOfSKU(*model, SKU)); })};
}

} // namespace proupsells

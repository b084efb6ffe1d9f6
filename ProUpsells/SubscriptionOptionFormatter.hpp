// The words and prices of a plan's row in the picker.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/System/Compiler.hpp"
#include "ProUpsells/RadioPickerItem.hpp"
#include "ProUpsells/UpsellViewModel.hpp"

namespace proupsells {

class PROUPSELLS_EXPORT SubscriptionOptionFormatter {
public:
    SubscriptionOptionFormatter() = delete;

    struct TitleAndSubtitle {
        std::string title;
        graphics::AttributedString subtitle;
    };

    // Both stop the program off the main thread.
    static RadioPickerItem makePickerRow(const SubscriptionOption& option, const UpsellViewModel& model);
    // One row for each of the model's options, in their order.
    static std::vector<RadioPickerItem> makePickerRows(const UpsellViewModel& model);
    // Everything but a yearly plan is titled and worded as a monthly one, a lifetime plan too. The subtitle starts with the
    // comparison price, struck through, and always one blank.
    static TitleAndSubtitle titleAndSubtitle(const SubscriptionOption& option, const std::optional<std::string>& comparisonPrice);

    // What paying yearly saves against twelve monthly payments, in percent, snapped to a multiple of five; 45 when the price
    // texts are not plain numbers. When the result is not finite, as with a monthly price of 0, or does not fit in 64 bits, the
    // program stops: "The savings percentage is not a whole number that can be shown".
    static std::int64_t savingsPercentage(const UpsellViewModel& model);
    // 44 becomes 45, 43 becomes 40: only the last of five rounds up.
    static std::int64_t snappedToMultipleOfFive(std::int64_t percentage);

    // Of a yearly plan; absent for the other kinds.
    static std::optional<std::string> badgeText(const SubscriptionOption& option, const UpsellViewModel& model);

    // Text between the first pair of "**" stands bold and loses its markers; without a pair everything stays as it is.
    static graphics::AttributedString boldMarkup(std::string_view text);
};

} // namespace proupsells

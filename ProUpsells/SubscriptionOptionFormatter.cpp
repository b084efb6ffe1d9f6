#include "ProUpsells/SubscriptionOptionFormatter.hpp"

#include <cmath>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Format.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/RunLoop/MainActor.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"

namespace proupsells {

using foundation::localizedString;
using graphics::AttributedString;
using graphics::TextAttributes;

namespace {

constexpr std::int64_t fallbackSavings_percent = 45;
constexpr std::string_view boldMarker = "**";

TextAttributes plainAttributes() {
    return {.font = velauikit::velaDefaultFont(velauikit::FontOption::medium, 16), .color = velauikit::velaSecondaryLabel};
}

TextAttributes boldAttributes() {
    TextAttributes attributes = plainAttributes();
    attributes.font = velauikit::velaDefaultFont(velauikit::FontOption::bold, 18);
    attributes.color = velauikit::velaLabel;
    return attributes;
}

// Empty runs are left out: nobody sees them.
void appendRun(AttributedString& result, std::string_view text, const TextAttributes& attributes) {
    if (!text.empty()) result.append(AttributedString{std::string(text), attributes});
}

AttributedString struckThroughPrice(const std::string& price) {
    TextAttributes attributes = boldAttributes();
    attributes.isStruckThrough = true;
    return AttributedString{price, attributes};
}

const std::optional<std::string>& comparisonPriceFor(const SubscriptionOption& option, const UpsellViewModel& model) {
    return option.isYearly() ? model.annualSubscriptionPriceForComparisonWithPromotionalPrice.get()
                             : model.monthlySubscriptionPriceForComparisonWithPromotionalPrice.get();
}

RadioPickerItem pickerRow(const SubscriptionOption& option, const UpsellViewModel& model, std::optional<std::string> badge) {
    auto texts = SubscriptionOptionFormatter::titleAndSubtitle(option, comparisonPriceFor(option, model));
    return {.id = option.SKU(),
            .title = std::move(texts.title),
            .subtitle = std::move(texts.subtitle),
            .trialLength = option.introductoryPeriodLength(),
            .hasUsedFreeTrial = option.hasUsedFreeTrial(),
            .badge = std::move(badge)};
}

} // namespace

RadioPickerItem SubscriptionOptionFormatter::makePickerRow(const SubscriptionOption& option, const UpsellViewModel& model) {
    runloop::MainActor::assertIsolated("SubscriptionOptionFormatter::makePickerRow");
    return pickerRow(option, model, badgeText(option, model));
}

std::vector<RadioPickerItem> SubscriptionOptionFormatter::makePickerRows(const UpsellViewModel& model) {
    runloop::MainActor::assertIsolated("SubscriptionOptionFormatter::makePickerRows");
    // All yearly plans share one badge: to work out the saving for each of them would make long lists slow.
    const SubscriptionOption* yearly = model.yearlyOption();
    const std::optional<std::string> yearlyBadge = yearly ? badgeText(*yearly, model) : std::nullopt;
    std::vector<RadioPickerItem> rows;
    rows.reserve(model.options->size());
    for (const SubscriptionOption& option : model.options.get())
        rows.push_back(pickerRow(option, model, option.isYearly() ? yearlyBadge : std::nullopt));
    return rows;
}

SubscriptionOptionFormatter::TitleAndSubtitle
SubscriptionOptionFormatter::titleAndSubtitle(const SubscriptionOption& option, const std::optional<std::string>& comparisonPrice) {
    runloop::MainActor::assertIsolated("SubscriptionOptionFormatter::titleAndSubtitle");
    TitleAndSubtitle result;
    std::string sentence;
    if (option.isYearly()) {
        result.title = localizedString("Annually");
        sentence = foundation::format(localizedString("**%1$@** per year (%2$@/month).",
                                                      "Subscription option subtitle, example: Equivalent to $8.33 / month."),
                                      {option.price(), option.monthlyEffectivePrice()});
    } else {
        result.title = localizedString("Monthly");
        sentence = foundation::format(localizedString("**%@** per month"), {option.price()});
    }
    if (comparisonPrice && !comparisonPrice->empty()) result.subtitle = struckThroughPrice(*comparisonPrice);
    // The blank is there even without a comparison price. This is deliberate: the subtitle then starts with a blank.
    appendRun(result.subtitle, " ", plainAttributes());
    result.subtitle.append(boldMarkup(sentence));
    return result;
}

std::int64_t SubscriptionOptionFormatter::savingsPercentage(const UpsellViewModel& model) {
    const SubscriptionOption* yearly = model.yearlyOption();
    const SubscriptionOption* monthly = model.monthlyOption();
    if (!yearly || !monthly) return fallbackSavings_percent;
    const std::optional<double> yearlyPrice = foundation::decimalNumber(yearly->price());
    if (!yearlyPrice) return fallbackSavings_percent;
    const std::optional<double> monthlyPrice = foundation::decimalNumber(monthly->price());
    if (!monthlyPrice) return fallbackSavings_percent;

    const double saved = std::round(*yearlyPrice / (*monthlyPrice * -12) * 100 + 100);
    constexpr double limit = 0x1p63; // the first whole number that 64 bits cannot hold
    // Not-a-number fails both comparisons, so it stops here as well.
    if (!(saved >= -limit && saved < limit)) commons::fatalError("The savings percentage is not a whole number that can be shown");
    return snappedToMultipleOfFive(static_cast<std::int64_t>(saved));
}

std::int64_t SubscriptionOptionFormatter::snappedToMultipleOfFive(std::int64_t percentage) {
    const std::int64_t remainder = percentage % 5;
    return remainder == 4 ? percentage + 1 : percentage - remainder;
}

std::optional<std::string> SubscriptionOptionFormatter::badgeText(const SubscriptionOption& option, const UpsellViewModel& model) {
    if (!option.isYearly()) return std::nullopt;
    const auto percent = foundation::LocaleServices::current().percentText(static_cast<double>(savingsPercentage(model)) / 100, 0,
                                                                           foundation::Locale::current());
    if (!percent)
        return localizedString("Best Value", "This title appears on the annual subscription button which give the user the best "
                                             "value for their purchase.");
    return foundation::format(localizedString("Save %@", "The % a user saves by switching to an annual subscription, for example "
                                                         "Save 45%"),
                              {*percent});
}

AttributedString SubscriptionOptionFormatter::boldMarkup(std::string_view text) {
    AttributedString result;
    const auto first = text.find(boldMarker);
    const auto second = first == std::string_view::npos ? first : text.find(boldMarker, first + boldMarker.size());
    if (second == std::string_view::npos) {
        appendRun(result, text, plainAttributes());
        return result;
    }
    const auto boldStart = first + boldMarker.size();
    appendRun(result, text.substr(0, first), plainAttributes());
    appendRun(result, text.substr(boldStart, second - boldStart), boldAttributes());
    appendRun(result, text.substr(second + boldMarker.size()), plainAttributes());
    return result;
}

} // namespace proupsells

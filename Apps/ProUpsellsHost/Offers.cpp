#include "Apps/ProUpsellsHost/Offers.hpp"

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

std::optional<std::string> optionalText(const JsonCursor& object, std::string_view key) {
    const auto value = object.optional(key);
    return value ? std::optional(value->text()) : std::nullopt;
}

bool optionalBoolean(const JsonCursor& object, std::string_view key, bool fallback) {
    return object.has(key) ? object.at(key).boolean() : fallback;
}

enum class OptionType { monthly, yearly, lifetime };

constexpr Word<OptionType> optionTypes[] = {
    {"monthly", OptionType::monthly},
    {"yearly", OptionType::yearly},
    {"lifetime", OptionType::lifetime},
};
constexpr Word<VelaProUpsellViewController::Variant> variants[] = {
    {"comparisonPaywall", VelaProUpsellViewController::Variant::comparisonPaywall},
};
constexpr Word<Entitlement> entitlements[] = {
    {"velaPRO", Entitlement::velaPRO},
};

OptionType typeOf(const SubscriptionOption& option) {
    return option.isMonthly() ? OptionType::monthly : option.isYearly() ? OptionType::yearly : OptionType::lifetime;
}

void expectKeysOf(OptionType type, const JsonCursor& option) {
    switch (type) {
    case OptionType::monthly:
        return option.expectObject({"SKU", "type", "price", "introductoryPrice", "introductoryPeriodLength", "hasUsedFreeTrial"});
    case OptionType::yearly:
        return option.expectObject(
            {"SKU", "type", "price", "monthlyEffectivePrice", "introductoryPrice", "introductoryPeriodLength", "hasUsedFreeTrial"});
    case OptionType::lifetime: return option.expectObject({"SKU", "type", "price", "hasUsedFreeTrial"});
    }
}

SubscriptionOption readOption(const JsonCursor& option) {
    using Type = SubscriptionOption::SubscriptionType;
    option.keys(); // an object, before its type is asked for
    const OptionType type = option.at("type").oneOf(optionTypes);
    expectKeysOf(type, option);

    const std::string sku = option.at("SKU").text();
    const std::string price = option.at("price").text();
    const auto usedFreeTrial = option.optional("hasUsedFreeTrial");
    const bool hasUsedFreeTrial = usedFreeTrial && usedFreeTrial->boolean();
    if (type == OptionType::lifetime) return {sku, Type::Lifetime{price}, hasUsedFreeTrial};

    const auto introductoryPrice = optionalText(option, "introductoryPrice");
    const auto introductoryPeriodLength = optionalText(option, "introductoryPeriodLength");
    if (type == OptionType::monthly)
        return {sku, Type::Monthly{price, introductoryPrice, introductoryPeriodLength}, hasUsedFreeTrial};
    const std::string monthlyEffectivePrice = option.at("monthlyEffectivePrice").text();
    return {sku, Type::Yearly{price, monthlyEffectivePrice, introductoryPrice, introductoryPeriodLength}, hasUsedFreeTrial};
}

Referrer readReferrer(const JsonCursor& value) {
    if (value.isText()) return Referrer{value.text()};
    if (!value.isObject()) value.fail("neither a text nor an object stands here, expected one of them");
    value.expectObject({"name", "elementID"});
    const std::string name = value.at("name").text();
    const auto element = value.optional("elementID");
    if (!element) return Referrer{name};
    if (element->isText()) return Referrer{name, element->text()};
    if (!element->isNumber()) element->fail("neither a whole number nor a text stands here, expected one of them");
    return Referrer{name, element->wholeNumber()};
}

Json orNull(const std::optional<std::string>& text) { return text ? Json(*text) : Json(nullptr); }

} // namespace

std::vector<SubscriptionOption> readOptions(const JsonCursor& array) {
    std::vector<SubscriptionOption> result;
    for (const JsonCursor& option : array.elements()) result.push_back(readOption(option));
    return result;
}

Offers readOffers(const JsonCursor& object) {
    object.expectObject({"options", "referrer", "variant", "entitlement", "showLoginOnSuccess",
                         "annualSubscriptionPriceForComparisonWithPromotionalPrice",
                         "monthlySubscriptionPriceForComparisonWithPromotionalPrice", "shouldMentioniCloudSync"});
    Offers offers;
    offers.options = readOptions(object.at("options"));
    if (const auto referrer = object.optional("referrer")) offers.referrer = readReferrer(*referrer);
    if (object.has("variant")) offers.variant = object.at("variant").oneOf(variants);
    if (object.has("entitlement")) offers.entitlement = object.at("entitlement").oneOf(entitlements);
    offers.showLoginOnSuccess = optionalBoolean(object, "showLoginOnSuccess", true);
    offers.annualSubscriptionPriceForComparisonWithPromotionalPrice =
        optionalText(object, "annualSubscriptionPriceForComparisonWithPromotionalPrice");
    offers.monthlySubscriptionPriceForComparisonWithPromotionalPrice =
        optionalText(object, "monthlySubscriptionPriceForComparisonWithPromotionalPrice");
    offers.shouldMentioniCloudSync = optionalBoolean(object, "shouldMentioniCloudSync", false);
    return offers;
}

Offers readOffersFile(const std::filesystem::path& file) {
    const Json value = readJsonFile(file);
    return readOffers(JsonCursor{value, system::textOf(file)});
}

Json toJson(const SubscriptionOption& option) {
    Json result;
    result["SKU"] = option.SKU();
    result["type"] = wordFor(typeOf(option), optionTypes);
    result["price"] = option.price();
    if (option.isYearly()) result["monthlyEffectivePrice"] = option.monthlyEffectivePrice();
    if (!option.isLifetime()) {
        result["introductoryPrice"] = orNull(option.introductoryPrice());
        result["introductoryPeriodLength"] = orNull(option.introductoryPeriodLength());
    }
    result["hasUsedFreeTrial"] = option.hasUsedFreeTrial();
    return result;
}

} // namespace proupsells::hostprogram

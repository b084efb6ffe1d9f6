#include "Tooling/OffersLint.hpp"

#include <algorithm>
#include <array>

#include "Platform/Foundation/Ascii.hpp"
#include "Platform/Foundation/Format.hpp"
#include "ProUpsells/CallToActionTexts.hpp"
#include "ProUpsells/PreparedOptions.hpp"
#include "ProUpsells/SubscriptionOptionFormatter.hpp"
#include "Tooling/PriceText.hpp"
#include "Tooling/Quoted.hpp"

namespace proupsells::tooling {

namespace {

// A text with a price in it, and where it stands.
struct PlacedPrice {
    std::string place, text;
};

// "1 Week" and "7 days" in the languages that translations come in; only what stands before the ending differs.
bool lastsSevenDays(std::string_view length) {
    constexpr std::string_view weeks[] = {"week", "woche", "semaine", "seman", "settiman", "tydzie\u0144", "недел", "hafta",
                                          "週",   "周",    "주",      "أسبوع", "שבוע",     "सप्ताह",        "हफ़्त",   "tyg"};
    constexpr std::string_view longer[] = {"week",  "woche", "semain", "seman", "settiman", "month",
                                           "monat", "mois",  "mes",    "year",  "jahr"};
    std::string words;
    for (const char c : length) words += foundation::asciiLower(c);
    const auto has = [&](std::string_view word) { return words.find(word) != std::string::npos; };
    const std::size_t first = words.find_first_of("0123456789"), end = words.find_first_not_of("0123456789", first);
    const std::string number = first == std::string::npos ? "1" : words.substr(first, end - first);
    if (number == "1") return std::any_of(std::begin(weeks), std::end(weeks), has);
    return number == "7" && std::none_of(std::begin(longer), std::end(longer), has);
}

class OffersLinter {
public:
    explicit OffersLinter(const OffersToLint& offers) : m_offers(offers) {
        m_model.options = preparedOptions(offers.options);
        m_prices = prices();
    }

    std::vector<LintFinding> findings() {
        findZeroMonths();
        findFixedSavings();
        findDearYears();
        findOtherTrials();
        findHiddenPlans();
        findDoubledSKUs();
        findOtherCurrencies();
        return std::move(m_findings);
    }

private:
    void add(const char* rule, const std::string& place, const std::string& message) {
        m_findings.push_back({.rule = rule, .place = place, .message = message});
    }

    std::string place(const SubscriptionOption& option, const char* key) const {
        return "/options/" + std::to_string(&option - m_offers.options.data()) + "/" + key;
    }

    std::vector<PlacedPrice> prices() const {
        std::vector<PlacedPrice> all;
        for (const SubscriptionOption& option : m_offers.options) {
            all.push_back({place(option, "price"), option.price()});
            if (option.isYearly()) all.push_back({place(option, "monthlyEffectivePrice"), option.monthlyEffectivePrice()});
            if (option.introductoryPrice()) all.push_back({place(option, "introductoryPrice"), *option.introductoryPrice()});
        }
        if (m_offers.annualComparisonPrice)
            all.push_back({"/annualSubscriptionPriceForComparisonWithPromotionalPrice", *m_offers.annualComparisonPrice});
        if (m_offers.monthlyComparisonPrice)
            all.push_back({"/monthlySubscriptionPriceForComparisonWithPromotionalPrice", *m_offers.monthlyComparisonPrice});
        return all;
    }

    void findZeroMonths() {
        for (const SubscriptionOption& option : m_offers.options)
            if (option.isMonthly() && foundation::decimalNumber(option.price()) == 0.0)
                add(zeroMonth, place(option, "price"),
                    inQuotes(option.price()) + " reads as 0, and a saving against 0 stops the program; leave the plan out");
    }

    // What the paywall would say of a saving if it could read the two prices; absent where nobody can.
    std::optional<std::int64_t> trueSavings_percent(const SubscriptionOption& yearly, const SubscriptionOption& monthly) const {
        const auto year = readPriceText(yearly.price()), month = readPriceText(monthly.price());
        if (!year || !month || month->amount < 1e-3) return std::nullopt;
        UpsellViewModel model;
        using Type = SubscriptionOption::SubscriptionType;
        model.options = {{"yearly", Type::Yearly{.price = std::to_string(year->amount)}, false},
                         {"monthly", Type::Monthly{.price = std::to_string(month->amount)}, false}};
        return SubscriptionOptionFormatter::savingsPercentage(model);
    }

    // The paywall shows a fixed saving where it cannot read a price. That is no harm while it happens to be true.
    void findFixedSavings() {
        const SubscriptionOption *yearly = m_model.yearlyOption(), *monthly = m_model.monthlyOption();
        if (!yearly || !monthly) return;
        const bool readsBoth = foundation::decimalNumber(yearly->price()) && foundation::decimalNumber(monthly->price());
        if (readsBoth) return;
        const std::int64_t shown = SubscriptionOptionFormatter::savingsPercentage(m_model);
        const auto meant = trueSavings_percent(*yearly, *monthly);
        if (meant == shown) return;
        const std::string truth = meant ? ", although the prices say " + std::to_string(*meant) + " %" : "";
        for (const SubscriptionOption& option : m_offers.options) {
            const bool isShown = option == *yearly || option == *monthly;
            if (!isShown || foundation::decimalNumber(option.price())) continue;
            add("fixed saving", place(option, "price"),
                inQuotes(option.price()) + " cannot be read, so that a saving of " + std::to_string(shown) + " % shows" + truth +
                    "; write a plain number, such as \"99.99\"");
        }
    }

    void findDearYears() {
        const SubscriptionOption* const monthly = m_model.monthlyOption();
        const auto month = monthly ? readPriceText(monthly->price()) : std::nullopt;
        if (!month) return;
        for (const SubscriptionOption& option : m_offers.options) {
            const auto year = option.isYearly() ? readPriceText(option.price()) : std::nullopt;
            constexpr double rounding = 1e-9;
            if (!year || year->amount <= 12 * month->amount * (1 + rounding)) continue;
            add("dear year", place(option, "price"),
                "a year at " + inQuotes(option.price()) + " is dearer than twelve months at " + inQuotes(monthly->price()) +
                    ", and the paywall praises it as saving; correct one of the prices");
        }
    }

    void findOtherTrials() {
        for (const SubscriptionOption& option : m_offers.options) {
            if (!option.isYearly() || !option.offersTrial() || lastsSevenDays(*option.introductoryPeriodLength())) continue;
            constexpr std::string_view fixedLength = "7 days";
            if (CallToActionTexts::paymentDisclaimer(option, m_model).find(fixedLength) == std::string::npos) continue;
            add("other trial length", place(option, "introductoryPeriodLength"),
                "the paywall says \"" + std::string(fixedLength) + "\" under the plan, beside a trial of " +
                    inQuotes(*option.introductoryPeriodLength()) + "; offer 7 days, or translate that sentence otherwise");
        }
    }

    void findHiddenPlans() {
        for (const SubscriptionOption& option : m_offers.options)
            if (preparedOptions({option}).empty())
                add("plan never shown", place(option, "type"),
                    "the paywall shows no lifetime plans, so nobody can buy " + inQuotes(option.SKU()) + "; leave it out");
    }

    void findDoubledSKUs() {
        const auto& options = m_offers.options;
        for (auto option = options.begin(); option != options.end(); ++option) {
            const auto first = std::find_if(options.begin(), option, [&](const auto& each) { return each.SKU() == option->SKU(); });
            if (first == option) continue;
            add("doubled SKU", place(*option, "SKU"),
                inQuotes(option->SKU()) + " is the SKU of " + place(*first, "SKU") +
                    " as well, so that the two are chosen together; "
                    "give each plan its own");
        }
    }

    void findOtherCurrencies() {
        std::optional<std::string> sign;
        for (const PlacedPrice& price : m_prices) {
            const auto reading = readPriceText(price.text);
            if (!reading) continue;
            if (!sign) sign = reading->sign;
            if (reading->sign == *sign) continue;
            const auto named = [](const std::string& each) { return each.empty() ? "no currency sign" : inQuotes(each); };
            add("other currency", price.place,
                inQuotes(price.text) + " has " + named(reading->sign) + ", the first price has " + named(*sign) +
                    "; write all prices in one currency, in the same way");
        }
    }

    const OffersToLint& m_offers;
    UpsellViewModel m_model; // the plans as the paywall shows them
    std::vector<PlacedPrice> m_prices;
    std::vector<LintFinding> m_findings;
};

} // namespace

std::vector<LintFinding> lint(const OffersToLint& offers) { return OffersLinter(offers).findings(); }

} // namespace proupsells::tooling

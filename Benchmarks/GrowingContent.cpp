#include "Benchmarks/GrowingContent.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Hosting/UIHostingController.hpp"
#include "ProUpsells/ComparisonView.hpp"
#include "ProUpsells/PDFsShelf.hpp"
#include "ProUpsells/ShapesShelf.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::benchmarks {

namespace {

using Options = std::vector<SubscriptionOption>;
using Type = SubscriptionOption::SubscriptionType;

SubscriptionOption yearlyPlan(std::string price) {
    return {"pro.yearly", Type{Type::Yearly{std::move(price), "$8.33", std::nullopt, "1 week"}}, false};
}

SubscriptionOption monthlyPlan(int number) {
    const std::string price = "$" + std::to_string(number) + ".99";
    return {"pro.monthly." + std::to_string(number), Type{Type::Monthly{price, std::nullopt, std::nullopt}}, false};
}

std::shared_ptr<uikit::UIViewController> paywall(Options options) {
    return VelaProUpsellViewController::create(std::move(options), VelaProUpsellViewController::Variant::comparisonPaywall,
                                               "Growth", Entitlement::velaPRO, true);
}

// No two plans have a text in common but the first.
Screens plans(int count) {
    Options options{yearlyPlan("$99.99")};
    while (int(options.size()) < count) options.push_back(monthlyPlan(int(options.size())));
    return {paywall(std::move(options))};
}

Screens paywalls(int count) {
    Screens result;
    while (int(result.size()) < count) result.push_back(paywall({yearlyPlan("$99.99"), monthlyPlan(14)}));
    return result;
}

// --- The comparison ---

std::vector<Feature> features(const std::string& name, int count) {
    std::vector<Feature> result;
    for (int number = 0; number < count; ++number)
        result.push_back({name + " " + std::to_string(number), {Feature::DistributionType::Pro{}}});
    return result;
}

Screens comparison(std::vector<FeatureCategory> categories) {
    return {hosting::UIHostingController::create(ComparisonView{
        .chooseYourPlanHandler = [] {}, .items = std::make_shared<const std::vector<FeatureCategory>>(std::move(categories))})};
}

Screens featuresOfOneCategory(int count) {
    return comparison({{.name = "Content", .expanded = true, .items = features("Feature", count)}});
}

Screens categories(int count) {
    std::vector<FeatureCategory> categories;
    for (int number = 0; number < count; ++number) {
        const std::string name = "Category " + std::to_string(number);
        categories.push_back({.name = name, .expanded = true, .items = features(name, 5)});
    }
    return comparison(std::move(categories));
}

// --- The store page ---

// Pictures that stand still and strips that drift, in turn.
Screens shelves(int count) {
    VelaProStorePageViewController::Shelves shelves;
    while (int(shelves.size()) < count) {
        if (shelves.size() % 2 == 0)
            shelves.push_back(std::make_shared<PDFsShelf>());
        else
            shelves.push_back(std::make_shared<ShapesShelf>());
    }
    return {std::make_shared<VelaProStorePageViewController>(std::move(shelves), "Growth", Entitlement::velaPRO)};
}

// --- Long texts ---

// So many characters, of words of different lengths.
std::string words(std::span<const std::string_view> vocabulary, int count) {
    std::string text;
    for (int length = 0, word = 0; length < count; ++word) {
        const std::string_view next = vocabulary[std::size_t(word * 7 + word / 3) % vocabulary.size()];
        for (std::size_t index = 0; index < next.size() && length < count; ++index) {
            text += next[index];
            const bool endsCharacter = index + 1 == next.size() || (static_cast<unsigned char>(next[index + 1]) & 0xC0) != 0x80;
            length += endsCharacter;
        }
        if (length++ < count) text += ' ';
    }
    return text;
}

std::string latinWords(int count) {
    static constexpr std::string_view vocabulary[] = {"premium", "templates", "of", "every", "size", "are", "updated", "daily"};
    return words(vocabulary, count);
}

std::string devanagariWords(int count) {
    static constexpr std::string_view vocabulary[] = {"प्रीमियम", "सदस्यता", "के", "साथ", "सभी", "फ़ॉन्ट", "मिलते", "हैं"};
    return words(vocabulary, count);
}

// The title of a plan, as the host's translators wrote it.
Screens translatedTitle(int count) {
    static const tests::TemporaryFolder folder;
    const std::string name = std::to_string(count);
    folder.write(name + "/en.lproj/Localizable.strings", "\"Monthly\" = \"" + latinWords(count) + "\";\n");
    foundation::Bundle::setMain(folder.path() / name);
    return paywalls(1);
}

Screens priceOfWords(int count) { return {paywall({yearlyPlan(latinWords(count)), monthlyPlan(14)})}; }

Screens priceWithoutBlanks(int count) {
    std::string price;
    while (int(price.size()) < count) price += char('0' + (price.size() * 7 + price.size() / 3) % 10);
    return {paywall({yearlyPlan(std::move(price)), monthlyPlan(14)})};
}

Screens devanagariPrice(int count) { return {paywall({yearlyPlan(devanagariWords(count)), monthlyPlan(14)})}; }

} // namespace

std::span<const GrowingContent> growingContents() {
    using Place = GrowingContent::Place;
    static const std::vector<int> lengths{10, 100, 1'000, 10'000, 100'000};
    static const GrowingContent contents[] = {
        {.name = "plans",
         .unit = "plans",
         .counts = {3, 10, 30, 100, 300, 1'000, 3'000, 10'000},
         .screens = plans,
         .hasPlans = true},
        {.name = "features",
         .unit = "features of one category",
         .counts = {20, 60, 200, 600, 2'000, 6'000, 20'000},
         .screens = featuresOfOneCategory},
        {.name = "categories",
         .unit = "categories of five features",
         .counts = {4, 12, 40, 120, 400, 1'200, 4'000},
         .screens = categories},
        {.name = "shelves", .unit = "shelves", .counts = {8, 24, 80, 240, 1'000}, .screens = shelves},
        {.name = "windows",
         .unit = "paywalls, each in its window",
         .counts = {1, 3, 10, 25, 50},
         .screens = paywalls,
         .place = Place::windowsOfTheirOwn,
         .hasPlans = true},
        {.name = "presented",
         .unit = "paywalls, each over the last",
         .counts = {1, 3, 10, 25, 50},
         .screens = paywalls,
         .hasPlans = true},
        {.name = "translation", .unit = "characters of a translated title", .counts = lengths, .screens = translatedTitle},
        {.name = "words", .unit = "characters of a price, in words", .counts = lengths, .screens = priceOfWords},
        {.name = "unbroken", .unit = "characters of a price without blanks", .counts = lengths, .screens = priceWithoutBlanks},
        {.name = "devanagari", .unit = "characters of a price in Devanagari", .counts = lengths, .screens = devanagariPrice},
    };
    return contents;
}

} // namespace proupsells::benchmarks

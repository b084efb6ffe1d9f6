// Any bytes as a text with marks for bold, and as the prices of two plans: no byte is lost or made up, and a picker row is made of
// them.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Backends/Headless/TestBed.hpp"
#include "Fuzz/Require.hpp"
#include "Platform/Foundation/Format.hpp"
#include "ProUpsells/SubscriptionOptionFormatter.hpp"
#include "ProUpsells/UpsellViewModel.hpp"

using namespace proupsells;
using fuzz::require;

namespace {

void readMarkup(std::string_view text) {
    const std::string shown = SubscriptionOptionFormatter::boldMarkup(text).text();
    constexpr std::size_t marks = 4; // two pairs of "**"
    require(shown == text || shown.size() + marks == text.size());
}

// A text that reads as 0 or that is far off makes a percentage that cannot be shown, which stops the program as stated.
bool isPlainPrice(std::string_view text) {
    const auto number = foundation::decimalNumber(text);
    return !number || (*number > 1e-6 && *number < 1e6);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const headless::TestBed bed;
    headless::TestBed::setUnexpectedLogHandler([](const commons::LogRecord&) {});
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    readMarkup(text);

    const std::string first(text.substr(0, size / 2)), second(text.substr(size / 2));
    if (!isPlainPrice(first) || !isPlainPrice(second)) return 0;
    using Type = SubscriptionOption::SubscriptionType;
    UpsellViewModel model;
    model.options = {{"yearly", Type{Type::Yearly{first, second, std::nullopt, second}}, false},
                     {"monthly", Type{Type::Monthly{second, first, first}}, false}};
    require(SubscriptionOptionFormatter::makePickerRows(model).size() == 2);
    return 0;
}

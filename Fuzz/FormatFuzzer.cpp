// Any bytes as a sentence with placeholders, and as a number: nothing is read beyond the arguments, and numbers are finite.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Fuzz/Require.hpp"
#include "Platform/Foundation/Format.hpp"

using namespace proupsells;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    // A placeholder is at least as long as either argument, so that filling never makes the text longer.
    const std::string filled = foundation::format(text, {"1", "22"});
    require(filled.size() <= size);
    require(foundation::format(text, {}).size() <= size);
    if (text.find('%') == std::string_view::npos) require(filled == text);
    if (const auto number = foundation::decimalNumber(text)) require(std::isfinite(*number));
    return 0;
}

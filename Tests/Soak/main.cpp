// SoakTests: the tests, a hundredth of the long runs. SoakTests --cycles 10000 --hours 24 --deeds 1000000: the long runs.
// --seed SEED: other deeds. --curve FILE: adds each point that is measured to the file, as comma-separated values.
#include <gmock/gmock.h>

#include <charconv>
#include <concepts>
#include <cstdio>
#include <optional>
#include <string_view>

#include "Platform/Foundation/DecimalText.hpp"
#include "Tests/Soak/Lengths.hpp"

namespace proupsells::soak {
namespace {

template <std::integral Number>
bool read(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && number > 0;
}

bool read(std::string_view text, double& number) {
    const std::optional<foundation::DecimalReading> reading = foundation::readDecimal(text);
    if (!reading || reading->length != text.size() || reading->number <= 0) return false;
    number = reading->number;
    return true;
}

// False where the word is no option, or its value none of it.
bool take(std::string_view option, const char* value) {
    if (option == "--cycles") return read(value, lengths.cycles);
    if (option == "--hours") return read(value, lengths.hours);
    if (option == "--deeds") return read(value, lengths.deeds);
    if (option == "--seed") return read(value, lengths.seed);
    if (option != "--curve") return false;
    lengths.curveFile = value;
    return !lengths.curveFile.empty();
}

} // namespace
} // namespace proupsells::soak

int main(int argumentCount, char** arguments) {
    testing::InitGoogleMock(&argumentCount, arguments);
    for (int index = 1; index < argumentCount; index += 2) {
        if (index + 1 < argumentCount && proupsells::soak::take(arguments[index], arguments[index + 1])) continue;
        std::fprintf(stderr, "%s: expected --cycles, --hours, --deeds or --seed with a number over 0, or --curve with a file\n",
                     arguments[index]);
        return 2;
    }
    return RUN_ALL_TESTS();
}

#include "Apps/ProUpsellsHost/InputError.hpp"

namespace proupsells::hostprogram {

std::string oneLine(const std::string& text) {
    std::string result;
    result.reserve(text.size());
    for (const char c : text) result += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? ' ' : c;
    return result;
}

InputError::InputError(const std::string& file, const std::string& pointer, const std::string& complaint)
    : std::runtime_error(oneLine(file + ": " + (pointer.empty() ? "/" : pointer) + ": " + complaint)) {}

} // namespace proupsells::hostprogram

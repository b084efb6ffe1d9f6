// Whole numbers of 32 bits as files store them, the lowest byte first.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace proupsells::foundation {

inline void appendNumber(std::string& bytes, std::uint32_t number) {
    for (int index = 0; index < 4; ++index) bytes += char(number >> 8 * index & 0xFF);
}

// Takes the first four bytes, which must be there.
inline std::uint32_t takeNumber(std::string_view& bytes) {
    std::uint32_t number = 0;
    for (int index = 0; index < 4; ++index) number |= std::uint32_t(std::uint8_t(bytes[std::size_t(index)])) << 8 * index;
    bytes.remove_prefix(4);
    return number;
}

} // namespace proupsells::foundation

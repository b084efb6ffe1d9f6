// Random texts for properties.
#pragma once

#include <rapidcheck.h>

#include <string>
#include <vector>

#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::tests {

// Valid UTF-8 with many of the characters in `favourites` and some from every plane.
inline rc::Gen<std::string> anyText(const std::string& favourites) {
    const auto character = rc::gen::weightedOneOf<char32_t>({
        {6, rc::gen::map(rc::gen::elementOf(favourites), [](char c) { return static_cast<char32_t>(c); })},
        {3, rc::gen::inRange<char32_t>(0x20, 0x7F)},
        {2, rc::gen::inRange<char32_t>(0xA0, 0xD800)},
        {1, rc::gen::inRange<char32_t>(0xE000, 0x110000)},
    });
    return rc::gen::map(rc::gen::container<std::vector<char32_t>>(character), [](const std::vector<char32_t>& characters) {
        std::string text;
        for (const char32_t c : characters) foundation::appendUtf8(text, c);
        return text;
    });
}

// Any bytes, often such as valid UTF-8 is made of.
inline rc::Gen<std::string> anyBytes() {
    return rc::gen::container<std::string>(rc::gen::weightedOneOf<char>(
        {{2, rc::gen::arbitrary<char>()},
         {3, rc::gen::elementOf(std::string("a\x80\xBF\xC2\xC3\xE0\xE2\xED\xEF\xF0\xF4\x9F\xA0\x90\xCC\x81\r\n", 18))}}));
}

} // namespace proupsells::tests

#include "Platform/Foundation/BuiltInLocaleServices.hpp"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "Platform/Foundation/Ascii.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Foundation/PercentText.hpp"
#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::foundation {

namespace {

bool isInWord(char c) {
    const bool isAscii = static_cast<unsigned char>(c) < 0x80;
    return !isAscii || (c >= '0' && c <= '9') || asciiLower(c) != asciiUpper(c) || c == '\'';
}

bool contains(std::initializer_list<std::string_view> list, std::string_view item) {
    return std::find(list.begin(), list.end(), item) != list.end();
}

template <class Visit>
void forEachGraphemeEnd(std::string_view text, Visit visit) {
    for (std::size_t offset = 0; offset < text.size();) {
        offset += text.substr(offset, 2) == "\r\n" ? 2 : decodeUtf8(text, offset).length;
        visit(offset);
    }
}

} // namespace

std::optional<std::string> BuiltInLocaleServices::percentText(double fraction, int maximumFractionDigits, const Locale&) const {
    if (!std::isfinite(fraction)) return std::nullopt;
    return englishPercentText(fraction, maximumFractionDigits);
}

std::string BuiltInLocaleServices::upperCased(std::string_view text, const Locale&) const {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), asciiUpper);
    return result;
}

std::string BuiltInLocaleServices::titleCased(std::string_view text, const Locale&) const {
    std::string result(text);
    bool isInsideWord = false;
    for (char& c : result) {
        c = isInsideWord ? asciiLower(c) : asciiUpper(c);
        isInsideWord = isInWord(c);
    }
    return result;
}

std::size_t BuiltInLocaleServices::graphemeCount(std::string_view text) const {
    std::size_t count = 0;
    forEachGraphemeEnd(text, [&](std::size_t) { ++count; });
    return count;
}

std::vector<std::size_t> BuiltInLocaleServices::graphemeEnds(std::string_view text) const {
    std::vector<std::size_t> ends;
    forEachGraphemeEnd(text, [&](std::size_t end) { ends.push_back(end); });
    return ends;
}

geometry::LayoutDirection BuiltInLocaleServices::layoutDirection(const Locale& locale) const {
    const auto directionIf = [](bool isRightToLeft) {
        return isRightToLeft ? geometry::LayoutDirection::rightToLeft : geometry::LayoutDirection::leftToRight;
    };
    const auto& chain = locale.languageChain();
    if (chain.empty()) return geometry::LayoutDirection::leftToRight;
    const std::string_view tag = chain.front();
    const std::string language = asciiLowerCased(std::string(tag.substr(0, tag.find('-'))));
    // A script says more than the language: Punjabi runs either way. It is the only part of four letters.
    const std::string parts = asciiLowerCased(chain.front()) + "-";
    for (std::size_t begin = 0, end; (end = parts.find('-', begin)) != std::string::npos; begin = end + 1)
        if (begin > 0 && end - begin == 4 &&
            std::none_of(parts.begin() + begin, parts.begin() + end, [](char c) { return c <= '9'; }))
            return directionIf(contains({"arab", "hebr", "syrc", "thaa", "nkoo", "adlm", "aran", "rohg", "mand", "samr"},
                                        std::string_view(parts).substr(begin, 4)));
    return directionIf(
        contains({"ar", "he", "iw", "fa", "ur", "yi", "ps", "sd", "ug", "dv", "ckb", "prs", "syr", "nqo"}, language));
}

} // namespace proupsells::foundation

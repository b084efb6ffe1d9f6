// The locale services that need no library.
#pragma once

#include "Platform/Foundation/LocaleServices.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

// English and ASCII; see LocaleServices.
class PROUPSELLS_EXPORT BuiltInLocaleServices : public LocaleServices {
public:
    std::optional<std::string> percentText(double fraction, int maximumFractionDigits, const Locale& locale) const override;
    std::string upperCased(std::string_view text, const Locale& locale) const override;
    std::string titleCased(std::string_view text, const Locale& locale) const override;
    std::size_t graphemeCount(std::string_view text) const override;
    std::vector<std::size_t> graphemeEnds(std::string_view text) const override;
    geometry::LayoutDirection layoutDirection(const Locale& locale) const override;
    // Knows Hebrew and Arabic letters by their blocks, keeps numbers and their signs together, and gives blanks and punctuation the
    // direction around them. Has no rules for invisible marks, for brackets in pairs and for the numbers of Arabic texts.
    std::vector<BidiRun> bidiRuns(std::string_view text, geometry::LayoutDirection fallback) const override;
};

} // namespace proupsells::foundation

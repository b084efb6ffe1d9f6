// Locale data from ICU.
#pragma once

#include <memory>

#include "Platform/Foundation/LocaleServices.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::icubackend {

// Knows every language that ICU knows; an unknown locale is treated as ICU's root locale. Main thread only: it keeps what is costly
// to make (the percents and the word breaks of the locale used last, the iterator over user-perceived characters, the memory for
// directions). It stops the program when it needs data that ICU does not have.
class PROUPSELLS_EXPORT IcuLocaleServices final : public foundation::LocaleServices {
public:
    // Stops the program when ICU's data is missing.
    IcuLocaleServices();
    ~IcuLocaleServices() override;

    // Absent for infinite numbers and not-a-number.
    std::optional<std::string> percentText(double fraction, int maximumFractionDigits,
                                           const foundation::Locale& locale) const override;
    // Ill-formed parts become replacement characters, here and in titleCased().
    std::string upperCased(std::string_view text, const foundation::Locale& locale) const override;
    std::string titleCased(std::string_view text, const foundation::Locale& locale) const override;

    std::size_t graphemeCount(std::string_view text) const override;
    std::vector<std::size_t> graphemeEnds(std::string_view text) const override;
    geometry::LayoutDirection layoutDirection(const foundation::Locale& locale) const override;
    std::vector<foundation::BidiRun> bidiRuns(std::string_view text, geometry::LayoutDirection fallback) const override;

private:
    struct Cache;
    std::unique_ptr<Cache> m_cache;
};

} // namespace proupsells::icubackend

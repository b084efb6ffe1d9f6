#include "Platform/Foundation/NumberFormatter.hpp"

#include "Platform/Foundation/Locale.hpp"

namespace proupsells::foundation {

std::optional<std::string> NumberFormatter::string(double number) const {
    switch (numberStyle) {
    case Style::percent: return LocaleServices::current().percentText(number, maximumFractionDigits, Locale::current());
    }
    return std::nullopt;
}

} // namespace proupsells::foundation

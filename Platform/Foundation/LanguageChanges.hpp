// Tells when texts that are read again may read or look otherwise.
#pragma once

#include <cstdint>

#include "Platform/Combine/PassthroughSubject.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::host {

struct Look;

} // namespace proupsells::host

namespace proupsells::foundation {

// A change of the current locale, of the locale services, of the main bundle or of the look. Main thread only.
class PROUPSELLS_EXPORT LanguageChanges {
public:
    // How many there have been so far. Texts read at the same count are in the same language and the same typefaces.
    static std::uint64_t count();
    // Sends the new count after each change. Read texts later, at the next update: a host may be in the middle of several changes.
    static const combine::PassthroughSubject<std::uint64_t>& publisher();

private:
    friend class Bundle;
    friend class Locale;
    friend class LocaleServices;
    friend struct host::Look;

    static void add();
};

} // namespace proupsells::foundation

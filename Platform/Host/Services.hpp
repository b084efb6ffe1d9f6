// The one place where a backend's services are installed.
#pragma once

#include <memory>

#include "Platform/Foundation/Locale.hpp"
#include "Platform/Host/ImageDecoder.hpp"
#include "Platform/Host/TextShaper.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::host {

class ClipDecoder;

struct Services {
    std::shared_ptr<TextShaper> textShaper;                           // null: stops the program when a text is to be measured
    std::shared_ptr<ImageDecoder> imageDecoder;                       // null: no image is found
    std::shared_ptr<ClipDecoder> clipDecoder;                         // null: clips stay empty
    std::shared_ptr<const foundation::LocaleServices> localeServices; // null: the built-in ones
};

// Installs services for as long as it lives; the newest installation counts. Main thread only.
class PROUPSELLS_EXPORT Installation {
public:
    // Shares the services. Shaped texts that were kept are forgotten, here and at the end.
    explicit Installation(Services services);
    ~Installation();
    Installation(const Installation&) = delete;

    // The newest installation's services. Stops the program when there is none.
    static const Services& current();
    // Whether anything is installed.
    static bool exists();
    // The newest installation's text shaper. Stops the program when there is none.
    static TextShaper& textShaper();

private:
    Services m_services;
    Installation* m_previous;
    std::shared_ptr<const foundation::LocaleServices> m_previousLocale;
};

} // namespace proupsells::host

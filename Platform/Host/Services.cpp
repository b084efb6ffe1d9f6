#include "Platform/Host/Services.hpp"

#include <utility>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Host/TextCache.hpp"
#include "Platform/RunLoop/MainActor.hpp"

namespace proupsells::host {

namespace {

Installation* newest = nullptr;

// Before any other part of an installation, which would stop the program without its name.
Services onMainThread(Services services) {
    runloop::MainActor::assertIsolated("host::Installation");
    return services;
}

} // namespace

Installation::Installation(Services services)
    : m_services(onMainThread(std::move(services))), m_previous(newest),
      m_previousLocale(foundation::LocaleServices::setCurrent(m_services.localeServices)) {
    newest = this;
    TextCache::shared().clear();
}

Installation::~Installation() {
    // Shaped texts hold a backend's fonts, which must not outlive the backend.
    TextCache::shared().clear();
    if (newest == this) {
        newest = m_previous;
        foundation::LocaleServices::setCurrent(m_previousLocale);
        return;
    }
    Installation* above = newest;
    while (above->m_previous != this) above = above->m_previous;
    above->m_previous = m_previous;
    above->m_previousLocale = m_previousLocale;
}

const Services& Installation::current() {
    if (!newest)
        commons::fatalError("No services are installed: call proupsells::standard::install(), or create a host::Installation, "
                            "before the first view");
    return newest->m_services;
}

bool Installation::exists() { return newest != nullptr; }

TextShaper& Installation::textShaper() {
    TextShaper* shaper = current().textShaper.get();
    if (!shaper)
        commons::fatalError("No text shaper is installed: host::Services::textShaper is null, and a text is to be measured");
    return *shaper;
}

} // namespace proupsells::host

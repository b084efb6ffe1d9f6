#include "Platform/Foundation/LocaleServices.hpp"

#include <utility>

#include "Platform/Foundation/BuiltInLocaleServices.hpp"
#include "Platform/Foundation/LanguageChanges.hpp"
#include "Platform/RunLoop/MainActor.hpp"

namespace proupsells::foundation {

namespace {

std::shared_ptr<const LocaleServices>& installedServices() {
    static std::shared_ptr<const LocaleServices> services;
    return services;
}

} // namespace

const LocaleServices& LocaleServices::current() {
    static const BuiltInLocaleServices builtIn;
    return installedServices() ? *installedServices() : builtIn;
}

std::shared_ptr<const LocaleServices> LocaleServices::setCurrent(std::shared_ptr<const LocaleServices> services) {
    runloop::MainActor::assertIsolated();
    if (installedServices() == services) return services;
    auto previous = std::exchange(installedServices(), std::move(services));
    LanguageChanges::add();
    return previous;
}

} // namespace proupsells::foundation

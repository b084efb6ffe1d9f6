#include "Platform/Host/Look.hpp"

#include <utility>

#include "Platform/Foundation/LanguageChanges.hpp"
#include "Platform/Host/TextCache.hpp"
#include "Platform/RunLoop/MainActor.hpp"

namespace proupsells::host {

void Look::setCurrent(Look look) {
    runloop::MainActor::assertIsolated("host::Look::setCurrent");
    graphics::Palette::setCurrent(std::move(look.palette));
    graphics::Typefaces::setCurrent(std::move(look.typefaces));
    setStandIns(std::move(look.images));
    TextCache::shared().clear();
    foundation::LanguageChanges::add();
}

} // namespace proupsells::host

#include "Backends/Standard/Standard.hpp"

#include <memory>

#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#ifdef PROUPSELLS_HAS_ICU
#include "Backends/Icu/IcuLocaleServices.hpp"
#endif
#ifdef PROUPSELLS_HAS_FFMPEG
#include "Backends/FFmpeg/LazyClipDecoder.hpp"
#endif

namespace proupsells::standard {

namespace {

struct Installed {
    std::unique_ptr<runloop::MainRunLoop> loop;
    std::unique_ptr<host::Installation> services;
};

// Never destroyed: screens may live until the very end of the program.
Installed& installed() {
    static auto* const parts = new Installed;
    return *parts;
}

} // namespace

host::Services newServices([[maybe_unused]] ClipPace pace) {
    host::Services services{.textShaper = std::make_shared<rasterbackend::RasterTextShaper>(),
                            .imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>()};
#ifdef PROUPSELLS_HAS_ICU
    services.localeServices = std::make_shared<icubackend::IcuLocaleServices>();
#endif
#ifdef PROUPSELLS_HAS_FFMPEG
    services.clipDecoder = std::make_shared<ffmpegbackend::LazyClipDecoder>(pace == ClipPace::exact ? ffmpegbackend::Pace::exact
                                                                                                    : ffmpegbackend::Pace::realTime,
                                                                            ffmpegbackend::LazyClipDecoder::defaultFolders());
#endif
    return services;
}

void install() {
    if (!runloop::MainRunLoop::exists())
        installed().loop = std::make_unique<runloop::MainRunLoop>(std::make_shared<runloop::RealClock>());
    if (!host::Installation::exists()) installed().services = std::make_unique<host::Installation>(newServices(ClipPace::realTime));
}

} // namespace proupsells::standard

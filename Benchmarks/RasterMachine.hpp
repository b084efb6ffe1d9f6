// What the module stands on when it is painted by the pixel engine, on a clock that a benchmark moves.
#pragma once

#include <benchmark/benchmark.h>

#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::benchmarks {

struct RasterMachine {
    explicit RasterMachine(std::shared_ptr<host::ClipDecoder> clipDecoder = nullptr)
        : services({.textShaper = std::make_shared<rasterbackend::RasterTextShaper>(),
                    .imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>(),
                    .clipDecoder = std::move(clipDecoder),
                    .localeServices = std::make_shared<icubackend::IcuLocaleServices>()}) {}

    runloop::MainRunLoop loop{std::make_shared<runloop::VirtualClock>()};
    host::Installation services;
};

inline int run(int count, char** arguments) {
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace proupsells::benchmarks

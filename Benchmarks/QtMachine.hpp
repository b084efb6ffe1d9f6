// What the module stands on when it is painted by the Qt backend, on a clock that a benchmark moves.
#pragma once

#include <benchmark/benchmark.h>

#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Backends/Qt/Application.hpp"
#include "Backends/Qt/QtImageDecoder.hpp"
#include "Backends/Qt/QtTextShaper.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::benchmarks {

struct QtMachine {
    explicit QtMachine(std::shared_ptr<host::ClipDecoder> clipDecoder = nullptr)
        : services({.textShaper = std::make_shared<qtbackend::QtTextShaper>(),
                    .imageDecoder = std::make_shared<qtbackend::QtImageDecoder>(),
                    .clipDecoder = std::move(clipDecoder),
                    .localeServices = std::make_shared<icubackend::IcuLocaleServices>()}) {}

    runloop::MainRunLoop loop{std::make_shared<runloop::VirtualClock>()};
    host::Installation services;
};

inline int run(int count, char** arguments) {
    const qtbackend::Application application({.isHeadless = true});
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace proupsells::benchmarks

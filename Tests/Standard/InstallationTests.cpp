// What the ordinary installation brings.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>

#include "Backends/FFmpeg/LazyClipDecoder.hpp"
#include "Backends/Headless/TestBed.hpp"
#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Backends/Standard/Standard.hpp"
#include "Platform/Foundation/Resources.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/System/EmbeddedFiles.hpp"
#include "Platform/System/ProgramFile.hpp"

namespace proupsells::standard {
namespace {

const std::filesystem::path clip = "Tests/FFmpeg/Data/counting.mp4";

template <class Ours, class Service>
bool is(const std::shared_ptr<Service>& service) {
    return dynamic_cast<const Ours*>(service.get()) != nullptr;
}

TEST(NewServices, AreThoseOfTheBackends) {
    const host::Services services = newServices(ClipPace::realTime), others = newServices(ClipPace::realTime);

    EXPECT_TRUE(is<rasterbackend::RasterTextShaper>(services.textShaper));
    EXPECT_TRUE(is<rasterbackend::RasterImageDecoder>(services.imageDecoder));
    EXPECT_TRUE(is<icubackend::IcuLocaleServices>(services.localeServices));
    EXPECT_TRUE(is<ffmpegbackend::LazyClipDecoder>(services.clipDecoder));
    EXPECT_NE(services.textShaper, others.textShaper);
}

TEST(NewServices, WaitForThePicturesOfClipsOnlyWhereTheyAreToBeExact) {
    const auto exact = newServices(ClipPace::exact).clipDecoder, real = newServices(ClipPace::realTime).clipDecoder;

    EXPECT_TRUE(exact->open(clip)->frameAt(1).picture);
    EXPECT_FALSE(real->open(clip)->frameAt(1).picture);
}

TEST(NewServices, FindThePlugInForClipsBesideTheProgramAndWhereAPackageHasIt) {
    const std::vector<std::filesystem::path> folders = ffmpegbackend::LazyClipDecoder::defaultFolders();
    const std::set<std::filesystem::path> known(folders.begin(), folders.end());
    EXPECT_EQ(known.size(), folders.size());
    EXPECT_TRUE(known.contains(system::programFile().parent_path().lexically_normal()));

    for (const auto& place : foundation::resourcePlaces()) {
        if (system::EmbeddedFiles::isBelowRoot(place)) continue;
        const std::filesystem::path package = place.parent_path().parent_path();
        EXPECT_TRUE(known.contains(place.lexically_normal())) << place;
        EXPECT_TRUE(known.contains((package / "bin").lexically_normal())) << place;
        const auto isLibraryFolder = [&](const std::filesystem::path& folder) {
            return folder.filename() == "proupsells" &&
                   folder.parent_path().string().starts_with((package / "lib").lexically_normal().string());
        };
        EXPECT_TRUE(std::any_of(folders.begin(), folders.end(), isLibraryFolder)) << place;
    }
}

// The program that installs it has it to its end.
TEST(Installing, MakesARunLoopAndServicesForTheRestOfTheProgram) {
    EXPECT_EXIT(
        {
            const bool wasThere = runloop::MainRunLoop::exists() || host::Installation::exists();
            install();
            const auto* const loop = &runloop::MainRunLoop::main();
            install();
            const bool isThere =
                runloop::MainRunLoop::exists() && host::Installation::exists() && loop == &runloop::MainRunLoop::main();
            std::exit(!wasThere && isThere && is<rasterbackend::RasterTextShaper>(host::Installation::current().textShaper) ? 0
                                                                                                                            : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST(Installing, LeavesWhatAHostHasInstalled) {
    headless::TestBed bed;
    install();

    EXPECT_TRUE(is<headless::FixedTextShaper>(host::Installation::current().textShaper));
    EXPECT_EQ(&runloop::MainRunLoop::main(), &bed.loop());
}

} // namespace
} // namespace proupsells::standard

// Any bytes as a picture, a typeface and a clip of a host's: each is shown, or it is absent and one line is written of it.
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Backends/FFmpeg/LazyClipDecoder.hpp"
#include "Backends/Headless/TestBed.hpp"
#include "Backends/Raster/FontCatalog.hpp"
#include "Backends/Raster/PictureFile.hpp"
#include "Backends/Raster/PictureWriter.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/RasterPainter.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Fuzz/Require.hpp"
#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/Host/NamedImage.hpp"
#include "Platform/System/EmbeddedFiles.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;
using fuzz::require;

namespace {

constexpr geometry::Size size{60, 40};

std::filesystem::path fileNamed(const char* name) { return system::EmbeddedFiles::root() / name; }

// What is there whatever the bytes are.
class Surroundings {
public:
    const std::filesystem::path& fontsOfTheSystem() const { return m_fontsOfTheSystem; }
    graphics::ImageRef logo() const { return host::namedImage("logo", foundation::Bundle(fileNamed("own"))); }

private:
    // Of a machine without any.
    const tests::TemporaryFolder m_folder;
    const std::filesystem::path m_fontsOfTheSystem = m_folder.write("fonts.conf", "<fontconfig></fontconfig>");

    const rasterbackend::Picture m_picture{16, 16};
    const std::string m_logo = rasterbackend::pictureFileBytes({16, 16}, {&m_picture, 1});
    const std::array<system::EmbeddedFile, 1> m_files{{{"own/logo.picture", m_logo.data(), m_logo.data() + m_logo.size()}}};
    const system::EmbeddedFiles m_table{m_files};
};

const Surroundings& surroundings() {
    static const Surroundings surroundings;
    return surroundings;
}

void paint(const graphics::DisplayList& list) {
    rasterbackend::RasterSurface surface(std::make_shared<rasterbackend::RasterPainter>());
    surface.present(list, size, 1.5);
}

// In the place of a picture of our own.
void showPicture(headless::TestBed& bed) {
    const std::filesystem::path file = fileNamed("picture");
    const auto logo = surroundings().logo();
    host::setStandIns({{"logo", {file, file}}});
    const bool isShown = logo->standIn != nullptr;
    require(bed.takeLogRecords().size() == (isShown ? 0 : 1));
    if (isShown) {
        require(rasterbackend::naturalPictureSize(file).has_value());
        require(!rasterbackend::readPicture(file, 5, 3).isNull());
    }
    graphics::DisplayList list;
    graphics::PaintContext context(list);
    context.image({}, {{4, 4}, {16, 16}}, logo);
    context.image(graphics::PaintState().transformedBy(geometry::Transform::rotation(0.3)), {{20, 4}, {33, 21}}, logo);
    paint(list);
    host::setStandIns({});
    require(!logo->standIn);
}

// A text in the only face that there is.
void showFace(headless::TestBed& bed) {
    rasterbackend::RasterTextShaper shaper({fileNamed("faces"), surroundings().fontsOfTheSystem()});
    const graphics::FontFace face{.family = "Fuzzed", .weight = 400};
    const graphics::StyledRun run{"Af 1\u00E9 \u05D0", {.face = &face, .size = 12}, 0};
    const auto text = shaper.shape({&run, 1}, "en", geometry::LayoutDirection::leftToRight);
    for (const graphics::Cluster& cluster : text->clusters) require(std::isfinite(cluster.advance));
    for (const graphics::RunMetrics& metrics : text->metrics)
        require(std::isfinite(metrics.ascent) && std::isfinite(metrics.descent));
    // The file is no font, its family is missing, and the machine has none.
    require(bed.takeLogRecords().size() <= 3);

    graphics::DisplayList list;
    graphics::PaintContext context(list);
    context.text({}, {4, 20}, {{4, 8}, {50, 15}}, text, 0, std::uint32_t(text->clusters.size()), graphics::rgb(0));
    paint(list);
}

void showClip(headless::TestBed& bed) {
    constexpr std::size_t mostPixels = 3840 * 2176;
    // The plug-in stays loaded.
    static ffmpegbackend::LazyClipDecoder decoder(ffmpegbackend::Pace::exact, ffmpegbackend::LazyClipDecoder::defaultFolders());
    const auto clip = decoder.open(fileNamed("clip.mp4"));
    for (const double time_s : {0.0, 0.35, 1e6, 0.1, -3.0}) {
        const host::ClipFrame frame = clip->frameAt(time_s);
        if (!clip->isPlayable()) break;
        require(frame.picture && std::isfinite(frame.time_s));
        const auto& [width, height, pixels] = *frame.picture;
        require(width > 0 && height > 0 && pixels.size() == std::size_t(width) * std::size_t(height) &&
                pixels.size() <= mostPixels);
    }
    require(decoder.isLoaded());
    require(bed.takeLogRecords().size() <= 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t dataSize) {
    surroundings();
    const auto* begin = reinterpret_cast<const char*>(data);
    const std::array<system::EmbeddedFile, 3> files{{{"clip.mp4", begin, begin + dataSize},
                                                     {"faces/Fuzzed-400.ttf", begin, begin + dataSize},
                                                     {"picture", begin, begin + dataSize}}};
    const system::EmbeddedFiles table(files);
    host::Services services;
    services.imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>();
    headless::TestBed bed(std::move(services));
    showPicture(bed);
    showFace(bed);
    showClip(bed);
    return 0;
}

#include "Apps/ProUpsellsHost/Snapshot.hpp"

#include "Backends/Raster/PngFile.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

std::optional<rasterbackend::PixelSize> writeSnapshot(host::WindowContent& window, geometry::Size size, double scale,
                                                      const std::filesystem::path& folder, const std::string& name) {
    graphics::DisplayList list;
    window.paint(list);
    rasterbackend::RasterSurface surface;
    surface.present(list, size, scale);

    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error || !rasterbackend::writePng(surface.picture(), folder / system::pathOf(name))) return std::nullopt;
    return {{surface.picture().width(), surface.picture().height()}};
}

} // namespace proupsells::hostprogram

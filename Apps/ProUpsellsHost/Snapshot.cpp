#include "Apps/ProUpsellsHost/Snapshot.hpp"

#include "Backends/Qt/PngFile.hpp"
#include "Backends/Qt/RasterSurface.hpp"

namespace proupsells::hostprogram {

std::optional<PixelSize> writeSnapshot(host::WindowContent& window, geometry::Size size, double scale,
                                       const std::filesystem::path& folder, const std::string& name) {
    graphics::DisplayList list;
    window.paint(list);
    qtbackend::RasterSurface surface;
    surface.present(list, size, scale);

    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error || !qtbackend::writePng(surface.image(), folder / name)) return std::nullopt;
    return PixelSize{surface.image().width(), surface.image().height()};
}

} // namespace proupsells::hostprogram

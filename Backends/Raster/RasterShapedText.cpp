#include "Backends/Raster/RasterShapedText.hpp"

#include <atomic>

namespace proupsells::rasterbackend {

namespace {

std::uint64_t nextSerial() {
    static std::atomic<std::uint64_t> last{0};
    return ++last;
}

} // namespace

RasterShapedText::RasterShapedText() : serial(nextSerial()) {}

} // namespace proupsells::rasterbackend

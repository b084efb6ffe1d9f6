// Any bytes as a picture file: it has a size and pixels or it has none, whole and by tiles, and the readers of sizes agree.
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "Backends/Headless/ImageSizeReader.hpp"
#include "Backends/Raster/FilePicture.hpp"
#include "Backends/Raster/PictureFile.hpp"
#include "Fuzz/Require.hpp"
#include "Platform/Graphics/PictureHeader.hpp"
#include "Platform/System/MappedFile.hpp"

using namespace proupsells;
using fuzz::require;

namespace {

// A file without a place on the disk.
class MemoryFile {
public:
    MemoryFile(const std::uint8_t* data, std::size_t size) : m_descriptor(memfd_create("picture", MFD_CLOEXEC)) {
        require(m_descriptor >= 0 && write(m_descriptor, data, size) == ssize_t(size));
    }
    ~MemoryFile() { close(m_descriptor); }
    MemoryFile(const MemoryFile&) = delete;

    std::string path() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }

private:
    int m_descriptor;
};

void readAt(const std::string& file, int width, int height) {
    const rasterbackend::Picture picture = rasterbackend::readPicture(file, width, height);
    if (const auto tiled = rasterbackend::FilePicture::open(file, {width, height})) {
        rasterbackend::FilePicture::Reader reader(*tiled);
        bool isWhole = true;
        for (int tile = 0; tile < tiled->tiles().count(); ++tile) isWhole = !reader.tile(tile, false).isNull() && isWhole;
        require(isWhole == !picture.isNull());
    }
    require(picture.isNull() || (picture.width() == width && picture.height() == height));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MemoryFile file(data, size);
    const auto naturalSize = rasterbackend::naturalPictureSize(file.path());
    require(!naturalSize || (naturalSize->width > 0 && naturalSize->height > 0));
    readAt(file.path(), 7, 5);
    readAt(file.path(), 30, 30);

    const system::MappedFile mapped(file.path());
    if (const auto header = graphics::PictureHeader::parse(mapped.bytes(), size)) {
        require(headless::ImageSizeReader().naturalSize(file.path()) == naturalSize);
        const auto& first = header->variants.front();
        if (first.width_px * first.height_px < 1'000'000) readAt(file.path(), int(first.width_px), int(first.height_px));
    }
    return 0;
}

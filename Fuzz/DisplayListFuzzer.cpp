// Any bytes as what is painted, changed step by step: what is painted in part comes out, pixel by pixel, like what is painted
// whole, and nothing is written beside the surface.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "Backends/Headless/TestBed.hpp"
#include "Backends/Raster/PictureWriter.hpp"
#include "Backends/Raster/RasterPainter.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Fuzz/ByteReader.hpp"
#include "Fuzz/Require.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/System/EmbeddedFiles.hpp"

using namespace proupsells;
using fuzz::ByteReader;
using fuzz::require;
using geometry::Point;
using geometry::Rect;
using graphics::PaintState;
using rasterbackend::Pixel;

namespace {

constexpr geometry::Size size{40, 30};

// --- What is painted beside shapes ---

// A picture at scales 1 and 2, in memory.
std::string pictureBytes(std::uint32_t alpha) {
    std::vector<rasterbackend::Picture> sizes;
    for (const int scale : {1, 2}) {
        rasterbackend::Picture picture(24 * scale, 16 * scale);
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                picture.row(y)[x] = alpha << 24 | std::uint32_t((x * 5 + y * 3) % int(alpha + 1)) * 0x10101;
        sizes.push_back(picture);
    }
    return rasterbackend::pictureFileBytes({24, 16}, sizes);
}

graphics::ImageRef imageOf(const char* name, graphics::RenderingMode mode) {
    auto image = std::make_shared<graphics::Image>();
    image->name = name;
    image->size = {24, 16};
    image->file = system::EmbeddedFiles::root() / name;
    image->renderingMode = mode;
    return image;
}

// Made once.
class Stock {
public:
    Stock() {
        const auto bitmap = std::make_shared<graphics::Bitmap>(graphics::Bitmap{8, 8, {}});
        for (std::uint32_t i = 0; i < 64; ++i) bitmap->pixels.push_back(0xFF000000 | i * 0x040201);
        m_bitmap = bitmap;
        const graphics::StyledRun runs[] = {{"Agj fi 12", {.size = 11}, 0}, {"\u05D0\u05D1 x", {.size = 30}, 1}};
        for (const graphics::StyledRun& run : runs)
            texts.push_back(m_shaper.shape({&run, 1}, "en", geometry::LayoutDirection::leftToRight));
    }

    const std::shared_ptr<const graphics::Bitmap>& bitmap() const { return m_bitmap; }
    const graphics::ImageRef images[3] = {imageOf("faint", graphics::RenderingMode::original),
                                          imageOf("opaque", graphics::RenderingMode::original),
                                          imageOf("opaque", graphics::RenderingMode::tinted)};
    std::vector<std::shared_ptr<const graphics::ShapedText>> texts;

private:
    const headless::TestBed m_bed; // for whoever logs
    const std::string m_faint = pictureBytes(120), m_opaque = pictureBytes(255);
    const std::array<system::EmbeddedFile, 2> m_files{{{"faint", m_faint.data(), m_faint.data() + m_faint.size()},
                                                       {"opaque", m_opaque.data(), m_opaque.data() + m_opaque.size()}}};
    const system::EmbeddedFiles m_table{m_files};
    std::shared_ptr<const graphics::Bitmap> m_bitmap;
    rasterbackend::RasterTextShaper m_shaper;
};

const Stock& stock() {
    static const Stock stock;
    return stock;
}

// --- What the bytes say ---

// Mostly whole or half points in sight, now and then something that no screen is made for.
double readLength(ByteReader& bytes, int most) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double strange[] = {std::numeric_limits<double>::quiet_NaN(),
                                  infinity,
                                  -infinity,
                                  1e300,
                                  -1e300,
                                  1e9,
                                  -1e9,
                                  1e-300,
                                  70'000,
                                  -70'000,
                                  0.1,
                                  1 / 3.0,
                                  -0.0,
                                  3000.7};
    const int byte = bytes.below(256);
    if (byte >= 256 - int(std::size(strange))) return strange[255 - byte];
    return byte % (2 * most) / 2.0;
}

// Around the surface as well as in it.
Rect readRect(ByteReader& bytes) {
    const double x = readLength(bytes, 50), y = readLength(bytes, 40), width = readLength(bytes, 40),
                 height = readLength(bytes, 30);
    return {{x - 5, y - 5}, {width, height}};
}

geometry::Transform readTransform(ByteReader& bytes) {
    switch (bytes.below(4)) {
    case 0: return geometry::Transform::rotation(readLength(bytes, 4));
    case 1: return geometry::Transform::scaling(readLength(bytes, 2), readLength(bytes, 2));
    case 2: return geometry::Transform::translation(readLength(bytes, 40), readLength(bytes, 40));
    default:
        return {readLength(bytes, 2), readLength(bytes, 2),  readLength(bytes, 2),
                readLength(bytes, 2), readLength(bytes, 20), readLength(bytes, 20)};
    }
}

struct Item {
    int kind = 0;
    Rect rect;
    double radius = 0, width = 0;
    graphics::RGBA color;
    PaintState state;
    geometry::Path path;
    bool isScrolled = false;

    static Item read(ByteReader& bytes) {
        Item item;
        item.kind = bytes.below(11);
        item.rect = readRect(bytes);
        const int traits = bytes.below(64);
        item.radius = traits & 1 ? readLength(bytes, 12) : 4;
        item.width = traits & 2 ? readLength(bytes, 6) : 1;
        item.color = {std::uint8_t(bytes.below(256)), std::uint8_t(bytes.below(256)), 40,
                      std::uint8_t(traits & 4 ? 255 : bytes.below(256))};
        item.isScrolled = traits & 8;
        if (traits & 16) item.state = item.state.clippedTo(readRect(bytes), bytes.flag() ? readLength(bytes, 12) : 0);
        if (traits & 32) item.state = item.state.transformedBy(readTransform(bytes)).fadedBy(readLength(bytes, 1));
        if (item.kind == 5 || item.kind == 6) item.readPath(bytes);
        return item;
    }

    void readPath(ByteReader& bytes) {
        const auto point = [&] {
            const double x = readLength(bytes, 40);
            return Point{x, readLength(bytes, 30)};
        };
        path.moveTo(point());
        for (int steps = bytes.below(5); steps > 0; --steps) {
            switch (bytes.below(4)) {
            case 0: path.moveTo(point()); break;
            case 1: path.lineTo(point()); break;
            case 2: {
                const Point first = point(), second = point();
                path.cubicTo(first, second, point());
                break;
            }
            default: path.close();
            }
        }
    }

    void paint(graphics::PaintContext& context, Point offset) const {
        const PaintState placed = isScrolled ? state.movedBy(offset) : state;
        const auto style = color.red % 2 ? geometry::CornerStyle::continuous : geometry::CornerStyle::circular;
        switch (kind) {
        case 0: return context.fillRectangle(placed, rect, color);
        case 1: return context.fillRoundedRectangle(placed, rect, radius, style, color);
        case 2: return context.strokeRoundedRectangle(placed, rect, radius, style, width, color);
        case 3: return context.fillEllipse(placed, rect, color);
        case 4: return context.strokeEllipse(placed, rect, width, color);
        case 5: return context.fillPath(placed, path, color);
        case 6: return context.strokePath(placed, path, width, color);
        case 7: return context.image(placed, rect, stock().images[color.red % 3], color);
        case 8: return context.bitmap(placed, rect, stock().bitmap());
        case 9: {
            const auto& text = stock().texts[color.red % 2];
            const double baseline = rect.minY() + text->metrics.front().ascent;
            return context.text(placed, {rect.minX(), baseline}, {rect.origin, {80, 40}}, text, color.green % 3,
                                4 + color.green % 3, color);
        }
        default: return context.shadow(placed, rect, radius, {1, width}, color);
        }
    }
};

class Scene {
public:
    explicit Scene(ByteReader& bytes) {
        for (int count = 1 + bytes.below(6); count > 0; --count) m_items.push_back(Item::read(bytes));
    }

    void change(ByteReader& bytes) {
        const auto place = m_items.begin() + bytes.below(int(m_items.size() + 1));
        switch (bytes.below(5)) {
        case 0: m_items.insert(place, Item::read(bytes)); return;
        case 1:
            if (place != m_items.end()) m_items.erase(place);
            return;
        case 2:
            if (place != m_items.end()) *place = Item::read(bytes);
            return;
        case 3:
            if (place != m_items.end()) place->rect.origin.x += readLength(bytes, 10);
            return;
        // As a scrolled page is.
        default: m_offset = {m_offset.x, m_offset.y + readLength(bytes, 20) - 10};
        }
    }
    void paint(graphics::DisplayList& list) const {
        list.clear();
        graphics::PaintContext context(list);
        for (const Item& item : m_items) item.paint(context, m_offset);
    }

private:
    std::vector<Item> m_items;
    Point m_offset;
};

// --- Painting ---

// Lent memory with more around it, which nobody may write to.
class FramedBuffer {
public:
    FramedBuffer(double scale, rasterbackend::PixelFormat format)
        : m_size(rasterbackend::pixelSize(size, scale)), m_format(format),
          m_pixels(std::size_t(m_size.width + 2 * margin) * std::size_t(m_size.height + 2 * margin), untouched) {}

    rasterbackend::PixelBuffer buffer() {
        return {&m_pixels[index(0, 0)], m_size.width, m_size.height, std::ptrdiff_t(rowLength() * sizeof(Pixel)), m_format};
    }
    void requireSame(const rasterbackend::Picture& whole) const {
        require(whole.width() == m_size.width && whole.height() == m_size.height);
        for (int y = -margin; y < m_size.height + margin; ++y)
            for (int x = -margin; x < m_size.width + margin; ++x) {
                const bool isInside = x >= 0 && y >= 0 && x < m_size.width && y < m_size.height;
                require(m_pixels[index(x, y)] == (isInside ? inFormat(whole.row(y)[x]) : untouched));
            }
    }

private:
    static constexpr int margin = 3;
    static constexpr Pixel untouched = 0xDEADBEEF;

    std::size_t rowLength() const { return std::size_t(m_size.width + 2 * margin); }
    std::size_t index(int x, int y) const { return std::size_t(y + margin) * rowLength() + std::size_t(x + margin); }
    Pixel inFormat(Pixel pixel) const {
        if (m_format != rasterbackend::PixelFormat::rgba) return pixel;
        return (pixel & 0xFF00FF00) | (pixel >> 16 & 0xFF) | (pixel & 0xFF) << 16;
    }

    rasterbackend::PixelSize m_size;
    rasterbackend::PixelFormat m_format;
    std::vector<Pixel> m_pixels;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t dataSize) {
    constexpr double scales[] = {1, 1.5, 2, 3};
    constexpr int mostSteps = 6;
    ByteReader bytes(data, dataSize);
    const double scale = scales[bytes.below(4)];
    FramedBuffer framed(scale, bytes.flag() ? rasterbackend::PixelFormat::rgba : rasterbackend::PixelFormat::bgra);
    rasterbackend::RasterSurface surface(std::make_shared<rasterbackend::RasterPainter>());
    surface.lend(framed.buffer());

    Scene scene(bytes);
    graphics::DisplayList list;
    for (int step = 0; step < mostSteps && (step == 0 || !bytes.isOver()); ++step) {
        if (step > 0) scene.change(bytes);
        scene.paint(list);
        surface.present(list, size, scale);
        rasterbackend::RasterSurface fresh(std::make_shared<rasterbackend::RasterPainter>());
        fresh.present(list, size, scale);
        framed.requireSame(fresh.picture());
    }
    return 0;
}

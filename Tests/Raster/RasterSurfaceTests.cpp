#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>

#include "Tests/Raster/Canvas.hpp"
#include "Tests/Raster/PngFiles.hpp"
#include "Tests/Raster/SyntheticPaywall.hpp"
#include "Tests/Support/AllocationCounter.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using geometry::Rect;
using graphics::DisplayList;
using graphics::PaintState;
using rasterbackend::PixelRect;
using rasterbackend::RasterSurface;
using namespace tests;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Draws arbitrary pictures: every kind of command in every kind of state.
class RandomPainter {
public:
    RandomPainter(unsigned seed, const std::filesystem::path& folder) : m_random(seed) {
        auto image = std::make_shared<graphics::Image>();
        image->file = writePicture(folder / "random.png", 20, 20, [](int x, int y) {
            return std::hypot(x - 9.5, y - 9.5) < 10 ? 0xB3FF8800u : 0u; // an orange disc that can be seen through
        });
        m_image = image;
        auto tinted = std::make_shared<graphics::Image>(*image);
        tinted->renderingMode = graphics::RenderingMode::tinted;
        m_tinted = tinted;
        auto bitmap = std::make_shared<graphics::Bitmap>();
        bitmap->width = bitmap->height = 5;
        for (unsigned index = 0; index < 25; ++index) bitmap->pixels.push_back(0xFF000000u | index * 0x050A03u);
        m_bitmap = bitmap;
        const graphics::StyledRun run{"Random texts, 123", {.size = 14}, 0};
        m_text = m_shaper.shape({&run, 1}, "en", geometry::LayoutDirection::leftToRight);
    }

    // Each item is drawn from a seed of its own, so that two pictures can share items.
    void draw(DisplayList& list, const std::vector<unsigned>& items) {
        list.clear();
        graphics::PaintContext context(list);
        for (const unsigned item : items) {
            m_random.seed(item);
            drawItem(context);
        }
    }

    std::vector<unsigned> items(unsigned count) {
        std::vector<unsigned> items;
        for (; count > 0; --count) items.push_back(unsigned(m_random()));
        return items;
    }
    unsigned below(unsigned limit) { return unsigned(m_random() % limit); }

private:
    double length(double limit) {
        const double value = double(m_random() % 10000) / 10000 * limit;
        return below(2) ? std::floor(value) : value;
    }
    Rect rect() { return {{length(100) - 10, length(80) - 10}, {1 + length(60), 1 + length(50)}}; }
    graphics::RGBA color() { return graphics::rgb(unsigned(m_random()) & 0xFFFFFF, below(2) ? 255 : std::uint8_t(m_random())); }
    geometry::CornerStyle style() { return below(2) ? geometry::CornerStyle::circular : geometry::CornerStyle::continuous; }

    PaintState state() {
        PaintState state;
        if (below(3) == 0) state = state.fadedBy(length(1));
        if (below(3) == 0) state = state.clippedTo(rect(), below(2) ? length(20) : 0);
        if (below(4) == 0) state = state.movedBy({length(10), length(10)});
        if (below(5) == 0) state = state.transformedBy(geometry::Transform::rotation(length(3)).about({40, 40}));
        if (below(5) == 0)
            state = state.transformedBy(geometry::Transform::scaling(0.3 + length(1), 0.3 + length(1)).about({40, 40}));
        return state;
    }

    geometry::Path path() {
        geometry::Path path;
        path.moveTo(rect().origin);
        for (int count = 0; count < 4; ++count) path.lineTo(rect().origin);
        path.cubicTo(rect().origin, rect().origin, rect().origin);
        if (below(2)) path.close();
        return path;
    }

    void drawItem(graphics::PaintContext& context) {
        const PaintState in = state();
        switch (below(11)) {
        case 0: return context.fillRectangle(in, rect(), color());
        case 1: return context.fillRoundedRectangle(in, rect(), length(20), style(), color());
        case 2: return context.strokeRoundedRectangle(in, rect(), length(20), style(), length(5), color());
        case 3: return context.fillEllipse(in, rect(), color());
        case 4: return context.strokeEllipse(in, rect(), length(5), color());
        case 5: return context.fillPath(in, path(), color());
        case 6: return context.strokePath(in, path(), length(4), color());
        case 7: return context.image(in, rect(), below(2) ? m_image : m_tinted, color());
        case 8: return context.bitmap(in, rect(), m_bitmap);
        case 9: return context.shadow(in, rect(), length(6), {length(5), length(5)}, color());
        default: {
            const geometry::Point baseline = rect().origin;
            const std::uint32_t first = below(8), end = first + 1 + below(9);
            return context.text(in, baseline, {{baseline.x, baseline.y - 13}, {80, 17}}, m_text, first, end, color());
        }
        }
    }

    std::mt19937 m_random;
    rasterbackend::RasterTextShaper m_shaper;
    graphics::ImageRef m_image, m_tinted;
    std::shared_ptr<const graphics::Bitmap> m_bitmap;
    std::shared_ptr<const graphics::ShapedText> m_text;
};

rasterbackend::Picture freshPicture(const DisplayList& list, geometry::Size size, double scale) {
    RasterSurface surface;
    surface.present(list, size, scale);
    return surface.picture();
}

} // namespace

TEST(RasterSurface, StartsWhite) {
    RasterSurface surface;
    EXPECT_TRUE(surface.picture().isNull());

    surface.present({}, {3, 2}, 2);

    EXPECT_EQ(surface.picture().width(), 6);
    EXPECT_EQ(totalInk(surface.picture()), 0);
}

TEST(RasterSurface, RepaintsOnlyWhatDiffers) {
    Canvas before({100, 100}), after({100, 100});
    before.context.fillRectangle({}, {{0, 0}, {100, 100}}, white);
    before.context.fillRectangle({}, {{10.5, 20}, {10, 10}}, red);
    after.context.fillRectangle({}, {{0, 0}, {100, 100}}, white);
    after.context.fillRectangle({}, {{10.5, 20}, {10, 10}}, blue);
    RasterSurface surface;
    surface.present(before.list, {100, 100}, 2);
    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{0, 0, 200, 200}));

    surface.present(after.list, {100, 100}, 2);

    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{21, 40, 41, 60}));
    EXPECT_EQ(colorAt(surface.picture(), 30, 50), 0x0000FFu);
}

TEST(RasterSurface, RepaintsNothingBelowABarThatStays) {
    const auto pageAt = [](double y) {
        Canvas canvas({100, 100});
        canvas.context.fillRectangle({}, {{10, y}, {20, 60}}, red);
        canvas.context.fillRectangle({}, {{0, 80.25}, {100, 19.75}}, white);
        canvas.context.fillEllipse({}, {{15, 85}, {5, 5}}, blue);
        return canvas.list;
    };
    RasterSurface surface;
    surface.present(pageAt(30), {100, 100}, 2);

    surface.present(pageAt(40), {100, 100}, 2);

    // The bar hides half of its first row of pixels only.
    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{20, 60, 60, 161}));
    EXPECT_TRUE(isSame(surface.picture(), freshPicture(pageAt(40), {100, 100}, 2)));
}

TEST(RasterSurface, RepaintsWhatABarUncovers) {
    const auto pageWithBarAt = [](double y) {
        Canvas canvas({100, 100});
        canvas.context.fillRectangle({}, {{0, y}, {100, 20}}, blue);
        return canvas.list;
    };
    RasterSurface surface;
    surface.present(pageWithBarAt(80), {100, 100}, 1);

    surface.present(pageWithBarAt(70), {100, 100}, 1);

    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{0, 70, 100, 100}));
}

TEST(RasterSurface, RepaintsNothingWhereNothingDiffers) {
    Canvas canvas({50, 50});
    canvas.context.fillEllipse({}, {{5, 5}, {20, 20}}, red);
    RasterSurface surface;
    surface.present(canvas.list, {50, 50}, 2);

    surface.present(canvas.list, {50, 50}, 2);

    EXPECT_THAT(surface.lastDamage(), IsEmpty());
}

TEST(RasterSurface, RepaintsEverythingAtANewSizeOrScale) {
    Canvas canvas({50, 50});
    canvas.context.fillEllipse({}, {{5, 5}, {20, 20}}, red);
    RasterSurface surface;
    surface.present(canvas.list, {50, 50}, 2);

    surface.present(canvas.list, {60, 50}, 2);
    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{0, 0, 120, 100}));
    surface.present(canvas.list, {60, 50}, 1.5);
    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{0, 0, 90, 75}));
}

TEST(RasterSurface, HasNoPictureWithoutASize) {
    RasterSurface surface;
    surface.present({}, {0, 10}, 2);

    EXPECT_TRUE(surface.picture().isNull());
    EXPECT_THAT(surface.lastDamage(), IsEmpty());
}

// The promise that damage rests on: part of a picture comes out the same as all of it.
TEST(RasterSurface, RepaintsDamageExactlyAsItWouldPaintTheWhole) {
    TemporaryFolder folder;
    constexpr geometry::Size size{100, 80};
    const double scales[] = {1, 1.5, 2, 3};
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        RandomPainter painter(seed, folder.path());
        const double scale = scales[seed % 4];
        std::vector<unsigned> items = painter.items(1 + painter.below(12));
        DisplayList list;
        RasterSurface surface;
        painter.draw(list, items);
        surface.present(list, size, scale);
        for (int change = 0; change < 3; ++change) {
            if (!items.empty() && painter.below(2)) items.erase(items.begin() + painter.below(unsigned(items.size())));
            if (painter.below(3)) items.insert(items.begin() + painter.below(unsigned(items.size()) + 1), painter.items(1).front());
            painter.draw(list, items);
            surface.present(list, size, scale);

            ASSERT_TRUE(isSame(surface.picture(), freshPicture(list, size, scale)));
        }
    }
}

TEST(RasterSurface, PaintsTheSameListTheSameWithAColdCache) {
    TemporaryFolder folder;
    for (unsigned seed = 0; seed < 40; ++seed) {
        SCOPED_TRACE(seed);
        RandomPainter painter(seed, folder.path());
        DisplayList list;
        painter.draw(list, painter.items(10));
        RasterSurface cold(std::make_shared<rasterbackend::RasterPainter>());
        cold.present(list, {100, 80}, 2);

        ASSERT_TRUE(isSame(cold.picture(), freshPicture(list, {100, 80}, 2)));
    }
}

TEST(RasterSurface, PaintsAPaywallsTapAsAFreshOne) {
    TemporaryFolder folder;
    const SyntheticPaywall paywall(folder.path());
    DisplayList yearly, monthly;
    paywall.paint(yearly, 0);
    paywall.paint(monthly, 1);
    RasterSurface surface;
    surface.present(yearly, SyntheticPaywall::size, 2);

    surface.present(monthly, SyntheticPaywall::size, 2);

    EXPECT_TRUE(isSame(surface.picture(), freshPicture(monthly, SyntheticPaywall::size, 2)));
    for (const PixelRect& rect : surface.lastDamage()) EXPECT_GT(rect.top, 2 * 300);
}

TEST(RasterSurface, AllocatesNothingOnASteadyFrame) {
    TemporaryFolder folder;
    const SyntheticPaywall paywall(folder.path());
    DisplayList lists[2];
    paywall.paint(lists[0], 0);
    paywall.paint(lists[1], 1);
    RasterSurface surface;
    for (int frame = 0; frame < 6; ++frame) surface.present(lists[frame % 2], SyntheticPaywall::size, 2);

    const std::size_t allocations = tests::allocationsDuring([&] {
        for (int frame = 0; frame < 6; ++frame) surface.present(lists[frame % 2], SyntheticPaywall::size, 2);
    });

    EXPECT_EQ(allocations, 0u);
}

// A surface that paints into a test's memory, with some bytes after each row that nobody may touch.
class LentMemory {
public:
    LentMemory(int width, int height, rasterbackend::PixelFormat format)
        : m_bytes(std::size_t(height) * rowBytes(width), untouched), buffer{m_bytes.data(), width, height, rowBytes(width),
                                                                            format} {}

    unsigned char byte(int x, int y, int index) const { return m_bytes[std::size_t(y * buffer.bytesPerRow + x * 4 + index)]; }
    bool marginIsUntouched() const {
        for (int y = 0; y < buffer.height; ++y)
            for (int at = buffer.width * 4; at < buffer.bytesPerRow; ++at)
                if (m_bytes[std::size_t(y * buffer.bytesPerRow + at)] != untouched) return false;
        return true;
    }
    // The colours as a picture, whatever the order of bytes.
    rasterbackend::Picture picture() const {
        const bool redFirst = buffer.format == rasterbackend::PixelFormat::rgba;
        rasterbackend::Picture result(buffer.width, buffer.height);
        for (int y = 0; y < buffer.height; ++y)
            for (int x = 0; x < buffer.width; ++x)
                result.row(y)[x] = 0xFF000000u | unsigned(byte(x, y, redFirst ? 0 : 2)) << 16 | unsigned(byte(x, y, 1)) << 8 |
                                   byte(x, y, redFirst ? 2 : 0);
        return result;
    }

private:
    static constexpr unsigned char untouched = 0xA5;
    static std::ptrdiff_t rowBytes(int width) { return width * 4 + 12; }
    std::vector<unsigned char> m_bytes;

public:
    const rasterbackend::PixelBuffer buffer;
};

class LentBuffer : public testing::TestWithParam<rasterbackend::PixelFormat> {};

INSTANTIATE_TEST_SUITE_P(Formats, LentBuffer,
                         testing::Values(rasterbackend::PixelFormat::bgra, rasterbackend::PixelFormat::rgba,
                                         rasterbackend::PixelFormat::rgb32));

TEST_P(LentBuffer, HoldsWhatASurfaceOfItsOwnWould) {
    Canvas first({40, 30}), second({40, 30});
    first.context.fillEllipse({}, {{5, 5}, {20, 20}}, red);
    second.context.fillEllipse({}, {{5, 5}, {20, 20}}, blue);
    LentMemory memory(80, 60, GetParam());
    RasterSurface surface;
    surface.lend(memory.buffer);

    surface.present(first.list, {40, 30}, 2);
    EXPECT_TRUE(isSame(memory.picture(), freshPicture(first.list, {40, 30}, 2)));
    surface.present(second.list, {40, 30}, 2);

    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{10, 10, 50, 50}));
    EXPECT_TRUE(isSame(memory.picture(), freshPicture(second.list, {40, 30}, 2)));
    EXPECT_EQ(memory.byte(0, 0, 3), 255);
    EXPECT_TRUE(memory.marginIsUntouched());
}

TEST_P(LentBuffer, CutsOffWhatDoesNotFit) {
    Canvas canvas({40, 30});
    canvas.context.fillRectangle({}, {{0, 0}, {40, 30}}, red);
    LentMemory memory(25, 70, GetParam());
    RasterSurface surface;
    surface.lend(memory.buffer);

    surface.present(canvas.list, {40, 30}, 2);

    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{0, 0, 25, 60}));
    EXPECT_EQ(colorAt(memory.picture(), 24, 59), 0xFF0000u);
    EXPECT_EQ(memory.byte(0, 60, 0), 0xA5);
    EXPECT_TRUE(memory.marginIsUntouched());
}

TEST(LentBuffers, ArePaintedWholeUnlessTheyHoldWhatIsShown) {
    Canvas canvas({40, 30});
    canvas.context.fillEllipse({}, {{5, 5}, {20, 20}}, red);
    LentMemory first(40, 30, rasterbackend::PixelFormat::bgra), second(40, 30, rasterbackend::PixelFormat::bgra),
        third(40, 30, rasterbackend::PixelFormat::bgra);
    RasterSurface surface;
    surface.lend(first.buffer);
    surface.present(canvas.list, {40, 30}, 1);

    surface.lend(first.buffer);
    surface.present(canvas.list, {40, 30}, 1);
    EXPECT_THAT(surface.lastDamage(), IsEmpty());
    surface.lend(third.buffer, true);
    surface.present(canvas.list, {40, 30}, 1);
    EXPECT_THAT(surface.lastDamage(), IsEmpty());
    surface.lend(second.buffer);
    surface.present(canvas.list, {40, 30}, 1);
    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{0, 0, 40, 30}));
    surface.forgetShown();
    surface.present(canvas.list, {40, 30}, 1);
    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{0, 0, 40, 30}));
    surface.lend({});
    surface.present(canvas.list, {40, 30}, 1);
    EXPECT_TRUE(isSame(surface.picture(), freshPicture(canvas.list, {40, 30}, 1)));
}

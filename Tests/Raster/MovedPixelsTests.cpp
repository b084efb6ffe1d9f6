// What only goes to another place is copied, and nobody sees a difference.
#include "Backends/Raster/MovedPixels.hpp"

#include <gmock/gmock.h>

#include <random>

#include "Tests/Raster/Canvas.hpp"
#include "Tests/Raster/PngFiles.hpp"
#include "Tests/Raster/Shaping.hpp"
#include "Tests/Support/AllocationCounter.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;
using namespace tests;

using geometry::Point;
using geometry::Rect;
using graphics::DisplayList;
using graphics::PaintState;
using rasterbackend::MovedPixels;
using rasterbackend::MoveFinder;
using rasterbackend::PixelRect;
using rasterbackend::RasterSurface;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

constexpr geometry::Size size{200, 120};
constexpr PixelRect window{0, 0, 200, 120};

graphics::ImageRef pictureOf(const TemporaryFolder& folder, const char* name, unsigned alpha = 0xFF) {
    auto image = std::make_shared<graphics::Image>();
    image->file = writePicture(folder.path() / name, 200, 120, [=](int x, int y) {
        return alpha << 24 | unsigned(x % 100) << 16 | unsigned(y) << 8 | unsigned(x ^ y);
    });
    return image;
}

class MovedPixelsTest : public testing::Test {
protected:
    DisplayList listOf(const std::function<void(graphics::PaintContext&)>& paint) const {
        DisplayList list;
        graphics::PaintContext context(list);
        paint(context);
        return list;
    }
    // Two pictures side by side, of which `offset` points have gone by, under what stays.
    DisplayList pages(double offset) const {
        return listOf([&](auto& context) {
            context.image({}, {{-offset, 0}, size}, m_left);
            context.image({}, {{200 - offset, 0}, size}, m_right);
            context.fillEllipse({}, {{90, 100}, {8, 8}}, red);
        });
    }

    TemporaryFolder m_folder;
    graphics::ImageRef m_left = pictureOf(m_folder, "left.png"), m_right = pictureOf(m_folder, "right.png");
    MoveFinder m_finder;
};

TEST_F(MovedPixelsTest, AreThoseOfAPictureThatHasMovedByWholePixels) {
    const MovedPixels moved = m_finder.find(pages(10), pages(30), 1, window);

    EXPECT_EQ(moved, (MovedPixels{{0, 0, 180, 120}, {-20, 0}}));
    EXPECT_EQ(moved.from(), (PixelRect{20, 0, 200, 120}));
}

TEST_F(MovedPixelsTest, LeaveTheSideAndWhatHasStayedToBePainted) {
    m_finder.find(pages(10), pages(30), 1, window);

    EXPECT_THAT(m_finder.repainted(),
                UnorderedElementsAre(PixelRect{180, 0, 200, 120}, PixelRect{90, 100, 98, 108}, PixelRect{70, 100, 78, 108}));
}

TEST_F(MovedPixelsTest, GoInEveryDirection) {
    const auto at = [&](double x, double y) { return listOf([&](auto& context) { context.image({}, {{x, y}, size}, m_left); }); };

    EXPECT_EQ(m_finder.find(at(0, 0), at(7, 9), 1, window), (MovedPixels{{7, 9, 200, 120}, {7, 9}}));
    EXPECT_EQ(m_finder.find(at(0, 0), at(-7, -9), 1, window), (MovedPixels{{0, 0, 193, 111}, {-7, -9}}));
}

TEST_F(MovedPixelsTest, AreNoneWhereNothingHasMoved) { EXPECT_EQ(m_finder.find(pages(10), pages(10), 1, window), MovedPixels{}); }

// Pictures stand on whole pixels.
TEST_F(MovedPixelsTest, FollowThePlaceThatAPictureIsShownAt) {
    EXPECT_EQ(m_finder.find(pages(10), pages(10.4), 1, window), MovedPixels{});
    EXPECT_EQ(m_finder.find(pages(10), pages(10.7), 1, window).by.x, -1);
    EXPECT_EQ(m_finder.find(pages(10), pages(10.5), 2, {0, 0, 400, 240}).by.x, -1);
}

TEST_F(MovedPixelsTest, AreNoneOfAPictureThatLooksDifferent) {
    const DisplayList whole = listOf([&](auto& context) { context.image({}, {{0, 0}, size}, m_left); });
    const Rect moved{{10, 0}, size};
    const auto find = [&](const std::function<void(graphics::PaintContext&)>& paint) {
        return m_finder.find(whole, listOf(paint), 1, window);
    };

    EXPECT_EQ(find([&](auto& context) { context.image({}, moved, m_right); }), MovedPixels{});
    EXPECT_EQ(find([&](auto& context) { context.image(PaintState().fadedBy(0.5), moved, m_left); }), MovedPixels{});
    EXPECT_EQ(find([&](auto& context) { context.image({}, moved.insetBy(1, 1), m_left); }), MovedPixels{});
    EXPECT_EQ(find([&](auto& context) {
                  context.image(PaintState().transformedBy(geometry::Transform::rotation(0.1)), {{0, 0}, size}, m_left);
              }),
              MovedPixels{});
}

TEST_F(MovedPixelsTest, AreNoneWhereMostHasToBePaintedAnyway) {
    const auto under = [&](double x) {
        return listOf([&](auto& context) {
            context.image({}, {{x, 0}, size}, m_left);
            context.fillEllipse({}, {{10, 10}, {180, 100}}, red);
        });
    };
    EXPECT_EQ(m_finder.find(under(0), under(10), 1, window), MovedPixels{});
}

TEST_F(MovedPixelsTest, LetAGroundStayThatFillsThemAll) {
    const auto list = [&](double y) {
        return listOf([&](auto& context) {
            context.fillRectangle({}, {{0, 0}, size}, blue);
            context.image({}, {{20, y}, {160, 100}}, m_left);
        });
    };
    EXPECT_EQ(m_finder.find(list(10), list(20), 1, window).by.y, 10);
    EXPECT_THAT(m_finder.repainted(), ElementsAre(PixelRect{0, 0, 200, 10}));
}

TEST_F(MovedPixelsTest, LeaveTheCornersOfAClipToBePainted) {
    const auto list = [&](double x) {
        return listOf([&](auto& context) {
            context.image(PaintState().clippedTo({{0, 0}, size}, 12), {{x, 0}, {200, 120}}, m_left);
            context.image(PaintState().clippedTo({{0, 0}, size}, 12), {{x - 200, 0}, {200, 120}}, m_right);
        });
    };
    EXPECT_EQ(m_finder.find(list(0), list(50), 1, window).to, (PixelRect{50, 0, 200, 120}));
    EXPECT_THAT(m_finder.repainted(),
                UnorderedElementsAre(PixelRect{0, 0, 50, 120}, PixelRect{50, 0, 62, 12}, PixelRect{50, 108, 62, 120},
                                     PixelRect{188, 0, 200, 12}, PixelRect{188, 108, 200, 120}));
}

// --- On a surface ---

rasterbackend::Picture fresh(const DisplayList& list, double scale) {
    RasterSurface surface;
    surface.present(list, size, scale);
    return surface.picture();
}

// Pictures, shapes and texts that move together, over and under others that stay or move by themselves.
class MovingScene {
public:
    MovingScene(unsigned seed, const TemporaryFolder& folder) : m_random(seed) {
        m_pictures = {pictureOf(folder, "opaque.png"), pictureOf(folder, "faint.png", 0x80)};
        const graphics::StyledRun run{"Moving texts, 123", {.size = 14}, 0};
        m_text = m_shaper.shape({&run, 1}, "en", geometry::LayoutDirection::leftToRight);
        m_itemSeed = unsigned(m_random());
    }

    // Mostly by whole pixels; now and then by something else.
    void move(double scale) {
        const auto step = [&] { return double(int(below(60)) - 30) / (below(4) ? scale : 3.7); };
        m_offset = {below(3) ? m_offset.x + step() : m_offset.x, below(3) ? m_offset.y + step() : m_offset.y};
        if (std::abs(m_offset.x) > 150) m_offset.x = 0;
        if (std::abs(m_offset.y) > 80) m_offset.y = 0;
        if (below(6) == 0) m_ownOffset += 1.3;
    }
    void paint(DisplayList& list) {
        list.clear();
        graphics::PaintContext context(list);
        std::mt19937 items(m_itemSeed);
        m_items = &items;
        context.fillRectangle({}, {{0, 0}, size}, graphics::rgb(0xF4EEE6));
        PaintState inside;
        if (pick(2)) inside = inside.clippedTo({{8, 6}, {184, 108}}, pick(2) ? 14 : 0);
        const PaintState moving = inside.movedBy(m_offset);
        for (int page = -1; page <= 1; ++page)
            context.image(moving, {{page * 200.0, 0}, size}, m_pictures[std::size_t(pick(4) == 0)]);
        for (unsigned count = pick(5); count > 0; --count) paintItem(context, moving);
        for (unsigned count = pick(3); count > 0; --count) paintItem(context, inside);
        if (pick(2)) paintItem(context, inside.movedBy({m_ownOffset, 0}));
    }

private:
    unsigned below(unsigned limit) { return unsigned(m_random() % limit); }
    unsigned pick(unsigned limit) { return unsigned((*m_items)() % limit); }
    double length(unsigned limit) { return pick(limit * 2) / 2.0; }

    void paintItem(graphics::PaintContext& context, const PaintState& state) {
        const Rect rect{{length(180), length(100)}, {4 + length(40), 4 + length(20)}};
        const graphics::RGBA color = graphics::rgb(pick(0x1000000), pick(2) ? 255 : 120);
        switch (pick(6)) {
        case 0: return context.fillRectangle(state, rect, color);
        case 1: return context.fillRoundedRectangle(state, rect, length(9), geometry::CornerStyle::continuous, color);
        case 2: return context.strokeEllipse(state, rect, 1 + length(3), color);
        case 3: return context.shadow(state, rect, length(5), {1, 2}, color);
        case 4: return context.fillPath(state, geometry::Path::ellipse(rect), color);
        default:
            return context.text(state, {rect.minX(), rect.maxY()}, {{rect.minX(), rect.maxY() - 13}, {90, 17}}, m_text, 0, 9,
                                color);
        }
    }

    std::mt19937 m_random;
    std::mt19937* m_items = nullptr;
    unsigned m_itemSeed;
    Point m_offset;
    double m_ownOffset = 20;
    rasterbackend::RasterTextShaper m_shaper;
    std::vector<graphics::ImageRef> m_pictures;
    std::shared_ptr<const graphics::ShapedText> m_text;
};

TEST(MovingScenes, ComeOutAsIfTheyWerePaintedWhole) {
    TemporaryFolder folder;
    const double scales[] = {1, 1.25, 1.5, 2, 3};
    for (unsigned seed = 0; seed < 120; ++seed) {
        SCOPED_TRACE(seed);
        const double scale = scales[seed % 5];
        MovingScene scene(seed, folder);
        DisplayList list;
        RasterSurface surface;
        for (int frame = 0; frame < 6; ++frame) {
            scene.paint(list);
            surface.present(list, size, scale);
            ASSERT_TRUE(isSame(surface.picture(), fresh(list, scale))) << "frame " << frame;
            scene.move(scale);
        }
    }
}

TEST_F(MovedPixelsTest, AreChangedPixelsForWhoeverShowsThem) {
    RasterSurface surface;
    surface.present(pages(10), size, 2);

    surface.present(pages(30), size, 2);

    EXPECT_THAT(surface.lastDamage(), ElementsAre(PixelRect{0, 0, 400, 240}));
    EXPECT_TRUE(isSame(surface.picture(), fresh(pages(30), 2)));
}

TEST_F(MovedPixelsTest, AreReadFromABufferOnlyWhileItHoldsWhatIsShown) {
    std::vector<rasterbackend::Pixel> first(200 * 120), second(200 * 120);
    const auto buffer = [](std::vector<rasterbackend::Pixel>& pixels) {
        return rasterbackend::PixelBuffer{pixels.data(), 200, 120, 200 * 4, rasterbackend::PixelFormat::rgb32};
    };
    RasterSurface surface;
    surface.lend(buffer(first));
    surface.present(pages(10), size, 1);

    surface.lend(buffer(second));
    surface.present(pages(30), size, 1);
    const rasterbackend::Picture whole = fresh(pages(30), 1);
    EXPECT_TRUE(std::equal(second.begin(), second.end(), whole.row(0)));

    std::fill(second.begin(), second.end(), 0);
    surface.forgetShown();
    surface.present(pages(50), size, 1);
    const rasterbackend::Picture next = fresh(pages(50), 1);
    EXPECT_TRUE(std::equal(second.begin(), second.end(), next.row(0)));
}

TEST_F(MovedPixelsTest, TakeNoMemoryInASteadyFrame) {
    const DisplayList lists[] = {pages(10), pages(30), pages(60)};
    RasterSurface surface;
    for (int frame = 0; frame < 9; ++frame) surface.present(lists[frame % 3], size, 2);

    const std::size_t allocations = allocationsDuring([&] {
        for (int frame = 0; frame < 9; ++frame) surface.present(lists[frame % 3], size, 2);
    });

    EXPECT_EQ(allocations, 0u);
}

} // namespace

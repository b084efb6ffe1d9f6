// What counts as moved, and what has to be painted again around it.
#include <gmock/gmock.h>

#include <functional>

#include "Backends/Raster/MovedPixels.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Tests/Raster/Shaping.hpp"

namespace proupsells::rasterbackend {
namespace {

using geometry::CornerStyle;
using geometry::Rect;
using graphics::PaintContext;
using graphics::PaintState;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::UnorderedElementsAre;
using Paint = std::function<void(PaintContext&)>;

graphics::ImageRef someImage() { return std::make_shared<graphics::Image>(); }

graphics::DisplayList painted(const Paint& paint) {
    graphics::DisplayList list;
    PaintContext context(list);
    paint(context);
    return list;
}

// A picture that fills a window of 400 by 200 points moves by 20, 10, and something lies over it.
class MoveFinderTest : public testing::Test {
protected:
    static constexpr PixelRect room{0, 0, 400, 200};
    static constexpr geometry::Point step{20, 10};
    static constexpr graphics::RGBA ink = graphics::rgb(0x204060);

    MovedPixels found(const Paint& before, const Paint& after, double scale = 1) {
        const PixelRect damage{0, 0, int(room.right * scale), int(room.bottom * scale)};
        return m_finder.find(painted(before), painted(after), scale, damage);
    }
    std::vector<PixelRect> repaintedOver(const Paint& before, const Paint& after) {
        const auto over = [&](geometry::Point place, const Paint& paint) {
            return [=, this](PaintContext& context) {
                context.image({}, {place, {400, 200}}, m_picture);
                paint(context);
            };
        };
        EXPECT_EQ(found(over({}, before), over(step, after)), (MovedPixels{{20, 10, 400, 200}, {20, 10}}));
        return {m_finder.repainted().begin(), m_finder.repainted().end()};
    }
    // Of something that is painted, and painted in another way where it has gone to: the latter place, or nothing.
    bool isRepainted(const Paint& before, const Paint& after) {
        const auto repainted = repaintedOver(before, after);
        return repainted.size() > 2;
    }

    const graphics::ImageRef m_picture = someImage();
    MoveFinder m_finder;
    const PaintState m_plain{}, m_moved = PaintState().movedBy(step);
};

TEST_F(MoveFinderTest, PaintsTheTwoSidesAtWhichSomethingHasComeIn) {
    EXPECT_THAT(repaintedOver([](auto&) {}, [](auto&) {}),
                UnorderedElementsAre(PixelRect{0, 0, 400, 10}, PixelRect{0, 10, 20, 200}));
}

TEST_F(MoveFinderTest, PaintsTheOtherTwoSidesOfWhatHasGoneBack) {
    const auto at = [&](geometry::Point place) {
        return [=, this](auto& context) { context.image({}, {place, {400, 200}}, m_picture); };
    };

    EXPECT_EQ(found(at(step), at({})), (MovedPixels{{0, 0, 380, 190}, {-20, -10}}));
    EXPECT_THAT(m_finder.repainted(), UnorderedElementsAre(PixelRect{0, 190, 400, 200}, PixelRect{380, 0, 400, 190}));
}

TEST_F(MoveFinderTest, LeavesWhatHasMovedAlong) {
    const Rect rect{{60.25, 50.5}, {30, 20}};
    const auto isLeft = [&](const std::function<void(PaintContext&, const PaintState&)>& paint) {
        return !isRepainted([&](auto& context) { paint(context, m_plain); }, [&](auto& context) { paint(context, m_moved); });
    };

    EXPECT_TRUE(isLeft([&](auto& context, auto& state) { context.fillRectangle(state, rect, ink); }));
    EXPECT_TRUE(
        isLeft([&](auto& context, auto& state) { context.fillRoundedRectangle(state, rect, 4, CornerStyle::circular, ink); }));
    EXPECT_TRUE(
        isLeft([&](auto& context, auto& state) { context.strokeRoundedRectangle(state, rect, 4, CornerStyle::circular, 2, ink); }));
    EXPECT_TRUE(isLeft([&](auto& context, auto& state) { context.fillEllipse(state, rect, ink); }));
    EXPECT_TRUE(isLeft([&](auto& context, auto& state) { context.strokeEllipse(state, rect, 2, ink); }));
    EXPECT_TRUE(isLeft([&](auto& context, auto& state) { context.shadow(state, rect, 3, {}, ink); }));
    EXPECT_TRUE(isLeft([&](auto& context, auto& state) { context.image(state, rect, m_picture); }));
}

TEST_F(MoveFinderTest, PaintsWhatHasMovedButLooksDifferent) {
    const Rect rect{{60, 50}, {30, 20}};
    using Stroke = std::function<void(PaintContext&, const PaintState&)>;
    const auto rounded = [&](double radius, CornerStyle style, double lineWidth) -> Stroke {
        return [=](auto& context, auto& state) { context.strokeRoundedRectangle(state, rect, radius, style, lineWidth, ink); };
    };
    const auto shadow = [&](double blurRadius) -> Stroke {
        // As large as the other one.
        const double more = 2 * (4 - blurRadius);
        return [=](auto& context, auto& state) { context.shadow(state, rect.insetBy(-more, -more), blurRadius, {}, ink); };
    };
    const auto ellipse = [&](graphics::RGBA color, double opacity) -> Stroke {
        return [=](auto& context, auto& state) { context.fillEllipse(state.fadedBy(opacity), rect, color); };
    };
    const Stroke plain = rounded(5, CornerStyle::circular, 2);
    const std::pair<Stroke, Stroke> pairs[] = {
        {plain, rounded(6, CornerStyle::circular, 2)},
        {plain, rounded(5, CornerStyle::continuous, 2)},
        {plain, rounded(5, CornerStyle::circular, 1.5)},
        {ellipse(ink, 1), ellipse(graphics::rgb(0x204061), 1)},
        {ellipse(ink, 1), ellipse(ink, 0.5)},
        {ellipse(ink, 1), [&](auto& context, auto& state) { context.fillRectangle(state, rect, ink); }},
        {shadow(4), shadow(3)},
        {[&](auto& context, auto& state) { context.image(state, rect, m_picture); },
         [&](auto& context, auto& state) { context.image(state, rect, someImage()); }},
        {[&](auto& context, auto& state) { context.image(state, rect, m_picture); },
         [&](auto& context, PaintState state) {
             state.scheme = graphics::ColorScheme::dark;
             context.image(state, rect, m_picture);
         }},
    };

    for (const auto& pair : pairs) {
        const Stroke &before = pair.first, &after = pair.second;
        EXPECT_TRUE(isRepainted([&](auto& context) { before(context, m_plain); }, [&](auto& context) { after(context, m_moved); }))
            << &pair - pairs;
        EXPECT_TRUE(isRepainted([&](auto& context) { after(context, m_plain); }, [&](auto& context) { before(context, m_moved); }))
            << &pair - pairs;
    }
}

TEST_F(MoveFinderTest, PaintsTextsOfWhichOtherLettersAreShown) {
    RasterTextShaper shaper;
    const graphics::StyledRun run{"Moving texts", {.size = 14}, 0};
    const auto text = shaper.shape({&run, 1}, "en", geometry::LayoutDirection::leftToRight);
    const auto other = shaper.shape({&run, 1}, "en", geometry::LayoutDirection::leftToRight);
    const auto shown = [&](const PaintState& state, const std::shared_ptr<const graphics::ShapedText>& of, std::uint32_t first,
                           std::uint32_t end) {
        return [=](auto& context) { context.text(state, {60, 60}, {{60, 46}, {80, 17}}, of, first, end, ink); };
    };

    EXPECT_FALSE(isRepainted(shown(m_plain, text, 1, 6), shown(m_moved, text, 1, 6)));
    EXPECT_TRUE(isRepainted(shown(m_plain, text, 1, 6), shown(m_moved, text, 2, 6)));
    EXPECT_TRUE(isRepainted(shown(m_plain, text, 1, 6), shown(m_moved, text, 1, 7)));
    EXPECT_TRUE(isRepainted(shown(m_plain, text, 1, 6), shown(m_moved, other, 1, 6)));
}

TEST_F(MoveFinderTest, PaintsOutlinesWithoutComparingThem) {
    const geometry::Path path = geometry::Path::ellipse({{60, 50}, {30, 20}});

    EXPECT_TRUE(isRepainted([&](auto& context) { context.fillPath(m_plain, path, ink); },
                            [&](auto& context) { context.fillPath(m_moved, path, ink); }));
    EXPECT_TRUE(isRepainted([&](auto& context) { context.strokePath(m_plain, path, 2, ink); },
                            [&](auto& context) { context.strokePath(m_moved, path, 2, ink); }));
}

// All of them touch the same pixels.
TEST_F(MoveFinderTest, PaintsShapesThatLieOtherwiseBetweenPixels) {
    const auto ellipse = [](const Rect& rect) { return [=](auto& context) { context.fillEllipse({}, rect, ink); }; };
    const auto edges = [](double left, double top, double right, double bottom) {
        return Rect{{left, top}, {right - left, bottom - top}};
    };
    const Paint before = ellipse(edges(60.25, 50.25, 90.75, 70.75));

    EXPECT_FALSE(isRepainted(before, ellipse(edges(80.25, 60.25, 110.75, 80.75))));
    EXPECT_TRUE(isRepainted(before, ellipse(edges(80.5, 60.25, 110.75, 80.75))));
    EXPECT_TRUE(isRepainted(before, ellipse(edges(80.25, 60.5, 110.75, 80.75))));
    EXPECT_TRUE(isRepainted(before, ellipse(edges(80.25, 60.25, 110.5, 80.75))));
    EXPECT_TRUE(isRepainted(before, ellipse(edges(80.25, 60.25, 110.75, 80.5))));
}

// Added to 20, so little is lost.
TEST_F(MoveFinderTest, TakesNothingForMovedThatOnlyRoundsToTheSameNumber) {
    const auto ellipse = [](double x, double y) {
        return [=](auto& context) { context.fillEllipse({}, {{x, y}, {64, 32}}, ink); };
    };
    const double little = 1e-17;
    ASSERT_EQ(little + step.x, step.x);

    EXPECT_FALSE(isRepainted(ellipse(0, 0), ellipse(step.x, step.y)));
    EXPECT_TRUE(isRepainted(ellipse(little, 0), ellipse(step.x, step.y)));
    EXPECT_TRUE(isRepainted(ellipse(0, little), ellipse(step.x, step.y)));
}

TEST_F(MoveFinderTest, TakesNothingForMovedThatIsTurned) {
    const PaintState turned = PaintState().transformedBy(geometry::Transform::rotation(0.01));
    const auto huge = [](const PaintState& state, geometry::Point by) {
        return [=](auto& context) { context.fillEllipse(state, Rect{{-4000, -4000}, {9000, 9000}}.offsetBy(by), ink); };
    };
    const auto over = [&](geometry::Point place, const Paint& paint) {
        return [=, this](PaintContext& context) {
            context.image({}, {place, {400, 200}}, m_picture);
            paint(context);
        };
    };

    EXPECT_EQ(found(over({}, huge({}, {})), over(step, huge({}, step))).to, (PixelRect{20, 10, 400, 200}));
    EXPECT_EQ(found(over({}, huge(turned, {})), over(step, huge(turned, step))), MovedPixels{});
    EXPECT_EQ(found(over({}, huge(turned, {})), over(step, huge({}, step))), MovedPixels{});
    EXPECT_EQ(found(over({}, huge({}, {})), over(step, huge(turned, step))), MovedPixels{});
}

TEST_F(MoveFinderTest, FollowsNoPictureThatIsTurned) {
    const PaintState turned = PaintState().transformedBy(geometry::Transform::rotation(0.01));
    const auto at = [&](const PaintState& state, double x) {
        return [=, this](auto& context) { context.image(state, {{x, 0}, {400, 200}}, m_picture); };
    };

    EXPECT_EQ(found(at({}, 0), at({}, 20)).by.x, 20);
    EXPECT_EQ(found(at(turned, 0), at(turned, 20)), MovedPixels{});
    EXPECT_EQ(found(at(turned, 0), at({}, 20)), MovedPixels{});
    EXPECT_EQ(found(at({}, 0), at(turned, 20)), MovedPixels{});
}

TEST_F(MoveFinderTest, FollowsBitmapsToo) {
    const auto bitmap = std::make_shared<graphics::Bitmap>(), other = std::make_shared<graphics::Bitmap>();
    const auto at = [](double x, const std::shared_ptr<const graphics::Bitmap>& of) {
        return [=](auto& context) { context.bitmap({}, {{x, 0}, {400, 200}}, of); };
    };

    EXPECT_EQ(found(at(0, bitmap), at(20, bitmap)), (MovedPixels{{20, 0, 400, 200}, {20, 0}}));
    EXPECT_EQ(found(at(0, bitmap), at(20, other)), MovedPixels{});
}

TEST_F(MoveFinderTest, FollowsTheLargestOfSeveralPictures) {
    const auto small = someImage();
    const auto both = [&](double x, double y, bool isSmallFirst) {
        return [=, this](auto& context) {
            if (isSmallFirst) context.image({}, {{200, y}, {80, 60}}, small);
            context.image({}, {{x, 0}, {400, 200}}, m_picture);
            if (!isSmallFirst) context.image({}, {{200, y}, {80, 60}}, small);
        };
    };

    EXPECT_EQ(found(both(0, 0, false), both(20, 7, false)).by, (PixelOffset{20, 0}));
    EXPECT_EQ(found(both(0, 0, true), both(20, 7, true)).by, (PixelOffset{20, 0}));
}

// Of the other one hardly anything was to be seen.
TEST_F(MoveFinderTest, TakesTheNearestOfEqualPicturesForTheOneThatHasMoved) {
    for (const bool isNearFirst : {true, false}) {
        const auto before = [&](PaintContext& context) {
            if (isNearFirst) context.image({}, {{-10, 0}, {400, 200}}, m_picture);
            context.image({}, {{-30, -190}, {400, 200}}, m_picture);
            if (!isNearFirst) context.image({}, {{-10, 0}, {400, 200}}, m_picture);
        };
        EXPECT_EQ(found(before,
                        [&](auto& context) {
                            context.image({}, {{0, 0}, {400, 200}}, m_picture);
                        })
                      .by,
                  (PixelOffset{10, 0}));
    }
}

TEST_F(MoveFinderTest, TakesNoPictureOfAnotherSizeForTheOneThatHasMoved) {
    const auto before = [&](PaintContext& context) {
        context.image(PaintState().clippedTo({{0, 0}, {1, 1}}), {{-1, 0}, {398, 198}}, m_picture);
        context.image({}, {{-10, 0}, {400, 200}}, m_picture);
    };
    EXPECT_EQ(found(before, [&](auto& context) { context.image({}, {{0, 0}, {400, 200}}, m_picture); }).by, (PixelOffset{10, 0}));
}

TEST_F(MoveFinderTest, TakesNoTurnedPictureForTheOneThatHasMoved) {
    const PaintState turned = PaintState().clippedTo({{0, 0}, {1, 1}}).transformedBy(geometry::Transform::rotation(0.01));
    const auto before = [&](PaintContext& context) {
        context.image(turned, {{-1, 0}, {400, 200}}, m_picture);
        context.image({}, {{-10, 0}, {400, 200}}, m_picture);
    };
    EXPECT_EQ(found(before, [&](auto& context) { context.image({}, {{0, 0}, {400, 200}}, m_picture); }).by, (PixelOffset{10, 0}));
}

TEST_F(MoveFinderTest, FollowsAPictureFarThroughATallWindow) {
    const auto at = [&](double y) { return painted([&](auto& context) { context.image({}, {{0, y}, {80, 900}}, m_picture); }); };

    EXPECT_EQ(m_finder.find(at(0), at(-190), 1, {0, 0, 80, 400}), (MovedPixels{{0, 0, 80, 210}, {0, -190}}));
}

TEST_F(MoveFinderTest, FindsNothingWhereHalfHasToBePainted) {
    const auto at = [&](double x) { return [=, this](auto& context) { context.image({}, {{x, 0}, {400, 200}}, m_picture); }; };

    EXPECT_EQ(found(at(0), at(199)), (MovedPixels{{199, 0, 400, 200}, {199, 0}}));
    EXPECT_EQ(found(at(0), at(200)), MovedPixels{});
    EXPECT_EQ(found(at(0), at(500)), MovedPixels{});
}

TEST_F(MoveFinderTest, FindsAnyNumberOfThingsThatMoveAlong) {
    const auto many = [&](const PaintState& state) {
        return [=](auto& context) {
            for (int index = 0; index < 100; ++index)
                context.fillEllipse(state, {{30.0 + index % 20 * 8, 30.0 + index / 20 * 8}, {6, 6}}, ink);
        };
    };

    EXPECT_FALSE(isRepainted(many(m_plain), many(m_moved)));
}

TEST_F(MoveFinderTest, PaintsOnlyWhatIsNewAmongWhatMovesAlong) {
    const auto row = [&](const PaintState& state, int newOne) {
        return [=](auto& context) {
            for (int index = 0; index < 50; ++index) {
                if (index == newOne) context.fillRectangle(state, {{200, 100}, {10, 10}}, ink);
                context.fillEllipse(state, {{30.0 + index * 5, 50}, {4, 4}}, ink);
            }
        };
    };

    EXPECT_THAT(repaintedOver(row(m_plain, -1), row(m_moved, 40)),
                UnorderedElementsAre(PixelRect{0, 0, 400, 10}, PixelRect{0, 10, 20, 200}, PixelRect{220, 110, 230, 120}));
    EXPECT_THAT(repaintedOver(row(m_plain, 40), row(m_moved, -1)),
                UnorderedElementsAre(PixelRect{0, 0, 400, 10}, PixelRect{0, 10, 20, 200}, PixelRect{220, 110, 230, 120}));
}

// The last row of pixels is covered by half, once before and once after.
TEST_F(MoveFinderTest, LetsAGroundStayOnlyWhereItCoversAllPixelsWholly) {
    const auto ground = [&](double bottom) {
        return [=](auto& context) { context.fillRectangle({}, {{-50, -50}, {500, 50 + bottom}}, ink); };
    };
    const auto over = [&](double x, const Paint& paint) {
        return [=, this](PaintContext& context) {
            context.image({}, {{x, 0}, {400, 200}}, m_picture);
            paint(context);
        };
    };

    EXPECT_EQ(found(over(0, ground(181)), over(20, ground(181))).by.x, 20);
    EXPECT_EQ(found(over(0, ground(181)), over(20, ground(180.5))), MovedPixels{});
    EXPECT_EQ(found(over(0, ground(180.5)), over(20, ground(181))), MovedPixels{});
}

TEST_F(MoveFinderTest, LetsNoOtherShapeStay) {
    const auto huge = [](auto& context) { context.fillEllipse({}, {{-4000, -4000}, {9000, 9000}}, ink); };
    const auto over = [&](double x) {
        return [=, this](PaintContext& context) {
            context.image({}, {{x, 0}, {400, 200}}, m_picture);
            huge(context);
        };
    };

    EXPECT_EQ(found(over(0), over(20)), MovedPixels{});
}

TEST_F(MoveFinderTest, PaintsTheCornersOfAClipAsLargeAsTheyAreInPixels) {
    const auto at = [&](double x) {
        return [=, this](auto& context) {
            context.image(PaintState().clippedTo({{0, 0}, {400, 200}}, 10), {{x, 0}, {400, 200}}, m_picture);
        };
    };

    EXPECT_EQ(found(at(0), at(50), 2).to, (PixelRect{100, 0, 800, 400}));
    EXPECT_THAT(m_finder.repainted(),
                UnorderedElementsAre(PixelRect{0, 0, 100, 400}, PixelRect{100, 0, 120, 20}, PixelRect{100, 380, 120, 400},
                                     PixelRect{780, 0, 800, 20}, PixelRect{780, 380, 800, 400}));
}

TEST_F(MoveFinderTest, PaintsNoCornersOfAClipThatMovesAlong) {
    const auto at = [&](double x) {
        return [=, this](auto& context) {
            context.image(PaintState().clippedTo({{x, 0}, {400, 200}}, 10), {{x, 0}, {400, 200}}, m_picture);
        };
    };

    EXPECT_EQ(found(at(0), at(50)).to, (PixelRect{50, 0, 400, 200}));
    EXPECT_THAT(m_finder.repainted(), ElementsAre(PixelRect{0, 0, 50, 200}));
}

TEST_F(MoveFinderTest, PaintsAllThatAClipOfAnotherPlaceCuts) {
    const auto at = [&](double x, double clipX) {
        return [=, this](auto& context) {
            context.image(PaintState().clippedTo({{clipX, -20}, {1000, 400}}, 10), {{x, 0}, {400, 200}}, m_picture);
        };
    };

    EXPECT_EQ(found(at(0, -100), at(50, -50)).by.x, 50);
    EXPECT_EQ(found(at(0, -100), at(50, -70)), MovedPixels{});
}

} // namespace
} // namespace proupsells::rasterbackend

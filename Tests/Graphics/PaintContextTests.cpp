#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Graphics/PaintContext.hpp"
#include "Tests/Graphics/ShapedTexts.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::graphics {
namespace {

using geometry::CornerStyle;
using geometry::Path;
using geometry::Rect;
using geometry::Transform;

constexpr RGBA red{255, 0, 0};
constexpr Rect box{{10, 10}, {20, 20}};

ImageRef someImage(RenderingMode mode = RenderingMode::original) {
    auto image = std::make_shared<Image>();
    image->name = "picture";
    image->renderingMode = mode;
    return image;
}

class PaintContextTest : public ::testing::Test {
protected:
    std::size_t count() const { return list.commands.size(); }
    const Command& only() const {
        EXPECT_EQ(count(), 1u);
        return list.commands.front();
    }

    DisplayList list;
    PaintContext context{list};
    PaintState state;
};

TEST_F(PaintContextTest, WritesFramesInWindowPoints) {
    context.fillRectangle(state.movedBy({100, 0}), box, red);

    EXPECT_EQ(only().kind, CommandKind::fillRectangle);
    EXPECT_EQ(only().frame, (Rect{{110, 10}, {20, 20}}));
    EXPECT_EQ(only().bounds, only().frame);
    EXPECT_EQ(only().color, red);
    EXPECT_EQ(only().transform, -1);
}

TEST_F(PaintContextTest, CarriesClipOpacitySchemeAndTransformInEveryCommand) {
    state.scheme = ColorScheme::dark;
    context.fillEllipse(state.clippedTo({{0, 0}, {50, 50}}, 8).fadedBy(0.5).transformedBy(Transform::scaling(2, 2)), box, red);

    EXPECT_EQ(only().scheme, ColorScheme::dark);
    EXPECT_EQ(only().opacity, 0.5f);
    EXPECT_EQ(only().clip, (Rect{{0, 0}, {50, 50}}));
    EXPECT_EQ(only().clipRadius, 8);
    ASSERT_EQ(only().transform, 0);
    EXPECT_EQ(list.transforms[0], Transform::scaling(2, 2));
    EXPECT_EQ(only().frame, box);
    EXPECT_EQ(only().bounds, (Rect{{20, 20}, {30, 30}}));
}

TEST_F(PaintContextTest, LeavesOutWhatCannotBeSeen) {
    const PaintState clipped = state.clippedTo({{0, 0}, {10, 10}});
    context.fillRectangle(clipped, box, red);
    context.fillRectangle(state.fadedBy(0), box, red);
    context.fillRectangle(state, box, {255, 0, 0, 0});
    context.fillRectangle(state, {{0, 0}, {0, 10}}, red);
    context.fillRoundedRectangle(clipped, box, 4, CornerStyle::circular, red);
    context.strokeRoundedRectangle(state, box, 4, CornerStyle::circular, 0, red);
    context.fillEllipse(clipped, box, red);
    context.strokeEllipse(state, box, -1, red);
    context.fillPath(clipped, Path::rectangle(box), red);
    context.fillPath(state, Path{}, red);
    context.strokePath(state, Path{}, 1, red);
    context.image(state, box, nullptr);
    context.image(state, box, someImage(RenderingMode::tinted), Color::clear.light);
    context.bitmap(state, box, nullptr);
    context.text(state, {0, 10}, {{0, 0}, {10, 10}}, nullptr, 0, 1, red);
    context.text(state, {0, 10}, {{0, 0}, {10, 10}}, shaped("a"), 1, 1, red);
    context.shadow(state, box, 4, {0, 0}, Color::clear.light);

    EXPECT_EQ(count(), 0u);
}

TEST_F(PaintContextTest, PaintsARectangleWhereARadiusIsMissing) {
    context.fillRoundedRectangle(state, box, 0, CornerStyle::continuous, red);

    EXPECT_EQ(only().kind, CommandKind::fillRectangle);
}

TEST_F(PaintContextTest, WidensStrokesByHalfTheirWidth) {
    context.strokeRoundedRectangle(state, box, 4, CornerStyle::continuous, 2, red);
    context.strokeEllipse(state, box, 2, red);

    for (const Command& command : list.commands) {
        EXPECT_EQ(command.frame, box);
        EXPECT_EQ(command.bounds, (Rect{{9, 9}, {22, 22}}));
        EXPECT_EQ(command.lineWidth, 2);
    }
    EXPECT_EQ(list.commands[0].cornerStyle, CornerStyle::continuous);
}

TEST_F(PaintContextTest, StrokesAFlatLine) {
    Path line;
    line.moveTo({0, 5});
    line.lineTo({10, 5});
    context.strokePath(state, line, 2, red);

    EXPECT_EQ(only().bounds, (Rect{{-1, 4}, {12, 2}}));
}

TEST_F(PaintContextTest, CopiesPathsInWindowPoints) {
    context.fillPath(state.movedBy({100, 100}), Path::rectangle(box), red);

    ASSERT_EQ(only().resource, 0);
    EXPECT_EQ(list.paths[0], Path::rectangle({{110, 110}, {20, 20}}));
    EXPECT_EQ(only().frame, (Rect{{110, 110}, {20, 20}}));
}

TEST_F(PaintContextTest, ReusesTheLastResourceWhenItIsTheSame) {
    const ImageRef image = someImage();
    context.image(state, box, image);
    context.image(state, box.offsetBy({40, 0}), image);
    context.image(state, box, someImage());

    EXPECT_EQ(list.images.size(), 2u);
    EXPECT_EQ(list.commands[1].resource, 0);
    EXPECT_EQ(list.commands[2].resource, 1);
}

TEST_F(PaintContextTest, WidensTextByWhatLettersReachOut) {
    context.text(state, {0, 10}, {{0, 0}, {30, 12}}, shaped("a"), 0, 1, red);

    EXPECT_EQ(only().frame.origin, (geometry::Point{0, 10}));
    EXPECT_EQ(only().frame.size, (geometry::Size{30, 12}));
    EXPECT_TRUE(only().bounds.contains({-2.9, -2}));
    EXPECT_TRUE(only().bounds.contains({32.9, 14}));
}

TEST_F(PaintContextTest, MovesAShadowAndWidensItByTheBlur) {
    context.shadow(state, box, 5, {4, -10}, red);

    EXPECT_EQ(only().frame, box.offsetBy({4, -10}));
    EXPECT_EQ(only().bounds, box.offsetBy({4, -10}).insetBy(-10, -10));
    EXPECT_EQ(only().blurRadius, 5);
}

TEST_F(PaintContextTest, ShowsAShadowThatReachesIntoTheClipFromOutside) {
    context.shadow(state.clippedTo({{0, 0}, {100, 100}}), {{0, -20}, {100, 20}}, 5, {0, 0}, red);

    EXPECT_EQ(only().bounds, (Rect{{0, 0}, {100, 10}}));
}

TEST_F(PaintContextTest, FoldsAMoveIntoTheFrame) {
    PaintState moved = state;
    moved.transform = Transform::translation(5, 5);
    context.fillRectangle(moved, box, red);

    EXPECT_EQ(only().transform, -1);
    EXPECT_EQ(only().frame, box.offsetBy({5, 5}));
}

TEST_F(PaintContextTest, LooksAheadAtImagesOnly) {
    context.lookAhead([&] {
        context.fillRectangle({}, box, red);
        context.image({}, box, someImage());
        context.image(PaintState{}.clippedTo({{100, 100}, {10, 10}}), box, someImage());
    });
    context.fillRectangle({}, box, red);

    EXPECT_EQ(only().kind, CommandKind::fillRectangle);
    ASSERT_EQ(list.ahead.size(), 1u);
    EXPECT_EQ(list.ahead.front().frame, box);
    list.clear();
    EXPECT_TRUE(list.ahead.empty());
}

} // namespace
} // namespace proupsells::graphics

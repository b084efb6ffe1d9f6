// The outlines of shapes, and the commands that paint them.
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using graphics::CommandKind;
using testing::ElementsAre;

constexpr graphics::Color crimson{"crimson", graphics::rgb(0xFF0000), graphics::rgb(0xFF8080)};
constexpr Rect plate{{10, 20}, {60, 40}};

geometry::Path slanted(const Rect& rect, double share) {
    geometry::Path path;
    path.moveTo(rect.origin);
    path.lineTo({rect.minX() + rect.width() * share, rect.maxY()});
    return path;
}

TEST(ShapeOutline, FillsItsRectangleOrTheLargestCircleInItsMiddle) {
    for (const Shape& shape : {Rectangle(), RoundedRectangle(5), Capsule(), Ellipse()}) EXPECT_EQ(shape.outlineRect(plate), plate);
    EXPECT_EQ(Circle().outlineRect(plate), rect(20, 20, 40, 40));
    EXPECT_EQ(Circle().outlineRect({{10, 20}, {40, 60}}), rect(10, 30, 40, 40));
}

TEST(ShapeOutline, IsInsetByNoMoreThanHalfItsLengths) {
    EXPECT_EQ(Rectangle().inset(5).outlineRect(plate), rect(15, 25, 50, 30));
    EXPECT_EQ(Rectangle().inset(5).inset(-7).outlineRect(plate), rect(8, 18, 64, 44));
    EXPECT_EQ(Rectangle().inset(25).outlineRect(plate), rect(30, 40, 20, 0));
    EXPECT_EQ(Rectangle().inset(25).outlineRect({{0, 0}, {10, 100}}), rect(5, 5, 0, 90));
    EXPECT_EQ(Circle().inset(5).outlineRect(plate), rect(25, 25, 30, 30));
    EXPECT_EQ(Rectangle().inset(geometry::infinity).insetAmount(), 0);
    EXPECT_EQ(Rectangle().inset(5).insetAmount(), 5);
}

TEST(ShapeOutline, HasCornersOfAtMostHalfItsShorterSide) {
    EXPECT_EQ(RoundedRectangle(5).cornerRadiusIn(plate), 5);
    EXPECT_EQ(RoundedRectangle(50).cornerRadiusIn(plate), 20);
    EXPECT_EQ(RoundedRectangle(-5).cornerRadiusIn(plate), 0);
    EXPECT_EQ(RoundedRectangle(50).inset(4).cornerRadiusIn(plate), 16);
    EXPECT_EQ(Circle().cornerRadiusIn(plate), 20);
    EXPECT_EQ(Capsule().cornerRadiusIn({{0, 0}, {10, 30}}), 5);
    EXPECT_EQ(Capsule().cornerRadiusIn({{0, 0}, {30, 10}}), 5);
    EXPECT_EQ(Rectangle().cornerRadiusIn(plate), 0);
    EXPECT_EQ(Ellipse().cornerRadiusIn(plate), 0);
}

TEST(ShapeOutline, IsAPath) {
    EXPECT_EQ(Rectangle().path(plate), geometry::Path::rectangle(plate));
    EXPECT_EQ(Circle().path(plate), geometry::Path::ellipse(rect(20, 20, 40, 40)));
    EXPECT_EQ(Ellipse().inset(1).path(plate), geometry::Path::ellipse(rect(11, 21, 58, 38)));
    EXPECT_EQ(RoundedRectangle(7).path(plate), geometry::Path::roundedRectangle(plate, 7, geometry::CornerStyle::circular));
    EXPECT_EQ(Capsule(geometry::CornerStyle::continuous).path(plate),
              geometry::Path::roundedRectangle(plate, 20, geometry::CornerStyle::continuous));
    const Shape custom{CustomShape{.path = slanted, .animatableData = 0.5, .name = "Slanted"}};
    EXPECT_EQ(custom.inset(2).path(plate), slanted(rect(12, 22, 56, 36), 0.5));
    EXPECT_EQ(custom.outlineRect(plate), rect(10, 20, 30, 40));
    EXPECT_EQ(custom.withAnimatableData(1).outlineRect(plate), plate);
    EXPECT_EQ(Shape{CustomShape{}}.outlineRect(plate), plate);
    EXPECT_EQ(Shape{CustomShape{}}.path(plate), geometry::Path{});
}

TEST(ShapeOutline, HasAName) {
    EXPECT_EQ(Rectangle().typeName(), "Rectangle");
    EXPECT_EQ(RoundedRectangle(1).typeName(), "RoundedRectangle");
    EXPECT_EQ(Circle().typeName(), "Circle");
    EXPECT_EQ(Capsule().typeName(), "Capsule");
    EXPECT_EQ(Ellipse().typeName(), "Ellipse");
    EXPECT_EQ(Shape(CustomShape{.path = slanted, .name = "Slanted"}).typeName(), "Slanted");
}

TEST(ShapeStyle, FillsOrStrokesWithAColourOrTheForeground) {
    const Shape stroked = Circle().stroke(crimson, 3);
    EXPECT_TRUE(stroked.isStroked());
    EXPECT_EQ(stroked.lineWidth(), 3);
    EXPECT_EQ(stroked.color(), crimson);
    EXPECT_EQ(stroked.stroke(2).color(), std::nullopt);
    EXPECT_EQ(stroked.stroke(2).lineWidth(), 2);
    EXPECT_EQ(stroked.stroke(geometry::infinity).lineWidth(), 0);
    EXPECT_FALSE(stroked.fill().isStroked());
    EXPECT_EQ(stroked.fill().color(), std::nullopt);
    EXPECT_FALSE(stroked.fill(crimson).isStroked());
    EXPECT_EQ(stroked.fill(crimson).color(), crimson);
}

// --- Commands ---

// The commands of a view in a window of 60 by 40.
std::vector<graphics::Command> commandsOf(std::function<View()> view) {
    Screen screen{std::move(view), {60, 40}};
    return screen.host().displayList().commands;
}

TEST(ShapePainting, FillsByTheCommandOfItsKind) {
    const auto kindOf = [](const Shape& shape) {
        const auto commands = commandsOf([&] { return View{shape.fill(crimson)}; });
        EXPECT_EQ(commands.size(), 1u);
        EXPECT_EQ(commands.at(0).color, crimson.light);
        return commands.at(0).kind;
    };
    EXPECT_EQ(kindOf(Rectangle()), CommandKind::fillRectangle);
    EXPECT_EQ(kindOf(RoundedRectangle(4)), CommandKind::fillRoundedRectangle);
    EXPECT_EQ(kindOf(Capsule()), CommandKind::fillRoundedRectangle);
    EXPECT_EQ(kindOf(Circle()), CommandKind::fillEllipse);
    EXPECT_EQ(kindOf(Ellipse()), CommandKind::fillEllipse);
    EXPECT_EQ(kindOf(Shape{CustomShape{.path = slanted, .animatableData = 1, .name = "Slanted"}}), CommandKind::fillPath);
}

TEST(ShapePainting, StrokesByTheCommandOfItsKind) {
    const auto kindOf = [](const Shape& shape) {
        const auto commands = commandsOf([&] { return View{shape.stroke(crimson, 3)}; });
        EXPECT_EQ(commands.size(), 1u);
        EXPECT_EQ(commands.at(0).color, crimson.light);
        EXPECT_EQ(commands.at(0).lineWidth, 3);
        return commands.at(0).kind;
    };
    EXPECT_EQ(kindOf(Rectangle()), CommandKind::strokeRoundedRectangle);
    EXPECT_EQ(kindOf(RoundedRectangle(4)), CommandKind::strokeRoundedRectangle);
    EXPECT_EQ(kindOf(Circle()), CommandKind::strokeEllipse);
    EXPECT_EQ(kindOf(Ellipse()), CommandKind::strokeEllipse);
    EXPECT_EQ(kindOf(Shape{CustomShape{.path = slanted, .animatableData = 1, .name = "Slanted"}}), CommandKind::strokePath);
}

TEST(ShapePainting, PaintsTheOutlineInsideItsFrame) {
    const auto filled = commandsOf([] { return RoundedRectangle(6, geometry::CornerStyle::continuous).fill(crimson).inset(5); });
    EXPECT_EQ(filled.at(0).frame, rect(5, 5, 50, 30));
    EXPECT_EQ(filled.at(0).cornerRadius, 6);
    EXPECT_EQ(filled.at(0).cornerStyle, geometry::CornerStyle::continuous);

    const auto stroked = commandsOf([] { return Capsule().stroke(crimson, 2).inset(1); });
    EXPECT_EQ(stroked.at(0).frame, rect(1, 1, 58, 38));
    EXPECT_EQ(stroked.at(0).cornerRadius, 19);
    EXPECT_EQ(commandsOf([] { return Circle().stroke(crimson, 2).inset(1); }).at(0).frame, rect(11, 1, 38, 38));
    EXPECT_EQ(commandsOf([] { return Circle().fill(crimson); }).at(0).frame, rect(10, 0, 40, 40));
}

TEST(ShapePainting, PaintsNoLineWithoutAWidth) {
    EXPECT_TRUE(commandsOf([] { return Circle().stroke(crimson, 0); }).empty());
    EXPECT_TRUE(commandsOf([] { return Circle().stroke(crimson, -1); }).empty());
    EXPECT_EQ(commandsOf([] { return Circle().stroke(crimson, 0.1); }).size(), 1u);
}

TEST(ShapePainting, TakesTheForegroundAndTheScheme) {
    EXPECT_EQ(commandsOf([] { return Circle() | foregroundStyle(crimson); }).at(0).color, crimson.light);
    EXPECT_EQ(commandsOf([] { return Circle() | foregroundStyle(crimson) | colorScheme(graphics::ColorScheme::dark); }).at(0).color,
              crimson.dark);
    EXPECT_EQ(commandsOf([] { return ColorView{crimson} | colorScheme(graphics::ColorScheme::dark); }).at(0).color, crimson.dark);
}

TEST(ShapePainting, FadesAColourByItsOpacity) {
    const auto alphaAt = [](double opacity) {
        const auto commands = commandsOf([=] { return ColorView{crimson, opacity}; });
        return commands.empty() ? 0 : int(commands.at(0).color.alpha);
    };
    EXPECT_EQ(alphaAt(0.5), 128);
    EXPECT_EQ(alphaAt(1), 255);
    EXPECT_EQ(alphaAt(3), 255);
    EXPECT_EQ(alphaAt(-1), 0);
}

TEST(ShapePainting, CastsAShadowOfItsFrame) {
    const auto commands = commandsOf([] { return ColorView{crimson} | frame(20, 10) | shadow(crimson, 0.5, 4, 3, -2); });

    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].kind, CommandKind::shadow);
    EXPECT_EQ(commands[0].frame, rect(23, 13, 20, 10));
    EXPECT_EQ(commands[0].blurRadius, 4);
    EXPECT_EQ(commands[0].color.alpha, 128);
    EXPECT_EQ(commands[1].frame, rect(20, 15, 20, 10));
}

// Whether a shape of 10 points beside the window's left edge is painted.
TEST(ShapePainting, ReachesIntoTheWindowByAllThatIsPaintedOfIt) {
    const auto isPainted = [](const Shape& shape, double distance) {
        return !commandsOf([&] { return View{shape} | frame(10, 10) | offset(-35 - distance, 0); }).empty();
    };
    EXPECT_FALSE(isPainted(Circle(), 0));
    EXPECT_TRUE(isPainted(Circle(), -1));
    EXPECT_TRUE(isPainted(Circle().stroke(crimson, 8), 3));
    EXPECT_FALSE(isPainted(Circle().stroke(crimson, 8), 5));
    EXPECT_TRUE(isPainted(Circle().fill(crimson).inset(-6), 5));
    EXPECT_FALSE(isPainted(Circle().fill(crimson).inset(-6), 7));
    const auto isShadowPainted = [](double x, double radius, double distance) {
        return !commandsOf([=] {
                    return ColorView{crimson} | frame(10, 10) | shadow(crimson, 1, radius, x, 0) | offset(-35 - distance, 0);
                }).empty();
    };
    EXPECT_TRUE(isShadowPainted(0, 4, 7));
    EXPECT_FALSE(isShadowPainted(0, 4, 9));
    EXPECT_TRUE(isShadowPainted(5, 4, 12));
    EXPECT_FALSE(isShadowPainted(5, 4, 14));
}

TEST(ShapePainting, ClipsToAShape) {
    const auto commands = commandsOf([] { return ColorView{crimson} | frame(30, 20) | clipShape(Capsule()); });
    EXPECT_EQ(commands.at(0).clip, rect(15, 10, 30, 20));
    EXPECT_EQ(commands.at(0).clipRadius, 10);
    const auto rounded = commandsOf([] { return ColorView{crimson} | frame(30, 20) | cornerRadius(3); });
    EXPECT_EQ(rounded.at(0).clipRadius, 3);
    const auto plain = commandsOf([] { return ColorView{crimson} | frame(30, 20) | frame(10, 10) | clipped(); });
    EXPECT_EQ(plain.at(0).clip, rect(25, 15, 10, 10));
    EXPECT_EQ(plain.at(0).clipRadius, 0);
}

TEST(ShapePainting, AnImageIsPaintedInItsFrame) {
    const auto picture = std::make_shared<graphics::Image>(
        graphics::Image{.name = "Picture", .size = {20, 10}, .renderingMode = graphics::RenderingMode::tinted});
    const auto natural = commandsOf([&] { return Image{picture} | foregroundStyle(crimson); });
    ASSERT_EQ(natural.size(), 1u);
    EXPECT_EQ(natural[0].frame, rect(20, 15, 20, 10));
    EXPECT_EQ(natural[0].color, crimson.light);
    EXPECT_EQ(commandsOf([&] { return Image{picture}.resizable(); }).at(0).frame, rect(0, 0, 60, 40));
    EXPECT_TRUE(commandsOf([] { return Image{}; }).empty());
}

// --- Numbers between ---

TEST(MixedColour, MixesEachPartInBothSchemes) {
    constexpr graphics::Color from{"from", {0, 100, 200, 255}, {10, 20, 30, 40}};
    constexpr graphics::Color to{"to", {100, 0, 100, 55}, {20, 40, 60, 80}};

    const graphics::Color half = interpolated(from, to, 0.5);
    EXPECT_EQ(half.light, (graphics::RGBA{50, 50, 150, 155}));
    EXPECT_EQ(half.dark, (graphics::RGBA{15, 30, 45, 60}));
    EXPECT_EQ(half.name, "");
    EXPECT_EQ(interpolated(from, to, 0.25).light, (graphics::RGBA{25, 75, 175, 205}));
    EXPECT_EQ(interpolated(from, to, 2).light, (graphics::RGBA{200, 0, 0, 0}));
    EXPECT_EQ(interpolated(from, to, -2).light, (graphics::RGBA{0, 255, 255, 255}));
}

} // namespace
} // namespace proupsells::swiftui::tests

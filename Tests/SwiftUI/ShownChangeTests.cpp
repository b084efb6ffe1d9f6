// A change of any one thing about a view is shown as if it had always been that way, and asks for a picture.
#include "Tests/SwiftUI/RandomTree.hpp"
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

constexpr graphics::Color blue{"blue", graphics::rgb(0x0000FF), graphics::rgb(0x8080FF)};
constexpr graphics::Color red{"red", graphics::rgb(0xFF0000), graphics::rgb(0xFF8080)};
constexpr Size window{200, 150};
constexpr geometry::PhysicalInsets unsafe{20, 10, 30, 15};

struct ShownChange {
    std::string name;
    std::function<View()> before, after;
};

void PrintTo(const ShownChange& change, std::ostream* out) { *out << change.name; }

View square() { return ColorView{blue} | frame(20, 20); }
View bar() { return ColorView{red} | frame(40, 10); }
View sixWords() { return Text{"one two three four five six"} | font(tenPoints) | frame({.width = 60}); }
graphics::ImageRef pictureOf(std::string name, Size size, graphics::RenderingMode mode = graphics::RenderingMode::original) {
    return std::make_shared<graphics::Image>(graphics::Image{.name = std::move(name), .size = size, .renderingMode = mode});
}
const graphics::ImageRef small = pictureOf("Small", {10, 10}), wide = pictureOf("Wide", {30, 10}),
                         otherSmall = pictureOf("Other", {10, 10}),
                         tinted = pictureOf("Tinted", {10, 10}, graphics::RenderingMode::tinted);

std::vector<ShownChange> layoutChanges() {
    return {
        {"spacing of a row",
         [] {
             return HStack{.spacing = 1, .content = {square(), bar()}};
         },
         [] {
             return HStack{.spacing = 9, .content = {square(), bar()}};
         }},
        {"alignment of a row",
         [] {
             return HStack{.alignment = VerticalAlignment::top, .content = {square(), bar()}};
         },
         [] {
             return HStack{.alignment = VerticalAlignment::bottom, .content = {square(), bar()}};
         }},
        {"spacing of a column",
         [] {
             return VStack{.spacing = 1, .content = {square(), bar()}};
         },
         [] {
             return VStack{.spacing = 9, .content = {square(), bar()}};
         }},
        {"alignment of a column",
         [] {
             return VStack{.alignment = HorizontalAlignment::leading, .content = {square(), bar()}};
         },
         [] {
             return VStack{.alignment = HorizontalAlignment::trailing, .content = {square(), bar()}};
         }},
        {"alignment of a pile",
         [] {
             return ZStack{.alignment = Alignment::topLeading, .content = {square(), bar()}};
         },
         [] {
             return ZStack{.alignment = Alignment::bottomTrailing, .content = {square(), bar()}};
         }},
        {"a spacer's minimum",
         [] {
             return HStack{.content = {square(), Spacer{.minLength = 3}, bar()}} | fixedSize();
         },
         [] {
             return HStack{.content = {square(), Spacer{.minLength = 30}, bar()}} | fixedSize();
         }},
        {"padding", [] { return square() | padding(2) | background(ColorView{red}); },
         [] { return square() | padding(7) | background(ColorView{red}); }},
        {"frame", [] { return ColorView{red} | frame(5, 6); }, [] { return ColorView{red} | frame(7, 8); }},
        {"alignment in a frame", [] { return square() | frame(90, 90, Alignment::top); },
         [] { return square() | frame(90, 90, Alignment::trailing); }},
        {"fixed size", [] { return Text{"one two three four"} | font(tenPoints) | fixedSize(false, true) | frame({.width = 30}); },
         [] { return Text{"one two three four"} | font(tenPoints) | fixedSize(true, false) | frame({.width = 30}); }},
        {"aspect ratio", [] { return ColorView{red} | aspectRatio(2, ContentMode::fit); },
         [] { return ColorView{red} | aspectRatio(0.5, ContentMode::fit); }},
        {"content mode", [] { return ColorView{red} | aspectRatio(2, ContentMode::fit); },
         [] { return ColorView{red} | aspectRatio(2, ContentMode::fill); }},
        {"layout priority",
         [] {
             return HStack{.content = {Text{"one two"} | font(tenPoints) | layoutPriority(1), Text{"three"} | font(tenPoints)}} |
                    frame({.width = 45});
         },
         [] {
             return HStack{.content = {Text{"one two"} | font(tenPoints) | layoutPriority(-1), Text{"three"} | font(tenPoints)}} |
                    frame({.width = 45});
         }},
        {"offset", [] { return square() | offset(1, 2); }, [] { return square() | offset(30, -20); }},
        {"offset into the window", [] { return square() | offset(500, 0); }, [] { return square() | offset(30, -20); }},
        {"edges of the safe area", [] { return ColorView{red} | ignoresSafeArea(Edge::top); },
         [] { return ColorView{red} | ignoresSafeArea(Edge::bottom | Edge::leading); }},
        {"a layer's alignment", [] { return square() | overlay(bar(), Alignment::top); },
         [] { return square() | overlay(bar(), Alignment::bottomLeading); }},
        {"a layer's edges", [] { return ColorView{blue} | background(red, Edge::top); },
         [] { return ColorView{blue} | background(red, Edge::trailing); }},
        {"a layer's order", [] { return square() | overlay(bar()); }, [] { return square() | background(bar()); }},
        {"what a layer is", [] { return square() | overlay(bar()); }, [] { return square() | overlay(square()); }},
        {"axis of a scroll view",
         [] {
             return ScrollView{.axis = Axis::vertical, .content = {square(), bar()}};
         },
         [] {
             return ScrollView{.axis = Axis::horizontal, .content = {square(), bar()}};
         }},
        {"what a reader makes", [] { return GeometryReader{[](const GeometryProxy&) -> View { return square(); }}; },
         [] { return GeometryReader{[](const GeometryProxy&) -> View { return bar(); }}; }},
    };
}

std::vector<ShownChange> pictureChanges() {
    return {
        {"colour", [] { return ColorView{red}; }, [] { return ColorView{blue}; }},
        {"opacity of a colour",
         [] {
             return ColorView{red, 0.2};
         },
         [] {
             return ColorView{red, 0.6};
         }},
        {"opacity", [] { return square() | opacity(0.5); }, [] { return square() | opacity(0.8); }},
        {"opacity from nothing", [] { return square() | opacity(0); }, [] { return square() | opacity(1); }},
        {"scale", [] { return square() | scaleEffect(0.5); }, [] { return square() | scaleEffect(2); }},
        {"anchor of a scale",
         [] {
             return square() | scaleEffect(0.5, {0, 0});
         },
         [] {
             return square() | scaleEffect(0.5, {1, 1});
         }},
        {"scale into the window", [] { return square() | scaleEffect(0.1) | offset(-150, 0); },
         [] { return square() | scaleEffect(20) | offset(-150, 0); }},
        {"rotation", [] { return bar() | rotationEffect(10); }, [] { return bar() | rotationEffect(45); }},
        {"clip", [] { return bar() | clipShape(Circle()); }, [] { return bar() | clipShape(RoundedRectangle(3)); }},
        {"corner", [] { return bar() | cornerRadius(2); }, [] { return bar() | cornerRadius(4); }},
        {"radius of a shadow", [] { return bar() | shadow(blue, 1, 2); }, [] { return bar() | shadow(blue, 1, 5); }},
        {"colour of a shadow", [] { return bar() | shadow(blue, 1, 2); }, [] { return bar() | shadow(red, 1, 2); }},
        {"strength of a shadow", [] { return bar() | shadow(blue, 1, 2); }, [] { return bar() | shadow(blue, 0.3, 2); }},
        {"place of a shadow", [] { return bar() | shadow(blue, 1, 2); }, [] { return bar() | shadow(blue, 1, 2, 3, 4); }},
        {"shape", [] { return Circle().fill(red); }, [] { return RoundedRectangle(6).fill(red); }},
        {"colour of a shape", [] { return Circle().fill(red); }, [] { return Circle().fill(blue); }},
        {"stroke", [] { return Circle().fill(red); }, [] { return Circle().stroke(red, 2); }},
        {"width of a stroke", [] { return Circle().stroke(red, 2); }, [] { return Circle().stroke(red, 3); }},
        {"inset", [] { return Circle().fill(red); }, [] { return Circle().fill(red).inset(5); }},
        {"foreground of a shape", [] { return Circle() | foregroundStyle(red); }, [] { return Circle() | foregroundStyle(blue); }},
        {"scheme", [] { return ColorView{red} | colorScheme(graphics::ColorScheme::light); },
         [] { return ColorView{red} | colorScheme(graphics::ColorScheme::dark); }},
        {"scheme of a shape", [] { return Circle().fill(red) | colorScheme(graphics::ColorScheme::light); },
         [] { return Circle().fill(red) | colorScheme(graphics::ColorScheme::dark); }},
        {"scheme of an image", [] { return Image{small} | colorScheme(graphics::ColorScheme::light); },
         [] { return Image{small} | colorScheme(graphics::ColorScheme::dark); }},
        {"image", [] { return Image{small}; }, [] { return Image{otherSmall}; }},
        {"size of an image", [] { return Image{small}; }, [] { return Image{wide}; }},
        {"resizable image", [] { return Image{small}; }, [] { return Image{small}.resizable(); }},
        {"no image", [] { return Image{small}; }, [] { return Image{}; }},
        {"tint", [] { return Image{tinted} | foregroundStyle(red); }, [] { return Image{tinted} | foregroundStyle(blue); }},
        {"words", [] { return sixWords(); }, [] { return Text{"seven"} | font(tenPoints) | frame({.width = 60}); }},
        {"foreground of a text", [] { return sixWords() | foregroundStyle(red); },
         [] { return sixWords() | foregroundStyle(blue); }},
        {"scheme of a text", [] { return sixWords() | foregroundStyle(red) | colorScheme(graphics::ColorScheme::light); },
         [] { return sixWords() | foregroundStyle(red) | colorScheme(graphics::ColorScheme::dark); }},
        {"font", [] { return Text{"one"} | font(tenPoints); }, [] { return Text{"one"} | font({.size = 20, .name = "twenty"}); }},
        {"alignment of lines", [] { return sixWords() | multilineTextAlignment(graphics::TextAlignment::leading); },
         [] { return sixWords() | multilineTextAlignment(graphics::TextAlignment::trailing); }},
        {"line limit", [] { return sixWords() | lineLimit(1); }, [] { return sixWords() | lineLimit(2); }},
        {"line spacing", [] { return sixWords() | lineSpacing(1); }, [] { return sixWords() | lineSpacing(4); }},
        {"case", [] { return sixWords() | textCase(TextCase::asWritten); },
         [] { return sixWords() | textCase(TextCase::uppercase); }},
        {"least scale", [] { return sixWords() | lineLimit(1); },
         [] { return sixWords() | lineLimit(1) | minimumScaleFactor(0.2); }},
        {"direction", [] { return sixWords() | layoutDirection(geometry::LayoutDirection::leftToRight); },
         [] { return sixWords() | layoutDirection(geometry::LayoutDirection::rightToLeft); }},
        {"direction of a row",
         [] {
             return HStack{.content = {square(), bar()}} | layoutDirection(geometry::LayoutDirection::leftToRight);
         },
         [] {
             return HStack{.content = {square(), bar()}} | layoutDirection(geometry::LayoutDirection::rightToLeft);
         }},
    };
}

class ShownChangeTable : public testing::TestWithParam<ShownChange> {
protected:
    // Shows one and then the other; returns whether both pictures are those of screens that show nothing else.
    static void expectShown(const std::function<View()>& from, const std::function<View()>& to) {
        bool hasChanged = false;
        Screen screen{[&] { return hasChanged ? to() : from(); }, window, unsafe};
        screen.settle();
        screen.host().displayList();
        int pictures = 0;
        screen.host().setNeedsDisplayHandler([&] { ++pictures; });

        hasChanged = true;
        screen.host().setNeedsUpdate();
        screen.settle();

        EXPECT_GT(pictures, 0);
        Screen fresh{to, window, unsafe}, former{from, window, unsafe};
        EXPECT_TRUE(paintTheSame(screen.host().displayList(), fresh.host().displayList()));
        EXPECT_FALSE(paintTheSame(former.host().displayList(), fresh.host().displayList()));
        EXPECT_EQ(screen.tree().children.size(), fresh.tree().children.size());
    }
};

TEST_P(ShownChangeTable, IsShownBothWays) {
    expectShown(GetParam().before, GetParam().after);
    expectShown(GetParam().after, GetParam().before);
}
INSTANTIATE_TEST_SUITE_P(Layout, ShownChangeTable, testing::ValuesIn(layoutChanges()));
INSTANTIATE_TEST_SUITE_P(Picture, ShownChangeTable, testing::ValuesIn(pictureChanges()));

// The same view again.
TEST_P(ShownChangeTable, IsNoneWhereNothingIsOther) {
    Screen screen{GetParam().after, window, unsafe};
    screen.settle();
    screen.host().displayList();
    int pictures = 0;
    screen.host().setNeedsDisplayHandler([&] { ++pictures; });

    screen.host().setNeedsUpdate();
    screen.settle();

    EXPECT_EQ(pictures, 0);
}

} // namespace
} // namespace proupsells::swiftui::tests

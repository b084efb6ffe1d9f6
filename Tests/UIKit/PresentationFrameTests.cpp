// Where a presented view stands in its window, and its edge.
#include "Platform/Graphics/Palette.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Rect;
using geometry::Size;

struct FrameCase {
    UIModalPresentationStyle style;
    Size window;
    Rect frame;
};

TEST(PresentationFrame, FillsNarrowWindowsAndStandsInWideOnes) {
    using enum UIModalPresentationStyle;
    const std::vector<FrameCase> cases = {
        {formSheet, {320, 568}, {{0, 0}, {320, 568}}},          {formSheet, {375, 667}, {{0, 0}, {375, 667}}},
        {formSheet, {375, 800}, {{0, 0}, {375, 800}}},          {formSheet, {414, 896}, {{0, 0}, {414, 896}}},
        {formSheet, {599.9, 900}, {{0, 0}, {599.9, 900}}},      {formSheet, {600, 900}, {{112.5, 50}, {375, 800}}},
        {formSheet, {744, 1133}, {{184.5, 166.5}, {375, 800}}}, {formSheet, {1133, 744}, {{379, 0}, {375, 744}}},
        {pageSheet, {375, 800}, {{0, 0}, {375, 800}}},          {automatic, {599.9, 800}, {{0, 0}, {599.9, 800}}},
        {automatic, {600, 800}, {{20, 20}, {560, 760}}},        {pageSheet, {744, 1133}, {{20, 20}, {704, 1093}}},
        {pageSheet, {1133, 744}, {{214.5, 20}, {704, 704}}},    {fullScreen, {1133, 744}, {{0, 0}, {1133, 744}}},
    };
    for (const FrameCase& one : cases) {
        SCOPED_TRACE(testing::Message() << presentationStyleName(one.style) << " in " << one.window.width << " x "
                                        << one.window.height);
        EXPECT_EQ(presentationFrame(one.style, {375, 800}, one.window), one.frame);
    }
}

TEST(PresentationFrame, FormSheetsWithoutAPreferredSizeHaveOneAllTheSame) {
    EXPECT_EQ(presentationFrame(UIModalPresentationStyle::formSheet, {}, {1000, 1000}), (Rect{{230, 190}, {540, 620}}));
}

using SheetEdge = ScreenTest;

TEST_F(SheetEdge, HasTheColourOfTheHostsPalette) {
    const auto root = showRoot(), sheet = controller("sheet");
    sheet->setModalPresentationStyle(UIModalPresentationStyle::formSheet);
    window->setSize({1024, 768}, {});
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    sheet->setPreferredContentSize({375, 368});
    root->present(sheet, false);
    const auto edge = [&]() -> std::optional<graphics::RGBA> {
        for (const graphics::Command& command : painted().commands)
            if (command.lineWidth == 2) return command.color;
        return std::nullopt;
    };
    EXPECT_EQ(edge(), graphics::rgb(0x343C40));
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::light});
    EXPECT_EQ(edge(), std::nullopt);

    graphics::Palette palette;
    palette.set("cardEdge", graphics::ColorScheme::light, graphics::rgb(0x123456));
    graphics::Palette::setCurrent(palette);
    const std::optional<graphics::RGBA> own = edge();
    graphics::Palette::setCurrent({});
    EXPECT_EQ(own, graphics::rgb(0x123456));
}

} // namespace
} // namespace proupsells::uikit

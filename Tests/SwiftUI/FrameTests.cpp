// Frames, paddings, fixed sizes, ratios, layers, safe areas and geometry readers.
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

// The size of a frame around a block of 40 x 20, for a proposal of 100 x 100.
struct FrameCase {
    FrameOptions options;
    Size expected;
};
class FrameTable : public testing::TestWithParam<FrameCase> {};

TEST_P(FrameTable, FollowsItsLimits) {
    Screen screen{[] { return block("child", 40, 20) | frame(GetParam().options) | accessibilityIdentifier("frame"); }, {100, 100}};

    EXPECT_EQ(screen.frame("frame").size, GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Options, FrameTable,
                         testing::Values(FrameCase{{}, {40, 20}}, FrameCase{{.width = 60}, {60, 20}},
                                         FrameCase{{.width = 10, .height = 5}, {10, 5}}, FrameCase{{.minWidth = 50}, {50, 20}},
                                         FrameCase{{.minWidth = 30}, {40, 20}},
                                         FrameCase{{.maxWidth = geometry::infinity}, {100, 20}},
                                         FrameCase{{.maxWidth = 70}, {70, 20}}, FrameCase{{.maxWidth = 30}, {30, 20}},
                                         FrameCase{{.minWidth = 50, .maxWidth = 80}, {80, 20}},
                                         FrameCase{{.minWidth = 120, .maxWidth = 150}, {120, 20}},
                                         FrameCase{{.minHeight = 56, .idealHeight = 56, .maxHeight = 56}, {40, 56}},
                                         FrameCase{{.width = geometry::infinity}, {40, 20}},
                                         FrameCase{{.maxWidth = geometry::infinity, .minHeight = 90}, {100, 90}}));

// The same under an unspecified proposal.
class IdealFrameTable : public testing::TestWithParam<FrameCase> {};

TEST_P(IdealFrameTable, HasAnIdealSize) {
    Screen screen{
        [] { return block("child", 40, 20) | frame(GetParam().options) | fixedSize() | accessibilityIdentifier("frame"); },
        {100, 100}};

    EXPECT_EQ(screen.frame("frame").size, GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Options, IdealFrameTable,
                         testing::Values(FrameCase{{.maxWidth = geometry::infinity}, {40, 20}},
                                         FrameCase{{.minWidth = 50}, {50, 20}}, FrameCase{{.idealWidth = 70}, {70, 20}},
                                         FrameCase{{.maxWidth = 30}, {30, 20}},
                                         FrameCase{{.minHeight = 10, .idealHeight = 12, .maxHeight = 14}, {40, 12}}));

TEST(Frame, AlignsWhatIsInside) {
    Screen screen{[] { return block("child", 10, 10) | frame({.width = 50, .height = 40, .alignment = Alignment::bottomLeading}); },
                  {50, 40}};

    EXPECT_EQ(screen.frame("child"), rect(0, 30, 10, 10));
}

TEST(Frame, AFrameOfOnePointLetsItsViewStraddleIt) {
    Screen screen{[] {
                      return block("card", 200, 90) |
                             overlay(block("badge", 50, 20) | padding() | fixedSize() | frame({.height = 1}),
                                     Alignment::topTrailing);
                  },
                  {200, 200}};

    EXPECT_EQ(screen.frame("badge"), rect(134, 55 + 0.5 - 10, 50, 20));
}

TEST(Padding, DefaultsToSixteenOnAllEdges) {
    Screen screen{[] { return block("child", 10, 10) | padding() | accessibilityIdentifier("padded"); }, {100, 100}};

    EXPECT_EQ(screen.frame("padded").size, (Size{42, 42}));
}

TEST(Padding, NegativeLengthsShrinkTheReportedSizeAndLetTheViewOverflow) {
    Screen screen{[] {
                      return VStack{.spacing = 0,
                                    .content = {block("first", 10, 30) | padding(Edge::bottom, -8), block("second", 10, 10)}} |
                             frame({.height = 100, .alignment = Alignment::top});
                  },
                  {100, 100}};

    EXPECT_EQ(screen.frame("first"), rect(45, 0, 10, 30));
    EXPECT_EQ(screen.frame("second"), rect(45, 22, 10, 10));
}

TEST(Padding, ANegativeTopPullsUp) {
    Screen screen{
        [] { return block("child", 10, 30) | padding(Edge::top, -10) | frame({.height = 100, .alignment = Alignment::top}); },
        {100, 100}};

    EXPECT_EQ(screen.frame("child").minY(), -10);
}

TEST(Padding, MoreThanTheRoomLeavesNone) {
    Screen screen{[] { return filler("child") | padding(80); }, {100, 100}};

    EXPECT_EQ(screen.frame("child").size, (Size{0, 0}));
}

TEST(FixedSize, HoldsOneDimensionOrBoth) {
    Screen screen{[] {
                      return ZStack{.content = {Text{"aaaa bbbb"} | font(tenPoints) | fixedSize() | accessibilityIdentifier("both"),
                                                Text{"aaaa bbbb"} | font(tenPoints) | fixedSize(false, true) |
                                                    accessibilityIdentifier("vertical")}};
                  },
                  {25, 12.5}};

    EXPECT_EQ(screen.frame("both").size, (Size{45, 12.5}));
    EXPECT_EQ(screen.frame("vertical").size, (Size{20, 25}));
}

const graphics::ImageRef picture = std::make_shared<graphics::Image>(graphics::Image{.name = "Picture", .size = {20, 10}});

TEST(AspectRatio, AnImageHasItsNaturalSizeUnlessResizable) {
    Screen screen{[] { return VStack{.content = {Image{picture} | accessibilityIdentifier("natural")}}; }, {100, 100}};

    EXPECT_EQ(screen.frame("natural").size, (Size{20, 10}));
    EXPECT_EQ(screen.node("natural").image, "Picture");
}

TEST(AspectRatio, FitsOrFills) {
    Screen screen{[] {
                      return ZStack{
                          .content = {Image{picture}.resizable() | aspectRatio(ContentMode::fit) | accessibilityIdentifier("fit"),
                                      Image{picture}.resizable() | aspectRatio(ContentMode::fill) | accessibilityIdentifier("fill"),
                                      filler("square") | aspectRatio(1, ContentMode::fit)}};
                  },
                  {100, 100}};

    EXPECT_EQ(screen.frame("fit"), rect(0, 25, 100, 50));
    EXPECT_EQ(screen.frame("fill"), rect(-50, 0, 200, 100));
    EXPECT_EQ(screen.frame("square"), rect(0, 0, 100, 100));
}

TEST(Layers, OverlaysAndBackgroundsGetTheSizeOfTheirView) {
    Screen screen{[] {
                      return block("view", 40, 20) | background(filler("behind")) |
                             overlay(block("mark", 4, 4), Alignment::bottomTrailing);
                  },
                  {100, 100}};

    EXPECT_EQ(screen.frame("behind"), rect(30, 40, 40, 20));
    EXPECT_EQ(screen.frame("mark"), rect(66, 56, 4, 4));
}

TEST(Layers, ABackgroundIsPaintedFirst) {
    const graphics::Color red{"red", graphics::rgb(0xFF0000), graphics::rgb(0xFF0000)};
    Screen screen{[&] { return ColorView{graphics::Color::black} | background(ColorView{red}); }, {10, 10}};

    const auto& commands = screen.host().displayList().commands;

    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].color, graphics::rgb(0xFF0000));
    EXPECT_EQ(commands[1].color, graphics::rgb(0x000000));
}

TEST(Offset, MovesThePictureNotTheLayout) {
    Screen screen{[] {
                      return HStack{.spacing = 0, .content = {block("a", 10, 10) | offset(3, 4), block("b", 10, 10)}};
                  },
                  {20, 10}};

    EXPECT_EQ(screen.frame("a"), rect(3, 4, 10, 10));
    EXPECT_EQ(screen.frame("b"), rect(10, 0, 10, 10));
}

TEST(SafeArea, ContentStaysInside) {
    Screen screen{[] { return filler("content"); }, {100, 200}, {20, 0, 34, 0}};

    EXPECT_EQ(screen.frame("content"), rect(0, 20, 100, 146));
}

TEST(SafeArea, IgnoringItReachesTheWindowsEdge) {
    Screen screen{[] { return filler("content") | ignoresSafeArea(Edge::bottom); }, {100, 200}, {20, 0, 34, 0}};

    EXPECT_EQ(screen.frame("content"), rect(0, 20, 100, 180));
}

TEST(SafeArea, OnlyWhereItIsTouched) {
    Screen screen{[] {
                      return VStack{.spacing = 0, .content = {filler("top") | ignoresSafeArea(), block("bar", 100, 50)}};
                  },
                  {100, 200},
                  {20, 0, 34, 0}};

    EXPECT_EQ(screen.frame("top"), rect(0, 0, 100, 116));
    EXPECT_EQ(screen.frame("bar"), rect(0, 116, 100, 50));
}

TEST(SafeArea, ABackgroundColourExtendsUnderIt) {
    Screen screen{[] { return filler("content") | background(graphics::Color::white); }, {100, 200}, {20, 0, 34, 0}};

    const auto& commands = screen.host().displayList().commands;

    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].frame, rect(0, 0, 100, 200));
    EXPECT_EQ(commands[1].frame, rect(0, 20, 100, 146));
}

TEST(SafeArea, FollowsAChange) {
    Screen screen{[] { return filler("content") | ignoresSafeArea(Edge::bottom); }, {100, 200}, {0, 0, 34, 0}};

    screen.host().setSize({100, 200}, {10, 0, 0, 0});
    screen.settle();

    EXPECT_EQ(screen.frame("content"), rect(0, 10, 100, 190));
}

TEST(GeometryReader, KnowsItsSizeWithoutSafeAreas) {
    GeometryProxy seen;
    Screen screen{[&] {
                      return GeometryReader{[&seen](const GeometryProxy& proxy) {
                          seen = proxy;
                          return block("content", proxy.size.width / 2, 10);
                      }};
                  },
                  {100, 200},
                  {20, 0, 34, 0}};

    EXPECT_EQ(seen.size, (Size{100, 146}));
    EXPECT_EQ(seen.safeAreaInsets, (geometry::EdgeInsets{20, 0, 34, 0}));
    EXPECT_EQ(screen.frame("content"), rect(0, 20, 50, 10));
}

TEST(GeometryReader, BuildsAgainWhenItsSizeChanges) {
    int builds = 0;
    Screen screen{[&] {
                      return GeometryReader{[&](const GeometryProxy& proxy) {
                          ++builds;
                          return proxy.size.height < 700 ? block("compact", 10, 10) : block("regular", 10, 10);
                      }};
                  },
                  {100, 700}};
    EXPECT_TRUE(screen.has("regular"));
    EXPECT_EQ(builds, 1);

    screen.host().setSize({100, 699.9});
    screen.settle();

    EXPECT_TRUE(screen.has("compact"));
    EXPECT_EQ(builds, 2);
}

TEST(Host, AnswersProposalsWithTheContentsSize) {
    Screen screen{[] { return Text{"aaaa bbbb"} | font(tenPoints); }, {100, 100}};

    EXPECT_EQ(screen.host().sizeThatFits({}), (Size{45, 12.5}));
    EXPECT_EQ(screen.host().sizeThatFits({30.0, std::nullopt}), (Size{20, 25}));
}

} // namespace
} // namespace proupsells::swiftui::tests

#include <gtest/gtest.h>

#include <random>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Platform/VelaUIKit/FlowLayout.hpp"

using namespace proupsells;

using namespace swiftui;
using geometry::Rect;
using geometry::Size;
using velauikit::FlowLayout;

namespace {

View box(double width, double height, const std::string& identifier) {
    return ColorView{graphics::Color::black} | frame(width, height) | accessibilityIdentifier(identifier);
}

// A flow at the top leading corner of a window.
class Flow {
public:
    explicit Flow(std::function<ViewList()> content, Size window = {343, 400}, double spacing = 0, bool isRightToLeft = false)
        : m_host(ViewHost::create([content = std::move(content), spacing] {
              return FlowLayout{.spacing = spacing, .content = content()} | accessibilityIdentifier("flow") |
                     frame({.maxWidth = geometry::infinity, .maxHeight = geometry::infinity, .alignment = Alignment::topLeading});
          })) {
        EnvironmentValues values = m_host->environment();
        if (isRightToLeft) values.layoutDirection = geometry::LayoutDirection::rightToLeft;
        m_host->setEnvironment(values);
        m_host->setSize(window);
    }

    ViewHost& host() { return *m_host; }
    Rect frameOf(const std::string& identifier) {
        const accessibility::SemanticNode root = m_host->semanticTree();
        const accessibility::SemanticNode* node = accessibility::findByIdentifier(root, identifier);
        if (!node) ADD_FAILURE() << "Nothing has the identifier " << identifier;
        return node ? node->frame : Rect{};
    }
    std::vector<Rect> spacers() {
        const accessibility::SemanticNode root = m_host->semanticTree();
        std::vector<Rect> result;
        for (const accessibility::SemanticNode* node : accessibility::findAllByType(root, "Spacer")) result.push_back(node->frame);
        return result;
    }

private:
    headless::TestBed m_bed;
    std::shared_ptr<ViewHost> m_host;
};

TEST(FlowLayout, PlacesViewsBesideEachOther) {
    Flow flow{[] { return ViewList{box(100, 20, "a"), box(80, 20, "b")}; }};

    EXPECT_EQ(flow.frameOf("a"), (Rect{{0, 0}, {100, 20}}));
    EXPECT_EQ(flow.frameOf("b"), (Rect{{100, 0}, {80, 20}}));
    EXPECT_EQ(flow.frameOf("flow"), (Rect{{0, 0}, {343, 20}}));
}

TEST(FlowLayout, WrapsWhatDoesNotFit) {
    Flow flow{[] { return ViewList{box(200, 20, "a"), box(143.1, 30, "b"), box(100, 10, "c")}; }};

    EXPECT_EQ(flow.frameOf("b").origin, (geometry::Point{0, 20}));
    EXPECT_EQ(flow.frameOf("c").minX(), 143.1);
    EXPECT_EQ(flow.frameOf("flow").size, (Size{343, 50}));
}

TEST(FlowLayout, KeepsARowThatFitsExactly) {
    Flow flow{[] { return ViewList{ForEach(10, [](int index) { return box(34.3, 20, std::to_string(index)); })}; }};

    EXPECT_EQ(flow.frameOf("9").minY(), 0);
    EXPECT_NEAR(flow.frameOf("9").maxX(), 343, 1e-9);
}

TEST(FlowLayout, CentresViewsInTheirLine) {
    Flow flow{[] { return ViewList{box(100, 20, "low"), box(100, 50, "high"), box(200, 10, "next")}; }};

    EXPECT_EQ(flow.frameOf("low").minY(), 15);
    EXPECT_EQ(flow.frameOf("high").minY(), 0);
    EXPECT_EQ(flow.frameOf("next").minY(), 50);
}

TEST(FlowLayout, SharesWhatIsLeftOverAmongItsSpacers) {
    Flow flow{[] { return ViewList{box(100, 20, "a"), Spacer{}, box(83, 20, "b"), Spacer{}, box(60, 20, "c")}; }};

    EXPECT_EQ(flow.frameOf("b").minX(), 150);
    EXPECT_EQ(flow.frameOf("c").maxX(), 343);
}

// Sixteen, fourteen and seventeen letters of 7 points each leave 16 points of 345.
TEST(FlowLayout, MakesSpacersAsNarrowAsTheyMayBe) {
    Flow flow{[] { return ViewList{box(112, 20, "a"), Spacer{}, box(98, 20, "b"), Spacer{}, box(119, 20, "c")}; }, {345, 400}};

    EXPECT_EQ(flow.frameOf("b").minX(), 120);
    EXPECT_EQ(flow.frameOf("c").minX(), 226);
    ASSERT_EQ(flow.spacers().size(), 2u);
    EXPECT_EQ(flow.spacers()[0].minX(), 112);
    EXPECT_EQ(flow.spacers()[0].width(), 8);
    EXPECT_EQ(flow.spacers()[1].width(), 8);
}

TEST(FlowLayout, WrapsBeforeASpacerIsSqueezed) {
    Flow flow{[] { return ViewList{box(112, 20, "a"), Spacer{}, box(98, 20, "b"), Spacer{}, box(119, 20, "c")}; }, {344.9, 400}};

    EXPECT_EQ(flow.frameOf("b").maxX(), 344.9);
    EXPECT_EQ(flow.frameOf("c").minX(), 0);
}

TEST(FlowLayout, GivesASpacerItsLeastLengthBeforeItSharesTheRest) {
    Flow flow{[] { return ViewList{box(100, 20, "a"), Spacer{.minLength = 50}, box(100, 20, "b"), Spacer{}, box(65, 20, "c")}; }};

    EXPECT_EQ(flow.frameOf("b").minX(), 160);
    EXPECT_EQ(flow.frameOf("c").minX(), 278);
}

TEST(FlowLayout, SetsLinesThatASpacerPartsAFingerApart) {
    Flow flow{[] { return ViewList{box(200, 20, "a"), Spacer{}, box(200, 30, "b"), box(200, 20, "c")}; }};

    EXPECT_EQ(flow.frameOf("b").midY() - flow.frameOf("a").midY(), 44);
    EXPECT_EQ(flow.frameOf("c").minY(), flow.frameOf("b").maxY());
    EXPECT_EQ(flow.frameOf("flow").height(), flow.frameOf("c").maxY());
}

TEST(FlowLayout, KeepsASpacersLeastLengthBetweenHighLines) {
    Flow flow{[] { return ViewList{box(200, 60, "a"), Spacer{}, box(200, 50, "b")}; }};

    EXPECT_EQ(flow.frameOf("b").minY(), 68);
}

TEST(FlowLayout, DropsSpacersAtTheEndsOfALine) {
    Flow flow{
        [] { return ViewList{Spacer{}, box(100, 20, "a"), Spacer{}, box(90, 20, "b"), Spacer{}, box(100, 20, "c"), Spacer{}}; },
        {200, 400}};

    EXPECT_EQ(flow.frameOf("a").minX(), 0);
    EXPECT_EQ(flow.frameOf("b").maxX(), 200);
    EXPECT_EQ(flow.frameOf("c"), (Rect{{0, 44}, {100, 20}}));
    EXPECT_EQ(flow.frameOf("flow").height(), 64);
}

TEST(FlowLayout, PutsEachOfTheLegalLinksOnItsOwnLineWhereItIsNarrow) {
    Flow flow{[] { return ViewList{box(112, 20, "a"), Spacer{}, box(98, 20, "b"), Spacer{}, box(119, 20, "c")}; }, {150, 400}};

    EXPECT_EQ(flow.frameOf("a").origin, (geometry::Point{0, 0}));
    EXPECT_EQ(flow.frameOf("b").origin, (geometry::Point{0, 44}));
    EXPECT_EQ(flow.frameOf("c").origin, (geometry::Point{0, 88}));
}

TEST(FlowLayout, KeepsItsSpacingBetweenViewsAndBetweenLines) {
    Flow flow{[] {
                  return ViewList{box(100, 20, "a"), box(100, 20, "b"), Spacer{}, box(100, 20, "c"), box(50, 20, "d")};
              },
              {330, 400},
              10};

    EXPECT_EQ(flow.frameOf("b").minX(), 110);
    EXPECT_EQ(flow.frameOf("c").minX(), 230);
    EXPECT_EQ(flow.frameOf("d"), (Rect{{0, 30}, {50, 20}}));
}

TEST(FlowLayout, IsMirroredFromRightToLeft) {
    Flow flow{[] { return ViewList{box(100, 20, "a"), Spacer{}, box(100, 20, "b"), box(300, 20, "c")}; }, {343, 400}, 0, true};

    EXPECT_EQ(flow.frameOf("a").maxX(), 343);
    EXPECT_EQ(flow.frameOf("b").minX(), 0);
    EXPECT_EQ(flow.frameOf("c").maxX(), 343);
}

TEST(FlowLayout, OffersAViewThatIsTooWideTheWholeLine) {
    Flow flow{[] {
                  return ViewList{box(30, 10, "a"),
                                  Text{"aaaa bbbb cccc dddd"} | font({.size = 20}) | accessibilityIdentifier("text"),
                                  box(30, 10, "b")};
              },
              {100, 400}};

    EXPECT_EQ(flow.frameOf("text").minY(), 10);
    EXPECT_EQ(flow.frameOf("text").size, (Size{90, 50}));
    EXPECT_EQ(flow.frameOf("b").minY(), 60);
}

TEST(FlowLayout, IsAsWideAsItsLongestLineWhereItIsOfferedNoWidth) {
    Flow flow{[] {
        return ViewList{HStack{.content = {FlowLayout{.content = {box(100, 20, "a"), Spacer{}, box(80, 20, "b")}} |
                                           accessibilityIdentifier("inner") | fixedSize()}}};
    }};

    EXPECT_EQ(flow.frameOf("inner").size, (Size{188, 20}));
    EXPECT_EQ(flow.frameOf("b").minX(), 108);
}

TEST(FlowLayout, LooksThroughGroupsAndLeavesOutWhatIsAbsent) {
    Flow flow{[] {
        return ViewList{Group{.content = {box(100, 20, "a"), View{}, box(50, 20, "b")}}, View{},
                        ForEach(2, [](int index) { return box(20, 20, "c" + std::to_string(index)); })};
    }};

    EXPECT_EQ(flow.frameOf("b").minX(), 100);
    EXPECT_EQ(flow.frameOf("c1").minX(), 170);
}

TEST(FlowLayout, WithoutViewsHasNoHeight) {
    Flow flow{[] { return ViewList{}; }};

    EXPECT_EQ(flow.host().sizeThatFits({343.0, std::nullopt}).height, 0);
}

TEST(FlowLayout, NeverOverlapsNorLeavesItsWidthNorItsOrder) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random{seed};
        std::uniform_real_distribution<double> width{1, 150}, height{1, 60};
        std::vector<Size> sizes(1 + random() % 12);
        std::vector<bool> hasSpacer(sizes.size());
        for (std::size_t index = 0; index < sizes.size(); ++index) {
            sizes[index] = {width(random), height(random)};
            hasSpacer[index] = random() % 3 == 0;
        }
        Flow flow{[&] {
                      std::vector<View> views;
                      for (std::size_t index = 0; index < sizes.size(); ++index) {
                          if (hasSpacer[index]) views.push_back(Spacer{});
                          views.push_back(box(sizes[index].width, sizes[index].height, std::to_string(index)));
                      }
                      return ViewList(views);
                  },
                  {200, 2000}};

        Rect previous;
        for (std::size_t index = 0; index < sizes.size(); ++index) {
            const Rect rect = flow.frameOf(std::to_string(index));
            ASSERT_GE(rect.minX(), 0);
            ASSERT_LE(rect.maxX(), 200 + 1e-6);
            const bool isOnSameLine = index > 0 && rect.minX() >= previous.maxX() - 1e-6;
            const bool isOnNextLine = rect.minX() == 0;
            ASSERT_TRUE(isOnSameLine || isOnNextLine);
            if (index > 0) {
                ASSERT_FALSE(rect.insetBy(1e-6, 1e-6).intersects(previous));
            }
            previous = rect;
        }
    }
}

} // namespace

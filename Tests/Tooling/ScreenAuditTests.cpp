#include <gmock/gmock.h>

#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "Tooling/ScreenAudit.hpp"

using namespace proupsells;

using accessibility::ReadingElement;
using accessibility::SemanticNode;
using foundation::PseudoLanguage;
using geometry::Rect;
using testing::ElementsAre;
using testing::IsEmpty;
using tooling::audit;
using tooling::AuditOptions;
using tooling::Finding;
using tooling::isPseudoTranslated;

namespace {

constexpr graphics::Color legible = velauikit::velaLabel;

SemanticNode view(Rect frame, std::vector<SemanticNode> children) {
    return {.type = "View", .frame = frame, .children = std::move(children)};
}

SemanticNode text(Rect frame, std::string words = "Text", const graphics::Color& color = legible) {
    SemanticNode node{.type = "Text", .frame = frame};
    node.text = accessibility::TextInfo{.text = std::move(words), .color = std::string(color.name)};
    return node;
}

SemanticNode filled(Rect frame, const graphics::Color& color) {
    SemanticNode node{.type = "Rectangle", .frame = frame};
    node.shape = accessibility::ShapeInfo{.fill = std::string(color.name)};
    return node;
}

SemanticNode control(std::string identifier, Rect frame) {
    return {.type = "Button", .frame = frame, .identifier = std::move(identifier), .isControl = true};
}

SemanticNode screen(std::vector<SemanticNode> children) { return view({{0, 0}, {320, 568}}, std::move(children)); }

// "rule path detail".
std::vector<std::string> findings(const SemanticNode& screen, const AuditOptions& options = {.leastTarget = 0}) {
    std::vector<std::string> lines;
    for (const Finding& finding : audit(screen, options))
        lines.push_back(std::string(tooling::nameOf(finding.rule)) + " " + finding.path + " " + finding.detail);
    return lines;
}

TEST(ScreenAudit, HasNothingToSayOfAGoodScreen) {
    EXPECT_THAT(findings(screen({text({{0, 0}, {320, 20}}), text({{0, 20}, {320, 20}}), control("close", {{0, 40}, {24, 24}})})),
                IsEmpty());
}

TEST(ScreenAudit, FindsATextThatIsCutOff) {
    SemanticNode cut = text({{0, 0}, {100, 20}}, "Monthly");
    cut.text->isTruncated = true;

    EXPECT_THAT(findings(screen({view({{0, 0}, {320, 20}}, {cut})})), ElementsAre("truncated 0.0 Text \"Monthly\" is cut off"));
}

TEST(ScreenAudit, FindsATextThatLeavesTheScreenSideways) {
    EXPECT_THAT(findings(screen({text({{220, 0}, {101, 20}}, "Monthly")})),
                ElementsAre("outside 0 Text \"Monthly\" leaves the screen by 1 points"));
    EXPECT_THAT(findings(screen({text({{-2.5, 0}, {10, 20}}, "Monthly")})),
                ElementsAre("outside 0 Text \"Monthly\" leaves the screen by 2.5 points"));
}

SemanticNode scrolled(double contentHeight, std::vector<SemanticNode> children) {
    SemanticNode node = view({{0, 0}, {320, 568}}, std::move(children));
    node.scroll = accessibility::ScrollInfo{.contentOffset = {0, 100}, .contentSize = {320, contentHeight}};
    return node;
}

TEST(ScreenAudit, LetsTextsScrollOutBelowAndAbove) {
    const SemanticNode below = text({{0, 900}, {100, 20}}), above = text({{0, -100}, {100, 20}});

    EXPECT_THAT(findings(screen({scrolled(1020, {above, below})})), IsEmpty());
}

TEST(ScreenAudit, FindsWhatCannotBeScrolledIntoSight) {
    EXPECT_THAT(findings(screen({text({{0, 560}, {100, 20}}, "Buy")})),
                ElementsAre("unreachable 0 Text \"Buy\" is out of reach by 12 points of its height"));
    EXPECT_THAT(findings(screen({scrolled(1000, {control("terms", {{0, 900}, {100, 20}})})})),
                ElementsAre("unreachable 0.0 Button terms is out of reach by 20 points of its height"));
}

TEST(ScreenAudit, FindsTargetsSmallerThanAFingersTip) {
    const SemanticNode apart = screen({control("terms", {{0, 0}, {100, 43}}), control("close", {{0, 80}, {44, 44}})});

    EXPECT_THAT(findings(apart, {}), ElementsAre("small target 0 Button terms is 100 x 43 points and can be touched in 100 x 43"));
}

TEST(ScreenAudit, CountsWhatCanBeTouchedAroundAControlAsFarAsNoOtherIsNearer) {
    SemanticNode above = control("terms", {{0, 0}, {100, 20}}), below = control("privacy", {{0, 44}, {100, 20}});
    above.leastTarget = below.leastTarget = 44;
    EXPECT_THAT(findings(screen({above, below}), {}), IsEmpty());

    below.frame.origin.y = 30;
    EXPECT_THAT(findings(screen({above, below}), {}),
                ElementsAre("small target 0 Button terms is 100 x 20 points and can be touched in 100 x 37",
                            "small target 1 Button privacy is 100 x 20 points and can be touched in 100 x 37"));
}

TEST(ScreenAudit, NamesTheNearestIdentifier) {
    SemanticNode plan = control("plan", {{0, 0}, {320, 44}});
    plan.children = {text({{0, 0}, {321, 20}})};

    const auto found = audit(screen({plan}), {});

    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].identifier, "plan");
}

TEST(ScreenAudit, FindsTextsOnEachOther) {
    EXPECT_THAT(findings(screen({text({{0, 0}, {100, 20}}, "Save"), text({{90, 10}, {100, 20}}, "Monthly")})),
                ElementsAre("overlapping 1 Text \"Monthly\" stands on \"Save\", 10 x 10 points"));
}

TEST(ScreenAudit, LetsTextsPassBelowWhatDoesNotScrollWithThem) {
    SemanticNode list = view({{0, 0}, {320, 568}}, {text({{0, 0}, {100, 20}})});
    list.scroll = accessibility::ScrollInfo{};

    EXPECT_THAT(findings(screen({list, text({{0, 0}, {100, 20}})})), IsEmpty());
}

TEST(ScreenAudit, FindsSmallControlsBesideOthers) {
    const SemanticNode links = screen({control("terms", {{0, 0}, {100, 17.6}}), control("privacy", {{0, 17.6}, {100, 17.6}})});

    EXPECT_THAT(findings(links), ElementsAre("small control 0 Button terms is 100 x 17.6 points beside Button privacy",
                                             "small control 1 Button privacy is 100 x 17.6 points beside Button terms"));
    EXPECT_THAT(findings(links, {.leastControl = 16, .leastTarget = 0}), IsEmpty());
}

TEST(ScreenAudit, LetsSmallControlsBeThatHaveRoomAroundThem) {
    const SemanticNode apart = screen({control("terms", {{0, 0}, {100, 16}}), control("privacy", {{0, 24}, {100, 16}})});

    EXPECT_THAT(findings(apart), IsEmpty());
    EXPECT_THAT(findings(apart, {.leastControl = 44, .leastTarget = 0}), testing::SizeIs(2));
}

TEST(ScreenAudit, MeasuresTheRoomToTheEdgeOfALargeControl) {
    const auto besideLarge = [](double y) {
        return findings(screen({control("terms", {{0, 0}, {100, 16}}), control("subscribe", {{0, y}, {100, 56}})}));
    };

    EXPECT_THAT(besideLarge(20), IsEmpty()); // 12 points from the centre
    EXPECT_THAT(besideLarge(16), ElementsAre("small control 0 Button terms is 100 x 16 points beside Button subscribe"));
}

TEST(ScreenAudit, FindsWhatIsNotTranslated) {
    const SemanticNode shown = screen({text({{0, 0}, {100, 20}}, "[Möñţĥ]"), text({{0, 20}, {100, 20}}, "Save 45%")});
    const AuditOptions options{.pseudoLanguage = PseudoLanguage::accented};

    EXPECT_THAT(findings(shown, options), ElementsAre("untranslated 1 Text \"Save 45%\" is in English"));
    EXPECT_THAT(findings(shown), IsEmpty());
}

TEST(ScreenAudit, FindsWhatIsNotTranslatedAndOnlySpoken) {
    ReadingElement reading{.name = "[Ŝçŕééñ]"};
    reading.children.push_back({.identifier = "close", .name = "Close", .value = "[pååĝé]"});

    const auto found = audit(reading, {.pseudoLanguage = PseudoLanguage::accented});

    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].detail, "close \"Close\" is spoken in English");
    EXPECT_THAT(audit(reading, {}), IsEmpty());
}

TEST(ScreenAudit, FindsFaintTextsOnTheColorBehindThem) {
    const Rect page{{0, 0}, {320, 568}}, line{{0, 0}, {100, 20}};
    using velauikit::velaBackground, velauikit::marwickContentAccent;

    EXPECT_THAT(findings(screen({filled(page, velaBackground), text(line, "Buy", velauikit::velaLightText)})),
                ElementsAre(testing::StartsWith("faint 1 Text \"Buy\" is velaLightText on velaBackground, 1")));
    EXPECT_THAT(findings(screen({filled(page, velaBackground), filled(line, marwickContentAccent),
                                 text(line, "Buy", velauikit::velaLightText)})),
                IsEmpty());
}

TEST(ScreenAudit, TakesTextsOnPicturesAndOfDisabledControlsAsTheyAre) {
    const Rect page{{0, 0}, {320, 568}}, line{{0, 0}, {100, 20}};
    SemanticNode picture{.type = "Image", .frame = page, .image = "header"};
    SemanticNode disabled = text(line, "Buy", velauikit::velaBackground);
    disabled.traits = accessibility::Traits::disabled;

    EXPECT_THAT(findings(screen({filled(page, velauikit::velaBackground), picture, text(line, "Buy", velauikit::velaBackground)})),
                IsEmpty());
    EXPECT_THAT(findings(screen({filled(page, velauikit::velaBackground), disabled})), IsEmpty());
}

TEST(ScreenAudit, NamesColorsThatAreNotTheDesignSystems) {
    constexpr graphics::Color pink{"pink", graphics::rgb(0xFF00FF), graphics::rgb(0xFF00FF)};
    const Rect line{{0, 0}, {100, 20}};

    EXPECT_THAT(findings(screen({filled(line, velauikit::velaBackground), text(line, "Buy", pink)})),
                ElementsAre("unknown colour 1 Text \"Buy\" is pink on velaBackground"));
}

TEST(ScreenAudit, LooksPastWhatIsFullyTransparent) {
    SemanticNode gone = text({{-50, 0}, {10, 10}});
    gone.opacity = 0;

    EXPECT_THAT(findings(screen({gone})), IsEmpty());
}

TEST(PseudoTranslatedTexts, HaveNoLetterOutsideOfTheirMarks) {
    using enum PseudoLanguage;
    EXPECT_TRUE(isPseudoTranslated("[Šååvéé 45%]\n[Nöw]", accented));
    EXPECT_TRUE(isPseudoTranslated("[[ßüý] nöw]", accented));
    EXPECT_TRUE(isPseudoTranslated("$14.99 – 45%", accented));
    EXPECT_FALSE(isPseudoTranslated("[Šååvéé] now", accented));
    EXPECT_FALSE(isPseudoTranslated("Save", accented));
    EXPECT_TRUE(isPseudoTranslated("\u200F\u202ESave\u202C\u200F 45%", mirrored));
    EXPECT_FALSE(isPseudoTranslated("\u200F\u202ESave\u202C\u200F now", mirrored));
}

} // namespace

#include <gmock/gmock.h>

#include "Tooling/PaintedAudit.hpp"

using namespace proupsells;

using geometry::Point;
using geometry::Rect;
using graphics::Command;
using graphics::CommandKind;
using graphics::DisplayList;
using graphics::RGBA;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr RGBA white = graphics::rgb(0xFFFFFF), black = graphics::rgb(0x000000), grey = graphics::rgb(0x808080);
constexpr Rect window{{0, 0}, {320, 568}}, line{{10, 10}, {100, 20}};

// One cluster a character; a line may break after blanks and hyphens.
std::shared_ptr<graphics::ShapedText> shaped(const std::string& words, double size = 16) {
    auto text = std::make_shared<graphics::ShapedText>();
    text->runs = {{.text = words, .font = {.size = size}}};
    for (std::uint32_t i = 0; i < words.size(); ++i) {
        const bool isBlank = words[i] == ' ';
        text->clusters.push_back(
            {.textOffset = i,
             .textLength = 1,
             .breakAfter = isBlank || words[i] == '-' ? graphics::LineBreak::allowed : graphics::LineBreak::none,
             .isWhitespace = isBlank});
    }
    return text;
}

struct Painting {
    DisplayList list;

    Painting& text(const std::shared_ptr<graphics::ShapedText>& text, std::uint32_t first, std::uint32_t end, Rect frame,
                   RGBA color = black) {
        Command& command = add(CommandKind::text, frame, color);
        command.resource = list.addText(text);
        command.firstCluster = first;
        command.endCluster = end;
        return *this;
    }
    Painting& text(RGBA color, double size = 16) { return text(shaped("Buy", size), 0, 3, line, color); }
    Command& add(CommandKind kind, Rect frame, RGBA color = {}) {
        list.commands.push_back({.kind = kind, .color = color, .frame = frame, .bounds = frame, .clip = window});
        return list.commands.back();
    }
};

std::vector<std::string> details(const std::vector<tooling::Finding>& findings) {
    std::vector<std::string> result;
    for (const auto& finding : findings) result.push_back(finding.detail);
    return result;
}

// A screen with a text wherever one may be painted.
accessibility::SemanticNode screenOfTexts(Rect place = window) {
    accessibility::SemanticNode node{.type = "Text", .frame = place, .identifier = "offer"};
    node.text = accessibility::TextInfo{.text = "Buy"};
    return {.type = "View", .frame = window, .children = {node}};
}

std::vector<tooling::PaintedText> textsIn(const DisplayList& list) { return tooling::paintedTexts(list, screenOfTexts()); }

std::vector<std::string> faintTexts(const DisplayList& list, const tooling::ColorAt& behind) {
    // Painted wherever the text stands, in a colour that is nowhere behind it.
    const auto shown = [](Point) { return graphics::rgb(0xFF00FF); };
    return details(tooling::auditContrast(list, textsIn(list), window, behind, shown));
}

// The text's lines one below the other, cut at `cut` of all clusters.
std::vector<std::string> brokenWords(const std::string& words, std::uint32_t endOfFirst, std::uint32_t startOfSecond) {
    Painting painting;
    const auto text = shaped(words);
    painting.text(text, 0, endOfFirst, {{0, 0}, {100, 20}})
        .text(text, startOfSecond, std::uint32_t(words.size()), {{0, 20}, {100, 20}});
    return details(tooling::auditWords(painting.list, textsIn(painting.list)));
}

TEST(PaintedWords, MayGoOnInTheNextLineBetweenWords) {
    EXPECT_THAT(brokenWords("Save money", 4, 5), IsEmpty());
    EXPECT_THAT(brokenWords("Save-money", 5, 5), IsEmpty());
}

TEST(PaintedWords, AreFoundWhereTheyAreBrokenInside) {
    EXPECT_THAT(brokenWords("Save money now", 7, 7), ElementsAre("\"money\" is broken inside, in \"Save money now\""));
    EXPECT_THAT(brokenWords("$1299", 3, 3), ElementsAre("\"$1299\" is broken inside, in \"$1299\""));
}

TEST(PaintedWords, MayChangeTheirColorWithinALine) {
    Painting painting;
    const auto text = shaped("Save");
    painting.text(text, 0, 2, {{0, 0}, {20, 20}}).text(text, 2, 4, {{20, 0}, {20, 20}}, grey);

    EXPECT_THAT(tooling::auditWords(painting.list, textsIn(painting.list)), IsEmpty());
}

TEST(PaintedContrast, IsHeldAgainstWhatIsPaintedBehind) {
    EXPECT_THAT(faintTexts(Painting().text(black).list, [](Point) { return white; }), IsEmpty());
    EXPECT_THAT(faintTexts(Painting().text(black).list, [](Point) { return black; }),
                ElementsAre("\"Buy\" stands out by 1.0:1 from what is painted behind it"));
}

TEST(PaintedContrast, IsHeldWhereThePictureIsWorst) {
    const auto halfDark = [](Point point) { return point.x < 30 ? black : white; };

    EXPECT_THAT(faintTexts(Painting().text(black).list, halfDark), SizeIs(1));
    EXPECT_THAT(faintTexts(Painting().text(black).list, [](Point point) { return point.x < 12 ? black : white; }), IsEmpty());
}

TEST(PaintedContrast, IsHeldOnlyWhereTheTextIsPainted) {
    const auto behind = [](Point point) { return point.y < 15 ? black : white; };
    const auto shown = [](Point point) { return point.y < 15 ? black : grey; };
    const DisplayList list = Painting().text(black).list;

    EXPECT_THAT(tooling::auditContrast(list, textsIn(list), window, behind, shown), IsEmpty());
}

TEST(PaintedContrast, MayBeLessForLargeTexts) {
    const auto onWhite = [](Point) { return white; }; // 3.9:1

    EXPECT_THAT(faintTexts(Painting().text(grey, 16).list, onWhite), SizeIs(1));
    EXPECT_THAT(faintTexts(Painting().text(grey, 24).list, onWhite), IsEmpty());
}

TEST(TextsOnPictures, AreThoseWithNothingInBetween) {
    Painting onPicture, onPage, onCard;
    onPicture.add(CommandKind::image, window);
    onPicture.text(black);
    onPage.add(CommandKind::fillRectangle, window, white);
    onPage.text(black);
    onCard.add(CommandKind::image, window);
    onCard.add(CommandKind::fillRoundedRectangle, line, white);
    onCard.text(black);

    EXPECT_THAT(tooling::textsOnPictures(onPicture.list, textsIn(onPicture.list)), SizeIs(1));
    EXPECT_THAT(tooling::textsOnPictures(onPage.list, textsIn(onPage.list)), IsEmpty());
    EXPECT_THAT(tooling::textsOnPictures(onCard.list, textsIn(onCard.list)), IsEmpty());
}

TEST(PaintedTexts, HaveTheNodeThatShowsThem) {
    const auto texts = textsIn(Painting().text(black).list);

    ASSERT_THAT(texts, SizeIs(1));
    EXPECT_EQ(texts[0].path, "0");
    EXPECT_EQ(texts[0].identifier, "offer");
}

TEST(PaintedTexts, AreNotThoseBehindTheScreen) {
    Painting hidden;
    hidden.text(black).add(CommandKind::fillRectangle, window, white);

    EXPECT_THAT(textsIn(hidden.list), IsEmpty());
    EXPECT_THAT(tooling::paintedTexts(Painting().text(black).list, screenOfTexts({{0, 200}, {320, 100}})), IsEmpty());
}

TEST(WhatIsAroundTexts, LeavesOutWhatStandsElsewhere) {
    Painting painting;
    painting.add(CommandKind::image, {{0, 200}, {320, 100}});
    painting.add(CommandKind::image, line);
    painting.text(black);

    EXPECT_THAT(tooling::aroundTexts(painting.list, textsIn(painting.list)).commands, SizeIs(2));
}

TEST(WhatIsBehindTexts, IsEverythingElse) {
    Painting painting;
    painting.add(CommandKind::fillRectangle, window, white);
    painting.text(black);

    const DisplayList rest = tooling::withoutTexts(painting.list);

    ASSERT_THAT(rest.commands, SizeIs(1));
    EXPECT_EQ(rest.commands[0].kind, CommandKind::fillRectangle);
}

} // namespace

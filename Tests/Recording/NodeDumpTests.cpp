// Every key that a dumped view can have, and none where there is nothing to say.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/ScreenDump.hpp"

namespace proupsells::hostprogram {

using accessibility::Traits;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(NodeDump, HasTypeFrameAndWhetherItIsSeenOfAPlainView) {
    accessibility::SemanticNode node;
    node.type = "UIView";
    node.frame = {{1, 2}, {3, 4.5}};

    EXPECT_EQ(toJson(node).dump(), R"({"type":"UIView","frame":[1,2,3,4.5],"onScreen":false})");
}

TEST(NodeDump, HasAllKeysInTheirOrder) {
    accessibility::SemanticNode node;
    node.type = "Everything";
    node.frame = {{0, 0}, {10, 20}};
    node.isOnScreen = true;
    node.identifier = "identifier";
    node.label = "label";
    node.value = "value";
    node.traits = Traits::button | Traits::link;
    node.text = accessibility::TextInfo{
        .text = "one two",
        .font = "body",
        .size = 17.5,
        .weight = 600,
        .color = "ink",
        .lineCount = 2,
        .isTruncated = true,
        .runs = {{"one ", "body", 17.5, 700, "ink", true}, {"two", "small", 12, std::nullopt, "soft", false}}};
    node.image = "chevron";
    node.shape = accessibility::ShapeInfo{.fill = "ground", .stroke = "line", .lineWidth = 2, .cornerRadius = 6.5};
    node.opacity = 0.25;
    node.scale = 0.9;
    node.rotation_degrees = -90;
    node.clip = geometry::Rect{{1, 1}, {8, 9}};
    node.scroll = accessibility::ScrollInfo{{0, 12}, {10, 200}, {.top = 1, .left = 2, .bottom = 3, .right = 4}};
    node.clipView = accessibility::ClipInfo{.name = "film", .time_s = 1.5};
    node.children.emplace_back().type = "Child";

    EXPECT_EQ(
        toJson(node).dump(),
        R"({"type":"Everything","frame":[0,0,10,20],"onScreen":true,"identifier":"identifier","label":"label","value":"value",)"
        R"("traits":["button","link"],"text":"one two","font":"body","size":17.5,"weight":600,"colour":"ink","lines":2,)"
        R"("truncated":true,"runs":[{"text":"one ","font":"body","size":17.5,"weight":700,"colour":"ink","strikethrough":true},)"
        R"({"text":"two","font":"small","size":12,"colour":"soft","strikethrough":false}],"image":"chevron","fill":"ground",)"
        R"("stroke":"line","lineWidth":2,"cornerRadius":6.5,"opacity":0.25,"scale":0.9,"rotation":-90,"clip":[1,1,8,9],)"
        R"("contentOffset":[0,12],"contentSize":[10,200],"contentInset":[1,2,3,4],"clipName":"film","clipTime":1.5,)"
        R"("children":[{"type":"Child","frame":[0,0,0,0],"onScreen":false}]})");
}

TEST(NodeDump, LeavesOutWhatPartsOfANodeLack) {
    accessibility::SemanticNode node;
    node.type = "Parts";
    node.text = accessibility::TextInfo{.text = "plain", .font = "body", .size = 12, .color = "ink", .lineCount = 1};
    node.shape = accessibility::ShapeInfo{};
    node.clipView = accessibility::ClipInfo{.name = "film"};

    EXPECT_EQ(
        toJson(node).dump(),
        R"({"type":"Parts","frame":[0,0,0,0],"onScreen":false,"text":"plain","font":"body","size":12,"colour":"ink","lines":1,)"
        R"("truncated":false,"clipName":"film"})");
}

TEST(NodeDump, NamesTraitsInOneOrder) {
    EXPECT_THAT(traitNames(Traits::none), IsEmpty());
    EXPECT_THAT(traitNames(Traits::link | Traits::adjustable | Traits::staticText | Traits::image | Traits::header |
                           Traits::disabled | Traits::selected | Traits::button),
                ElementsAre("button", "selected", "disabled", "header", "image", "staticText", "adjustable", "link"));
    EXPECT_THAT(traitNames(Traits::header), ElementsAre("header"));
    EXPECT_THAT(traitNames(Traits::staticText | Traits::adjustable), ElementsAre("staticText", "adjustable"));
}

} // namespace proupsells::hostprogram

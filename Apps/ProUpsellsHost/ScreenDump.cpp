#include "Apps/ProUpsellsHost/ScreenDump.hpp"

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/Numbers.hpp"
#include "Apps/ProUpsellsHost/Word.hpp"

namespace proupsells::hostprogram {

using accessibility::SemanticNode;
using accessibility::Traits;

namespace {

Json runJson(const accessibility::TextRunInfo& run) {
    Json result{{"text", run.text}, {"font", run.font}, {"size", toJson(run.size)}};
    if (run.weight) result["weight"] = *run.weight;
    result["colour"] = run.color;
    result["strikethrough"] = run.isStruckThrough;
    return result;
}

void addText(Json& result, const accessibility::TextInfo& text) {
    result["text"] = text.text;
    result["font"] = text.font;
    result["size"] = toJson(text.size);
    if (text.weight) result["weight"] = *text.weight;
    result["colour"] = text.color;
    result["lines"] = text.lineCount;
    result["truncated"] = text.isTruncated;
    if (text.runs.empty()) return;
    Json& runs = result["runs"] = Json::array();
    for (const auto& run : text.runs) runs.push_back(runJson(run));
}

void addAccessibility(Json& result, const SemanticNode& node) {
    if (!node.identifier.empty()) result["identifier"] = node.identifier;
    if (!node.label.empty()) result["label"] = node.label;
    if (!node.value.empty()) result["value"] = node.value;
    if (node.traits != Traits::none) result["traits"] = traitNames(node.traits);
}

void addShape(Json& result, const accessibility::ShapeInfo& shape) {
    if (!shape.fill.empty()) result["fill"] = shape.fill;
    if (!shape.stroke.empty()) result["stroke"] = shape.stroke;
    if (shape.lineWidth) result["lineWidth"] = toJson(*shape.lineWidth);
    if (shape.cornerRadius) result["cornerRadius"] = toJson(*shape.cornerRadius);
}

void addEffects(Json& result, const SemanticNode& node) {
    if (node.opacity != 1) result["opacity"] = toJson(node.opacity);
    if (node.scale) result["scale"] = toJson(*node.scale);
    if (node.rotation_degrees) result["rotation"] = toJson(*node.rotation_degrees);
    if (node.clip) result["clip"] = toJson(*node.clip);
}

void addScroll(Json& result, const accessibility::ScrollInfo& scroll) {
    result["contentOffset"] = toJson(scroll.contentOffset);
    result["contentSize"] = toJson(scroll.contentSize);
    result["contentInset"] = toJson(scroll.contentInset);
}

} // namespace

std::vector<std::string> traitNames(Traits traits) {
    static constexpr Word<Traits> names[] = {
        {"button", Traits::button},         {"selected", Traits::selected}, {"disabled", Traits::disabled},
        {"header", Traits::header},         {"image", Traits::image},       {"staticText", Traits::staticText},
        {"adjustable", Traits::adjustable}, {"link", Traits::link},
    };
    std::vector<std::string> result;
    for (const auto& [name, trait] : names)
        if (accessibility::contains(traits, trait)) result.emplace_back(name);
    return result;
}

Json toJson(const SemanticNode& node) {
    Json result{{"type", node.type}, {"frame", toJson(node.frame)}, {"onScreen", node.isOnScreen}};
    addAccessibility(result, node);
    if (node.text) addText(result, *node.text);
    if (!node.image.empty()) result["image"] = node.image;
    if (node.shape) addShape(result, *node.shape);
    addEffects(result, node);
    if (node.scroll) addScroll(result, *node.scroll);
    if (node.clipView) {
        result["clipName"] = node.clipView->name;
        if (node.clipView->time_s) result["clipTime"] = toJson(*node.clipView->time_s);
    }
    if (!node.children.empty()) {
        Json& children = result["children"] = Json::array();
        for (const SemanticNode& child : node.children) children.push_back(toJson(child));
    }
    return result;
}

} // namespace proupsells::hostprogram

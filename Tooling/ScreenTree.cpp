#include "Tooling/ScreenTree.hpp"

#include <cmath>

#include "Tooling/Quoted.hpp"
#include "Tooling/SpokenScreen.hpp"
#include "Tooling/WrittenNumber.hpp"

namespace proupsells::tooling {

using accessibility::SemanticNode;
using accessibility::Traits;

namespace {

// As it can be written and read back.
double rounded(double number) { return std::round(number * 1000) / 1000 + 0.0; }

std::string traitWords(Traits traits) {
    static constexpr std::pair<const char*, Traits> words[] = {
        {"button", Traits::button},         {"selected", Traits::selected}, {"disabled", Traits::disabled},
        {"header", Traits::header},         {"image", Traits::image},       {"staticText", Traits::staticText},
        {"adjustable", Traits::adjustable}, {"link", Traits::link},
    };
    std::string result;
    for (const auto& [word, trait] : words)
        if (accessibility::contains(traits, trait)) result += (result.empty() ? "" : " ") + std::string(word);
    return result;
}

// Collects a node's properties; texts that are empty and parts that are absent are none.
class PropertyList {
public:
    void add(const char* name, std::string value) {
        if (!value.empty()) m_properties.emplace_back(name, std::move(value));
    }
    void add(const char* name, const std::optional<double>& value) {
        if (value) add(name, written(*value));
    }
    void flag(const char* name, const std::optional<bool>& value) {
        if (value) add(name, *value ? "yes" : "no");
    }

    void addText(const accessibility::TextInfo& text) {
        add("text", text.text);
        add("font", text.font);
        add("size", text.size);
        if (text.weight) add("weight", double(*text.weight));
        add("colour", text.color);
        add("lines", double(text.lineCount));
        if (text.isTruncated) flag("truncated", true);
        std::string runs;
        for (const auto& run : text.runs)
            runs += (runs.empty() ? "" : "|") + run.text + "|" + run.font + " " + written(run.size) +
                    (run.weight ? " " + std::to_string(*run.weight) : "") + " " + run.color +
                    (run.isStruckThrough ? " struck" : "");
        add("runs", runs);
    }

    void addSpoken(const accessibility::SpokenInfo& spoken) {
        if (spoken.role != accessibility::Role::unstated) add("role", std::string(nameOf(spoken.role)));
        add("name", spoken.name);
        flag("checked", spoken.isChecked);
        flag("expanded", spoken.isExpanded);
        if (spoken.pageCount > 0) add("page", std::to_string(spoken.page) + " of " + std::to_string(spoken.pageCount));
        if (spoken.isSilent) flag("silent", true);
    }

    void addScroll(const accessibility::ScrollInfo& scroll) {
        add("offset", written(scroll.contentOffset.x) + " " + written(scroll.contentOffset.y));
        add("content", written(scroll.contentSize.width) + " " + written(scroll.contentSize.height));
        const auto& inset = scroll.contentInset;
        add("inset", written(inset.top) + " " + written(inset.left) + " " + written(inset.bottom) + " " + written(inset.right));
    }

    void addClip(const accessibility::ClipInfo& clip) {
        add("clipName", clip.name);
        add("clipTime", clip.time_s);
    }

    std::vector<std::pair<std::string, std::string>> take() { return std::move(m_properties); }

private:
    std::vector<std::pair<std::string, std::string>> m_properties;
};

std::vector<std::pair<std::string, std::string>> propertiesOf(const SemanticNode& node) {
    PropertyList list;
    list.add("identifier", node.identifier);
    if (!node.isOnScreen) list.flag("onScreen", false);
    list.add("label", node.label);
    list.add("value", node.value);
    list.add("traits", traitWords(node.traits));
    list.addSpoken(node.spoken);
    if (node.text) list.addText(*node.text);
    list.add("image", node.image);
    if (node.shape) {
        list.add("fill", node.shape->fill);
        list.add("stroke", node.shape->stroke);
        list.add("lineWidth", node.shape->lineWidth);
        list.add("cornerRadius", node.shape->cornerRadius);
    }
    if (node.opacity != 1) list.add("opacity", node.opacity);
    list.add("scale", node.scale);
    list.add("rotation", node.rotation_degrees);
    if (node.clip) list.add("clip", written(*node.clip));
    if (node.scroll) list.addScroll(*node.scroll);
    if (node.clipView) list.addClip(*node.clipView);
    return list.take();
}

geometry::Rect rounded(const geometry::Rect& rect) {
    return {{rounded(rect.origin.x), rounded(rect.origin.y)}, {rounded(rect.size.width), rounded(rect.size.height)}};
}

void append(const ScreenTree& node, const std::string& indentation, std::string& text) {
    text += indentation + node.type + " [" + written(node.frame) + "]";
    for (const auto& [name, value] : node.properties) text += " " + name + "=" + inQuotes(value);
    text += '\n';
    for (const ScreenTree& child : node.children) append(child, indentation + "  ", text);
}

} // namespace

const std::string* ScreenTree::property(std::string_view name) const {
    for (const auto& [each, value] : properties)
        if (each == name) return &value;
    return nullptr;
}

ScreenTree screenTree(const SemanticNode& screen) {
    ScreenTree result{screen.type, rounded(screen.frame), propertiesOf(screen), {}};
    for (const SemanticNode& child : screen.children) result.children.push_back(screenTree(child));
    return result;
}

std::string screenText(const ScreenTree& screen) {
    std::string text;
    append(screen, "", text);
    return text;
}

} // namespace proupsells::tooling

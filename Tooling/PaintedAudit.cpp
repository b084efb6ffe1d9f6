#include "Tooling/PaintedAudit.hpp"

#include <algorithm>
#include <cmath>

#include "Platform/Graphics/Contrast.hpp"
#include "Tooling/Quoted.hpp"

namespace proupsells::tooling {

using accessibility::SemanticNode;
using geometry::Rect;
using graphics::Cluster;
using graphics::Command;
using graphics::CommandKind;
using graphics::DisplayList;
using graphics::RGBA;
using graphics::ShapedText;

namespace {

std::string textOf(const ShapedText& text, std::uint32_t firstCluster, std::uint32_t endCluster) {
    if (firstCluster >= endCluster) return {};
    const std::string whole = graphics::joinedText(text.runs);
    const Cluster &first = text.clusters[firstCluster], &last = text.clusters[endCluster - 1];
    return whole.substr(first.textOffset, last.textOffset + last.textLength - first.textOffset);
}

// The clusters around a place that stand in one word.
std::string wordAt(const ShapedText& text, std::uint32_t place) {
    const auto isApart = [&](std::uint32_t cluster) {
        return text.clusters[cluster].isWhitespace || text.clusters[cluster].breakAfter != graphics::LineBreak::none;
    };
    std::uint32_t first = place, end = place;
    while (first > 0 && !isApart(first - 1)) --first;
    while (end < text.clusters.size() && !isApart(end)) ++end;
    if (end < text.clusters.size() && !text.clusters[end].isWhitespace) ++end;
    return textOf(text, first, end);
}

RGBA over(RGBA front, double opacity, RGBA back) {
    const double share = opacity * front.alpha / 255;
    const auto mixed = [&](std::uint8_t a, std::uint8_t b) {
        return static_cast<std::uint8_t>(std::lround(a * share + b * (1 - share)));
    };
    return {mixed(front.red, back.red), mixed(front.green, back.green), mixed(front.blue, back.blue), 255};
}

// Of the bold and the large, WCAG 2.2 asks for less.
double leastContrast(const ShapedText& text) {
    constexpr double large = 24, largeBold = 18.66; // points
    constexpr int bold = 700;
    const graphics::Font& font = text.runs.front().font;
    return font.size >= large || (font.face && font.face->weight >= bold && font.size >= largeBold) ? 3 : 4.5;
}

std::string tenths(double number) {
    const auto rounded = std::lround(std::floor(number * 10));
    return std::to_string(rounded / 10) + "." + std::to_string(rounded % 10);
}

bool isPicture(const Command& command) { return command.kind == CommandKind::image || command.kind == CommandKind::bitmap; }

bool isOpaqueFill(const Command& command) {
    const bool isFill = command.kind == CommandKind::fillRectangle || command.kind == CommandKind::fillRoundedRectangle;
    return isFill && command.color.alpha == 255 && command.opacity == 1;
}

// Of one list.
bool paintsTheSameText(const Command& a, const Command& b) {
    return a.kind == b.kind && a.resource == b.resource && a.firstCluster == b.firstCluster && a.endCluster == b.endCluster &&
           a.frame == b.frame;
}

struct ShownText {
    Rect frame;
    std::string path, identifier;
};

void collect(const SemanticNode& node, const std::string& path, std::string identifier, std::vector<ShownText>& texts) {
    if (node.opacity == 0) return;
    if (!node.identifier.empty()) identifier = node.identifier;
    if (node.text) texts.push_back({node.frame, path, identifier});
    for (std::size_t i = 0; i < node.children.size(); ++i)
        collect(node.children[i], (path.empty() ? "" : path + ".") + std::to_string(i), identifier, texts);
}

} // namespace

DisplayList withoutTexts(const DisplayList& list) {
    DisplayList rest = list;
    std::erase_if(rest.commands, [](const Command& command) { return command.kind == CommandKind::text; });
    return rest;
}

std::vector<PaintedText> paintedTexts(const DisplayList& list, const SemanticNode& screen) {
    std::vector<ShownText> shown;
    collect(screen, "", "", shown);
    std::vector<PaintedText> texts;
    for (auto command = list.commands.begin(); command != list.commands.end(); ++command) {
        if (command->kind != CommandKind::text || command->opacity == 0) continue;
        const geometry::Point middle = command->bounds.center();
        const auto node = std::find_if(shown.begin(), shown.end(), [&](const auto& each) { return each.frame.contains(middle); });
        const auto hides = [&](const Command& other) { return isOpaqueFill(other) && other.bounds.contains(middle); };
        if (node == shown.end() || std::any_of(command + 1, list.commands.end(), hides)) continue;
        texts.push_back({*command, node->path, node->identifier});
    }
    return texts;
}

std::vector<PaintedText> textsOnPictures(const DisplayList& list, std::vector<PaintedText> texts) {
    std::erase_if(texts, [&](const PaintedText& text) {
        const geometry::Point middle = text.command.bounds.center();
        bool isOnPicture = false;
        for (const Command& command : list.commands) {
            if (paintsTheSameText(command, text.command)) break;
            if (!command.bounds.contains(middle)) continue;
            if (isPicture(command)) isOnPicture = true;
            if (isOpaqueFill(command)) isOnPicture = false;
        }
        return !isOnPicture;
    });
    return texts;
}

DisplayList aroundTexts(const DisplayList& list, const std::vector<PaintedText>& texts) {
    Rect place;
    for (const PaintedText& text : texts) place = place.united(text.command.bounds);
    DisplayList part = list;
    std::erase_if(part.commands, [&](const Command& command) { return !command.bounds.intersects(place); });
    for (Command& command : part.commands) {
        command.clip = command.clip.intersection(place);
        command.bounds = command.bounds.intersection(place);
    }
    part.ahead.clear();
    return part;
}

std::vector<Finding> auditWords(const DisplayList& list, const std::vector<PaintedText>& texts) {
    std::vector<Finding> findings;
    for (const auto& [command, path, identifier] : texts) {
        if (command.firstCluster == 0) continue;
        const ShapedText& text = *list.texts[static_cast<std::size_t>(command.resource)];
        const Cluster& before = text.clusters[command.firstCluster - 1];
        if (before.isWhitespace || before.breakAfter != graphics::LineBreak::none) continue;
        const auto isOnLineBefore = [&, &next = command](const Command& other) {
            return other.kind == CommandKind::text && other.resource == next.resource && other.endCluster == next.firstCluster &&
                   other.frame.minY() < next.frame.minY() - 1;
        };
        if (std::none_of(list.commands.begin(), list.commands.end(), isOnLineBefore)) continue;
        findings.push_back(
            {AuditRule::brokenWord, path,
             inQuotes(wordAt(text, command.firstCluster)) + " is broken inside, in " + inQuotes(graphics::joinedText(text.runs)),
             identifier});
    }
    return findings;
}

std::optional<double> contrastOf(const PaintedText& text, const Rect& window, const ColorAt& behind, const ColorAt& shown) {
    constexpr double step = 1;         // points between the places that are looked at
    constexpr double mayBeWorse = .05; // of them
    const Command& command = text.command;
    const Rect place = command.bounds.intersection(command.clip).intersection(window);
    std::vector<double> contrasts;
    RGBA last{.alpha = 0}; // neighbours are mostly the same
    double lastContrast = 0;
    for (double y = place.minY() + step / 2; y < place.maxY(); y += step)
        for (double x = place.minX() + step / 2; x < place.maxX(); x += step) {
            const RGBA back = behind({x, y});
            if (shown({x, y}) == back) continue;
            if (back != last) lastContrast = graphics::contrast(over(command.color, command.opacity, back), back);
            last = back;
            contrasts.push_back(lastContrast);
        }
    if (contrasts.empty()) return std::nullopt;
    const auto low = contrasts.begin() + static_cast<std::ptrdiff_t>(static_cast<double>(contrasts.size()) * mayBeWorse);
    std::nth_element(contrasts.begin(), low, contrasts.end());
    return *low;
}

std::vector<Finding> auditContrast(const DisplayList& list, const std::vector<PaintedText>& texts, const Rect& window,
                                   const ColorAt& behind, const ColorAt& shown) {
    std::vector<Finding> findings;
    for (const PaintedText& painted : texts) {
        const auto& [command, path, identifier] = painted;
        if (command.opacity < 1) continue;
        const ShapedText& text = *list.texts[static_cast<std::size_t>(command.resource)];
        const auto contrast = contrastOf(painted, window, behind, shown);
        if (!contrast || *contrast >= leastContrast(text)) continue;
        findings.push_back({AuditRule::faint, path,
                            inQuotes(textOf(text, command.firstCluster, command.endCluster)) + " stands out by " +
                                tenths(*contrast) + ":1 from what is painted behind it",
                            identifier});
    }
    return findings;
}

} // namespace proupsells::tooling

#include "Apps/ProUpsellsHost/Witness.hpp"

#include <algorithm>
#include <map>

#include "Backends/Raster/PictureColor.hpp"
#include "Backends/Raster/PngFile.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Tooling/PaintedAudit.hpp"
#include "Tooling/ScreenTree.hpp"

namespace proupsells::hostprogram {

using accessibility::SemanticNode;

namespace {

constexpr const char* agreement = "\"operation\":\"proUpsellViewController(_:didContinueWith:)\"";

using Contrasts = std::map<std::string, double>; // the least of a text's lines, by the node's path

Contrasts contrastsOf(const graphics::DisplayList& list, const SemanticNode& tree, geometry::Size size) {
    rasterbackend::RasterSurface behind, shown;
    behind.present(tooling::withoutTexts(list), size, 1);
    shown.present(list, size, 1);
    const auto colors = [](const rasterbackend::RasterSurface& surface) -> tooling::ColorAt {
        return [&picture = surface.picture()](geometry::Point point) { return rasterbackend::colorAt(picture, point); };
    };
    Contrasts contrasts;
    for (const tooling::PaintedText& text : tooling::paintedTexts(list, tree)) {
        const auto contrast = tooling::contrastOf(text, {{}, size}, colors(behind), colors(shown));
        if (!contrast) continue;
        const auto [known, isFirst] = contrasts.emplace(text.path, *contrast);
        if (!isFirst) known->second = std::min(known->second, *contrast);
    }
    return contrasts;
}

void collectTexts(const SemanticNode& node, const std::string& path, std::string identifier, const Contrasts& contrasts,
                  std::vector<tooling::EvidenceText>& texts) {
    if (node.opacity == 0) return;
    if (!node.identifier.empty()) identifier = node.identifier;
    if (node.text) {
        tooling::EvidenceText text{.parts = {}, .identifier = identifier, .frame = node.frame, .size = node.text->size};
        for (const auto& run : node.text->runs) text.parts.emplace_back(run.text, run.isStruckThrough);
        if (text.parts.empty()) text.parts.emplace_back(node.text->text, false);
        if (const auto contrast = contrasts.find(path); contrast != contrasts.end()) text.contrast = contrast->second;
        texts.push_back(std::move(text));
    }
    for (std::size_t i = 0; i < node.children.size(); ++i)
        collectTexts(node.children[i], (path.empty() ? "" : path + ".") + std::to_string(i), identifier, contrasts, texts);
}

} // namespace

void Witness::note(const std::string* did) {
    tooling::EvidenceMoment moment{.time_s = runloop::MainRunLoop::main().now_s(), .did = did ? *did : ""};
    std::istringstream lines(m_calls.str());
    for (std::string line; std::getline(lines, line);) {
        moment.isAgreement |= line.find(agreement) != std::string::npos;
        moment.calls.push_back(std::move(line));
    }
    m_calls.str({});
    moment.isShowing = m_session.isShowing();
    if (moment.isShowing) moment.screen = changedScreen();
    m_moments.push_back(std::move(moment));
}

// Absent when it is as it was.
std::optional<tooling::EvidenceScreen> Witness::changedScreen() {
    const SemanticNode tree = m_session.window().semanticTree();
    const geometry::Size size = m_session.device().size;
    graphics::DisplayList list;
    m_session.window().paint(list);
    rasterbackend::RasterSurface surface;
    surface.present(list, size, m_session.device().scale);
    std::string text = tooling::screenText(tooling::screenTree(tree));
    std::string png = rasterbackend::pngBytes(surface.picture(), rasterbackend::PngEffort::small);
    if (text == m_lastTree && png == m_lastPng) return std::nullopt;
    m_lastTree = std::move(text);
    m_lastPng = png;

    tooling::EvidenceScreen screen{.name = m_session.window().reading().name, .png = std::move(png), .size = size, .texts = {}};
    collectTexts(tree, "", "", contrastsOf(list, tree, size), screen.texts);
    return screen;
}

} // namespace proupsells::hostprogram

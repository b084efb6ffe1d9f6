#include "ScreenTest/AuditedScreen.hpp"

#include <algorithm>

#include "Backends/Raster/PictureColor.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Tooling/PaintedAudit.hpp"
#include "Tooling/SteeringAudit.hpp"

namespace proupsells::screentest {

namespace {

// Of a picture that was painted at a pixel a point.
tooling::ColorAt colorsOf(const rasterbackend::Picture& picture) {
    return [picture](geometry::Point point) { return rasterbackend::colorAt(picture, point); };
}

rasterbackend::Picture painted(const graphics::DisplayList& list, geometry::Size size) {
    rasterbackend::RasterSurface surface;
    surface.present(list, size, 1);
    return surface.picture();
}

std::vector<tooling::Finding> paintedFindings(const TestScreen& screen) {
    graphics::DisplayList list;
    screen.window().paint(list);
    auto all = tooling::paintedTexts(list, screen.tree());
    auto findings = tooling::auditWords(list, all);
    const auto texts = tooling::textsOnPictures(list, std::move(all));
    if (texts.empty()) return findings;
    const geometry::Size size = screen.device().size;
    const graphics::DisplayList part = tooling::aroundTexts(list, texts);
    const auto contrast = tooling::auditContrast(list, texts, {{}, size}, colorsOf(painted(tooling::withoutTexts(part), size)),
                                                 colorsOf(painted(part, size)));
    findings.insert(findings.end(), contrast.begin(), contrast.end());
    return findings;
}

} // namespace

std::vector<tooling::Finding> audited(const TestScreen& screen, const AuditScope& scope) {
    tooling::AuditOptions options = scope.options;
    options.scheme = screen.device().appearance;
    std::vector<tooling::Finding> findings;
    const auto add = [&](const std::vector<tooling::Finding>& more) { findings.insert(findings.end(), more.begin(), more.end()); };
    add(tooling::audit(screen.tree(), options));
    add(tooling::audit(screen.window().reading(), options));
    add(paintedFindings(screen));
    if (scope.steers) {
        const tooling::Wait wait = [&](double duration_s) {
            auto& loop = runloop::MainRunLoop::main();
            loop.runUntil(loop.now_s() + duration_s);
        };
        add(tooling::auditStates(screen.window(), wait));
        add(tooling::auditKeyboard(screen.window(), wait));
    }
    std::erase_if(findings, [&](const tooling::Finding& finding) {
        const auto has = [](const auto& list, const auto& value) {
            return std::find(list.begin(), list.end(), value) != list.end();
        };
        return has(scope.accepted, finding.rule) || has(scope.acceptedControls, finding.identifier);
    });
    return findings;
}

} // namespace proupsells::screentest

#include "Apps/ProUpsellsHost/SceneViewController.hpp"

#include <algorithm>

#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::hostprogram {

namespace {

using geometry::Rect;
using graphics::rgb;
using uikit::UIColor;

// The colours of the artwork, a little deeper in the dark.
constexpr UIColor sand{"scene.sand", rgb(0xEFE6D8), rgb(0x211D18)};
constexpr UIColor bar{"scene.bar", rgb(0xF9F4EC), rgb(0x2B2620)};
constexpr UIColor shade{"scene.shade", rgb(0xDFD3C1), rgb(0x50473B)};
constexpr UIColor paper{"scene.paper", rgb(0xFFFDF9), rgb(0x352F28)};
constexpr UIColor coral{"scene.coral", rgb(0xFF6F5B), rgb(0xC9594A)};
constexpr UIColor sun{"scene.sun", rgb(0xFFC655), rgb(0xC99A42)};
constexpr UIColor sky{"scene.sky", rgb(0x7CC4F2), rgb(0x5F96BA)};

constexpr double barHeight = 56, margin = 16, corner = 8;
// The posters leave room for it.
constexpr double paywallWidth = 375;

class SceneView final : public uikit::UIView {
public:
    std::string_view typeName() const override { return "SceneView"; }

protected:
    void draw(graphics::PaintContext& context, const graphics::PaintState& state) const override {
        const Painter painter{context, state};
        painter.fill(bounds(), sand, 0);
        drawPosters(painter);
        drawBar(painter);
    }

private:
    struct Painter {
        graphics::PaintContext& context;
        const graphics::PaintState& state;

        void fill(const Rect& rect, const UIColor& color, double radius = corner) const {
            const graphics::RGBA value = color.resolved(state.scheme);
            if (radius > 0)
                context.fillRoundedRectangle(state, rect, radius, geometry::CornerStyle::continuous, value);
            else
                context.fillRectangle(state, rect, value);
        }
        void disc(const Rect& rect, const UIColor& color) const { context.fillEllipse(state, rect, color.resolved(state.scheme)); }
    };

    void drawBar(const Painter& painter) const {
        const double width = bounds().width();
        painter.fill({{0, 0}, {width, barHeight}}, bar, 0);
        painter.fill({{margin, 14}, {28, 28}}, coral);
        painter.fill({{60, 23}, {96, 10}}, shade, 5);
        for (int tool = 0; tool < 4; ++tool) painter.disc({{width / 2 - 78 + 44.0 * tool, 16}, {24, 24}}, shade);
        painter.fill({{width - margin - 84, 14}, {84, 28}}, shade, 14);
    }

    // One in the middle and one on either side, which is what is seen beside a card.
    void drawPosters(const Painter& painter) const {
        const Rect desk{{0, barHeight}, {bounds().width(), std::max(0.0, bounds().height() - barHeight)}};
        const double beside = std::max(0.0, (desk.width() - paywallWidth) / 2);
        const double width = std::clamp(beside - 2 * margin, 140.0, 260.0), height = width * 1.4;
        const double step = paywallWidth / 2 + beside / 2;
        const UIColor* const sparks[] = {&sun, &coral, &sky};
        for (int index = 0; index < 3; ++index) {
            const Rect poster{{desk.center().x - width / 2 + step * (index - 1), desk.center().y - height / 2}, {width, height}};
            painter.context.shadow(painter.state, poster, 12, {0, 8}, rgb(0x000000, 28));
            drawPoster(painter, poster, *sparks[index]);
        }
    }

    // A picture, a headline and a line of text.
    static void drawPoster(const Painter& painter, const Rect& poster, const UIColor& spark) {
        const double unit = poster.width() / 20;
        const auto at = [&](double x, double y, double width, double height) {
            return Rect{poster.origin + geometry::Point{x * unit, y * unit}, {width * unit, height * unit}};
        };
        painter.fill(poster, paper, 12);
        painter.fill(at(1.5, 1.5, 17, 15), shade);
        painter.disc(at(13, 3.5, 3.5, 3.5), spark);
        painter.fill(at(1.5, 18.5, 13, 1.6), shade, 0.8 * unit);
        painter.fill(at(1.5, 21.3, 9, 1.6), shade, 0.8 * unit);
        painter.fill(at(1.5, 24.9, 6, 0.9), shade, 0.45 * unit);
    }
};

} // namespace

void SceneViewController::viewDidLoad() {
    const auto scene = std::make_shared<SceneView>();
    view()->addSubview(scene);
    scene->fillSuperview();
}

} // namespace proupsells::hostprogram

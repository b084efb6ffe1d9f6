// A display list like a paywall's, painted by hand: a header picture, two cards, a button and twenty texts on 375 × 800 points.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "Backends/Raster/RasterTextShaper.hpp"
#include "Platform/Graphics/PaintContext.hpp"

namespace proupsells::tests {

class SyntheticPaywall {
public:
    static constexpr geometry::Size size{375, 800};

    // `pictures` is a folder for the vector images, which are written there.
    explicit SyntheticPaywall(const std::filesystem::path& pictures);

    // What is shown with the first or the second plan selected.
    void paint(graphics::DisplayList& list, int selectedPlan) const;

private:
    struct Label {
        std::shared_ptr<const graphics::ShapedText> text;
        graphics::TextLayout layout;
    };

    Label label(const std::string& text, const graphics::FontFace& face, double size, double width);
    void paintLabel(graphics::PaintContext& context, const Label& label, geometry::Point origin, graphics::RGBA color) const;
    void paintHeader(graphics::PaintContext& context) const;
    void paintCard(graphics::PaintContext& context, double y, double height, bool isSelected) const;
    void paintButton(graphics::PaintContext& context, int selectedPlan) const;
    graphics::ImageRef image(const std::filesystem::path& folder, const std::string& name, geometry::Size size,
                             unsigned (*colorAt)(double x, double y));

    rasterbackend::RasterTextShaper m_shaper;
    graphics::ImageRef m_header, m_logo, m_gradient, m_close, m_diamond;
    Label m_title, m_compare, m_yearly, m_trial, m_badge, m_oldPrice, m_price, m_period, m_effective, m_monthly, m_monthlyPrice,
        m_perMonth;
    Label m_actions[2], m_disclaimers[2], m_links[3];
};

} // namespace proupsells::tests

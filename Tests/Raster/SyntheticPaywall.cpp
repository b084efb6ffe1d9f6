#include "Tests/Raster/SyntheticPaywall.hpp"

#include <cmath>

#include "Tests/Raster/PngFiles.hpp"

namespace proupsells::tests {

using geometry::CornerStyle;
using geometry::Rect;
using graphics::PaintContext;
using graphics::PaintState;
using graphics::rgb;
using graphics::RGBA;

namespace {

constexpr RGBA ink = rgb(0x15191C), grey = rgb(0x5A6268), teal = rgb(0x0A7C78), paper = rgb(0xFFFFFF), card = rgb(0xF4F5F3);

using Color = unsigned; // 0xAARRGGBB, not premultiplied

Color headerAt(double x, double y) {
    const int column = int(x / 60), row = int(y / 60);
    if (std::hypot(x - 10 - column * 60, y - 8 - row * 60) < 9) return 0xFF6D5BD0;
    const bool isTile = x - column * 60 >= 10 && y - row * 60 >= 8;
    return !isTile ? 0xFF203040 : column % 2 ? 0xFFFF6F5B : 0xFFFFC655;
}
Color logoAt(double x, double) { return x < 170 ? 0xFF15191C : x < 176 ? 0 : 0xFF0A7C78; }
Color gradientAt(double, double y) { return Color(y / 80 * 255) << 24 | 0xFFFFFF; }
Color closeAt(double x, double y) { return std::hypot(x - 12, y - 12) < 12 ? 0x66000000 : 0; }
Color diamondAt(double x, double y) { return std::abs(x - 12) + std::abs(y - 12) < 10 ? 0xFF0A7C78 : 0; }

} // namespace

SyntheticPaywall::SyntheticPaywall(const std::filesystem::path& pictures) {
    const auto& regular = graphics::registerFontFace("SyntheticPaywall-Regular", "Inter", 400);
    const auto& medium = graphics::registerFontFace("SyntheticPaywall-Medium", "Inter", 500);
    const auto& bold = graphics::registerFontFace("SyntheticPaywall-Bold", "Inter", 700);
    m_header = image(pictures, "header", {375, 254}, headerAt);
    m_logo = image(pictures, "logo", {208, 26}, logoAt);
    m_gradient = image(pictures, "gradient", {375, 80}, gradientAt);
    m_close = image(pictures, "close", {24, 24}, closeAt);
    m_diamond = image(pictures, "diamond", {24, 24}, diamondAt);
    m_title = label("Endless premium templates, updated daily.", bold, 18, 280);
    m_compare = label("Compare Plans: Free vs Pro", regular, 16, 300);
    m_yearly = label("Annually", medium, 17, 200);
    m_trial = label("7 DAY FREE TRIAL", bold, 11, 200);
    m_badge = label("SAVE 45%", bold, 10, 200);
    m_oldPrice = label("$143.88", bold, 18, 200);
    m_price = label("$99.99", bold, 18, 200);
    m_period = label("per year", regular, 16, 200);
    m_effective = label("($8.33/month).", regular, 16, 200);
    m_monthly = label("Monthly", medium, 17, 200);
    m_monthlyPrice = label("$14.99", bold, 18, 200);
    m_perMonth = label("per month", regular, 16, 200);
    m_actions[0] = label("Start Your Free Trial", bold, 17, 300);
    m_actions[1] = label("Subscribe Now", bold, 17, 300);
    m_disclaimers[0] =
        label("Cancel within 7 days, and you won’t be charged. Payment will be made automatically after the trial ends.", regular,
              13, 335);
    m_disclaimers[1] = label("Payment will be made automatically every month until you cancel.", regular, 13, 335);
    m_links[0] = label("Terms of Service", medium, 14, 200);
    m_links[1] = label("Privacy Policy", medium, 14, 200);
    m_links[2] = label("Restore Purchases", medium, 14, 200);
}

graphics::ImageRef SyntheticPaywall::image(const std::filesystem::path& folder, const std::string& name, geometry::Size size,
                                           unsigned (*colorAt)(double x, double y)) {
    constexpr int scale = 2;
    auto image = std::make_shared<graphics::Image>();
    image->name = name;
    image->size = size;
    image->file = writePicture(folder / (name + ".png"), int(size.width) * scale, int(size.height) * scale,
                               [&](int x, int y) { return colorAt((x + 0.5) / scale, (y + 0.5) / scale); });
    return image;
}

SyntheticPaywall::Label SyntheticPaywall::label(const std::string& text, const graphics::FontFace& face, double size,
                                                double width) {
    const graphics::StyledRun run{text, {.face = &face, .size = size}, 0};
    Label label{m_shaper.shape({&run, 1}, "en", geometry::LayoutDirection::leftToRight), {}};
    graphics::layOutText(*label.text, {.width = width}, label.layout);
    return label;
}

void SyntheticPaywall::paintLabel(PaintContext& context, const Label& label, geometry::Point origin, RGBA color) const {
    double y = origin.y;
    for (const graphics::TextLine& line : label.layout.lines) {
        for (std::uint32_t index = line.firstFragment; index < line.endFragment; ++index) {
            const graphics::TextFragment& fragment = label.layout.fragments[index];
            context.text({}, {origin.x + fragment.x, y + line.ascent}, {{origin.x, y}, {line.width, line.height}}, label.text,
                         fragment.firstCluster, fragment.endCluster, color);
        }
        y += line.height;
    }
}

void SyntheticPaywall::paintHeader(PaintContext& context) const {
    context.image(PaintState{}.clippedTo({{0, 0}, {375, 244}}), {{0, -10}, {375, 254}}, m_header);
    paintLabel(context, m_title, {10, 184}, paper);
    for (int dot = 0; dot < 4; ++dot)
        context.fillEllipse({}, {{306.5 + 10 * dot, 205}, {7, 7}}, dot == 0 ? paper : rgb(0xFFFFFF, 90));
    context.image({}, {{83.5, 257}, {208, 26}}, m_logo);
    context.image({}, {{10, 291}, {24, 24}}, m_diamond);
    paintLabel(context, m_compare, {44, 294}, ink);
}

void SyntheticPaywall::paintCard(PaintContext& context, double y, double height, bool isSelected) const {
    const Rect frame{{16, y}, {343, height}};
    context.fillRoundedRectangle({}, frame, 6, CornerStyle::continuous, card);
    context.strokeRoundedRectangle(PaintState{}.fadedBy(isSelected ? 1 : 0), frame, 6, CornerStyle::continuous, 2, teal);
    const Rect ring{{322, y + height / 2 - 11}, {22, 22}};
    if (isSelected) {
        context.strokeEllipse({}, ring, 2, teal);
        context.fillEllipse({}, ring.insetBy(4, 4), teal);
    } else {
        context.fillEllipse({}, ring, paper);
        context.strokeEllipse({}, ring, 2, rgb(0x8A9299));
    }
}

void SyntheticPaywall::paintButton(PaintContext& context, int selectedPlan) const {
    const Label& action = m_actions[selectedPlan];
    context.fillRoundedRectangle({}, {{16, 564}, {343, 56}}, 28, CornerStyle::continuous, teal);
    paintLabel(context, action, {187.5 - action.layout.size.width / 2, 582}, paper);
    const Label& disclaimer = m_disclaimers[selectedPlan];
    paintLabel(context, disclaimer, {187.5 - disclaimer.layout.size.width / 2, 634}, grey);
    const double linkY = 644 + disclaimer.layout.size.height;
    paintLabel(context, m_links[0], {16, linkY}, grey);
    paintLabel(context, m_links[1], {140, linkY}, grey);
    paintLabel(context, m_links[2], {245, linkY}, grey);
}

void SyntheticPaywall::paint(graphics::DisplayList& list, int selectedPlan) const {
    list.clear();
    PaintContext context(list);
    context.fillRectangle({}, {{}, size}, paper);
    paintHeader(context);
    paintCard(context, 323, 105, selectedPlan == 0);
    paintLabel(context, m_yearly, {30, 342}, ink);
    context.fillRoundedRectangle({}, {{109, 340}, {118, 24}}, 12, CornerStyle::continuous, rgb(0xD8F1EE));
    paintLabel(context, m_trial, {117, 345}, rgb(0x085E5B));
    context.fillRoundedRectangle({}, {{286, 315}, {60, 16}}, 2, CornerStyle::circular, teal);
    paintLabel(context, m_badge, {290, 317}, paper);
    paintLabel(context, m_oldPrice, {30, 372}, grey);
    context.fillRectangle({}, {{30, 382.5}, {m_oldPrice.layout.size.width, 1}}, grey);
    paintLabel(context, m_price, {103, 372}, ink);
    paintLabel(context, m_period, {170, 374}, grey);
    paintLabel(context, m_effective, {30, 396}, grey);
    paintCard(context, 444, 90, selectedPlan == 1);
    paintLabel(context, m_monthly, {30, 460}, ink);
    paintLabel(context, m_monthlyPrice, {30, 492}, ink);
    paintLabel(context, m_perMonth, {98, 494}, grey);
    paintButton(context, selectedPlan);
    context.image({}, {{0, 720}, {375, 80}}, m_gradient);
    context.image({}, {{337, 14}, {24, 24}}, m_close);
}

} // namespace proupsells::tests

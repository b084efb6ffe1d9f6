#include "Backends/Raster/GlyphOutline.hpp"

#include <hb.h>
#include <memory>

namespace proupsells::rasterbackend {

namespace {

using geometry::Point;

// Builds a path in ems from an outline in the font's own units.
struct PathBuilder {
    geometry::Path path;
    double unitsPerEm;
    Point last{};

    Point point(float x, float y) const { return {double(x) / unitsPerEm, -double(y) / unitsPerEm}; }
};

PathBuilder& builder(void* data) { return *static_cast<PathBuilder*>(data); }

void moveTo(hb_draw_funcs_t*, void* data, hb_draw_state_t*, float x, float y, void*) {
    PathBuilder& self = builder(data);
    self.path.moveTo(self.last = self.point(x, y));
}

void lineTo(hb_draw_funcs_t*, void* data, hb_draw_state_t*, float x, float y, void*) {
    PathBuilder& self = builder(data);
    self.path.lineTo(self.last = self.point(x, y));
}

void quadraticTo(hb_draw_funcs_t*, void* data, hb_draw_state_t*, float controlX, float controlY, float x, float y, void*) {
    PathBuilder& self = builder(data);
    const Point middle = self.point(controlX, controlY), end = self.point(x, y);
    const auto towards = [&](Point from) {
        return Point{from.x + (middle.x - from.x) * 2 / 3, from.y + (middle.y - from.y) * 2 / 3};
    };
    self.path.cubicTo(towards(self.last), towards(end), end);
    self.last = end;
}

void cubicTo(hb_draw_funcs_t*, void* data, hb_draw_state_t*, float control1X, float control1Y, float control2X, float control2Y,
             float x, float y, void*) {
    PathBuilder& self = builder(data);
    self.path.cubicTo(self.point(control1X, control1Y), self.point(control2X, control2Y), self.last = self.point(x, y));
}

void closePath(hb_draw_funcs_t*, void* data, hb_draw_state_t*, void*) { builder(data).path.close(); }

struct FuncsDestroyer {
    void operator()(hb_draw_funcs_t* funcs) const { hb_draw_funcs_destroy(funcs); }
};

hb_draw_funcs_t* pathFuncs() {
    static const std::unique_ptr<hb_draw_funcs_t, FuncsDestroyer> funcs = [] {
        std::unique_ptr<hb_draw_funcs_t, FuncsDestroyer> made(hb_draw_funcs_create());
        hb_draw_funcs_set_move_to_func(made.get(), moveTo, nullptr, nullptr);
        hb_draw_funcs_set_line_to_func(made.get(), lineTo, nullptr, nullptr);
        hb_draw_funcs_set_quadratic_to_func(made.get(), quadraticTo, nullptr, nullptr);
        hb_draw_funcs_set_cubic_to_func(made.get(), cubicTo, nullptr, nullptr);
        hb_draw_funcs_set_close_path_func(made.get(), closePath, nullptr, nullptr);
        hb_draw_funcs_make_immutable(made.get());
        return made;
    }();
    return funcs.get();
}

} // namespace

geometry::Path readOutline(hb_font_t* unscaled, std::uint32_t glyph) {
    PathBuilder builder{{}, double(hb_face_get_upem(hb_font_get_face(unscaled)))};
    hb_font_get_glyph_shape(unscaled, glyph, pathFuncs(), &builder);
    return std::move(builder.path);
}

} // namespace proupsells::rasterbackend

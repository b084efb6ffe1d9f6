#include "Apps/ProUpsellsHost/Numbers.hpp"

#include <cmath>

#include <nlohmann/json.hpp>

namespace proupsells::hostprogram {

Json toJson(double number) {
    const double rounded = std::round(number * 1e6) / 1e6;
    if (rounded == std::floor(rounded) && std::abs(rounded) < 0x1p53) return static_cast<std::int64_t>(rounded);
    return rounded;
}

Json toJson(const geometry::Rect& rect) {
    return Json::array({toJson(rect.origin.x), toJson(rect.origin.y), toJson(rect.size.width), toJson(rect.size.height)});
}

Json toJson(geometry::Size size) { return Json::array({toJson(size.width), toJson(size.height)}); }

Json toJson(geometry::Point point) { return Json::array({toJson(point.x), toJson(point.y)}); }

Json toJson(const geometry::PhysicalInsets& insets) {
    return Json::array({toJson(insets.top), toJson(insets.left), toJson(insets.bottom), toJson(insets.right)});
}

} // namespace proupsells::hostprogram

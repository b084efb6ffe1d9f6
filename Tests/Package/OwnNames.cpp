// A host that has names of its own which the module has, too; it compiles and links, and each side keeps to its own.
#include "ProUpsells/Headless.hpp"
#include "ProUpsells/ProUpsells.hpp"

#include <string>

namespace geometry {
struct Point {
    std::string name;
};
} // namespace geometry

namespace commons {
std::string fatalError(const char* message) { return message; }
} // namespace commons

int main() {
    proupsells::headless::TestBed bed;
    const auto window = proupsells::uikit::UIWindow::create({375, 800});
    window->setRootViewController(proupsells::VelaProStorePageViewController::create({}, {"Home"}, {}));
    bed.settle();
    const proupsells::geometry::Point origin = window->frame().origin;
    const geometry::Point own{"a corner"};
    return own.name == "a corner" && origin.x == 0 && commons::fatalError("none") == "none" ? 0 : 1;
}

// A host that reads and writes what the module remembers through inline functions and data of its headers: each is there once,
// however the host and the libraries are linked.
#include "ProUpsells/Headless.hpp"
#include "ProUpsells/ProUpsells.hpp"

#include <iostream>

using namespace proupsells;

namespace {

bool seesTheTheme() {
    Theme theme;
    theme.colors["marwickContentAccent"] = {graphics::rgb(0x8C2F39), graphics::rgb(0xF0938A)};
    setTheme(theme);
    const graphics::Color accent{"marwickContentAccent", graphics::rgb(0x000000), graphics::rgb(0x000000)};
    return accent.resolved(graphics::ColorScheme::light) == graphics::rgb(0x8C2F39);
}

bool isSeenToAskForOneMoreShelf() {
    const auto shelfCount = [] { return VelaProStorePageViewController::create({}, {"Home"}, {})->shelves().size(); };
    const auto before = shelfCount();
    VelaProStorePageViewController::shouldMentioniCloudSync = true;
    return shelfCount() == before + 1;
}

} // namespace

int main() {
    const headless::TestBed bed;
    const bool theme = seesTheTheme();
    const bool shelf = isSeenToAskForOneMoreShelf();
    if (!theme) std::cout << "The host does not see the theme.\n";
    if (!shelf) std::cout << "The module does not see what the host asks for.\n";
    return theme && shelf ? 0 : 1;
}

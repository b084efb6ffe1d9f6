#include "Platform/Graphics/Typefaces.hpp"

#include <utility>

namespace proupsells::graphics {

namespace {

struct Setting {
    Typefaces typefaces;
    std::uint64_t changeCount = 0;
};

Setting& setting() {
    static Setting setting;
    return setting;
}

} // namespace

void Typefaces::setCurrent(Typefaces typefaces) {
    setting().typefaces = std::move(typefaces);
    ++setting().changeCount;
}

const Typefaces& Typefaces::current() { return setting().typefaces; }

std::uint64_t Typefaces::changeCount() { return setting().changeCount; }

} // namespace proupsells::graphics

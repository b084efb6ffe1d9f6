#include "Platform/Graphics/Typefaces.hpp"

#include <utility>

namespace proupsells::graphics {

namespace {

Typefaces currentTypefaces;
std::uint64_t changes = 0;

} // namespace

void Typefaces::setCurrent(Typefaces typefaces) {
    currentTypefaces = std::move(typefaces);
    ++changes;
}

const Typefaces& Typefaces::current() { return currentTypefaces; }

std::uint64_t Typefaces::changeCount() { return changes; }

} // namespace proupsells::graphics

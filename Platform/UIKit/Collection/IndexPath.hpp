// Where an item stands in a collection.
#pragma once

#include <compare>
#include <cstddef>

namespace proupsells::uikit {

struct IndexPath {
    std::size_t section = 0;
    std::size_t item = 0;

    auto operator<=>(const IndexPath&) const = default;
};

} // namespace proupsells::uikit

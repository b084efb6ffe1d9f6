// How deep views may stand inside each other.
#pragma once

namespace proupsells::host {

// Far above what a screen needs, and what a stack of a megabyte takes even where nothing is optimised: layout, painting and reading
// call themselves for each view inside another one. A view that stands in itself by mistake gets here.
inline constexpr int maximumTreeDepth = 500;

} // namespace proupsells::host

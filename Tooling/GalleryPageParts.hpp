// The files in Tooling/Gallery, as they are: the script is what the page shows, and then what happens on it.
#pragma once

#include <string_view>

namespace proupsells::tooling {

// The page with the marks {style}, {script} and {data}, each once.
std::string_view galleryFrame();
std::string_view galleryStyle();
std::string_view galleryScript();

} // namespace proupsells::tooling

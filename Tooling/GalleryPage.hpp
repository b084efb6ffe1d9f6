// A gallery as one page for a browser.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Tooling/Gallery.hpp"

namespace proupsells::tooling {

// HTML that needs the pictures and trees beside it and nothing else. The same gallery is the same page.
std::string galleryPage(const Gallery& gallery);

// The gallery inside such a page, as JSON: "version" 1, "pictures" with an array for each (screen, moment, locale, size, text
// size, appearance, digest, file, tree, width, height), and "changes" with "before", "after" and "words" for each. Absent where the
// text is no such page. The view is into `page`.
std::optional<std::string_view> galleryDataOf(std::string_view page);

} // namespace proupsells::tooling

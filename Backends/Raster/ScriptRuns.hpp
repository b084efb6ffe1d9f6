// Which script each cluster is shaped in.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include <hb.h>

namespace proupsells::rasterbackend {

// `clusterStarts` are the first units of clusters, and the end; `scripts` gets one for each cluster. What belongs to no script, and
// marks, follow the letter before; at the beginning, the first letter that comes.
void findScripts(std::u16string_view units, std::span<const std::uint32_t> clusterStarts, std::vector<hb_script_t>& scripts);

} // namespace proupsells::rasterbackend

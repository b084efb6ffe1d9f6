// Names for views that last as long as the views do.
#pragma once

#include <cstdint>

namespace proupsells::accessibility {

// Another number than ever before in this process; never 0. Main thread only.
std::uint64_t newNodeId();

} // namespace proupsells::accessibility

#include "Platform/Accessibility/NodeId.hpp"

namespace proupsells::accessibility {

std::uint64_t newNodeId() {
    static std::uint64_t last = 0;
    return ++last;
}

} // namespace proupsells::accessibility

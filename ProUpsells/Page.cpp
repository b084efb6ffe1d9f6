#include "ProUpsells/Page.hpp"

namespace proupsells {

std::uint64_t Page::nextId() {
    static std::uint64_t last = 0;
    return ++last;
}

} // namespace proupsells

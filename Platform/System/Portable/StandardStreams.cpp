#include "Platform/System/StandardStreams.hpp"

namespace proupsells::system {

void holdStandardStreams() {}

} // namespace proupsells::system

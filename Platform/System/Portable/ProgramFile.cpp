#include "Platform/System/ProgramFile.hpp"

namespace proupsells::system {

std::filesystem::path programFile() { return {}; }

std::filesystem::path ownFile() { return {}; }

} // namespace proupsells::system

#include "Platform/System/SharedObject.hpp"

namespace proupsells::system {

SharedObject::SharedObject(const std::filesystem::path&)
    : m_library(nullptr), m_complaint("this system loads no libraries while a program runs") {}

// Null, as the library is.
SharedObject::Function SharedObject::function(const char*) { return reinterpret_cast<Function>(m_library); }

} // namespace proupsells::system

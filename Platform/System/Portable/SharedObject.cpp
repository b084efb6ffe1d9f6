#include "Platform/System/SharedObject.hpp"

namespace proupsells::system {

SharedObject::SharedObject(const std::filesystem::path&)
    : m_library(nullptr), m_complaint("this system loads no libraries while a program runs") {}

SharedObject::Function SharedObject::function(const char*) { return nullptr; }

} // namespace proupsells::system

#include "Platform/System/SharedObject.hpp"

#include <dlfcn.h>

namespace proupsells::system {

SharedObject::SharedObject(const std::filesystem::path& file) : m_library(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (!m_library) m_complaint = dlerror();
}

SharedObject::Function SharedObject::function(const char* name) {
    if (!m_library) return nullptr;
    void* const symbol = dlsym(m_library, name);
    const char* const reason = symbol ? nullptr : dlerror();
    m_complaint = reason ? reason : "";
    return reinterpret_cast<Function>(symbol);
}

} // namespace proupsells::system

// A library that the program loads while it runs.
#pragma once

#include <filesystem>
#include <string>

#include "Platform/System/Compiler.hpp"

namespace proupsells::system {

// The library stays loaded until the process ends, because what it made may live that long.
class PROUPSELLS_EXPORT SharedObject {
public:
    // Loads the library and what it needs.
    explicit SharedObject(const std::filesystem::path& file);

    using Function = void (*)();
    // Null when the library could not be loaded or has no such function. To be cast to the function's own type.
    Function function(const char* name);

    // Why the last step failed, in the system's words; empty when it did not.
    const std::string& complaint() const { return m_complaint; }

private:
    void* m_library; // null when it could not be loaded
    std::string m_complaint;
};

} // namespace proupsells::system

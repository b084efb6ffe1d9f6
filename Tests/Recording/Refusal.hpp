// Why something cannot be read.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace proupsells::hostprogram {

// What is said where a deed is refused; empty where it is not.
inline std::string refusalOf(const std::function<void()>& deed) {
    try {
        deed();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return {};
}

} // namespace proupsells::hostprogram

// Places in a JSON value, as complaints name them.
#pragma once

#include <string>
#include <string_view>

namespace proupsells::hostprogram {

// A key as a step of a JSON pointer, with the "/" before it.
inline std::string pointerStep(std::string_view key) {
    std::string step = "/";
    for (const char c : key) {
        if (c == '~')
            step += "~0";
        else if (c == '/')
            step += "~1";
        else
            step += c;
    }
    return step;
}

} // namespace proupsells::hostprogram

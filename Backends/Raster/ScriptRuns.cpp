#include "Backends/Raster/ScriptRuns.hpp"

#include <algorithm>
#include <unicode/utf16.h>

namespace proupsells::rasterbackend {

namespace {

hb_script_t scriptOf(char32_t character) {
    if (character < 0x80) {
        const bool isLetter = (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
        return isLetter ? HB_SCRIPT_LATIN : HB_SCRIPT_COMMON;
    }
    return hb_unicode_script(hb_unicode_funcs_get_default(), character);
}

bool isShared(hb_script_t script) {
    return script == HB_SCRIPT_COMMON || script == HB_SCRIPT_INHERITED || script == HB_SCRIPT_UNKNOWN;
}

} // namespace

void findScripts(std::u16string_view units, std::span<const std::uint32_t> clusterStarts, std::vector<hb_script_t>& scripts) {
    scripts.clear();
    hb_script_t current = HB_SCRIPT_COMMON;
    for (std::size_t cluster = 0; cluster + 1 < clusterStarts.size(); ++cluster) {
        char32_t first;
        U16_GET(units.data(), 0, clusterStarts[cluster], units.size(), first);
        const hb_script_t script = scriptOf(first);
        if (!isShared(script)) {
            if (current == HB_SCRIPT_COMMON) std::fill(scripts.begin(), scripts.end(), script);
            current = script;
        }
        scripts.push_back(current);
    }
}

} // namespace proupsells::rasterbackend

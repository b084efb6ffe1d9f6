#include "Platform/Graphics/Font.hpp"

#include <functional>
#include <map>

namespace proupsells::graphics {

namespace {

// A map's entries stay where they are, so that references to faces stay good.
std::map<std::string, FontFace, std::less<>>& registeredFaces() {
    static std::map<std::string, FontFace, std::less<>> faces;
    return faces;
}

} // namespace

const FontFace& registerFontFace(std::string_view name, std::string_view family, int weight) {
    if (const FontFace* face = findFontFace(name)) return *face;
    return registeredFaces().emplace(name, FontFace{std::string(name), std::string(family), weight}).first->second;
}

const FontFace* findFontFace(std::string_view name) {
    const auto& faces = registeredFaces();
    const auto found = faces.find(name);
    return found == faces.end() ? nullptr : &found->second;
}

} // namespace proupsells::graphics

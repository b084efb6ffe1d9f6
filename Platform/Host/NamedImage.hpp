// Images of a bundle, by asset name.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Graphics/Image.hpp"

namespace proupsells::host {

// The image in `name`.picture of the bundle, or else in `name`.svg, with `name`~dark beside it for the dark appearance if there is
// one. Read once, the same object on every later call. A missing or unreadable asset stops the program.
graphics::ImageRef namedImage(const std::string& name, const foundation::Bundle& bundle,
                              graphics::RenderingMode renderingMode = graphics::RenderingMode::original);

// A picture that is painted in the place of a bundle's own.
struct StandIn {
    std::filesystem::path file;
    std::optional<std::filesystem::path> darkFile; // shown instead in the dark appearance

    bool operator==(const StandIn&) const = default;
};

using StandIns = std::map<std::string, StandIn, std::less<>>; // by asset name

// Images that were read before follow. A stand-in that cannot be read, or whose shape is not that of the image, is one log line
// when the image is known, and the image stays as it is.
void setStandIns(StandIns standIns);

} // namespace proupsells::host

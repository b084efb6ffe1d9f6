// One page of the header carousel.
#pragma once

#include <cstdint>
#include <string>

#include "Platform/Graphics/Image.hpp"

namespace proupsells {

struct Page {
    // Made for each page when it is created; no two are alike.
    std::uint64_t id = nextId();
    graphics::ImageRef image;
    std::string title; // localized

    bool operator==(const Page&) const = default;

private:
    static std::uint64_t nextId();
};

} // namespace proupsells

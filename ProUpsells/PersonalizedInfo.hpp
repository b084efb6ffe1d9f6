// A picture and a line made for one user, carried for the host; the module shows none of it.
#pragma once

#include <string>
#include <utility>

#include "Platform/Graphics/Image.hpp"

namespace proupsells {

class PersonalizedInfo {
public:
    // The image may be null, and the line empty.
    PersonalizedInfo(graphics::ImageRef image, std::string tagline) : m_image(std::move(image)), m_tagline(std::move(tagline)) {}

    // As given.
    const graphics::ImageRef& image() const { return m_image; }
    const std::string& tagline() const { return m_tagline; }

private:
    graphics::ImageRef m_image;
    std::string m_tagline;
};

} // namespace proupsells

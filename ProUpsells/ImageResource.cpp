#include "ProUpsells/ImageResource.hpp"

#include "Platform/Host/NamedImage.hpp"

namespace proupsells {

graphics::ImageRef image(const ImageResource& resource, graphics::RenderingMode renderingMode) {
    return host::namedImage(resource.name, *resource.bundle, renderingMode);
}

} // namespace proupsells

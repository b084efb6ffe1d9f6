#include "Platform/Host/NamedImage.hpp"

#include <map>
#include <tuple>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Graphics/PictureHeader.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::host {

namespace {

[[noreturn]] void failToFind(const std::string& name, const foundation::Bundle& bundle) {
    commons::fatalError("There is no image \"" + name + "\" in " + system::textOf(bundle.folder()));
}

// The picture that the build has made, or what it is made of.
std::optional<std::filesystem::path> pictureFile(const std::string& name, const foundation::Bundle& bundle) {
    const auto file = bundle.pathForResource(name, graphics::PictureHeader::fileExtension);
    return file ? file : bundle.pathForResource(name, "svg");
}

graphics::ImageRef readImage(const std::string& name, const foundation::Bundle& bundle, graphics::RenderingMode renderingMode) {
    const auto file = pictureFile(name, bundle);
    if (!file) failToFind(name, bundle);
    const auto& decoder = Installation::current().imageDecoder;
    const auto size = decoder ? decoder->naturalSize(*file) : std::nullopt;
    if (!size) failToFind(name, bundle);

    auto image = std::make_shared<graphics::Image>();
    image->name = name;
    image->size = *size;
    image->file = *file;
    image->darkFile = pictureFile(name + "~dark", bundle);
    image->renderingMode = renderingMode;
    return image;
}

} // namespace

graphics::ImageRef namedImage(const std::string& name, const foundation::Bundle& bundle, graphics::RenderingMode renderingMode) {
    using Key = std::tuple<std::filesystem::path::string_type, std::string, graphics::RenderingMode>;
    static std::map<Key, graphics::ImageRef> images;
    graphics::ImageRef& image = images[{bundle.folder().native(), name, renderingMode}];
    if (!image) image = readImage(name, bundle, renderingMode);
    return image;
}

} // namespace proupsells::host

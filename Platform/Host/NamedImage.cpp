#include "Platform/Host/NamedImage.hpp"

#include <cmath>
#include <map>
#include <set>
#include <tuple>
#include <utility>

#include "Platform/Commons/DefaultLogger.hpp"
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

std::shared_ptr<graphics::Image> readImage(const std::string& name, const foundation::Bundle& bundle,
                                           graphics::RenderingMode renderingMode) {
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

// Every image that was read, and what stands in for some of them.
struct Images {
    using Key = std::tuple<std::filesystem::path::string_type, std::string, graphics::RenderingMode>;

    std::map<Key, std::shared_ptr<graphics::Image>> byKey;
    StandIns standIns;
    std::set<std::string> complaints; // about those stand-ins
};

Images& images() {
    static Images images;
    return images;
}

bool isOfSameShape(const geometry::Size& a, const geometry::Size& b) {
    constexpr double tolerance = 0.01; // of a side that was rounded to whole pixels
    return std::abs(a.width * b.height - a.height * b.width) <= tolerance * a.width * b.height;
}

std::string described(const geometry::Size& size) {
    const auto rounded = [](double length) { return std::to_string(std::lround(length)); };
    return rounded(size.width) + " x " + rounded(size.height);
}

// Empty where the file can stand in for the image, and where there is nobody to tell.
std::string complaintAbout(const std::filesystem::path& file, const graphics::Image& image) {
    const auto decoder = Installation::exists() ? Installation::current().imageDecoder : nullptr;
    if (!decoder) return {};
    const auto size = decoder->naturalSize(file);
    if (!size || !decoder->canRead(file)) return "cannot be read";
    if (isOfSameShape(*size, image.size)) return {};
    return "is " + described(*size) + ", which is not the shape of " + described(image.size);
}

// An image may be read more than once, in several rendering modes.
void reportOnce(const std::string& complaint) {
    if (!images().complaints.insert(complaint).second) return;
    commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity, complaint, "setStandIns");
}

bool canStandIn(const std::filesystem::path& file, const graphics::Image& image) {
    const std::string complaint = complaintAbout(file, image);
    if (!complaint.empty())
        reportOnce("The picture " + system::textOf(file) + " " + complaint + "; \"" + image.name + "\" stays as it is");
    return complaint.empty();
}

graphics::ImageRef standInFor(const graphics::Image& image) {
    const auto found = images().standIns.find(image.name);
    if (found == images().standIns.end()) return nullptr;
    const auto& [file, darkFile] = found->second;
    if (!canStandIn(file, image) || (darkFile && !canStandIn(*darkFile, image))) return nullptr;
    auto standIn = std::make_shared<graphics::Image>(image);
    standIn->standIn = nullptr;
    standIn->file = file;
    standIn->darkFile = darkFile;
    return standIn;
}

} // namespace

graphics::ImageRef namedImage(const std::string& name, const foundation::Bundle& bundle, graphics::RenderingMode renderingMode) {
    std::shared_ptr<graphics::Image>& image = images().byKey[{bundle.folder().native(), name, renderingMode}];
    if (!image) {
        image = readImage(name, bundle, renderingMode);
        image->standIn = standInFor(*image);
    }
    return image;
}

void setStandIns(StandIns standIns) {
    images().standIns = std::move(standIns);
    images().complaints.clear();
    for (const auto& [key, image] : images().byKey) image->standIn = standInFor(*image);
}

} // namespace proupsells::host

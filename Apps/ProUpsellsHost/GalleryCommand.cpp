#include "Apps/ProUpsellsHost/GalleryCommand.hpp"

#include <iostream>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/DeviceOptions.hpp"
#include "Apps/ProUpsellsHost/GalleryPainter.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/PixelDifference.hpp"
#include "Platform/Foundation/Resources.hpp"
#include "Platform/System/PathText.hpp"
#include "Tooling/GalleryComparison.hpp"
#include "Tooling/GalleryPage.hpp"

namespace proupsells::hostprogram {

namespace {

using tooling::Gallery;
using tooling::GalleryPicture;

GallerySubject readGallerySubject(const GalleryArguments& arguments) {
    const auto offers = arguments.offers ? *arguments.offers : foundation::requiredResource("offers.json");
    return {.offers = readOffersFile(offers),
            .device = brandedDevice(arguments.strings, arguments.theme),
            .matrix = arguments.matrix ? readGalleryMatrix(*arguments.matrix, arguments.strings)
                                       : defaultGalleryMatrix(arguments.strings)};
}

tooling::ScreenTree readTree(const std::filesystem::path& folder, const GalleryPicture& picture) {
    auto tree = tooling::readScreenText(readGalleryFile(folder, picture.tree));
    if (!tree)
        throw InputError(system::textOf(folder / system::pathOf(picture.tree)), "",
                         "the file is no tree, expected one that a gallery has written");
    return std::move(*tree);
}

// What has changed, with what there was before copied into the new gallery.
std::vector<tooling::GalleryChange> compare(const Gallery& before, const std::filesystem::path& old, const Gallery& after,
                                            const GalleryFolder& folder) {
    const tooling::GallerySources sources{
        .treeBefore = [&](const GalleryPicture& picture) { return readTree(old, picture); },
        .treeAfter = [&](const GalleryPicture& picture) { return readTree(folder.path(), picture); },
        .pixels =
            [&](const GalleryPicture& former, const GalleryPicture& picture) {
                return pixelDifference(readGalleryFile(old, former.file), readGalleryFile(folder.path(), picture.file));
            }};
    auto changes = tooling::galleryChanges(before.pictures, after.pictures, sources);
    for (auto& change : changes) {
        if (!change.before) continue;
        for (std::string* name : {&change.before->file, &change.before->tree}) {
            const std::string copy = "before/" + *name;
            folder.write(copy, readGalleryFile(old, *name));
            *name = copy;
        }
    }
    return changes;
}

std::string summaryOf(const Gallery& gallery, const std::filesystem::path& page) {
    // Every screen has several moments.
    const std::string summary = system::textOf(page) + ": " + std::to_string(gallery.pictures.size()) + " pictures";
    if (!gallery.changes) return summary;
    std::size_t changed = 0, appeared = 0, gone = 0;
    for (const auto& change : *gallery.changes) ++(!change.before ? appeared : !change.after ? gone : changed);
    return summary + ", " + std::to_string(changed) + " changed, " + std::to_string(appeared) + " new, " + std::to_string(gone) +
           " gone";
}

} // namespace

int makeGallery(const GalleryArguments& arguments) {
    constexpr int unchanged = 0, hasChanged = 1;
    const GallerySubject subject = readGallerySubject(arguments);
    const std::optional<Gallery> before = arguments.former ? std::optional(readGallery(*arguments.former)) : std::nullopt;
    std::error_code error;
    if (before && std::filesystem::equivalent(*arguments.former, arguments.folder, error))
        throw InputError(commandLinePlace, "/compare", "the gallery to compare with would be written over, expected another --out");
    const GalleryFolder folder(arguments.folder);
    const Gallery replaced = readGallery(folder.path());

    Gallery gallery{.pictures = paintGallery(subject, folder)};
    if (before) gallery.changes = compare(*before, *arguments.former, gallery, folder);
    folder.write(galleryPageName, tooling::galleryPage(gallery));
    folder.removeLeftOvers(replaced, gallery);

    if (gallery.changes) std::cout << tooling::galleryReport(*gallery.changes);
    std::cout << summaryOf(gallery, folder.path() / galleryPageName) << '\n';
    return gallery.changes && !gallery.changes->empty() ? hasChanged : unchanged;
}

} // namespace proupsells::hostprogram

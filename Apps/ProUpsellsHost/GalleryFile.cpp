// What stands in a gallery's page.
#include <algorithm>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/GalleryFolder.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/Json.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"
#include "Tooling/GalleryPage.hpp"

namespace proupsells::hostprogram {

namespace {

[[noreturn]] void failNoGallery(const std::filesystem::path& page, const std::string& complaint) {
    throw InputError(system::textOf(page), "", complaint + ", expected the page of a gallery");
}

// Whether it names a file below the gallery's folder.
bool staysInside(const std::string& name) {
    const std::filesystem::path path = system::pathOf(name);
    return !name.empty() && path.is_relative() && !path.has_root_path() && path.has_filename() &&
           name.find('\\') == std::string::npos &&
           std::none_of(path.begin(), path.end(), [](const auto& part) { return part == ".." || part == "."; });
}

class PageReader {
public:
    explicit PageReader(const std::filesystem::path& page) : m_page(page) {}

    tooling::Gallery read(std::string_view data) const {
        const Json json = Json::parse(data, nullptr, false);
        expect(json.is_object() && json.contains("version") && json["version"] == 1 && json.contains("pictures"));
        tooling::Gallery gallery;
        expect(json["pictures"].is_array());
        for (const Json& row : json["pictures"]) gallery.pictures.push_back(readPicture(row));
        if (!json.contains("changes")) return gallery;
        expect(json["changes"].is_array());
        gallery.changes.emplace();
        for (const Json& change : json["changes"]) {
            expect(change.is_object() && change.contains("before"));
            if (!change["before"].is_null())
                gallery.changes->push_back({.before = readPicture(change["before"]), .after = {}, .words = {}});
        }
        return gallery;
    }

private:
    void expect(bool holds) const {
        if (!holds) failNoGallery(m_page, "the data in the page is not a gallery's");
    }

    tooling::GalleryPicture readPicture(const Json& row) const {
        constexpr std::size_t textCount = 9, count = 11;
        expect(row.is_array() && row.size() == count);
        tooling::GalleryPicture picture;
        std::string* const texts[] = {&picture.screen,     &picture.moment, &picture.locale, &picture.size, &picture.textSize,
                                      &picture.appearance, &picture.digest, &picture.file,   &picture.tree};
        static_assert(std::size(texts) == textCount);
        for (std::size_t i = 0; i < textCount; ++i) {
            expect(row[i].is_string());
            *texts[i] = row[i].get<std::string>();
        }
        expect(row[textCount].is_number_integer() && row[textCount + 1].is_number_integer());
        picture.width = row[textCount].get<int>();
        picture.height = row[textCount + 1].get<int>();
        expect(staysInside(picture.file) && staysInside(picture.tree));
        return picture;
    }

    const std::filesystem::path& m_page;
};

} // namespace

tooling::Gallery readGallery(const std::filesystem::path& folder) {
    const std::filesystem::path page = folder / galleryPageName;
    const auto bytes = system::contentsOf(page);
    if (!bytes) failNoGallery(page, "the file cannot be read");
    const auto data = tooling::galleryDataOf(*bytes);
    if (!data) failNoGallery(page, "the file is something else");
    return PageReader(page).read(*data);
}

std::string readGalleryFile(const std::filesystem::path& folder, const std::string& name) {
    const std::filesystem::path file = folder / system::pathOf(name);
    auto bytes = system::contentsOf(file);
    if (!bytes) throw InputError(system::textOf(file), "", "the file cannot be read, expected one that the gallery's page names");
    return std::move(*bytes);
}

} // namespace proupsells::hostprogram

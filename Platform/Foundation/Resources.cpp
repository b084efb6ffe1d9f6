#include "Platform/Foundation/Resources.hpp"

#include <algorithm>
#include <utility>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Foundation/ResourcePlace.hpp"
#include "Platform/System/EmbeddedFiles.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"
#include "Platform/System/ProgramFile.hpp"

namespace proupsells::foundation {

namespace {

std::filesystem::path& resourceRoot() {
    static std::filesystem::path root;
    return root;
}

std::vector<std::filesystem::path>& addedPlaces() {
    static std::vector<std::filesystem::path> places;
    return places;
}

void addOnce(std::vector<std::filesystem::path>& places, std::filesystem::path place) {
    if (std::find(places.begin(), places.end(), place) == places.end()) places.push_back(std::move(place));
}

// Libraries lie as deep as lib/<architecture>, plug-ins and bundles of applications one folder deeper.
void addPlacesNear(const std::filesystem::path& file, std::vector<std::filesystem::path>& places) {
    std::filesystem::path folder = file.parent_path();
    for (int level = 0; level <= 3 && folder.has_relative_path(); ++level, folder = folder.parent_path())
        addOnce(places, folder / "share" / "proupsells");
}

// Whatever writes such a table is ours.
void addPlaceInsideProgram(std::vector<std::filesystem::path>& places) {
    if (!system::EmbeddedFiles::areThere()) return;
    if (const std::string complaint = system::EmbeddedFiles::complaint(); !complaint.empty())
        commons::fatalError("The resources inside the program are broken: " + complaint);
    places.push_back(system::EmbeddedFiles::root());
}

} // namespace

void setResourceRoot(std::filesystem::path folder) { resourceRoot() = std::move(folder); }

ResourcePlace::ResourcePlace(const char* folder) { addOnce(addedPlaces(), system::pathOf(folder)); }

std::vector<std::filesystem::path> resourcePlaces() {
    std::vector<std::filesystem::path> places;
    if (!resourceRoot().empty()) places.push_back(resourceRoot());
    addPlaceInsideProgram(places);
    addPlacesNear(system::ownFile(), places);
    addPlacesNear(system::programFile(), places);
    for (const auto& place : addedPlaces()) addOnce(places, place);
    return places;
}

std::optional<std::filesystem::path> findResource(std::string_view name) {
    for (const auto& place : resourcePlaces()) {
        auto found = place / system::pathOf(name);
        if (system::isThere(found)) return found;
    }
    return std::nullopt;
}

std::filesystem::path requiredResource(std::string_view name) {
    if (const auto found = findResource(name)) return *found;
    std::string message = "The resources of " + std::string(name) + " were looked for in vain in";
    const char* separator = " ";
    for (const auto& place : resourcePlaces()) message += std::exchange(separator, ", ") + system::textOf(place);
    commons::fatalError(message + "; name their folder with proupsells::foundation::setResourceRoot()");
}

} // namespace proupsells::foundation

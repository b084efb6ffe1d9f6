#include "Tooling/GalleryComparison.hpp"

#include <map>
#include <set>

#include "Tooling/ScreenDifference.hpp"

namespace proupsells::tooling {

namespace {

std::string configurationOf(const GalleryPicture& picture) {
    return picture.moment + ", " + picture.locale + " " + picture.size + " " + picture.textSize + " " + picture.appearance;
}

// Agrees for two pictures exactly when they show the same.
std::string keyOf(const GalleryPicture& picture) {
    std::string key;
    for (const auto* text :
         {&picture.screen, &picture.moment, &picture.locale, &picture.size, &picture.textSize, &picture.appearance})
        key += std::to_string(text->size()) + ":" + *text;
    return key;
}

std::string pixelsOf(const GalleryPicture& picture) {
    return std::to_string(picture.width) + " x " + std::to_string(picture.height) + " pixels";
}

constexpr const char* sameTree = "looks different, the same tree";

// Empty where nothing has changed.
std::vector<std::string> wordsFor(const GalleryPicture& before, const GalleryPicture& after, const GallerySources& sources) {
    std::vector<std::string> words = differences(sources.treeBefore(before), sources.treeAfter(after));
    const bool hasOtherSize = before.width != after.width || before.height != after.height;
    if (hasOtherSize)
        words.insert(words.begin(), "the picture has " + pixelsOf(after) + " instead of " + pixelsOf(before));
    else if (words.empty() && before.digest != after.digest)
        words.emplace_back(sameTree);
    return words;
}

} // namespace

std::vector<GalleryChange> galleryChanges(std::span<const GalleryPicture> before, std::span<const GalleryPicture> after,
                                          const GallerySources& sources) {
    std::map<std::string, const GalleryPicture*> former;
    for (const GalleryPicture& picture : before) former.emplace(keyOf(picture), &picture);
    std::set<const GalleryPicture*> found;
    std::vector<GalleryChange> changes;
    for (const GalleryPicture& picture : after) {
        const auto match = former.find(keyOf(picture));
        if (match == former.end()) {
            changes.push_back({std::nullopt, picture, {"is new"}});
            continue;
        }
        found.insert(match->second);
        const GalleryPicture& other = *match->second;
        auto words = wordsFor(other, picture, sources);
        if (words.empty()) continue;
        const bool asksForPixels = words.front() == sameTree && sources.pixels;
        changes.push_back({other, picture, std::move(words), asksForPixels ? sources.pixels(other, picture) : ""});
    }
    for (const GalleryPicture& picture : before)
        if (!found.contains(&picture)) changes.push_back({picture, std::nullopt, {"is gone"}});
    return changes;
}

std::string galleryReport(std::span<const GalleryChange> changes) {
    struct Line {
        std::string text;
        std::string first;
        int count = 0;
    };
    std::vector<Line> lines;
    std::map<std::string, std::size_t> places;
    for (const GalleryChange& change : changes) {
        const GalleryPicture& picture = change.after ? *change.after : *change.before;
        for (const std::string& sentence : change.words) {
            const std::string text = picture.screen + ": " + sentence;
            const auto [place, isNew] = places.try_emplace(text, lines.size());
            if (isNew) lines.push_back({text, configurationOf(picture)});
            ++lines[place->second].count;
        }
    }
    std::string report;
    for (const Line& line : lines) {
        report += line.text + " [" + line.first;
        if (line.count > 1) report += ", the first of " + std::to_string(line.count) + " pictures";
        report += "]\n";
    }
    return report;
}

} // namespace proupsells::tooling

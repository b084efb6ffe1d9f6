#include "Tooling/GalleryPage.hpp"

#include "Tooling/GalleryPageParts.hpp"

namespace proupsells::tooling {

namespace {

constexpr std::string_view dataBegin = "<script type=\"application/json\" id=\"gallery\">", dataEnd = "</script>";

// In quotation marks. Nothing in it ends the element that the data stands in.
void writeText(std::string& json, std::string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    json += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            json += std::string("\\") + c;
        else if (byte < ' ' || c == '<' || c == '>' || c == '&')
            json += std::string("\\u00") + digits[byte >> 4] + digits[byte & 15];
        else
            json += c;
    }
    json += '"';
}

void writePicture(std::string& json, const GalleryPicture& picture) {
    json += '[';
    for (const std::string* text : {&picture.screen, &picture.moment, &picture.locale, &picture.size, &picture.textSize,
                                    &picture.appearance, &picture.digest, &picture.file, &picture.tree}) {
        writeText(json, *text);
        json += ',';
    }
    json += std::to_string(picture.width) + ',' + std::to_string(picture.height) + ']';
}

// Calls `write` for each element.
template <class Elements, class Write>
void writeArray(std::string& json, const Elements& elements, const Write& write) {
    json += '[';
    const char* separator = "\n";
    for (const auto& element : elements) {
        json += separator;
        separator = ",\n";
        write(element);
    }
    json += ']';
}

void writeChange(std::string& json, const GalleryChange& change) {
    const auto writeSide = [&](const std::optional<GalleryPicture>& side) {
        if (side)
            writePicture(json, *side);
        else
            json += "null";
    };
    json += R"({"before":)";
    writeSide(change.before);
    json += R"(,"after":)";
    writeSide(change.after);
    json += R"(,"words":)";
    std::vector<std::string> words = change.words;
    if (!change.pixels.empty()) words.push_back(change.pixels);
    writeArray(json, words, [&](const std::string& sentence) { writeText(json, sentence); });
    json += '}';
}

std::string dataOf(const Gallery& gallery) {
    std::string json = R"({"version":1,"pictures":)";
    writeArray(json, gallery.pictures, [&](const GalleryPicture& picture) { writePicture(json, picture); });
    if (gallery.changes) {
        json += R"(,"changes":)";
        writeArray(json, *gallery.changes, [&](const GalleryChange& change) { writeChange(json, change); });
    }
    return json + '}';
}

// Puts a text in the place of the one mark.
void replace(std::string& page, std::string_view mark, std::string_view text) {
    const std::size_t at = page.find(mark);
    page.replace(at, mark.size(), text);
}

} // namespace

std::string galleryPage(const Gallery& gallery) {
    std::string page(galleryFrame());
    replace(page, "{style}", galleryStyle());
    replace(page, "{script}", galleryScript());
    // The last one: what it puts in is not looked at again.
    replace(page, "{data}", std::string(dataBegin) + dataOf(gallery) + std::string(dataEnd));
    return page;
}

std::optional<std::string_view> galleryDataOf(std::string_view page) {
    const std::size_t begin = page.find(dataBegin);
    if (begin == std::string_view::npos) return std::nullopt;
    const std::string_view data = page.substr(begin + dataBegin.size());
    const std::size_t end = data.find(dataEnd);
    if (end == std::string_view::npos) return std::nullopt;
    return data.substr(0, end);
}

} // namespace proupsells::tooling

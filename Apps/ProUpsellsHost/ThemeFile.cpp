#include "Apps/ProUpsellsHost/ThemeFile.hpp"

#include <algorithm>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/InlineFiles.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/JsonCursor.hpp"
#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Platform/System/PathText.hpp"
#include "Tooling/Base64.hpp"

namespace proupsells::hostprogram {

namespace {

int hexadecimalDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

graphics::RGBA readValue(const JsonCursor& value) {
    const std::string text = value.text();
    std::uint32_t number = 0;
    bool isColor = text.size() == 7 && text[0] == '#';
    for (std::size_t i = 1; isColor && i < text.size(); ++i) {
        const int digit = hexadecimalDigit(text[i]);
        isColor = digit >= 0;
        number = number * 16 + std::uint32_t(std::max(0, digit));
    }
    if (!isColor) value.fail("\"" + text + "\" is no colour, expected one such as \"#0A7C78\"");
    return graphics::rgb(number);
}

Theme::Color readColor(const JsonCursor& value) {
    if (value.isText()) return {readValue(value), readValue(value)};
    value.expectObject({"light", "dark"});
    Theme::Color color;
    if (value.has("light")) color.light = readValue(value.at("light"));
    if (value.has("dark")) color.dark = readValue(value.at("dark"));
    return color;
}

std::filesystem::path readPath(const JsonCursor& value, const std::filesystem::path& folder) {
    const std::filesystem::path given = system::pathOf(value.text());
    if (given.empty()) value.fail("the file name is empty, expected one relative to the theme");
    return given.is_absolute() ? given : folder / given;
}

Theme::Picture readPicture(const JsonCursor& value, const std::filesystem::path& folder) {
    if (value.isText()) return {readPath(value, folder), {}};
    value.expectObject({"light", "dark"});
    Theme::Picture picture{readPath(value.at("light"), folder), {}};
    if (value.has("dark")) picture.darkFile = readPath(value.at("dark"), folder);
    return picture;
}

int readWeight(const JsonCursor& value) {
    const std::int64_t weight = value.wholeNumber();
    if (weight < 1 || weight > 1000) value.fail("the weight is out of range, expected 1 to 1000");
    return int(weight);
}

std::string readFamily(const JsonCursor& value) {
    std::string family = value.text();
    if (family.empty()) value.fail("the name is empty, expected that of a typeface's family");
    return family;
}

// A family's name, or an object with the name and its files.
std::string readFace(const JsonCursor& value, const std::filesystem::path& folder, Theme& theme) {
    if (value.isText()) return readFamily(value);
    value.expectObject({"family", "files"});
    std::string family = readFamily(value.at("family"));
    if (!value.has("files")) return family;
    for (const JsonCursor& face : value.at("files").elements()) {
        face.expectObject({"file", "weight"});
        theme.faceFiles.push_back(
            {family, face.has("weight") ? readWeight(face.at("weight")) : 400, readPath(face.at("file"), folder)});
    }
    return family;
}

void readFaces(const JsonCursor& faces, const std::filesystem::path& folder, Theme& theme) {
    faces.expectObject({"text", "display", "headings"});
    if (faces.has("text")) theme.families.text = readFace(faces.at("text"), folder, theme);
    if (faces.has("display")) theme.families.display = readFace(faces.at("display"), folder, theme);
    if (faces.has("headings")) theme.families.headings = readFace(faces.at("headings"), folder, theme);
}

// What the file itself does not say wrong: the contrasts.
void refuseProblems(const Theme& theme, const JsonCursor& root) {
    std::string list;
    for (const std::string& problem : theme.problems()) list += "\n  " + problem;
    if (list.empty()) return;
    try {
        root.at("colours").fail("colours do not stand out from each other, expected the contrasts below");
    } catch (const InputError& error) {
        throw InputErrorWithList(error, list);
    }
}

// Returns the folder that they are in.
std::filesystem::path readFiles(const JsonCursor& files) {
    InlineFiles kept;
    for (const std::string& name : files.keys()) {
        const JsonCursor file = files.at(name);
        const auto bytes = tooling::bytesOfBase64(file.text());
        if (name.empty() || name.find('/') != std::string::npos || name.find('\0') != std::string::npos)
            file.fail("\"" + name + "\" is no plain file name, expected one such as \"header.png\"");
        if (!bytes) file.fail("the bytes cannot be read, expected a text in Base64");
        kept.emplace_back(name, *bytes);
    }
    return keepInlineFiles(std::move(kept));
}

} // namespace

Theme readTheme(const JsonCursor& root, const std::filesystem::path& folder, ThemePlace place) {
    if (place == ThemePlace::insideAnotherFile)
        root.expectObject({"colours", "faces", "pictures", "files"});
    else
        root.expectObject({"colours", "faces", "pictures"});
    const std::filesystem::path files = root.has("files") ? readFiles(root.at("files")) : folder;

    Theme theme;
    if (root.has("colours")) {
        const JsonCursor colors = root.at("colours");
        colors.expectObject(Theme::colorNames());
        for (const std::string& name : colors.keys()) theme.colors[name] = readColor(colors.at(name));
    }
    if (root.has("faces")) readFaces(root.at("faces"), files, theme);
    if (root.has("pictures")) {
        const JsonCursor pictures = root.at("pictures");
        pictures.expectObject(Theme::pictureNames());
        for (const std::string& name : pictures.keys()) theme.pictures[name] = readPicture(pictures.at(name), files);
    }
    refuseProblems(theme, root);
    return theme;
}

Theme readThemeFile(const std::filesystem::path& file) {
    const Json json = readJsonFile(file);
    return readTheme(JsonCursor{json, system::textOf(file)}, file.parent_path(), ThemePlace::fileOfItsOwn);
}

} // namespace proupsells::hostprogram

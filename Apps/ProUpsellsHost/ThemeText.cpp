#include <algorithm>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/ThemeFile.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"
#include "Tooling/Base64.hpp"

namespace proupsells::hostprogram {

namespace {

std::string colorText(const graphics::RGBA& color) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "#";
    for (const auto part : {color.red, color.green, color.blue}) {
        text += digits[std::size_t(part) / 16];
        text += digits[std::size_t(part) % 16];
    }
    return text;
}

// The theme's files under plain names, each once.
class Files {
public:
    std::string add(const std::filesystem::path& file) {
        for (const auto& [path, name] : m_names)
            if (path == file) return name;
        const std::string name = std::to_string(m_names.size() + 1) + "-" + system::textOf(file.filename());
        m_names.emplace_back(file, name);
        const auto bytes = system::contentsOf(file);
        if (!bytes) throw InputError(system::textOf(file), "", "the file cannot be read, expected one that can be recorded");
        all[name] = tooling::base64Of(*bytes);
        return name;
    }

    Json all = Json::object();

private:
    std::vector<std::pair<std::filesystem::path, std::string>> m_names;
};

Json toJson(const Theme::Color& color) {
    Json result = Json::object();
    if (color.light) result["light"] = colorText(*color.light);
    if (color.dark) result["dark"] = colorText(*color.dark);
    return result;
}

Json toJson(const Theme::Picture& picture, Files& files) {
    Json result{{"light", files.add(picture.file)}};
    if (picture.darkFile) result["dark"] = files.add(*picture.darkFile);
    return result;
}

// Files of a family that has no part are never asked for.
Json facesOf(const Theme& theme, Files& files) {
    Json faces = Json::object();
    std::vector<std::string> described;
    const auto add = [&](const char* part, const std::string& family) {
        if (family.empty()) return;
        faces[part] = {{"family", family}};
        // Once: a file that is registered twice is read twice.
        if (std::find(described.begin(), described.end(), family) != described.end()) return;
        described.push_back(family);
        Json list = Json::array();
        for (const Theme::FaceFile& face : theme.faceFiles)
            if (face.family == family) list.push_back({{"file", files.add(face.file)}, {"weight", face.weight}});
        if (!list.empty()) faces[part]["files"] = std::move(list);
    };
    add("text", theme.families.text);
    add("display", theme.families.display);
    add("headings", theme.families.headings);
    return faces;
}

} // namespace

Json toJson(const Theme& theme) {
    Files files;
    Json result = Json::object();
    for (const auto& [name, color] : theme.colors) result["colours"][name] = toJson(color);
    if (Json faces = facesOf(theme, files); !faces.empty()) result["faces"] = std::move(faces);
    for (const auto& [name, picture] : theme.pictures) result["pictures"][name] = toJson(picture, files);
    if (!files.all.empty()) result["files"] = std::move(files.all);
    return result;
}

} // namespace proupsells::hostprogram

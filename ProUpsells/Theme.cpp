#include "ProUpsells/Theme.hpp"

#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Host/Look.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/RunLoop/MainActor.hpp"
#include "Platform/VelaUIKit/DesignColors.hpp"
#include "ProUpsells/ThemePalette.hpp"
#include "ProUpsells/ThemePicture.hpp"

namespace proupsells {

namespace {

graphics::Typefaces typefaces(const Theme& theme) {
    graphics::Typefaces typefaces;
    const auto show = [&](const char* family, const std::string& instead) {
        if (!instead.empty()) typefaces.families[family] = instead;
    };
    const Theme::Families& families = theme.families;
    show("Inter", families.text);
    show("Inter Display", families.display.empty() ? families.text : families.display);
    show("Sora", families.headings);
    for (const Theme::FaceFile& face : theme.faceFiles) typefaces.files.push_back({face.family, face.weight, face.file});
    return typefaces;
}

host::StandIns standIns(const Theme& theme) {
    host::StandIns standIns;
    for (const auto& [name, picture] : theme.pictures) standIns[name] = {picture.file, picture.darkFile};
    return standIns;
}

// A picture that cannot be shown is told now rather than when a screen first wants it.
void readPictures(const Theme& theme) {
    if (!host::Installation::exists() || !host::Installation::current().imageDecoder) return;
    for (const auto& [name, picture] : theme.pictures) host::namedImage(name, ThemePicture::find(name)->bundle());
}

void report(const std::vector<std::string>& problems) {
    for (const std::string& problem : problems)
        commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity, problem, "setTheme");
}

} // namespace

std::vector<std::string_view> Theme::colorNames() {
    std::vector<std::string_view> names;
    for (const velauikit::DesignColor& entry : velauikit::designColors()) names.push_back(entry.color.name);
    return names;
}

std::vector<std::string_view> Theme::pictureNames() {
    std::vector<std::string_view> names;
    for (const ThemePicture& picture : ThemePicture::all()) names.push_back(picture.name);
    return names;
}

bool setTheme(const Theme& theme) {
    runloop::MainActor::assertIsolated("setTheme");
    const std::vector<std::string> problems = theme.problems();
    report(problems);
    if (!problems.empty()) return false;
    host::Look::setCurrent({themePalette(theme), typefaces(theme), standIns(theme)});
    readPictures(theme);
    return true;
}

} // namespace proupsells

// A brand of the host's own.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Graphics/Color.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells {

// What it names is shown instead of ours: colours, typefaces, pictures. All else stays, and so do sizes, order and texts.
struct PROUPSELLS_EXPORT Theme {
    // A colour in either appearance. Absent: ours.
    struct Color {
        std::optional<graphics::RGBA> light; // in the light appearance
        std::optional<graphics::RGBA> dark;  // in the dark appearance

        bool operator==(const Color&) const = default;
    };

    // Families by their part on the screens. Empty: ours.
    struct Families {
        std::string text;     // of all texts
        std::string display;  // of the same from 20 points on; empty: that of `text`
        std::string headings; // of the brand's voice: the comparison's title, the badge, small links

        bool operator==(const Families&) const = default;
    };

    // A file with a face of one of those families. The others are the text shaper's: registered with it, or the system's.
    struct FaceFile {
        std::string family;         // as in Families
        int weight = 400;           // 100 to 900, as in OpenType
        std::filesystem::path file; // a font, OpenType or TrueType

        bool operator==(const FaceFile&) const = default;
    };

    // A picture of the same shape as ours, which it covers. A PNG file should have three pixels a point.
    struct Picture {
        std::filesystem::path file;                    // PNG, or a picture that the build has made
        std::optional<std::filesystem::path> darkFile; // absent: the same in the dark appearance

        bool operator==(const Picture&) const = default;
    };

    std::map<std::string, Color, std::less<>> colors;     // by the design system's names
    Families families;                                    // instead of Inter and Sora
    std::vector<FaceFile> faceFiles;                      // known while the theme is shown
    std::map<std::string, Picture, std::less<>> pictures; // by the names of our assets

    bool operator==(const Theme&) const = default;

    // The names that `colors` may have.
    static std::vector<std::string_view> colorNames();
    // The names that `pictures` may have.
    static std::vector<std::string_view> pictureNames();

    // Why it cannot be shown, a sentence for each reason: names that do not exist, colours that are not opaque, and pairs of
    // colours whose contrast is below WCAG 2.2 AA. Files are not looked at. Empty where all is well.
    std::vector<std::string> problems() const;
};

// Windows follow in their next update; an empty theme brings ours back. A theme with problems is refused: each is a log line, and
// what was shown before stays. A file that is missing or broken, or a picture of another shape, is a log line, and ours stays in
// its place. Files must stay as they are while the theme is shown. Main thread only. Returns whether the theme was taken.
PROUPSELLS_EXPORT bool setTheme(const Theme& theme);

} // namespace proupsells

#include "Backends/Headless/ImageSizeReader.hpp"

#include <array>
#include <cstdint>
#include <string>

#include "Platform/Foundation/DecimalText.hpp"
#include "Platform/Graphics/PictureHeader.hpp"
#include "Platform/System/MappedFile.hpp"

namespace proupsells::headless {

namespace {

using geometry::Size;

// A root element further down is no picture of this project's.
constexpr std::size_t maximumHeaderLength = 1 << 20;

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

void skipBlanks(std::string_view& text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
}

bool skipPast(std::string_view& text, std::string_view end) {
    const std::size_t found = text.find(end);
    if (found == std::string_view::npos) return false;
    text.remove_prefix(found + end.size());
    return true;
}

// A document type may declare entities between brackets.
bool skipDocumentType(std::string_view& text) {
    const std::size_t bracket = text.find('['), close = text.find('>');
    if (bracket < close && !skipPast(text, "]")) return false;
    return skipPast(text, ">");
}

// The root element's start tag from its name on; absent where there is no element.
std::optional<std::string_view> rootTag(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    for (bool isSkipped = true; isSkipped;) {
        skipBlanks(text);
        if (text.starts_with("<?")) {
            isSkipped = skipPast(text, "?>");
        } else if (text.starts_with("<!--")) {
            isSkipped = skipPast(text, "-->");
        } else if (text.starts_with("<!")) {
            isSkipped = skipDocumentType(text);
        } else if (text.starts_with("<")) {
            return text.substr(1);
        } else {
            isSkipped = false;
        }
    }
    return std::nullopt;
}

std::string_view takeName(std::string_view& text) {
    const std::string_view name = text.substr(0, text.find_first_of(" \t\n\r=>/"));
    text.remove_prefix(name.size());
    return name;
}

// The next attribute of a start tag; absent at the tag's end and where it is malformed.
struct Attribute {
    std::string_view name;
    std::string_view value;
};

std::optional<Attribute> takeAttribute(std::string_view& text) {
    skipBlanks(text);
    Attribute attribute{takeName(text), {}};
    skipBlanks(text);
    if (attribute.name.empty() || !text.starts_with('=')) return std::nullopt;
    text.remove_prefix(1);
    skipBlanks(text);
    if (text.empty() || (text.front() != '"' && text.front() != '\'')) return std::nullopt;
    const std::size_t end = text.find(text.front(), 1);
    if (end == std::string_view::npos) return std::nullopt;
    attribute.value = text.substr(1, end - 1);
    text.remove_prefix(end + 1);
    return attribute;
}

std::optional<double> takeNumber(std::string_view& text) {
    while (!text.empty() && (isBlank(text.front()) || text.front() == ',')) text.remove_prefix(1);
    if (text.starts_with('+')) text.remove_prefix(1);
    const auto reading = foundation::readDecimal(text);
    if (!reading) return std::nullopt;
    text.remove_prefix(reading->length);
    return reading->number;
}

// Points for one of the unit; absent for those that depend on what is around the picture.
std::optional<double> pointsPerUnit(std::string_view unit) {
    constexpr double pointsPerInch = 96;
    while (!unit.empty() && isBlank(unit.back())) unit.remove_suffix(1);
    if (unit.empty() || unit == "px") return 1;
    if (unit == "pt") return pointsPerInch / 72;
    if (unit == "pc") return pointsPerInch / 6;
    if (unit == "in") return pointsPerInch;
    if (unit == "cm") return pointsPerInch / 2.54;
    if (unit == "mm") return pointsPerInch / 25.4;
    return std::nullopt;
}

std::optional<double> length(std::string_view text) {
    const std::optional<double> value = takeNumber(text);
    const std::optional<double> unit = pointsPerUnit(text);
    if (!value || !unit || !(*value > 0)) return std::nullopt;
    return *value * *unit;
}

std::optional<Size> viewBoxSize(std::string_view text) {
    std::array<double, 4> numbers{};
    for (double& number : numbers) {
        const std::optional<double> value = takeNumber(text);
        if (!value) return std::nullopt;
        number = *value;
    }
    if (!(numbers[2] > 0 && numbers[3] > 0)) return std::nullopt;
    return Size{numbers[2], numbers[3]};
}

std::uint32_t bigEndian(std::string_view bytes) {
    std::uint32_t value = 0;
    for (const char byte : bytes.substr(0, 4)) value = value << 8 | std::uint8_t(byte);
    return value;
}

} // namespace

std::optional<Size> svgSize(std::string_view contents) {
    std::optional<std::string_view> tag = rootTag(contents);
    if (!tag) return std::nullopt;
    const std::string_view name = takeName(*tag);
    if (name != "svg" && !name.ends_with(":svg")) return std::nullopt;

    std::optional<double> width, height;
    std::optional<Size> viewBox;
    while (const auto attribute = takeAttribute(*tag)) {
        if (attribute->name == "width") width = length(attribute->value);
        if (attribute->name == "height") height = length(attribute->value);
        if (attribute->name == "viewBox") viewBox = viewBoxSize(attribute->value);
    }
    if (width && height) return Size{*width, *height};
    if (!viewBox) return std::nullopt;
    if (width) return Size{*width, *width * viewBox->height / viewBox->width};
    if (height) return Size{*height * viewBox->width / viewBox->height, *height};
    return viewBox;
}

std::optional<Size> pngSize(std::string_view contents) {
    constexpr std::string_view signature("\x89PNG\r\n\x1A\n", 8);
    constexpr std::size_t headerEnd = 24; // signature, chunk length, chunk type, width, height
    if (contents.size() < headerEnd || !contents.starts_with(signature) || contents.substr(12, 4) != "IHDR") return std::nullopt;
    const std::uint32_t width = bigEndian(contents.substr(16)), height = bigEndian(contents.substr(20));
    if (width == 0 || height == 0 || width > INT32_MAX || height > INT32_MAX) return std::nullopt;
    return Size{double(width), double(height)};
}

std::optional<Size> ImageSizeReader::naturalSize(const std::filesystem::path& file) {
    const system::MappedFile mapped(file);
    const std::string_view contents = mapped.bytes().substr(0, maximumHeaderLength);
    if (const auto header = graphics::PictureHeader::parse(contents, mapped.bytes().size())) return header->naturalSize;
    if (const auto size = pngSize(contents)) return size;
    return svgSize(contents);
}

} // namespace proupsells::headless

// What a surface paints: a flat list of commands, back to front, in window points.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "Platform/Geometry/Path.hpp"
#include "Platform/Graphics/Image.hpp"
#include "Platform/Graphics/ShapedText.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::graphics {

// Pixels that somebody else made, a clip's frame for instance. Premultiplied 32-bit ARGB in host byte order, rows without gaps.
struct Bitmap {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

// What a command paints, and which of its fields count.
enum class CommandKind : std::uint8_t {
    fillRectangle,          // frame, color
    fillRoundedRectangle,   // frame, cornerRadius, cornerStyle, color
    strokeRoundedRectangle, // likewise, lineWidth, centred on the frame's edge
    fillEllipse,            // frame, color
    strokeEllipse,          // frame, lineWidth, centred on the edge
    fillPath,               // path, color; frame is the path's bounds
    strokePath,             // path, lineWidth, color; likewise; round joins and ends
    image,                  // frame, image, scheme; color is the tint of a tinted image
    bitmap,                 // frame, bitmap
    text,   // frame.origin is the baseline's left end, frame.size the line box's; text, firstCluster, endCluster, color
    shadow, // of a filled frame: color, blurRadius; frame is already offset; fades out within twice the blur radius
};

// Every command stands for itself: its clip, opacity and transform are complete, so two lists can be compared one by one.
struct Command {
    CommandKind kind = CommandKind::fillRectangle;
    geometry::CornerStyle cornerStyle = geometry::CornerStyle::circular;
    ColorScheme scheme = ColorScheme::light;
    RGBA color;
    float opacity = 1;
    geometry::Rect frame;
    geometry::Rect bounds; // what it may touch in the window, clip and transform applied
    geometry::Rect clip;   // nothing is painted outside; in window points
    double cornerRadius = 0;
    double lineWidth = 0;
    double blurRadius = 0;
    // Where the clip has rounded corners, their radius; they are those of `roundedClip`, which contains the clip.
    double clipRadius = 0;
    geometry::Rect roundedClip;
    std::int32_t transform = -1; // index into transforms, about the window's origin; -1: none
    std::int32_t resource = -1;  // index into paths, images, bitmaps or texts, by kind

    // Of a text: the clusters from the first one up to the end are painted.
    std::uint32_t firstCluster = 0;
    std::uint32_t endCluster = 0;
};

class PROUPSELLS_EXPORT DisplayList {
public:
    // What is painted, the last one in front.
    std::vector<Command> commands;
    // Images that nobody sees yet but that may be wanted soon. They are neither painted nor compared.
    std::vector<Command> ahead;

    // What commands refer to by index.
    std::vector<geometry::Transform> transforms;
    std::vector<geometry::Path> paths; // in window points; past those in use, spare ones may follow

    // What commands refer to by index, shared with whoever made it.
    std::vector<ImageRef> images;
    std::vector<std::shared_ptr<const Bitmap>> bitmaps;
    std::vector<std::shared_ptr<const ShapedText>> texts;

    // Empties the list and keeps its memory.
    void clear();

    // Each adds a resource, unless the one added last is the same, and returns its index.
    std::int32_t addTransform(const geometry::Transform& transform);
    std::int32_t addImage(const ImageRef& image);
    std::int32_t addBitmap(const std::shared_ptr<const Bitmap>& bitmap);
    std::int32_t addText(const std::shared_ptr<const ShapedText>& text);
    // Copies the path, moved by `offset`, into a spare one.
    std::int32_t addPath(const geometry::Path& path, geometry::Point offset);

private:
    std::size_t m_pathCount = 0;
};

// Whether a command of one list paints exactly what a command of another does.
PROUPSELLS_EXPORT bool paintsTheSame(const DisplayList& a, const Command& inA, const DisplayList& b, const Command& inB);

// The part of the window in which two lists differ: a few rectangles, empty when they paint the same. Keeps the memory of `result`.
PROUPSELLS_EXPORT void findDamage(const DisplayList& before, const DisplayList& after, std::vector<geometry::Rect>& result);

} // namespace proupsells::graphics

#include "ScreenTest/ScreenSnapshot.hpp"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "Backends/Raster/PngFile.hpp"
#include "Backends/Raster/PngReader.hpp"
#include "Platform/System/PathText.hpp"
#include "Platform/System/WholeFile.hpp"
#include "Tooling/ScreenDifference.hpp"
#include "Tooling/WrittenNumber.hpp"

namespace proupsells::screentest {

using rasterbackend::Picture;
using tooling::ScreenTree;

namespace {

constexpr const char* now = ".now";

std::optional<std::string> contentsOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) return std::nullopt;
    std::ostringstream contents;
    contents << stream.rdbuf();
    return contents.str();
}

bool takesAnew() {
    const char* wish = std::getenv("PROUPSELLS_TAKE_SNAPSHOTS");
    return wish && std::string_view(wish) == "1";
}

// Where two pictures of one size differ, in pixels.
struct PixelDifference {
    std::size_t count = 0;
    int left = 0, top = 0, right = 0, bottom = 0; // of what is around all of them
};

PixelDifference compare(const Picture& before, const Picture& after) {
    PixelDifference result;
    for (int y = 0; y < after.height(); ++y)
        for (int x = 0; x < after.width(); ++x) {
            if (before.row(y)[x] == after.row(y)[x]) continue;
            if (result.count++ == 0) result = {1, x, y, x + 1, y + 1};
            result.left = std::min(result.left, x);
            result.top = std::min(result.top, y);
            result.right = std::max(result.right, x + 1);
            result.bottom = std::max(result.bottom, y + 1);
        }
    return result;
}

bool holds(const geometry::Rect& outer, const geometry::Rect& inner) {
    return outer.minX() <= inner.minX() && outer.minY() <= inner.minY() && outer.maxX() >= inner.maxX() &&
           outer.maxY() >= inner.maxY();
}

// The innermost node in front that holds all of the rectangle, by its type and the nearest identifier around it.
std::string nodeAround(const accessibility::SemanticNode& root, const geometry::Rect& rect, std::string identifier = "") {
    if (!root.identifier.empty()) identifier = root.identifier;
    for (auto child = root.children.rbegin(); child != root.children.rend(); ++child)
        if (child->isOnScreen && holds(child->frame, rect)) return nodeAround(*child, rect, identifier);
    if (identifier.empty() || identifier == root.identifier) return root.type + (identifier.empty() ? "" : " " + identifier);
    return root.type + " in " + identifier;
}

} // namespace

std::filesystem::path ScreenSnapshot::ending(const char* middle, const char* end) const {
    std::filesystem::path file = m_file;
    file += middle;
    file += end;
    return file;
}

bool ScreenSnapshot::take(const TestScreen& screen, const char* middle) const {
    std::error_code error;
    if (m_file.has_parent_path()) std::filesystem::create_directories(m_file.parent_path(), error);
    return system::writeWhole(treeFile(middle), tooling::screenText(tooling::screenTree(screen.tree()))) &&
           rasterbackend::writePng(screen.picture(), pictureFile(middle));
}

std::optional<std::string> ScreenSnapshot::complaint(const TestScreen& screen) const {
    const std::string name = system::textOf(m_file);
    const bool isThere = std::filesystem::exists(treeFile()) && std::filesystem::exists(pictureFile());
    if (!isThere || takesAnew()) {
        if (!take(screen, "")) return name + " cannot be written";
        return isThere ? std::nullopt : std::optional(name + " was not there, and has been taken now: look at it, and keep it");
    }
    auto complaint = treeComplaint(tooling::screenTree(screen.tree()));
    if (!complaint) complaint = pictureComplaint(screen);
    if (complaint && !take(screen, now)) *complaint += "\n" + name + ".now cannot be written";
    if (!complaint) {
        std::error_code error;
        std::filesystem::remove(treeFile(now), error);
        std::filesystem::remove(pictureFile(now), error);
    }
    return complaint;
}

std::optional<std::string> ScreenSnapshot::treeComplaint(const ScreenTree& tree) const {
    const auto before = tooling::readScreenText(contentsOf(treeFile()).value_or(""));
    if (!before) return system::textOf(treeFile()) + " holds no screen";
    const auto changes = tooling::differences(*before, tree);
    if (changes.empty()) return std::nullopt;
    constexpr std::size_t mostTold = 20;
    std::string result = "since the snapshot:";
    for (std::size_t i = 0; i < std::min(mostTold, changes.size()); ++i) result += "\n  " + changes[i];
    if (changes.size() > mostTold) result += "\n  and " + std::to_string(changes.size() - mostTold) + " more";
    return result;
}

std::optional<std::string> ScreenSnapshot::pictureComplaint(const TestScreen& screen) const {
    const Picture before = rasterbackend::pngPicture(contentsOf(pictureFile()).value_or("")), after = screen.picture();
    if (before.isNull()) return system::textOf(pictureFile()) + " holds no picture";
    if (before.width() != after.width() || before.height() != after.height())
        return "the picture has " + std::to_string(after.width()) + " x " + std::to_string(after.height()) + " pixels instead of " +
               std::to_string(before.width()) + " x " + std::to_string(before.height());
    const PixelDifference difference = compare(before, after);
    if (difference.count == 0) return std::nullopt;
    const double scale = screen.device().scale;
    const geometry::Rect rect{{difference.left / scale, difference.top / scale},
                              {(difference.right - difference.left) / scale, (difference.bottom - difference.top) / scale}};
    return "the tree is the same, and " + std::to_string(difference.count) + " pixels are not, within [" + tooling::written(rect) +
           "], in " + nodeAround(screen.tree(), rect);
}

} // namespace proupsells::screentest

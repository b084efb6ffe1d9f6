#include "Platform/Graphics/DisplayList.hpp"

namespace proupsells::graphics {

namespace {

template <typename Resource>
std::int32_t addUnlessLast(std::vector<Resource>& resources, const Resource& resource) {
    if (resources.empty() || !(resources.back() == resource)) resources.push_back(resource);
    return std::int32_t(resources.size()) - 1;
}

// Equal images are one and the same; those of a name that was looked up twice are compared.
bool isSameImage(const ImageRef& a, const ImageRef& b) {
    if (a == b) return true;
    if (!a || !b) return false;
    return a->name == b->name && a->size == b->size && a->renderingMode == b->renderingMode && a->file == b->file &&
           a->darkFile == b->darkFile;
}

bool isSamePath(const geometry::Path& a, const geometry::Path& b) { return a == b; }

template <typename Resource>
bool isSameResource(const std::vector<Resource>& inA, std::int32_t a, const std::vector<Resource>& inB, std::int32_t b,
                    bool (*isSame)(const Resource&, const Resource&)) {
    const bool hasA = a >= 0 && std::size_t(a) < inA.size(), hasB = b >= 0 && std::size_t(b) < inB.size();
    if (!hasA || !hasB) return hasA == hasB;
    return isSame(inA[std::size_t(a)], inB[std::size_t(b)]);
}

template <typename Resource>
bool isIdentical(const Resource& a, const Resource& b) {
    return a == b;
}

bool usesSameResource(const DisplayList& a, const Command& inA, const DisplayList& b, const Command& inB) {
    switch (inA.kind) {
    case CommandKind::fillPath:
    case CommandKind::strokePath: return isSameResource(a.paths, inA.resource, b.paths, inB.resource, isSamePath);
    case CommandKind::image: return isSameResource(a.images, inA.resource, b.images, inB.resource, isSameImage);
    case CommandKind::bitmap:
        return isSameResource(a.bitmaps, inA.resource, b.bitmaps, inB.resource, isIdentical<std::shared_ptr<const Bitmap>>);
    case CommandKind::text:
        return isSameResource(a.texts, inA.resource, b.texts, inB.resource, isIdentical<std::shared_ptr<const ShapedText>>);
    default: return true;
    }
}

} // namespace

void DisplayList::clear() {
    commands.clear();
    ahead.clear();
    transforms.clear();
    images.clear();
    bitmaps.clear();
    texts.clear();
    m_pathCount = 0; // the paths stay as spare ones, since each holds memory
}

std::int32_t DisplayList::addTransform(const geometry::Transform& transform) { return addUnlessLast(transforms, transform); }

std::int32_t DisplayList::addImage(const ImageRef& image) { return addUnlessLast(images, image); }

std::int32_t DisplayList::addBitmap(const std::shared_ptr<const Bitmap>& bitmap) { return addUnlessLast(bitmaps, bitmap); }

std::int32_t DisplayList::addText(const std::shared_ptr<const ShapedText>& text) { return addUnlessLast(texts, text); }

std::int32_t DisplayList::addPath(const geometry::Path& path, geometry::Point offset) {
    if (m_pathCount < paths.size()) {
        paths[m_pathCount] = path;
    } else {
        paths.push_back(path);
    }
    paths[m_pathCount].transform(geometry::Transform::translation(offset.x, offset.y));
    return std::int32_t(m_pathCount++);
}

bool paintsTheSame(const DisplayList& a, const Command& inA, const DisplayList& b, const Command& inB) {
    return inA.kind == inB.kind && inA.frame == inB.frame && inA.bounds == inB.bounds && inA.color == inB.color &&
           inA.opacity == inB.opacity && inA.clip == inB.clip && inA.clipRadius == inB.clipRadius &&
           inA.roundedClip == inB.roundedClip && inA.cornerRadius == inB.cornerRadius && inA.cornerStyle == inB.cornerStyle &&
           inA.lineWidth == inB.lineWidth && inA.blurRadius == inB.blurRadius && inA.scheme == inB.scheme &&
           inA.firstCluster == inB.firstCluster && inA.endCluster == inB.endCluster && usesSameResource(a, inA, b, inB) &&
           isSameResource(a.transforms, inA.transform, b.transforms, inB.transform, isIdentical<geometry::Transform>);
}

} // namespace proupsells::graphics

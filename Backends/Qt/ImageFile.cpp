#include "Backends/Qt/ImageFile.hpp"

#include <QImageReader>

#include "Backends/Qt/VectorFile.hpp"
#include "Backends/Raster/PictureFile.hpp"
#include "Platform/Graphics/PictureHeader.hpp"

namespace proupsells::qtbackend {

namespace {

QString toQString(const std::filesystem::path& path) { return QString::fromStdU16String(path.u16string()); }

bool isPictureFile(const std::filesystem::path& file) {
    return file.extension().string() == "." + std::string(graphics::PictureHeader::fileExtension);
}

// Shares the pixels.
QImage toQImage(rasterbackend::Picture picture) {
    if (picture.isNull()) return {};
    auto* const owner = new rasterbackend::Picture(std::move(picture));
    return QImage(
        reinterpret_cast<const uchar*>(std::as_const(*owner).row(0)), owner->width(), owner->height(), owner->width() * 4,
        QImage::Format_ARGB32_Premultiplied, [](void* owner) { delete static_cast<rasterbackend::Picture*>(owner); }, owner);
}

} // namespace

std::optional<geometry::Size> naturalImageSize(const std::filesystem::path& file) {
    if (isPictureFile(file)) return rasterbackend::naturalPictureSize(file);
    if (isVectorFile(file)) return vectorSize(file);
    QImageReader reader(toQString(file));
    QSize size = reader.size();
    if (!reader.canRead() || !size.isValid()) return std::nullopt;
    if (reader.transformation() & QImageIOHandler::TransformationRotate90) size.transpose();
    return geometry::Size{double(size.width()), double(size.height())};
}

QImage readImage(const std::filesystem::path& file, QSize size) {
    if (size.isEmpty()) return {};
    if (isPictureFile(file)) return toQImage(rasterbackend::readPicture(file, size.width(), size.height()));
    if (isVectorFile(file)) return renderVector(file, size);
    QImageReader reader(toQString(file));
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull()) return {};
    const QImage premultiplied = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return premultiplied.size() == size ? premultiplied
                                        : premultiplied.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                              .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace proupsells::qtbackend

#include "Tools/MakePictures/VectorFile.hpp"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

namespace proupsells::makepictures {

namespace {

QString toQString(const std::filesystem::path& path) { return QString::fromStdU16String(path.u16string()); }

// "24", "24px" and "24pt" are 24 points. Absent for shares and what is no length.
std::optional<double> length(QStringView text) {
    text = text.trimmed();
    if (text.endsWith(QLatin1String("px")) || text.endsWith(QLatin1String("pt"))) text.chop(2);
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !(value > 0)) return std::nullopt;
    return value;
}

} // namespace

bool isVectorFile(const std::filesystem::path& file) {
    return toQString(file.extension()).compare(".svg", Qt::CaseInsensitive) == 0;
}

std::optional<geometry::Size> vectorSize(const std::filesystem::path& file) {
    QFile device(toQString(file));
    if (!device.open(QIODevice::ReadOnly)) return std::nullopt;
    QXmlStreamReader reader(&device);
    if (!reader.readNextStartElement() || reader.name() != QLatin1String("svg")) return std::nullopt;
    const QXmlStreamAttributes attributes = reader.attributes();
    const std::optional<double> width = length(attributes.value("width")), height = length(attributes.value("height"));
    if (width && height) return geometry::Size{*width, *height};

    const QStringList box = attributes.value("viewBox").toString().replace(',', ' ').simplified().split(' ');
    if (box.size() != 4) return std::nullopt;
    const std::optional<double> boxWidth = length(box[2]), boxHeight = length(box[3]);
    if (!boxWidth || !boxHeight) return std::nullopt;
    return geometry::Size{*boxWidth, *boxHeight};
}

QImage renderVector(const std::filesystem::path& file, QSize size) {
    QSvgRenderer renderer(toQString(file));
    if (!renderer.isValid()) return {};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return {};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    renderer.setAspectRatioMode(Qt::IgnoreAspectRatio);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
    return image;
}

} // namespace proupsells::makepictures

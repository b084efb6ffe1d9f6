#include "Backends/Qt/PngFile.hpp"

#include <QImageWriter>
#include <QSaveFile>

namespace proupsells::qtbackend {

bool writePng(const QImage& image, const std::filesystem::path& file) {
    if (image.isNull()) return false;
    QSaveFile device(QString::fromStdU16String(file.u16string()));
    if (!device.open(QIODevice::WriteOnly)) return false;
    QImageWriter writer(&device, "png");
    return writer.write(image) && device.commit();
}

} // namespace proupsells::qtbackend

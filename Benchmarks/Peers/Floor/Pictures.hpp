// The pictures of the peers, decoded beforehand.
#pragma once

#include <QImage>
#include <QString>

#include "Common/Command.hpp"

namespace peers::floor {

inline QImage loadPicture(const QString& file, QImage::Format format = QImage::Format_ARGB32_Premultiplied) {
    const QImage picture(file);
    if (picture.isNull()) fail("cannot read " + file.toStdString());
    return picture.convertToFormat(format);
}

struct Pictures {
    explicit Pictures(const QString& folder)
        : header(loadPicture(folder + "header_a.png", QImage::Format_RGB32)), logo(loadPicture(folder + "logo.png")),
          diamond(loadPicture(folder + "diamond.png")), chevron(loadPicture(folder + "chevron.png")),
          close(loadPicture(folder + "close.png")), gradient(loadPicture(folder + "terms_gradient.png")) {}

    QImage header;
    QImage logo;
    QImage diamond;
    QImage chevron;
    QImage close;
    QImage gradient;
};

} // namespace peers::floor

// The pictures of the peers, decoded beforehand.
#pragma once

#include <QImage>
#include <QString>

namespace peers::floor {

inline QImage loadPicture(const QString& file) { return QImage(file).convertToFormat(QImage::Format_ARGB32_Premultiplied); }

struct Pictures {
    explicit Pictures(const QString& folder)
        : header(QImage(folder + "header_a.png").convertToFormat(QImage::Format_RGB32)), logo(loadPicture(folder + "logo.png")),
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

// What a person has asked of the whole desktop.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>
#include <optional>

#include "Platform/Graphics/Color.hpp"
#include "Platform/Graphics/ContentSize.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::qtbackend {

// Follows the settings as desktops hand them out through their portal (org.freedesktop.portal.Settings). Where there is no bus, no
// portal, or no such setting, nothing is known and nobody is told of it. On the main thread only.
class PROUPSELLS_EXPORT DesktopSettings final : public QObject {
    Q_OBJECT

public:
    // Knows nothing before it is told.
    DesktopSettings() = default;
    // The desktop's that the application runs on. Asked at the first call, known once the event loop has run. Owned by the
    // application object; stops the program where there is none.
    static DesktopSettings& shared();

    // Absent where either will do.
    std::optional<graphics::ColorScheme> colorScheme() const;
    // The size nearest to the desktop's factor for texts, on a display of `displayScale` pixels a point. The usual one where X11
    // has made that factor a part of the display's scale: then everything is larger already.
    graphics::ContentSizeCategory textSize(double displayScale) const;
    // False where the desktop does not say.
    bool reducesMotion() const;

    // The person asks for more contrast. False where the desktop does not say.
    bool increasesContrast() const;

    // A setting has this value now; for whoever knows the desktop.
    void adopt(const QString& group, const QString& key, const QVariant& value);

signals:
    // One of the above may have become another.
    void changed();

private:
    QVariant value(const char* group, const char* key) const;

    // By "group key".
    QHash<QString, QVariant> m_values;
};

// Whether the factor for texts may be a part of the display's scale: on X11 alone, and where Qt looks at the display's resolution,
// which QT_ENABLE_HIGHDPI_SCALING of "0" tells it not to.
PROUPSELLS_EXPORT bool displayMayCountTextScale(const QString& platform, const QByteArray& scaling);

// What is left of a factor for texts on such a display of X11: 1 where the display's scale is a whole number of times the factor.
PROUPSELLS_EXPORT double remainingTextScale(double textScale, double displayScale);

} // namespace proupsells::qtbackend

#include "Backends/Qt/DesktopSettings.hpp"

#include <QGuiApplication>
#include <QPointer>
#include <cmath>

#include "Backends/Qt/DesktopPortal.hpp"
#include "Platform/Commons/FatalError.hpp"

namespace proupsells::qtbackend {

namespace {

constexpr const char *anyDesktop = "org.freedesktop.appearance", *gnome = "org.gnome.desktop.interface",
                     *gnomeAccessibility = "org.gnome.desktop.a11y.interface";

QString nameOf(const QString& group, const QString& key) { return group + QLatin1Char(' ') + key; }

} // namespace

bool displayMayCountTextScale(const QString& platform, const QByteArray& scaling) {
    return platform == QLatin1String("xcb") && scaling != "0";
}

double remainingTextScale(double textScale, double displayScale) {
    // The resolution is a whole number of dots an inch.
    constexpr double tolerance = 0.02;
    const double times = displayScale / textScale;
    const bool isWhole = times > 0.5 && std::abs(times - std::round(times)) < tolerance;
    return isWhole && displayScale != 1 ? 1 : textScale;
}

DesktopSettings& DesktopSettings::shared() {
    static QPointer<DesktopSettings> settings;
    if (settings) return *settings;
    QCoreApplication* const application = QCoreApplication::instance();
    if (!application) commons::fatalError("There is no QApplication yet: create one before qtbackend::DesktopSettings::shared()");
    settings = new DesktopSettings;
    settings->setParent(application);
    followPortal(*settings);
    return *settings;
}

std::optional<graphics::ColorScheme> DesktopSettings::colorScheme() const {
    constexpr int dark = 1, light = 2;
    switch (value(anyDesktop, "color-scheme").toInt()) {
    case dark: return graphics::ColorScheme::dark;
    case light: return graphics::ColorScheme::light;
    default: return std::nullopt;
    }
}

graphics::ContentSizeCategory DesktopSettings::textSize(double displayScale) const {
    const double factor = value(gnome, "text-scaling-factor").toDouble();
    if (!std::isfinite(factor) || factor <= 0) return graphics::ContentSizeCategory::large;
    const bool mayBeCounted = displayMayCountTextScale(QGuiApplication::platformName(), qgetenv("QT_ENABLE_HIGHDPI_SCALING"));
    return graphics::nearestCategory(mayBeCounted ? remainingTextScale(factor, displayScale) : factor);
}

bool DesktopSettings::reducesMotion() const {
    constexpr int reduced = 1;
    const QVariant animates = value(gnome, "enable-animations");
    const bool isStill = animates.isValid() && !animates.toBool();
    return isStill || value(anyDesktop, "reduced-motion").toInt() == reduced;
}

bool DesktopSettings::increasesContrast() const {
    constexpr int more = 1;
    return value(anyDesktop, "contrast").toInt() == more || value(gnomeAccessibility, "high-contrast").toBool();
}

void DesktopSettings::adopt(const QString& group, const QString& key, const QVariant& value) {
    QVariant& known = m_values[nameOf(group, key)];
    if (known == value) return;
    known = value;
    emit changed();
}

QVariant DesktopSettings::value(const char* group, const char* key) const {
    return m_values.value(nameOf(QLatin1String(group), QLatin1String(key)));
}

} // namespace proupsells::qtbackend

#include "Backends/Qt/FontCatalog.hpp"

#include <QFontDatabase>
#include <QFontInfo>
#include <algorithm>
#include <cstdlib>
#include <limits>

#include "Platform/Commons/DefaultLogger.hpp"

namespace proupsells::qtbackend {

namespace {

struct NamedWeight {
    const char* name; // lower case, without blanks
    int weight;
};

constexpr NamedWeight namedWeights[] = {
    {"thin", 100}, {"extralight", 200}, {"ultralight", 200}, {"light", 300},    {"regular", 400},
    {"book", 400}, {"normal", 400},     {"medium", 500},     {"semibold", 600}, {"demibold", 600},
    {"bold", 700}, {"extrabold", 800},  {"ultrabold", 800},  {"black", 900},    {"heavy", 900},
};

// 0 for an italic style or one with a name of its own.
int weightOfStyle(const QString& style) {
    QString name = style.toLower();
    name.remove(' ');
    name.remove('-');
    for (const NamedWeight& named : namedWeights)
        if (name == QLatin1String(named.name)) return named.weight;
    return 0;
}

// How far a weight is from the wanted one: the usual rule that light texts rather become lighter and bold ones bolder.
int weightDistance(int wanted, int weight) {
    const bool isOnWrongSide = wanted <= 500 ? weight > std::max(wanted, 500) : weight < wanted;
    return std::abs(weight - wanted) + (isOnWrongSide ? 1000 : 0);
}

// Chosen by name, since some packages carry weight numbers that no other font would agree with. Empty where no name tells.
QString styleFor(const QString& family, int weight) {
    QString best;
    int bestDistance = std::numeric_limits<int>::max();
    for (const QString& style : QFontDatabase::styles(family)) {
        const int styleWeight = weightOfStyle(style);
        if (styleWeight == 0 || weightDistance(weight, styleWeight) >= bestDistance) continue;
        bestDistance = weightDistance(weight, styleWeight);
        best = style;
    }
    return best;
}

} // namespace

const InstalledFace& FontCatalog::face(const graphics::FontFace* face) {
    const auto found = m_faces.find(face);
    if (found != m_faces.end()) return found->second;
    InstalledFace installed = face ? find(QString::fromStdString(face->family), face->weight) : find(QStringLiteral("Inter"), 400);
    return m_faces.emplace(face, std::move(installed)).first->second;
}

InstalledFace FontCatalog::find(const QString& family, int weight) {
    // Colourful emoji, where there are any, come before the plain ones of other fonts.
    QFont font(QStringList{family, QStringLiteral("Noto Color Emoji")});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(int(designSize_px));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setWeight(QFont::Weight(std::clamp(weight, 1, 1000)));
    const QString style = styleFor(family, weight);
    if (!style.isEmpty()) {
        font.setStyleName(style);
        // Fonts that stand in for missing characters know this style too, or at least their own bold.
        font.setWeight(weight >= 600 ? QFont::Bold : QFont::Normal);
    }

    const QString found = QFontInfo(font).family();
    if (found.compare(family, Qt::CaseInsensitive) != 0 &&
        std::find(m_missingFamilies.begin(), m_missingFamilies.end(), family) == m_missingFamilies.end()) {
        m_missingFamilies.push_back(family);
        const QString message =
            QStringLiteral("The font family \"%1\" is not installed; \"%2\" stands in for it").arg(family, found);
        commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity, message.toStdString(), "FontCatalog::find");
    }
    const QRawFont raw = QRawFont::fromFont(font);
    return {font, raw.ascent() / raw.pixelSize(), raw.descent() / raw.pixelSize()};
}

const std::shared_ptr<GlyphTable>& FontCatalog::glyphs(const QRawFont& font) {
    const auto found = std::find_if(m_glyphs.begin(), m_glyphs.end(), [&](const auto& entry) { return entry->first == font; });
    if (found != m_glyphs.end()) return (*found)->second;
    m_glyphs.push_back(
        std::make_unique<std::pair<QRawFont, std::shared_ptr<GlyphTable>>>(font, std::make_shared<GlyphTable>(font)));
    return m_glyphs.back()->second;
}

} // namespace proupsells::qtbackend

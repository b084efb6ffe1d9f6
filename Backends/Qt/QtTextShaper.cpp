#include "Backends/Qt/QtTextShaper.hpp"

#include <QGlyphRun>
#include <QTextCharFormat>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "Backends/Qt/FontCatalog.hpp"
#include "Backends/Qt/QtShapedText.hpp"
#include "Backends/Qt/TextClusters.hpp"

namespace proupsells::qtbackend {

namespace {

using geometry::LayoutDirection;
using graphics::LineBreak;
using graphics::StyledRun;

// Qt's fixed-point lengths overflow on longer lines at the design size.
constexpr std::uint32_t longestPiece_units = 1500;

double pointSize(const StyledRun& run) { return run.font.size > 0 ? run.font.size : 0; }

// The run's font at the design size. Qt spaces the letters, because only it can then leave ligatures out.
QFont designFont(const StyledRun& run, FontCatalog& catalog) {
    QFont font = catalog.face(run.font.face).font;
    if (run.kern != 0 && pointSize(run) > 0) {
        const double spacing_px = run.kern * designSize_px / pointSize(run);
        font.setLetterSpacing(QFont::AbsoluteSpacing, std::clamp(spacing_px, -8 * designSize_px, 8 * designSize_px));
    }
    return font;
}

// Shapes pieces of a paragraph: some clusters of one direction, laid out by Qt on one endless line.
class PieceShaper {
public:
    PieceShaper(QtShapedText& result, const RunUnits& text, const std::vector<std::uint32_t>& unitStarts, FontCatalog& catalog)
        : m_result(result), m_text(text), m_unitStarts(unitStarts), m_catalog(catalog) {}

    void shape(std::uint32_t first, std::uint32_t end);

private:
    QString shapedUnits() const;
    void layOut(QTextLayout& layout, const QString& units);
    QList<QTextLayout::FormatRange> formats() const;
    bool takeSimple(const QTextLayout& layout, const QString& units, double width);
    void takeGeneral(const QTextLayout& layout, const QTextLine& line);
    void takeGlyphs(const QList<QGlyphRun>& runs, QPointF origin, double scale);
    double scaleOf(std::uint32_t cluster) const { return pointSize(m_result.runs[m_result.clusters[cluster].run]) / designSize_px; }
    int start(std::uint32_t cluster) const { return m_prefixLength + int(m_unitStarts[cluster] - m_unitStarts[m_first]); }
    bool isRightToLeft() const { return m_result.clusters[m_first].bidiLevel % 2 == 1; }
    void finishCluster(std::uint32_t cluster, std::uint32_t groupStart, std::size_t glyphStart) {
        m_result.groupStarts[cluster] = groupStart;
        m_result.glyphStarts[cluster] = std::uint32_t(glyphStart);
    }

    QtShapedText& m_result;
    const RunUnits& m_text;
    const std::vector<std::uint32_t>& m_unitStarts;
    FontCatalog& m_catalog;
    std::uint32_t m_first = 0, m_end = 0;
    int m_prefixLength = 0; // units before the first cluster's
};

// Control characters have neither width nor shape, a tab is a blank, and nothing stands for an object.
QChar shapedUnit(QChar unit) {
    const char16_t value = unit.unicode();
    if (value == '\t') return ' ';
    if (value == 0xFFFC) return QChar(0xFFFD);
    const bool isControl = value < 0x20 || (value >= 0x7F && value < 0xA0) || value == 0xAD || value == 0x2028;
    const bool isDirectional = (value >= 0x202A && value <= 0x202E) || (value >= 0x2066 && value <= 0x2069);
    return isControl || isDirectional ? QChar(0x200B) : unit;
}

bool readsAgainst(QChar unit, bool isRightToLeft) {
    const QChar::Direction direction = unit.direction();
    if (!isRightToLeft) return direction == QChar::DirR || direction == QChar::DirAL;
    return direction == QChar::DirL || direction == QChar::DirEN || direction == QChar::DirAN;
}

QString PieceShaper::shapedUnits() const {
    QString units = m_text.units().mid(m_unitStarts[m_first], m_unitStarts[m_end] - m_unitStarts[m_first]);
    std::transform(units.begin(), units.end(), units.begin(), shapedUnit);
    return units;
}

void PieceShaper::shape(std::uint32_t first, std::uint32_t end) {
    m_first = first;
    m_end = end;
    QString units = shapedUnits();
    // Where the text itself turns its letters round, Qt must be told.
    const bool isTurned =
        std::any_of(units.begin(), units.end(), [this](QChar unit) { return readsAgainst(unit, isRightToLeft()); });
    if (isTurned) units.prepend(QChar(isRightToLeft() ? 0x202E : 0x202D));
    m_prefixLength = isTurned ? 1 : 0;
    QTextLayout layout(units, designFont(m_result.runs[m_result.clusters[first].run], m_catalog));
    layOut(layout, units);
    const QTextLine line = layout.lineAt(0);
    if (!takeSimple(layout, units, line.naturalTextWidth())) takeGeneral(layout, line);
}

QList<QTextLayout::FormatRange> PieceShaper::formats() const {
    QList<QTextLayout::FormatRange> formats;
    for (std::uint32_t cluster = m_first; cluster < m_end;) {
        const std::uint16_t run = m_result.clusters[cluster].run;
        std::uint32_t next = cluster;
        while (next < m_end && m_result.clusters[next].run == run) ++next;
        QTextCharFormat format;
        format.setFont(designFont(m_result.runs[run], m_catalog));
        formats.push_back({start(cluster), start(next) - start(cluster), format});
        cluster = next;
    }
    return formats;
}

void PieceShaper::layOut(QTextLayout& layout, const QString& units) {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    if (m_result.clusters[m_first].run != m_result.clusters[m_end - 1].run) layout.setFormats(formats());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(2 * designSize_px * units.size());
    layout.endLayout();
}

// Whether every unit is a letter of its own that reads from left to right and gets one glyph, unless the font has a ligature for
// it.
bool isSimple(QChar unit) {
    const char16_t value = unit.unicode();
    return (value >= 0x20 && value < 0x300 && value != 0xAD) || (value >= 0x2010 && value < 0x2028) ||
           (value >= 0x20A0 && value < 0x20C0);
}

// The common case, which needs none of Qt's slow questions: as many glyphs as letters.
bool PieceShaper::takeSimple(const QTextLayout& layout, const QString& units, double width) {
    if (isRightToLeft() || m_result.clusters[m_first].run != m_result.clusters[m_end - 1].run) return false;
    if (units.size() != qsizetype(m_end - m_first) || !std::all_of(units.begin(), units.end(), isSimple)) return false;
    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (runs.size() != 1 || runs.front().glyphIndexes().size() != units.size()) return false;

    const QList<quint32> indexes = runs.front().glyphIndexes();
    const QList<QPointF> positions = runs.front().positions();
    const QRawFont font = runs.front().rawFont();
    const std::shared_ptr<GlyphTable>& table = m_catalog.glyphs(font);
    m_result.glyphTables.push_back(table);
    const double scale = scaleOf(m_first), baseline = layout.lineAt(0).ascent();
    for (qsizetype index = 0; index < indexes.size(); ++index) {
        const std::uint32_t cluster = m_first + std::uint32_t(index);
        const double next = index + 1 < positions.size() ? positions[index + 1].x() : width;
        m_result.clusters[cluster].advance = (next - positions[index].x()) * scale;
        finishCluster(cluster, cluster, m_result.glyphs.size());
        const GlyphShape& shape = table->shape(font, indexes[index]);
        if (shape.outline.isEmpty() && shape.picture.isNull()) continue;
        m_result.glyphs.push_back({&shape, 0, float((positions[index].y() - baseline) * scale)});
    }
    return true;
}

void PieceShaper::takeGeneral(const QTextLayout& layout, const QTextLine& line) {
    const double baseline = line.y() + line.ascent();
    std::uint32_t groupStart = m_first;
    double groupLeading = 0, groupTrailing = 0; // edges in reading order
    for (std::uint32_t cluster = m_first; cluster < m_end; ++cluster) {
        // Within a ligature, Qt shares the width out evenly.
        const double leading = line.cursorToX(start(cluster), QTextLine::Leading);
        const double next = line.cursorToX(start(cluster + 1), QTextLine::Leading);
        m_result.clusters[cluster].advance = std::abs(next - leading) * scaleOf(cluster);

        const bool joins = cluster > m_first && std::abs(leading - groupLeading) < std::abs(groupTrailing - groupLeading);
        finishCluster(cluster, joins ? groupStart : cluster, m_result.glyphs.size());
        if (joins) continue;
        groupStart = cluster;
        groupLeading = leading;
        groupTrailing = line.cursorToX(start(cluster), QTextLine::Trailing);
        const double left = std::min({groupLeading, groupTrailing, next});
        takeGlyphs(layout.glyphRuns(start(cluster), start(cluster + 1) - start(cluster)), {left, baseline}, scaleOf(cluster));
    }
}

void PieceShaper::takeGlyphs(const QList<QGlyphRun>& runs, QPointF origin, double scale) {
    for (const QGlyphRun& run : runs) {
        const QRawFont font = run.rawFont();
        const std::shared_ptr<GlyphTable>& table = m_catalog.glyphs(font);
        if (m_result.glyphTables.empty() || m_result.glyphTables.back() != table) m_result.glyphTables.push_back(table);
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype index = 0; index < indexes.size(); ++index) {
            const GlyphShape& shape = table->shape(font, indexes[index]);
            const QPointF offset = (positions[index] - origin) * scale;
            m_result.glyphs.push_back({&shape, float(offset.x()), float(offset.y())});
        }
    }
}

// The end of the piece that starts at a cluster: where the direction changes or the paragraph ends, without its line feed, or the
// last break before it gets too long.
std::uint32_t endOfPiece(const QtShapedText& text, const std::vector<std::uint32_t>& unitStarts, std::uint32_t first) {
    std::uint32_t lastBreak = first;
    for (std::uint32_t cluster = first; cluster < text.clusters.size(); ++cluster) {
        if (text.clusters[cluster].breakAfter == LineBreak::mandatory) return cluster;
        if (text.clusters[cluster].bidiLevel != text.clusters[first].bidiLevel) return cluster;
        if (unitStarts[cluster + 1] - unitStarts[first] > longestPiece_units && cluster > first)
            return lastBreak > first ? lastBreak : cluster;
        if (text.clusters[cluster].breakAfter == LineBreak::allowed) lastBreak = cluster + 1;
    }
    return std::uint32_t(text.clusters.size());
}

} // namespace

QtTextShaper::QtTextShaper() : m_catalog(std::make_unique<FontCatalog>()) {}

QtTextShaper::~QtTextShaper() = default;

std::shared_ptr<const graphics::ShapedText> QtTextShaper::shape(std::span<const StyledRun> runs, std::string_view,
                                                                LayoutDirection direction) {
    auto result = std::make_shared<QtShapedText>();
    result->runs.assign(runs.begin(), runs.end());
    for (const StyledRun& run : runs) {
        const InstalledFace& face = m_catalog->face(run.font.face);
        result->metrics.push_back({face.ascent * pointSize(run), face.descent * pointSize(run)});
    }

    const RunUnits text(runs);
    std::vector<std::uint32_t> unitStarts;
    makeClusters(text, result->clusters, unitStarts);
    graphics::assignBidiLevels(*result, direction);
    const auto count = std::uint32_t(result->clusters.size());
    result->groupStarts.resize(count);
    result->glyphStarts.resize(count + 1);
    PieceShaper shaper(*result, text, unitStarts, *m_catalog);
    for (std::uint32_t first = 0; first < count;) {
        const std::uint32_t end = endOfPiece(*result, unitStarts, first);
        if (end > first) shaper.shape(first, end);
        first = end;
        // Line feeds have neither width nor glyphs.
        for (; first < count && result->clusters[first].breakAfter == LineBreak::mandatory; ++first) {
            result->groupStarts[first] = first;
            result->glyphStarts[first] = std::uint32_t(result->glyphs.size());
        }
    }
    result->glyphStarts[count] = std::uint32_t(result->glyphs.size());
    return result;
}

} // namespace proupsells::qtbackend

// Into which spans a row of coverages falls.
#include "Backends/Raster/CoverageMask.hpp"

#include <gmock/gmock.h>

#include <cstdlib>

namespace proupsells::rasterbackend {
namespace {

using testing::ElementsAre;
using Coverages = std::vector<std::uint8_t>;

// A span, with the coverages of its pixels where they have their own.
struct Stretch {
    int x = 0;
    int length = 0;
    int shared = -1;
    Coverages own{};

    bool operator==(const Stretch&) const = default;
};

void PrintTo(const Stretch& stretch, std::ostream* out) {
    *out << stretch.x << " +" << stretch.length << " shared " << stretch.shared << " own " << testing::PrintToString(stretch.own);
}

Coverages joined(std::initializer_list<Coverages> parts) {
    Coverages row;
    for (const Coverages& part : parts) row.insert(row.end(), part.begin(), part.end());
    return row;
}

Coverages times(std::size_t count, std::uint8_t coverage) { return Coverages(count, coverage); }

std::vector<Stretch> stretchesOf(const CoverageMask& mask, int y) {
    std::vector<Stretch> stretches;
    for (const CoverageMask::Span& span : mask.row(y)) {
        if (span.coverages < 0)
            stretches.push_back({span.x, span.length, span.shared});
        else
            stretches.push_back({span.x, span.length, -1, {mask.coverages(span), mask.coverages(span) + span.length}});
    }
    return stretches;
}

std::vector<Stretch> stretchesOf(const Coverages& row) {
    CoverageMask mask;
    mask.appendRow(row);
    return stretchesOf(mask, 0);
}

TEST(CoverageMask, HasNoSpansWhereNothingIsCovered) {
    CoverageMask mask;
    EXPECT_TRUE(mask.isEmpty());
    EXPECT_EQ(mask.height(), 0);

    mask.appendRow(times(20, 0));
    mask.appendRow(times(3, 0));
    mask.appendRow({});

    EXPECT_TRUE(mask.isEmpty());
    EXPECT_EQ(mask.height(), 3);
    EXPECT_THAT(stretchesOf(mask, 2), ElementsAre());
}

TEST(CoverageMask, HasOneSpanOfAllPixelsThatAreCoveredAlike) {
    EXPECT_THAT(stretchesOf(times(20, 255)), ElementsAre(Stretch{0, 20, 255}));
    EXPECT_THAT(stretchesOf(times(20, 9)), ElementsAre(Stretch{0, 20, 9}));
}

TEST(CoverageMask, LeavesOutWhatIsEmptyAtBothEnds) {
    EXPECT_THAT(stretchesOf({0, 1, 2, 0, 0}), ElementsAre(Stretch{1, 2, -1, {1, 2}}));
    EXPECT_THAT(stretchesOf({0, 0, 1, 2, 0}), ElementsAre(Stretch{2, 2, -1, {1, 2}}));
}

TEST(CoverageMask, KeepsAShortGapInside) { EXPECT_THAT(stretchesOf({5, 0, 0, 6}), ElementsAre(Stretch{0, 4, -1, {5, 0, 0, 6}})); }

TEST(CoverageMask, PartsARowAtAGapOfEightPixels) {
    EXPECT_THAT(stretchesOf(joined({{5}, times(7, 0), {6}})), ElementsAre(Stretch{0, 9, -1, joined({{5}, times(7, 0), {6}})}));
    EXPECT_THAT(stretchesOf(joined({{5}, times(8, 0), {6}})), ElementsAre(Stretch{0, 1, -1, {5}}, Stretch{9, 1, -1, {6}}));
}

TEST(CoverageMask, SharesTheCoverageOfEightPixelsAndMore) {
    EXPECT_THAT(stretchesOf(joined({{5}, times(7, 200), {6}})), ElementsAre(Stretch{0, 9, -1, joined({{5}, times(7, 200), {6}})}));
    EXPECT_THAT(stretchesOf(joined({{5}, times(8, 200), {6}})),
                ElementsAre(Stretch{0, 1, -1, {5}}, Stretch{1, 8, 200}, Stretch{9, 1, -1, {6}}));
    EXPECT_THAT(stretchesOf(joined({times(3, 5), times(8, 200)})), ElementsAre(Stretch{0, 3, -1, {5, 5, 5}}, Stretch{3, 8, 200}));
}

TEST(CoverageMask, KeepsItsRowsApart) {
    CoverageMask mask;
    mask.appendRow({{1, 2}});
    mask.appendRow(times(9, 0));
    mask.appendRow(joined({{0, 3}, times(8, 255)}));

    EXPECT_FALSE(mask.isEmpty());
    EXPECT_EQ(mask.height(), 3);
    EXPECT_THAT(stretchesOf(mask, 0), ElementsAre(Stretch{0, 2, -1, {1, 2}}));
    EXPECT_THAT(stretchesOf(mask, 1), ElementsAre());
    EXPECT_THAT(stretchesOf(mask, 2), ElementsAre(Stretch{1, 1, -1, {3}}, Stretch{2, 8, 255}));
}

// Vectors may have room for twice what is in them.
TEST(CoverageMask, CountsTheBytesOfRowsSpansAndCoverages) {
    CoverageMask mixed, shared, empty;
    for (int row = 0; row < 1023; ++row) {
        mixed.appendRow(Coverages{1, 2, 3, 4, 5, 6, 7, 8});
        shared.appendRow(times(200, 255));
        empty.appendRow({});
    }
    const std::size_t rows = 1024 * sizeof(std::uint32_t), spans = 1023 * sizeof(CoverageMask::Span), coverages = 1023 * 8;

    EXPECT_EQ(CoverageMask().byteCount(), sizeof(CoverageMask) + sizeof(std::uint32_t));
    for (const auto& [mask, least] : {std::pair{&mixed, rows + spans + coverages}, {&shared, rows + spans}, {&empty, rows}}) {
        EXPECT_GE(mask->byteCount(), least + sizeof(CoverageMask));
        EXPECT_LE(mask->byteCount(), 2 * least + sizeof(CoverageMask));
    }
}

} // namespace
} // namespace proupsells::rasterbackend

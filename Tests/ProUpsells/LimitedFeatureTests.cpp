// A feature that the free plan has for a number of times, on a screen where that takes much room.
#include <gmock/gmock.h>

#include "ProUpsells/ComparisonView.hpp"
#include "Tests/ProUpsells/FixedMetrics.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using geometry::Size;
using ::testing::IsEmpty;

// On the narrowest screen, with a name and a number of free uses of a test's choice.
class LimitedFeature : public ::testing::Test {
protected:
    void show(const std::string& name, int count) {
        const FeatureCategory category{
            .name = "Tools", .expanded = true, .items = {{name, {Feature::DistributionType::Limited{count}}}}};
        screen.emplace(ComparisonView{.items = std::make_shared<const std::vector<FeatureCategory>>(1, category)}, Size{320, 568});
    }
    accessibility::SemanticNode row() const { return firstOfType(screen->tree(), "FeatureChildRow"); }
    accessibility::SemanticNode name() const { return allOfType(row(), "Text").at(0); }
    accessibility::SemanticNode uses() const { return allOfType(row(), "Text").at(1); }

    std::optional<Screen> screen;
};

TEST_F(LimitedFeature, StandsInARowThatBreaksNoWord) {
    show("Remove Background", 1'000'000'000);

    EXPECT_THAT(brokenWords(uses()), IsEmpty());
    EXPECT_EQ(uses().text->size, 11);
    EXPECT_THAT(brokenWords(name()), IsEmpty());
    EXPECT_NEAR(name().frame.midY(), uses().frame.midY(), 0.5);
}

TEST_F(LimitedFeature, StandsAboveItsUsesWhereTheirWordsWouldBreakInARow) {
    show("Backgroundremovals", 1'000'000'000);

    EXPECT_THAT(brokenWords(uses()), IsEmpty());
    EXPECT_THAT(brokenWords(name()), IsEmpty());
    EXPECT_EQ(name().frame.minX(), 24 + 16);
    EXPECT_GE(uses().frame.minY(), name().frame.maxY());
    EXPECT_EQ(allOfType(row(), "CheckIcon").size(), 1u);
    EXPECT_EQ(allOfType(row(), "Image").back().frame.maxX(), 320 - 24 - 14);
}

} // namespace
} // namespace proupsells::tests

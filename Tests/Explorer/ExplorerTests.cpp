// The walks as tests, and what the walks stand on.
#include <gmock/gmock.h>

#include <cstdio>

#include "Tests/Explorer/Tours.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"

namespace proupsells::explorer {
namespace {

using ::testing::ElementsAre;

// The number of a journey.
class Explorer : public ::testing::TestWithParam<std::size_t> {
protected:
    static const Journey& journey() { return allJourneys()[GetParam()]; }
};

INSTANTIATE_TEST_SUITE_P(All, Explorer, ::testing::Range(std::size_t(0), allJourneys().size() - 1),
                         [](const auto& info) { return allJourneys()[info.param].name; });

TEST_P(Explorer, FindsNothingWrong) {
    std::size_t states = 0, edges = 0;
    for (const Tour& tour : journey().tours) {
        if (!tour.isInTests) continue;
        const Outcome outcome = walk(tour);
        for (const std::string& failure : outcome.failures) ADD_FAILURE() << failure;
        states += outcome.states;
        edges += outcome.edges;
    }
    EXPECT_GT(edges, 0u);
    std::printf("%s: %zu states, %zu edges\n", journey().subject.c_str(), states, edges);
}

TEST(ExplorerActions, AreReadAsTheyAreWritten) {
    const std::vector<Action> actions{
        {Action::Kind::tap, "comparison.category.Creation Tools"}, {Action::Kind::wait, "0.2"}, {Action::Kind::host, "offerNone"}};

    EXPECT_EQ(textOf(actions), "tap comparison.category.Creation Tools; wait 0.2; host offerNone");
    EXPECT_EQ(readActions(textOf(actions)), actions);
    EXPECT_FALSE(readActions("tap").has_value());
    EXPECT_FALSE(readActions("dance subscribe").has_value());
}

} // namespace
} // namespace proupsells::explorer

// Somebody does anything at all to the screens, for as long as it takes.
#include <gmock/gmock.h>

#include <cmath>

#include "Tests/Soak/Curve.hpp"
#include "Tests/Soak/Lengths.hpp"
#include "Tests/Soak/Visitor.hpp"
#include "Tests/Support/Sanitizers.hpp"

namespace proupsells::soak {
namespace {

constexpr int deedsOfAVisit = 1000;

// What a visit did to the screens; the seed of the visit is enough to see it again.
void visit(std::uint64_t seed, int deeds) {
    Stage stage;
    Visitor visitor(stage, seed);
    for (int deed = 1; deed <= deeds; ++deed) {
        visitor.act();
        stage.paint();
        const std::vector<std::string> problems = visitor.problems();
        ASSERT_THAT(problems, testing::IsEmpty()) << "--seed " << seed << " --deeds " << deed << "\n" << visitor.lastDeeds();
        stage.takeLogs();
    }
    stage.window().setRootViewController(nullptr);
    stage.bed().runFor(7);
    ASSERT_EQ(stage.left(), "") << "--seed " << seed << " --deeds " << deeds << "\n" << visitor.lastDeeds();
}

TEST(Visits, LeaveTheScreensSoundWhateverIsDone) {
    Curve curve("visits", "deeds");
    const int visits = (lengths.deeds + deedsOfAVisit - 1) / deedsOfAVisit;

    for (int number = 0; number < visits; ++number) {
        ASSERT_NO_FATAL_FAILURE(
            visit(lengths.seed + std::uint64_t(number), std::min(deedsOfAVisit, lengths.deeds - number * deedsOfAVisit)));
        if (Curve::isDue(number + 1, visits)) curve.add(double(number + 1) * deedsOfAVisit, 0, 0);
    }

    curve.tell();
}

} // namespace
} // namespace proupsells::soak

// The solver's values against the best that there can be.
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tests/ConstraintOracle/ExactOptimum.hpp"
#include "Tests/ConstraintOracle/SolvedSystem.hpp"

namespace proupsells::uikit::constraints {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pair;

class SmallSystem {
public:
    explicit SmallSystem(unsigned seed) : m_random(seed), variableCount(1 + below(ExactOptimum::mostVariables)) {
        for (unsigned count = 1 + below(9); count > 0; --count) constraints.push_back(makeConstraint());
    }

private:
    unsigned below(unsigned limit) { return unsigned(m_random() % limit); }

    LinearConstraint makeConstraint() {
        constexpr double priorities[] = {LinearConstraint::required, 750, 250};
        LinearConstraint constraint{{}, double(below(80)) / 2 - 20, Relation(below(3)), priorities[below(3)]};
        for (unsigned terms = 1 + below(3); terms > 0; --terms)
            constraint.terms.push_back({Variable(below(unsigned(variableCount))), double(below(9)) / 2 - 2});
        return constraint;
    }

    std::mt19937 m_random;

public:
    std::size_t variableCount;
    std::vector<LinearConstraint> constraints;
};

TEST(ExactOptimum, KnowsWhatCanBeHadByHand) {
    // x = 4 or x = 10, half of the sum each way, and x <= 6 above both.
    const std::vector<LinearConstraint> constraints = {{{{0, 1}}, -6, Relation::lessThanOrEqual, 1000},
                                                       {{{0, 1}}, -4, Relation::equal, 500},
                                                       {{{0, 1}}, -10, Relation::equal, 500},
                                                       {{{0, 1}}, -10, Relation::equal, 250},
                                                       {{{0, 1}}, -7, Relation::greaterThanOrEqual, 1000}};

    const ExactOptimum optimum(1, constraints);

    EXPECT_THAT(optimum.taken(), ElementsAre(true, true, true, true, false));
    EXPECT_THAT(optimum.errors(), ElementsAre(Pair(500, 6), Pair(250, 4)));
}

TEST(ExactOptimum, CountsConstraintsThatSayNothingOfAnyVariable) {
    const ExactOptimum optimum(2, {{{}, 1, Relation::equal, 1000}, {{}, -3, Relation::equal, 10}});

    EXPECT_THAT(optimum.taken(), ElementsAre(false, true));
    EXPECT_THAT(optimum.errors(), ElementsAre(Pair(10, 3)));
}

TEST(Solver, ErrsByNoMoreThanItMust) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        SCOPED_TRACE(seed);
        const SmallSystem system(seed);
        const ExactOptimum optimum(system.variableCount, system.constraints);

        const auto [values, taken] = solved(system.variableCount, system.constraints);

        EXPECT_EQ(taken, optimum.taken());
        for (const auto& [priority, least] : optimum.errors()) {
            double sum = 0;
            for (const LinearConstraint& constraint : system.constraints)
                if (constraint.priority == priority) sum += errorOf(constraint, values);
            EXPECT_THAT(sum, DoubleNear(least, 1e-6)) << "at priority " << priority;
        }
        for (std::size_t i = 0; i < taken.size(); ++i)
            if (taken[i] && system.constraints[i].priority >= LinearConstraint::required) {
                EXPECT_LT(errorOf(system.constraints[i], values), 1e-6);
            }
    }
}

} // namespace
} // namespace proupsells::uikit::constraints

#include "Platform/UIKit/Constraints/Solver.hpp"

#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tests/ConstraintOracle/SolvedSystem.hpp"

namespace proupsells::uikit::constraints {
namespace {

using testing::ElementsAre;

constexpr double required = LinearConstraint::required;

LinearConstraint equal(std::vector<Term> terms, double value, double priority = required) {
    return {std::move(terms), -value, Relation::equal, priority};
}
LinearConstraint atMost(std::vector<Term> terms, double value, double priority = required) {
    return {std::move(terms), -value, Relation::lessThanOrEqual, priority};
}
LinearConstraint atLeast(std::vector<Term> terms, double value, double priority = required) {
    return {std::move(terms), -value, Relation::greaterThanOrEqual, priority};
}

// --- Small systems ---

TEST(Solver, AVariableInNoConstraintIsZero) { EXPECT_THAT(solved(1, {}).values, ElementsAre(0)); }

TEST(Solver, EquationsAreSolvedInAnyOrder) {
    const SolvedSystem result = solved(3, {equal({{0, 1}, {1, 1}, {2, 1}}, 6), equal({{0, 1}, {1, -1}}, 0), equal({{2, 2}}, 4)});

    EXPECT_THAT(result.values, ElementsAre(2, 2, 2));
}

TEST(Solver, UnrestrictedVariablesMayBeNegative) {
    EXPECT_THAT(solved(2, {equal({{0, 1}, {1, 1}}, 3), equal({{0, 1}}, 10)}).values, ElementsAre(10, -7));
}

TEST(Solver, OneOfAHigherPriorityBeatsAnyNumberOfLowerOnes) {
    std::vector<LinearConstraint> constraints(50, equal({{0, 1000}}, 5000, 250));
    constraints.push_back(equal({{0, 1}}, 1, 251));

    EXPECT_THAT(solved(1, constraints).values, ElementsAre(1));
}

TEST(Solver, OnePriorityKeepsAsMuchAsItCan) {
    // Two want 0, one wants 10.
    EXPECT_THAT(solved(1, {equal({{0, 1}}, 0, 500), equal({{0, 1}}, 10, 500), equal({{0, 1}}, 0, 500)}).values, ElementsAre(0));
}

TEST(Solver, AnInequalityGivesWayAsLittleAsItMust) {
    EXPECT_THAT(solved(1, {atLeast({{0, 1}}, 10), equal({{0, 1}}, 3, 250)}).values, ElementsAre(10));
    EXPECT_THAT(solved(1, {atMost({{0, 1}}, 10), equal({{0, 1}}, 30, 250)}).values, ElementsAre(10));
    EXPECT_THAT(solved(1, {atLeast({{0, 1}}, 10, 100), atMost({{0, 1}}, 5, 200)}).values, ElementsAre(5));
}

TEST(Solver, ARequiredConstraintThatCannotHoldIsLeftOut) {
    const SolvedSystem result =
        solved(2, {equal({{0, 1}}, 10), equal({{0, 1}}, 20), equal({{1, 1}, {0, -1}}, 1), atMost({{1, 1}}, 5)});

    EXPECT_THAT(result.accepted, ElementsAre(true, false, true, false));
    EXPECT_THAT(result.values, ElementsAre(10, 11));
}

TEST(Solver, ASystemGoesOnUnharmedAfterAConstraintWasLeftOut) {
    const SolvedSystem result = solved(2, {atLeast({{0, 1}}, 0), atMost({{0, 1}, {1, 1}}, 10), atLeast({{1, 1}}, 4),
                                           atLeast({{0, 1}}, 7), equal({{0, 1}}, 100, 300), equal({{1, 1}}, 100, 200)});

    EXPECT_THAT(result.accepted, ElementsAre(true, true, true, false, true, true));
    EXPECT_THAT(result.values, ElementsAre(6, 4));
}

TEST(Solver, ARepeatedRequirementIsAccepted) {
    const SolvedSystem result = solved(1, {equal({{0, 3}}, 1), equal({{0, 3}}, 1), atMost({{0, 3}}, 1), atLeast({{0, 3}}, 1)});

    EXPECT_THAT(result.accepted, ElementsAre(true, true, true, true));
}

TEST(Solver, WhatIsNotFiniteIsRefused) {
    const double nan = std::numeric_limits<double>::quiet_NaN(), infinity = std::numeric_limits<double>::infinity();

    const SolvedSystem result = solved(1, {equal({{0, nan}}, 1), equal({{0, 1}}, infinity), equal({{0, 1}}, 4)});

    EXPECT_THAT(result.accepted, ElementsAre(false, false, true));
    EXPECT_THAT(result.values, ElementsAre(4));
}

TEST(Solver, ConstraintsWithoutVariablesAreTrueOrFalse) {
    const SolvedSystem result = solved(1, {equal({}, 0), equal({}, 1), atLeast({}, 1), atMost({}, 1), equal({}, 5, 250)});

    EXPECT_THAT(result.accepted, ElementsAre(true, false, false, true, true));
}

// --- Against trying everything ---

class RandomSystem {
public:
    explicit RandomSystem(unsigned seed) : m_random(seed), variables(1 + below(3)) {
        const int count = 1 + below(7);
        for (int i = 0; i < count; ++i) constraints.push_back(makeConstraint());
        // Decides what nothing else does.
        for (std::size_t i = 0; i < variables; ++i) constraints.push_back(equal({{Variable(i), 1}}, 0, 1));
    }

    LinearConstraint makeConstraint() {
        constexpr double priorities[] = {required, required, 750, 250};
        LinearConstraint constraint;
        for (std::size_t i = 0; i < variables; ++i)
            if (const int coefficient = below(5) - 2) constraint.terms.push_back({Variable(i), double(coefficient)});
        constraint.constant = below(41) - 20;
        constraint.relation = Relation(below(3));
        constraint.priority = priorities[below(4)];
        return constraint;
    }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }
    std::mt19937 m_random;

public:
    std::size_t variables;
    std::vector<LinearConstraint> constraints;
};

constexpr double tolerance = 1e-6;

// The sum of errors of each priority, the highest first.
std::vector<double> errorsOf(const std::vector<LinearConstraint>& constraints, const std::vector<double>& values) {
    std::map<double, double, std::greater<>> sums;
    for (const LinearConstraint& constraint : constraints)
        if (constraint.priority < required) sums[constraint.priority] += errorOf(constraint, values);
    std::vector<double> errors;
    for (const auto& [priority, sum] : sums) errors.push_back(sum);
    return errors;
}

bool isLess(const std::vector<double>& a, const std::vector<double>& b) {
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::abs(a[i] - b[i]) > tolerance) return a[i] < b[i];
    return false;
}

// Where as many of the constraints hold exactly as there are variables; absent where they do not meet in one point.
std::optional<std::vector<double>> meetingPoint(std::vector<LinearConstraint> chosen, std::size_t variables) {
    std::vector<std::vector<double>> matrix(variables, std::vector<double>(variables + 1));
    for (std::size_t row = 0; row < variables; ++row) {
        for (const Term& term : chosen[row].terms) matrix[row][term.variable] += term.coefficient;
        matrix[row][variables] = -chosen[row].constant;
    }
    for (std::size_t column = 0; column < variables; ++column) {
        std::size_t pivot = column;
        for (std::size_t row = column; row < variables; ++row)
            if (std::abs(matrix[row][column]) > std::abs(matrix[pivot][column])) pivot = row;
        if (std::abs(matrix[pivot][column]) < 1e-9) return std::nullopt;
        std::swap(matrix[pivot], matrix[column]);
        for (std::size_t row = 0; row < variables; ++row) {
            if (row == column) continue;
            const double factor = matrix[row][column] / matrix[column][column];
            for (std::size_t i = column; i <= variables; ++i) matrix[row][i] -= factor * matrix[column][i];
        }
    }
    std::vector<double> values;
    for (std::size_t i = 0; i < variables; ++i) values.push_back(matrix[i][variables] / matrix[i][i]);
    return values;
}

// All points where constraints meet. A best solution is always among them.
std::vector<std::vector<double>> meetingPoints(const std::vector<LinearConstraint>& constraints, std::size_t variables) {
    std::vector<std::vector<double>> points;
    std::vector<bool> isChosen(constraints.size());
    std::fill(isChosen.end() - std::ptrdiff_t(variables), isChosen.end(), true);
    do {
        std::vector<LinearConstraint> chosen;
        for (std::size_t i = 0; i < constraints.size(); ++i)
            if (isChosen[i]) chosen.push_back(constraints[i]);
        if (auto point = meetingPoint(chosen, variables)) points.push_back(std::move(*point));
    } while (std::next_permutation(isChosen.begin(), isChosen.end()));
    return points;
}

bool keepsAll(const std::vector<LinearConstraint>& demands, const std::vector<double>& values) {
    for (const LinearConstraint& demand : demands)
        if (errorOf(demand, values) > tolerance) return false;
    return true;
}

TEST(SolverAgainstBruteForce, FindsTheBestPointAndLeavesOutTheSameConstraints) {
    for (unsigned seed = 0; seed < 4000; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const RandomSystem system(seed);
        const auto points = meetingPoints(system.constraints, system.variables);
        const SolvedSystem result = solved(system.variables, system.constraints);

        std::vector<LinearConstraint> demands;
        for (std::size_t i = 0; i < system.constraints.size(); ++i) {
            const LinearConstraint& constraint = system.constraints[i];
            if (constraint.priority < required) {
                ASSERT_TRUE(result.accepted[i]);
                continue;
            }
            demands.push_back(constraint);
            const bool canHold =
                std::any_of(points.begin(), points.end(), [&](const auto& point) { return keepsAll(demands, point); });
            ASSERT_EQ(result.accepted[i], canHold) << "constraint " << i;
            if (!canHold) demands.pop_back();
        }
        ASSERT_TRUE(keepsAll(demands, result.values));

        const auto errors = errorsOf(system.constraints, result.values);
        for (const auto& point : points) {
            if (!keepsAll(demands, point)) continue;
            ASSERT_FALSE(isLess(errorsOf(system.constraints, point), errors)) << testing::PrintToString(point);
        }
    }
}

// --- What must hold of every system ---

class LargeSystem : public testing::TestWithParam<unsigned> {
protected:
    static constexpr int variables = 24;
    LargeSystem() : random(GetParam()) {
        constexpr double priorities[] = {required, 750, 500, 250};
        for (int i = 0; i < 60; ++i) {
            const Variable a = Variable(below(variables)), b = Variable(below(variables));
            LinearConstraint constraint{{{a, 1}}, -double(below(400)), Relation(below(3)), priorities[below(4)]};
            if (a != b) constraint.terms.push_back({b, below(2) ? -1.0 : -0.5});
            constraints.push_back(std::move(constraint));
        }
    }
    int below(int limit) { return int(random() % unsigned(limit)); }

    std::mt19937 random;
    std::vector<LinearConstraint> constraints;
};

TEST_P(LargeSystem, KeepsWhatIsRequired) {
    const SolvedSystem result = solved(variables, constraints);

    for (std::size_t i = 0; i < constraints.size(); ++i) {
        const bool isDemanded = constraints[i].priority >= required && result.accepted[i];
        EXPECT_LT(isDemanded ? errorOf(constraints[i], result.values) : 0, tolerance) << "constraint " << i;
    }
}

TEST_P(LargeSystem, AHigherPriorityNeverLosesToLowerOnes) {
    const auto errors = errorsOf(constraints, solved(variables, constraints).values);
    std::vector<LinearConstraint> without;
    for (const LinearConstraint& constraint : constraints)
        if (constraint.priority > 250) without.push_back(constraint);

    auto errorsWithout = errorsOf(without, solved(variables, without).values);

    ASSERT_EQ(errorsWithout.size() + 1, errors.size());
    for (std::size_t i = 0; i < errorsWithout.size(); ++i) EXPECT_NEAR(errors[i], errorsWithout[i], tolerance);
}

TEST_P(LargeSystem, AConstraintThatIsKeptAnywayChangesNothing) {
    const SolvedSystem before = solved(variables, constraints);
    const auto errors = errorsOf(constraints, before.values);
    std::vector<LinearConstraint> more = constraints;
    for (int i = 0; i < 5; ++i) {
        const Variable a = Variable(below(variables)), b = Variable(below(variables));
        const double distance = before.values[a] - before.values[b] + below(20);
        more.push_back(atMost({{a, 1}, {b, -1}}, distance, i % 2 ? required : 750));
    }

    const SolvedSystem after = solved(variables, more);

    for (std::size_t i = constraints.size(); i < more.size(); ++i) EXPECT_TRUE(after.accepted[i]);
    const auto errorsAfter = errorsOf(more, after.values);
    ASSERT_EQ(errorsAfter.size(), errors.size());
    for (std::size_t i = 0; i < errors.size(); ++i) EXPECT_NEAR(errorsAfter[i], errors[i], tolerance);
}

INSTANTIATE_TEST_SUITE_P(Seeds, LargeSystem, testing::Range(0u, 30u));

} // namespace
} // namespace proupsells::uikit::constraints

// A system of constraints as the solver has solved it.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "Platform/UIKit/Constraints/Solver.hpp"

namespace proupsells::uikit::constraints {

struct SolvedSystem {
    std::vector<double> values; // of each variable
    std::vector<bool> accepted; // each constraint
};

// The constraints are added in their order.
inline SolvedSystem solved(std::size_t variableCount, const std::vector<LinearConstraint>& constraints) {
    Solver solver;
    for (std::size_t i = 0; i < variableCount; ++i) solver.makeVariable();
    SolvedSystem result;
    for (const LinearConstraint& constraint : constraints) result.accepted.push_back(solver.add(constraint));
    solver.solve();
    for (std::size_t i = 0; i < variableCount; ++i) result.values.push_back(solver.value(Variable(i)));
    return result;
}

// By how much the values miss a constraint; 0 where it holds.
inline double errorOf(const LinearConstraint& constraint, const std::vector<double>& values) {
    double sum = constraint.constant;
    for (const Term& term : constraint.terms) sum += term.coefficient * values[term.variable];
    if (constraint.relation == Relation::lessThanOrEqual) return std::max(0.0, sum);
    if (constraint.relation == Relation::greaterThanOrEqual) return std::max(0.0, -sum);
    return std::abs(sum);
}

} // namespace proupsells::uikit::constraints

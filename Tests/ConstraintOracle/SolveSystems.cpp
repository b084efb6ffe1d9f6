// Solves systems of constraints read from standard input and writes their values, for a comparison with another solver.
//
// A system: "<variables> <constraints>", then a line for each constraint: "<relation> <priority> <constant> <terms>", then
// "<variable> <coefficient>" for each term. The relation is one of -1 (at most), 0 (equal) and 1 (at least).
// The answer: a line of 0 or 1 for each constraint, whether it was taken, and a line of the variables' values.
#include <cstdio>
#include <iostream>

#include "Platform/UIKit/Constraints/Solver.hpp"

using namespace proupsells;

using namespace uikit::constraints;

namespace {

bool readConstraint(LinearConstraint& constraint) {
    int relation = 0;
    std::size_t terms = 0;
    if (!(std::cin >> relation >> constraint.priority >> constraint.constant >> terms)) return false;
    constraint.relation = relation < 0 ? Relation::lessThanOrEqual : relation > 0 ? Relation::greaterThanOrEqual : Relation::equal;
    constraint.terms.resize(terms);
    for (Term& term : constraint.terms)
        if (!(std::cin >> term.variable >> term.coefficient)) return false;
    return true;
}

} // namespace

int main() {
    std::size_t variables = 0, constraints = 0;
    while (std::cin >> variables >> constraints) {
        Solver solver;
        for (std::size_t i = 0; i < variables; ++i) solver.makeVariable();
        for (std::size_t i = 0; i < constraints; ++i) {
            LinearConstraint constraint;
            if (!readConstraint(constraint)) {
                std::fprintf(stderr, "SolveSystems: a constraint was expected\n");
                return 2;
            }
            std::printf("%d ", solver.add(constraint) ? 1 : 0);
        }
        solver.solve();
        std::printf("\n");
        for (std::size_t i = 0; i < variables; ++i) std::printf("%.17g ", solver.value(Variable(i)));
        std::printf("\n");
    }
    return 0;
}

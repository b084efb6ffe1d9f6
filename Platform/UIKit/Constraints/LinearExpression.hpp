// Lengths and positions that are not known yet.
#pragma once

#include <vector>

#include "Platform/UIKit/Constraints/Solver.hpp"

namespace proupsells::uikit {

// A linear function of a solver's variables.
struct LinearExpression {
    std::vector<constraints::Term> terms;
    double constant = 0;

    static LinearExpression ofConstant(double constant) { return {{}, constant}; }
    static LinearExpression ofVariable(constraints::Variable variable) { return {{{variable, 1}}, 0}; }

    void add(const LinearExpression& other, double factor);
    LinearExpression plus(double offset) const { return {terms, constant + offset}; }
    LinearExpression plus(const LinearExpression& other, double factor = 1) const {
        LinearExpression sum = *this;
        sum.add(other, factor);
        return sum;
    }
    double valueIn(const std::vector<double>& values) const;
};

} // namespace proupsells::uikit

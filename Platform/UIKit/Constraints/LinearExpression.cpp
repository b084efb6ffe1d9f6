#include "Platform/UIKit/Constraints/LinearExpression.hpp"

namespace proupsells::uikit {

void LinearExpression::add(const LinearExpression& other, double factor) {
    constant += factor * other.constant;
    for (const constraints::Term& term : other.terms) {
        auto mine = terms.begin();
        while (mine != terms.end() && mine->variable != term.variable) ++mine;
        if (mine == terms.end()) mine = terms.insert(mine, {term.variable, 0});
        mine->coefficient += factor * term.coefficient;
        if (mine->coefficient == 0) terms.erase(mine);
    }
}

double LinearExpression::valueIn(const std::vector<double>& values) const {
    double value = constant;
    for (const constraints::Term& term : terms) value += term.coefficient * values[term.variable];
    return value;
}

} // namespace proupsells::uikit

// A solver for linear constraints with priorities: the arithmetic under Auto Layout.
//
// The method is the incremental simplex of the Cassowary papers (Badros, Borning, Stuckey: "The Cassowary linear arithmetic
// constraint solving algorithm", ACM TOCHI 8(4), 2001), with one difference: priorities are compared lexicographically instead of
// being weighted, so a constraint of a higher priority beats any number of a lower one.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace proupsells::uikit::constraints {

enum class Relation : std::uint8_t { lessThanOrEqual, equal, greaterThanOrEqual };

// Numbered from 0, unrestricted in sign.
using Variable = std::uint32_t;

struct Term {
    Variable variable = 0;
    double coefficient = 1;

    bool operator==(const Term&) const = default;
};

// Terms + constant, held against 0.
struct LinearConstraint {
    std::vector<Term> terms;
    double constant = 0;
    Relation relation = Relation::equal;
    double priority = 1000; // from 1000 on: required

    static constexpr double required = 1000;

    bool operator==(const LinearConstraint&) const = default;
};

class Solver {
public:
    Solver();
    ~Solver();
    Solver(Solver&&) noexcept;
    Solver& operator=(Solver&&) noexcept;

    Variable makeVariable();

    // False when a required constraint cannot hold beside the required ones before it (it is left out then), or when a coefficient
    // is not finite. Constraints of lower priority are always taken.
    bool add(const LinearConstraint& constraint);

    // Finds values that keep every required constraint and, priority by priority from the highest down, the sum of the absolute
    // errors as small as it can be. Nothing may be added afterwards.
    void solve();
    // After solve(); 0 for a variable in no constraint.
    double value(Variable variable) const;

private:
    struct Tableau;
    std::unique_ptr<Tableau> m_tableau;
};

} // namespace proupsells::uikit::constraints

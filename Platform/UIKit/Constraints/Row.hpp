// One line of a simplex tableau.
#pragma once

#include <cstdint>
#include <vector>

namespace proupsells::uikit::constraints {

using Symbol = std::uint32_t;

// Smaller coefficients count as 0.
inline constexpr double rowTolerance = 1e-9;

// constant + the sum of coefficient · symbol; symbols ascend and have no coefficient of 0.
class Row {
public:
    struct Cell {
        Symbol symbol;
        double coefficient;
    };

    double constant = 0;
    const std::vector<Cell>& cells() const { return m_cells; }

    double coefficientOf(Symbol symbol) const;
    void add(Symbol symbol, double coefficient);
    // Adds `factor` times the other row.
    void add(const Row& other, double factor);
    void remove(Symbol symbol);
    // Takes out every symbol that the other row has.
    void removeAllOf(const Row& other);
    void scale(double factor);
    // The row says that it is 0; turns it into what `symbol` equals. The symbol must be in it.
    void solveFor(Symbol symbol);
    // Puts what `symbol` equals in its place. Returns whether the symbol was there.
    bool substitute(Symbol symbol, const Row& row);

private:
    std::vector<Cell> m_cells;
};

} // namespace proupsells::uikit::constraints

#include "Platform/UIKit/Constraints/Row.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::uikit::constraints {

namespace {

bool comesBefore(const Row::Cell& cell, Symbol symbol) { return cell.symbol < symbol; }

bool isNothing(double coefficient) { return std::abs(coefficient) < rowTolerance; }

} // namespace

double Row::coefficientOf(Symbol symbol) const {
    if (m_cells.empty() || symbol < m_cells.front().symbol || symbol > m_cells.back().symbol) return 0;
    const auto found = std::lower_bound(m_cells.begin(), m_cells.end(), symbol, comesBefore);
    return found != m_cells.end() && found->symbol == symbol ? found->coefficient : 0;
}

void Row::add(Symbol symbol, double coefficient) {
    const auto found = std::lower_bound(m_cells.begin(), m_cells.end(), symbol, comesBefore);
    if (found == m_cells.end() || found->symbol != symbol) {
        if (!isNothing(coefficient)) m_cells.insert(found, {symbol, coefficient});
        return;
    }
    found->coefficient += coefficient;
    if (isNothing(found->coefficient)) m_cells.erase(found);
}

void Row::add(const Row& other, double factor) {
    constant += factor * other.constant;
    std::vector<Cell> merged;
    merged.reserve(m_cells.size() + other.m_cells.size());
    auto mine = m_cells.begin();
    for (const Cell& cell : other.m_cells) {
        while (mine != m_cells.end() && mine->symbol < cell.symbol) merged.push_back(*mine++);
        double coefficient = factor * cell.coefficient;
        if (mine != m_cells.end() && mine->symbol == cell.symbol) coefficient += (mine++)->coefficient;
        if (!isNothing(coefficient)) merged.push_back({cell.symbol, coefficient});
    }
    merged.insert(merged.end(), mine, m_cells.end());
    m_cells = std::move(merged);
}

void Row::remove(Symbol symbol) {
    const auto found = std::lower_bound(m_cells.begin(), m_cells.end(), symbol, comesBefore);
    if (found != m_cells.end() && found->symbol == symbol) m_cells.erase(found);
}

void Row::removeAllOf(const Row& other) {
    auto theirs = other.m_cells.begin();
    std::erase_if(m_cells, [&](const Cell& cell) {
        while (theirs != other.m_cells.end() && theirs->symbol < cell.symbol) ++theirs;
        return theirs != other.m_cells.end() && theirs->symbol == cell.symbol;
    });
}

void Row::scale(double factor) {
    constant *= factor;
    for (Cell& cell : m_cells) cell.coefficient *= factor;
}

void Row::solveFor(Symbol symbol) {
    const double coefficient = coefficientOf(symbol);
    remove(symbol);
    scale(-1 / coefficient);
}

bool Row::substitute(Symbol symbol, const Row& row) {
    const double coefficient = coefficientOf(symbol);
    if (coefficient == 0) return false;
    remove(symbol);
    add(row, coefficient);
    return true;
}

} // namespace proupsells::uikit::constraints

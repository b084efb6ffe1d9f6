// How well the best values of a small system of constraints do, found without any method of optimisation: in whole numbers, by
// trying every corner.
//
// A corner is a point in which as many constraints hold with equality as are independent of each other. What keeps the required
// constraints, and what errs as little as can be beside that, is bounded by such equalities, so there is a corner in it.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <numeric>
#include <vector>

#include "Platform/UIKit/Constraints/Solver.hpp"

namespace proupsells::uikit::constraints {

// The sums of what constraints are off by, of each priority below the required one.
using ErrorSums = std::map<double, double, std::greater<>>;

class ExactOptimum {
public:
    static constexpr std::size_t mostVariables = 4;

    // Twice any coefficient and any constant is a whole number, and a small one. Some ten constraints take a millisecond.
    ExactOptimum(std::size_t variableCount, const std::vector<LinearConstraint>& constraints) : m_variableCount(variableCount) {
        for (const LinearConstraint& constraint : constraints) m_lines.push_back(lineOf(constraint));
        findRank();
        collectCorners({}, 0);
        keepRequired(constraints);
        keepBest(constraints);
    }

    // Of each constraint: false for a required one that cannot hold beside the required ones before it.
    const std::vector<bool>& taken() const { return m_taken; }
    // The least that there can be, the highest priority first.
    const ErrorSums& errors() const { return m_errors; }

private:
    // Coefficients, and the constant as the last one.
    using Line = std::array<std::int64_t, mostVariables + 1>;
    struct Pivoted {
        Line line;
        std::size_t pivot;
    };
    // Lines that are independent of each other. In each, the pivots of the others are 0.
    using Independent = std::vector<Pivoted>;
    // Coordinates by their common denominator, which is positive and stands last.
    using Corner = Line;

    static Line lineOf(const LinearConstraint& constraint) {
        Line line{};
        for (const Term& term : constraint.terms) line[term.variable] += std::llround(2 * term.coefficient);
        line[mostVariables] = std::llround(2 * constraint.constant);
        return line;
    }

    static void shorten(Line& line) {
        std::int64_t divisor = 0;
        for (const std::int64_t number : line) divisor = std::gcd(divisor, number);
        if (divisor > 1)
            for (std::int64_t& number : line) number /= divisor;
    }

    static void eliminate(Line& line, const Pivoted& by) {
        const std::int64_t factor = line[by.pivot], pivot = by.line[by.pivot];
        if (factor == 0) return;
        for (std::size_t i = 0; i < line.size(); ++i) line[i] = line[i] * pivot - factor * by.line[i];
        shorten(line);
    }

    // Returns whether the line says something new of the variables.
    bool add(Line line, Independent& to) const {
        for (const Pivoted& known : to) eliminate(line, known);
        const auto end = line.begin() + std::ptrdiff_t(m_variableCount);
        const auto pivot = std::find_if(line.begin(), end, [](std::int64_t number) { return number != 0; });
        if (pivot == end) return false;
        const Pivoted added{line, std::size_t(pivot - line.begin())};
        for (Pivoted& known : to) eliminate(known.line, added);
        to.push_back(added);
        return true;
    }

    void findRank() {
        Independent all;
        for (const Line& line : m_lines) add(line, all);
        m_rank = all.size();
    }

    void collectCorners(const Independent& chosen, std::size_t next) {
        if (chosen.size() == m_rank) {
            m_corners.push_back(cornerOf(chosen));
            return;
        }
        for (std::size_t i = next; i < m_lines.size(); ++i) {
            Independent more = chosen;
            if (add(m_lines[i], more)) collectCorners(more, i + 1);
        }
    }

    // Variables that nothing says anything of are 0.
    static Corner cornerOf(const Independent& lines) {
        std::int64_t denominator = 1;
        for (const auto& [line, pivot] : lines) denominator = std::lcm(denominator, line[pivot]);
        Corner corner{};
        for (const auto& [line, pivot] : lines) corner[pivot] = -line[mostVariables] * (denominator / line[pivot]);
        corner[mostVariables] = denominator;
        return corner;
    }

    // By twice the corner's denominator.
    static std::int64_t errorAt(const Corner& corner, const Line& line, Relation relation) {
        const std::int64_t value = std::inner_product(line.begin(), line.end(), corner.begin(), std::int64_t(0));
        if (relation == Relation::lessThanOrEqual) return std::max<std::int64_t>(0, value);
        if (relation == Relation::greaterThanOrEqual) return std::max<std::int64_t>(0, -value);
        return std::abs(value);
    }

    void keepRequired(const std::vector<LinearConstraint>& constraints) {
        for (std::size_t i = 0; i < constraints.size(); ++i) {
            m_taken.push_back(true);
            if (constraints[i].priority < LinearConstraint::required) continue;
            std::vector<Corner> kept = m_corners;
            std::erase_if(kept, [&](const Corner& corner) { return errorAt(corner, m_lines[i], constraints[i].relation) > 0; });
            m_taken.back() = !kept.empty();
            if (!kept.empty()) m_corners = std::move(kept);
        }
    }

    void keepBest(const std::vector<LinearConstraint>& constraints) {
        for (const LinearConstraint& constraint : constraints)
            if (constraint.priority < LinearConstraint::required) m_errors[constraint.priority] = 0;
        for (auto& [priority, least] : m_errors) {
            const auto sumAt = [&, level = priority](const Corner& corner) {
                std::int64_t sum = 0;
                for (std::size_t i = 0; i < constraints.size(); ++i)
                    if (constraints[i].priority == level) sum += errorAt(corner, m_lines[i], constraints[i].relation);
                return sum;
            };
            const auto isLess = [&](const Corner& a, const Corner& b) {
                return sumAt(a) * b[mostVariables] < sumAt(b) * a[mostVariables];
            };
            const Corner best = *std::min_element(m_corners.begin(), m_corners.end(), isLess);
            std::erase_if(m_corners, [&](const Corner& corner) { return isLess(best, corner); });
            least = double(sumAt(best)) / (2.0 * double(best[mostVariables]));
        }
    }

    std::size_t m_variableCount, m_rank = 0;
    std::vector<Line> m_lines;
    std::vector<Corner> m_corners;
    std::vector<bool> m_taken;
    ErrorSums m_errors;
};

} // namespace proupsells::uikit::constraints

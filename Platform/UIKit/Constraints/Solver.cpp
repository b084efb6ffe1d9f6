#include "Platform/UIKit/Constraints/Solver.hpp"

#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <utility>

#include "Platform/UIKit/Constraints/Row.hpp"

namespace proupsells::uikit::constraints {

namespace {

enum class SymbolKind : std::uint8_t {
    variable, // the caller's; unrestricted
    slack,    // what an inequality has to spare; not negative
    error,    // what a constraint that is not required falls short by; not negative
};

// Required constraints may contradict each other by this much, which is rounding.
constexpr double infeasibility = 1e-7;

bool holds(double value, Relation relation) {
    if (relation == Relation::lessThanOrEqual) return value <= infeasibility;
    if (relation == Relation::greaterThanOrEqual) return value >= -infeasibility;
    return std::abs(value) <= infeasibility;
}

} // namespace

// Basic symbols have a row that says what they equal; all others are 0. Every restricted basic symbol's constant is not negative,
// and no row of a restricted symbol holds a variable of the caller's.
struct Solver::Tableau {
    std::vector<SymbolKind> kinds;
    std::vector<Symbol> symbolOfVariable;
    struct Basic {
        Symbol symbol;
        Row row;
    };
    std::vector<Basic> basics;           // in no order
    std::vector<std::ptrdiff_t> placeOf; // of each symbol among them; -1 for those that are not basic
    // The sum of the errors of each priority, the highest first, written in symbols that are not basic.
    std::map<double, Row, std::greater<>> objectives;

    Symbol makeSymbol(SymbolKind kind) {
        kinds.push_back(kind);
        placeOf.push_back(-1);
        return static_cast<Symbol>(kinds.size() - 1);
    }

    bool isRestricted(Symbol symbol) const { return kinds[symbol] != SymbolKind::variable; }

    void substituteEverywhere(Symbol symbol, const Row& row) {
        for (Basic& basic : basics) basic.row.substitute(symbol, row);
        for (auto& [priority, objective] : objectives) objective.substitute(symbol, row);
    }

    // Puts `add` of a symbol, basic or not, into a row.
    void addTo(Row& row, Symbol symbol, double coefficient) const {
        if (const Row* basic = rowOfBasic(symbol))
            row.add(*basic, coefficient);
        else
            row.add(symbol, coefficient);
    }

    struct NewRow {
        Row row; // equals 0
        std::optional<Symbol> marker;
        std::optional<Symbol> otherMarker;
    };

    // What the constraint says in symbols that are not basic.
    Row rowOf(const LinearConstraint& constraint) const {
        Row row;
        row.constant = constraint.constant;
        for (const Term& term : constraint.terms) addTo(row, symbolOfVariable[term.variable], term.coefficient);
        return row;
    }

    NewRow makeRow(const LinearConstraint& constraint, Row row) {
        NewRow result{std::move(row), {}, {}};
        const bool isRequired = constraint.priority >= LinearConstraint::required;
        if (constraint.relation == Relation::equal) {
            if (isRequired) return result;
            result.marker = addError(result.row, -1, constraint.priority);
            result.otherMarker = addError(result.row, 1, constraint.priority);
            return result;
        }
        const double sign = constraint.relation == Relation::lessThanOrEqual ? 1 : -1;
        result.marker = makeSymbol(SymbolKind::slack);
        result.row.add(*result.marker, sign);
        if (!isRequired) result.otherMarker = addError(result.row, -sign, constraint.priority);
        return result;
    }

    Symbol addError(Row& row, double coefficient, double priority) {
        const Symbol error = makeSymbol(SymbolKind::error);
        row.add(error, coefficient);
        objectives[priority].add(error, 1);
        return error;
    }

    // A symbol that may become basic right away: a variable, or a new restricted symbol that then comes out not negative.
    std::optional<Symbol> subjectOf(const NewRow& added) const {
        for (const Row::Cell& cell : added.row.cells())
            if (!isRestricted(cell.symbol)) return cell.symbol;
        for (const auto& marker : {added.marker, added.otherMarker}) {
            if (!marker) continue;
            const double coefficient = added.row.coefficientOf(*marker);
            if (coefficient != 0 && -added.row.constant / coefficient >= 0) return marker;
        }
        return std::nullopt;
    }

    void makeBasic(Symbol symbol, Row row) {
        row.solveFor(symbol);
        substituteEverywhere(symbol, row);
        insert(symbol, std::move(row));
    }

    void insert(Symbol symbol, Row row) {
        placeOf[symbol] = std::ptrdiff_t(basics.size());
        basics.push_back({symbol, std::move(row)});
    }

    // Makes the symbol one that is not basic.
    Row takeRowOf(Symbol symbol) {
        const auto place = std::size_t(std::exchange(placeOf[symbol], -1));
        Row row = std::move(basics[place].row);
        if (place + 1 < basics.size()) {
            basics[place] = std::move(basics.back());
            placeOf[basics[place].symbol] = std::ptrdiff_t(place);
        }
        basics.pop_back();
        return row;
    }

    // What a symbol equals; null for one that is not basic.
    const Row* rowOfBasic(Symbol symbol) const { return placeOf[symbol] < 0 ? nullptr : &basics[std::size_t(placeOf[symbol])].row; }

    // The basic restricted symbol that is the first to reach 0 when `entering` grows; absent when none does.
    std::optional<Symbol> leavingFor(Symbol entering) const {
        std::optional<Symbol> leaving;
        double smallest = std::numeric_limits<double>::infinity();
        for (const Basic& basic : basics) {
            const double coefficient = basic.row.coefficientOf(entering);
            if (coefficient >= 0 || !isRestricted(basic.symbol)) continue;
            const double ratio = -basic.row.constant / coefficient;
            // Among equals the smallest number leaves: with the same rule for who enters, no cycle is possible (Bland).
            const bool isEqual = std::abs(ratio - smallest) <= rowTolerance;
            if (isEqual ? basic.symbol < *leaving : ratio < smallest) leaving = basic.symbol;
            smallest = std::min(smallest, ratio);
        }
        return leaving;
    }

    void pivot(Symbol entering, Symbol leaving) {
        Row row = takeRowOf(leaving);
        row.add(leaving, -1);
        makeBasic(entering, std::move(row));
    }

    // Priority by priority: what has made one of them worse by growing is no longer free to grow for the ones below.
    void optimize() {
        for (auto& [priority, objective] : objectives) {
            while (const std::optional<Symbol> entering = enteringOf(objective)) {
                if (const auto leaving = leavingFor(*entering))
                    pivot(*entering, *leaving);
                else
                    objective.remove(*entering); // no error can grow below 0, so this is a trace of rounding
            }
            const Row settled = std::move(objective);
            objective = {};
            for (Basic& basic : basics) basic.row.removeAllOf(settled);
            for (auto& [other, later] : objectives) later.removeAllOf(settled);
        }
    }

    // The lowest-numbered symbol whose growth lessens what the objective says.
    std::optional<Symbol> enteringOf(const Row& objective) const {
        for (const Row::Cell& cell : objective.cells())
            if (cell.coefficient < -rowTolerance) return cell.symbol;
        return std::nullopt;
    }

    // Makes room for a row of which no symbol can become basic at once, by way of an artificial symbol that is driven to 0.
    bool addByArtificialSymbol(Row row) {
        if (row.constant < 0) row.scale(-1);
        const Symbol artificial = makeSymbol(SymbolKind::slack);
        Row objective = row;
        insert(artificial, std::move(row));
        for (;;) {
            const auto entering = enteringOf(objective);
            if (!entering) break;
            const auto leaving = leavingFor(*entering);
            if (!leaving) break;
            pivot(*entering, *leaving);
            objective.substitute(*entering, *rowOfBasic(*entering));
        }
        if (std::abs(objective.constant) > infeasibility) return false;

        if (const Row* remaining = rowOfBasic(artificial)) {
            if (remaining->cells().empty())
                takeRowOf(artificial);
            else
                pivot(remaining->cells().front().symbol, artificial);
        }
        for (Basic& basic : basics) basic.row.remove(artificial);
        for (auto& [priority, other] : objectives) other.remove(artificial);
        return true;
    }

    bool add(const LinearConstraint& constraint) {
        Row row = rowOf(constraint);
        // Nothing can change any more whether it holds.
        if (row.cells().empty())
            return constraint.priority < LinearConstraint::required || holds(row.constant, constraint.relation);
        NewRow added = makeRow(constraint, std::move(row));
        if (const auto subject = subjectOf(added)) {
            makeBasic(*subject, std::move(added.row));
            return true;
        }
        Tableau before = *this;
        if (addByArtificialSymbol(std::move(added.row))) return true;
        *this = std::move(before);
        return false;
    }
};

Solver::Solver() : m_tableau(std::make_unique<Tableau>()) {}
Solver::~Solver() = default;
Solver::Solver(Solver&&) noexcept = default;
Solver& Solver::operator=(Solver&&) noexcept = default;

Variable Solver::makeVariable() {
    m_tableau->symbolOfVariable.push_back(m_tableau->makeSymbol(SymbolKind::variable));
    return static_cast<Variable>(m_tableau->symbolOfVariable.size() - 1);
}

bool Solver::add(const LinearConstraint& constraint) {
    if (!std::isfinite(constraint.constant)) return false;
    for (const Term& term : constraint.terms)
        if (!std::isfinite(term.coefficient)) return false;
    return m_tableau->add(constraint);
}

void Solver::solve() { m_tableau->optimize(); }

double Solver::value(Variable variable) const {
    const Row* row = m_tableau->rowOfBasic(m_tableau->symbolOfVariable[variable]);
    return row ? row->constant : 0;
}

} // namespace proupsells::uikit::constraints

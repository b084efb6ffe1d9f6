// Any bytes as a system of constraints: what cannot hold is left out, and the rest errs by no more than it must, in whatever order
// it was added. And as constraints between views: those that have come and gone leave nothing behind.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "Backends/Headless/TestBed.hpp"
#include "Fuzz/ByteReader.hpp"
#include "Fuzz/Require.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/UIKit/Views/UIView.hpp"
#include "Tests/ConstraintOracle/ExactOptimum.hpp"
#include "Tests/ConstraintOracle/SolvedSystem.hpp"

using namespace proupsells;
using namespace uikit::constraints;
using fuzz::ByteReader;
using fuzz::require;

namespace {

constexpr double priorities[] = {LinearConstraint::required, 999.5, 750, 250, 50, 1};

// --- A system by itself ---

// Numbers as ExactOptimum wants them.
LinearConstraint readConstraint(ByteReader& bytes, std::size_t variableCount) {
    LinearConstraint constraint;
    constraint.priority = priorities[bytes.below(6)];
    constraint.relation = Relation(bytes.below(3));
    constraint.constant = (bytes.below(256) - 128) / 2.0;
    for (int count = bytes.below(4); count > 0; --count) {
        const auto variable = Variable(bytes.below(int(variableCount)));
        constraint.terms.push_back({variable, (bytes.below(9) - 4) / 2.0});
    }
    return constraint;
}

void requireBest(const std::vector<LinearConstraint>& constraints, std::size_t variableCount, const ExactOptimum& optimum) {
    constexpr double tolerance = 1e-5;
    const auto [values, taken] = solved(variableCount, constraints);
    require(std::count(taken.begin(), taken.end(), true) == std::count(optimum.taken().begin(), optimum.taken().end(), true));
    for (const double value : values) require(std::isfinite(value));

    ErrorSums errors;
    for (std::size_t i = 0; i < constraints.size(); ++i) {
        const double error = errorOf(constraints[i], values);
        if (constraints[i].priority < LinearConstraint::required)
            errors[constraints[i].priority] += error;
        else
            require(!taken[i] || error < tolerance);
    }
    for (const auto& [priority, least] : optimum.errors()) require(std::abs(errors[priority] - least) < tolerance);
}

void trySystem(ByteReader& bytes) {
    // What makes more corners than can be tried at once.
    constexpr std::size_t most = 10;
    const auto variableCount = std::size_t(1 + bytes.below(ExactOptimum::mostVariables));
    std::vector<LinearConstraint> constraints;
    for (std::size_t count = 1 + std::size_t(bytes.below(most)); constraints.size() < count;)
        constraints.push_back(readConstraint(bytes, variableCount));

    const ExactOptimum optimum(variableCount, constraints);
    requireBest(constraints, variableCount, optimum);
    // Which of the required ones yield hangs on their order.
    const auto isRequired = [](const LinearConstraint& constraint) { return constraint.priority >= LinearConstraint::required; };
    const auto weaker = std::stable_partition(constraints.begin(), constraints.end(), isRequired);
    requireBest(constraints, variableCount, optimum);
    std::reverse(weaker, constraints.end());
    requireBest(constraints, variableCount, optimum);
}

// --- Between views ---

// A view with one inside and one beside that, all of them placed by constraints alone.
class Scene {
public:
    Scene() {
        m_root->setFrame({{0, 0}, {320, 200}});
        for (const auto& [view, superview] :
             {std::pair(m_first, m_root), std::pair(m_inner, m_first), std::pair(m_second, m_root)}) {
            view->setTranslatesAutoresizingMaskIntoConstraints(false);
            superview->addSubview(view);
        }
    }

    std::vector<std::shared_ptr<uikit::NSLayoutConstraint>> read(ByteReader& bytes, int count) {
        std::vector<std::shared_ptr<uikit::NSLayoutConstraint>> constraints;
        for (int i = 0; i < count; ++i) constraints.push_back(readOne(bytes));
        return constraints;
    }
    std::vector<geometry::Rect> frames() {
        m_root->setNeedsLayout();
        m_root->layoutIfNeeded();
        std::vector<geometry::Rect> frames;
        for (const auto& view : {m_first, m_inner, m_second}) {
            const geometry::Rect& frame = view->frame();
            require(std::isfinite(frame.minX()) && std::isfinite(frame.minY()));
            require(frame.width() >= 0 && frame.height() >= 0 && std::isfinite(frame.maxX()) && std::isfinite(frame.maxY()));
            frames.push_back(frame);
        }
        return frames;
    }

private:
    enum class Kind { x, y, length };

    static uikit::LayoutTerm readTerm(ByteReader& bytes, uikit::UIView& view, Kind kind) {
        using Attribute = uikit::NSLayoutAttribute;
        constexpr Attribute places[] = {Attribute::left, Attribute::right, Attribute::leading, Attribute::trailing,
                                        Attribute::centerX};
        constexpr Attribute heights[] = {Attribute::top, Attribute::bottom, Attribute::centerY};
        uikit::LayoutTerm term = view.widthAnchor().term();
        term.isOfSafeArea = bytes.below(8) == 1;
        if (kind == Kind::x) term.attribute = places[bytes.below(5)];
        if (kind == Kind::y) term.attribute = heights[bytes.below(3)];
        if (kind == Kind::length && bytes.flag()) term.attribute = Attribute::height;
        return term;
    }

    std::shared_ptr<uikit::NSLayoutConstraint> readOne(ByteReader& bytes) {
        uikit::UIView* const views[] = {m_root.get(), m_first.get(), m_inner.get(), m_second.get()};
        const auto kind = Kind(bytes.below(3));
        const auto first = readTerm(bytes, *views[bytes.below(4)], kind);
        const bool isAlone = kind == Kind::length && bytes.flag();
        const auto second = isAlone ? uikit::LayoutTerm() : readTerm(bytes, *views[bytes.below(4)], kind);
        const auto relation = uikit::NSLayoutRelation(bytes.below(3));
        const double multiplier = kind == Kind::length ? bytes.below(8) / 2.0 : 1;
        // Now and then no number.
        const double constant = bytes.coordinate(100) - 100;
        return uikit::makeLayoutConstraint(first, relation, second, multiplier, constant)
            ->withPriority(uikit::UILayoutPriority(priorities[bytes.below(6)]));
    }

    std::shared_ptr<uikit::UIView> m_root = std::make_shared<uikit::UIView>(), m_first = std::make_shared<uikit::UIView>(),
                                   m_inner = std::make_shared<uikit::UIView>(), m_second = std::make_shared<uikit::UIView>();
};

void tryViews(ByteReader& bytes) {
    const headless::TestBed bed;
    headless::TestBed::setUnexpectedLogHandler([](const commons::LogRecord&) {});
    Scene scene;
    const auto staying = scene.read(bytes, bytes.below(12));
    const auto passing = scene.read(bytes, bytes.below(6));
    uikit::NSLayoutConstraint::activate(staying);
    const auto before = scene.frames();
    uikit::NSLayoutConstraint::activate(passing);
    scene.frames();
    uikit::NSLayoutConstraint::deactivate(passing);
    require(scene.frames() == before);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ByteReader bytes(data, size);
    trySystem(bytes);
    if (!bytes.isOver()) tryViews(bytes);
    return 0;
}

// What a tree of views and its constraints say, in the solver's language.
#pragma once

#include <optional>
#include <unordered_map>

#include "Platform/UIKit/Constraints/LinearExpression.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/UIKit/Views/UIScrollView.hpp"

namespace proupsells::uikit {

struct LinearSystem {
    std::size_t variableCount = 0;
    std::vector<constraints::LinearConstraint> constraints;

    bool operator==(const LinearSystem&) const = default;
};

class LayoutProblem {
public:
    enum class Purpose {
        place, // the root's size is given
        fit,   // it is looked for
    };
    struct PlacedView {
        UIView* view;
        std::size_t parent; // index
    };
    struct ScrolledContent {
        UIScrollView* view;
        std::optional<constraints::Variable> width, height;
    };

    // Knows nothing yet of what depends on the views' sizes. `proposal` counts for fitting only.
    LayoutProblem(UIView& root, Purpose purpose, const geometry::ProposedSize& proposal);
    // What follows from the rectangles that the solution gives; absent where it is the same problem again.
    std::optional<LayoutProblem> next(const std::vector<geometry::Rect>& rects) const;

    // The root, then what constraints place inside it, from the outside in.
    const std::vector<PlacedView>& views() const { return m_views; }
    const std::vector<ScrolledContent>& scrolledContents() const { return m_contents; }
    const LinearSystem& system() const { return m_system; }
    // Whom each of the system's constraints comes from; null for those that follow from the views.
    const std::vector<NSLayoutConstraint*>& origins() const { return m_origins; }
    // Required constraints between things that stand fixed, and do not keep it.
    const std::vector<NSLayoutConstraint*>& unkept() const { return m_unkept; }
    // Of each view, in the root's coordinates without its bounds' origin.
    std::vector<geometry::Rect> rectsFor(const std::vector<double>& values) const;

private:
    struct Box {
        LinearExpression left, top, width, height;
    };
    using Relation = constraints::Relation;
    using Rects = std::vector<geometry::Rect>;

    LayoutProblem() = default;
    LayoutProblem unstated() const;
    // `former` are the rectangles that the solution before this one gave; empty for the first.
    void state(const Rects& former, std::vector<geometry::Size> naturalSizes);
    std::vector<geometry::Size> naturalSizes(const Rects& former) const;
    // The root's own size counts where it is looked for.
    std::size_t firstSized() const { return m_purpose == Purpose::fit ? 0 : 1; }

    void collect(UIView& view, std::size_t parent);
    Box makeBox(std::size_t index);
    constraints::Variable makeVariable() { return constraints::Variable(m_system.variableCount++); }

    void addPins(std::size_t index);
    void addConstraints();
    void addConstraint(NSLayoutConstraint& constraint);
    void addNaturalSize(std::size_t index);
    void addCorner(std::size_t index);
    void addFittingSize();
    void add(LinearExpression expression, Relation relation, double priority, NSLayoutConstraint* origin = nullptr);

    bool decidesNothing(const NSLayoutConstraint& constraint) const;
    Box boxOf(const UIView& view) const;
    Box boxFor(const LayoutTerm& term, const LayoutTerm& other);
    Box safeBoxOf(UIView& view);
    LinearExpression valueOf(const LayoutTerm& term, const LayoutTerm& other, bool isMirrored);
    void seeFromContent(Box& box, UIScrollView& scrollView, NSLayoutAttribute attribute);

    UIView* m_root = nullptr;
    Purpose m_purpose = Purpose::place;
    geometry::ProposedSize m_proposal;
    const Rects* m_former = nullptr; // only while it is made
    std::vector<PlacedView> m_views;
    std::unordered_map<const UIView*, std::size_t> m_indexes;
    std::vector<Box> m_boxes;
    std::vector<geometry::Size> m_naturalSizes; // of each view from firstSized() on
    bool m_hasSafeAreas = false;
    std::vector<ScrolledContent> m_contents;
    LinearSystem m_system;
    std::vector<NSLayoutConstraint*> m_origins, m_unkept;
};

} // namespace proupsells::uikit

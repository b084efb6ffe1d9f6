#include "Platform/UIKit/Constraints/LayoutProblem.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::uikit {

namespace {

constexpr double required = constraints::LinearConstraint::required;
// No length is negative, if that can be had without breaking what is required.
constexpr double sizeBoundPriority = 999.5;
// What is as small as can be yields to everything that asks for room.
constexpr double fittingPriority = 50;
// What nothing else says where to put stands at its superview's top leading corner, or else beyond it rather than before it.
constexpr double insidePriority = 2;
constexpr double cornerPriority = 1;
constexpr double tolerance = 1e-7;

bool isHorizontal(NSLayoutAttribute attribute) { return attribute <= NSLayoutAttribute::centerX; }

bool followsDirection(const LayoutTerm& term) {
    return term.item && (term.attribute == NSLayoutAttribute::leading || term.attribute == NSLayoutAttribute::trailing);
}

bool isKept(double value, constraints::Relation relation) {
    switch (relation) {
    case constraints::Relation::lessThanOrEqual: return value <= tolerance;
    case constraints::Relation::equal: return std::abs(value) <= tolerance;
    case constraints::Relation::greaterThanOrEqual: return value >= -tolerance;
    }
    return false;
}

constraints::Relation relationOf(const NSLayoutConstraint& constraint) {
    constexpr constraints::Relation relations[] = {constraints::Relation::lessThanOrEqual, constraints::Relation::equal,
                                                   constraints::Relation::greaterThanOrEqual};
    return relations[std::size_t(constraint.relation())];
}

// The origin of a view's bounds moves what is inside it, except in scroll views, whose content stands still in its layout.
geometry::Point boundsShift(const UIView& view) { return view.scrollsItsContent() ? geometry::Point{} : view.bounds().origin; }

bool isLength(double value) { return value >= 0 && std::isfinite(value); }

} // namespace

LayoutProblem::LayoutProblem(UIView& root, Purpose purpose, const geometry::ProposedSize& proposal)
    : m_root(&root), m_purpose(purpose), m_proposal(proposal) {
    collect(root, 0);
    state({}, naturalSizes({}));
}

std::optional<LayoutProblem> LayoutProblem::next(const Rects& rects) const {
    std::vector<geometry::Size> sizes = naturalSizes(rects);
    if (sizes == m_naturalSizes && !m_hasSafeAreas) return std::nullopt;
    LayoutProblem next = unstated();
    next.state(rects, std::move(sizes));
    if (next.m_system == m_system) return std::nullopt;
    return next;
}

// The same question before anything is said.
LayoutProblem LayoutProblem::unstated() const {
    LayoutProblem problem;
    problem.m_root = m_root;
    problem.m_purpose = m_purpose;
    problem.m_proposal = m_proposal;
    problem.m_views = m_views;
    problem.m_indexes = m_indexes;
    return problem;
}

void LayoutProblem::state(const Rects& former, std::vector<geometry::Size> naturalSizes) {
    m_former = &former;
    m_naturalSizes = std::move(naturalSizes);
    for (std::size_t i = 0; i < m_views.size(); ++i) m_boxes.push_back(makeBox(i));
    for (std::size_t i = 1; i < m_views.size(); ++i) addPins(i);
    if (m_purpose == Purpose::fit) addFittingSize();
    addConstraints();
    for (std::size_t i = firstSized(); i < m_views.size(); ++i) addNaturalSize(i);
    for (std::size_t i = 1; i < m_views.size(); ++i) addCorner(i);
    m_former = nullptr;
}

std::vector<geometry::Size> LayoutProblem::naturalSizes(const Rects& former) const {
    std::vector<geometry::Size> sizes;
    for (std::size_t i = firstSized(); i < m_views.size(); ++i) {
        const UIView& view = *m_views[i].view;
        const bool isKnown = i < former.size() && former[i].width() > 0;
        sizes.push_back(isKnown ? view.naturalSizeFor(former[i].size) : view.intrinsicContentSize());
    }
    return sizes;
}

void LayoutProblem::collect(UIView& view, std::size_t parent) {
    const std::size_t index = m_views.size();
    m_views.push_back({&view, parent});
    m_indexes.emplace(&view, index);
    for (const auto& subview : view.subviews()) {
        const bool isPlaced = !subview->translatesAutoresizingMaskIntoConstraints() || subview->superviewInsets();
        if (isPlaced && !view.arranges(*subview)) collect(*subview, index);
    }
}

LayoutProblem::Box LayoutProblem::makeBox(std::size_t index) {
    const auto variable = [&] { return LinearExpression::ofVariable(makeVariable()); };
    if (index > 0) {
        Box box{variable(), variable(), variable(), variable()};
        return box;
    }
    const geometry::Size size = m_root->frame().size;
    if (m_purpose == Purpose::place)
        return {{}, {}, LinearExpression::ofConstant(size.width), LinearExpression::ofConstant(size.height)};
    return {{}, {}, variable(), variable()};
}

std::vector<geometry::Rect> LayoutProblem::rectsFor(const std::vector<double>& values) const {
    // Takes away what arithmetic adds far behind the point.
    const auto clean = [&](const LinearExpression& expression) {
        constexpr double steps = 1e8;
        const double value = expression.valueIn(values);
        return std::isfinite(value) ? std::round(value * steps) / steps : 0;
    };
    std::vector<geometry::Rect> rects;
    rects.reserve(m_boxes.size());
    for (const Box& box : m_boxes)
        rects.push_back({{clean(box.left), clean(box.top)}, {std::max(0.0, clean(box.width)), std::max(0.0, clean(box.height))}});
    return rects;
}

// --- Constraints ---

void LayoutProblem::add(LinearExpression expression, Relation relation, double priority, NSLayoutConstraint* origin) {
    if (expression.terms.empty()) {
        if (isKept(expression.constant, relation)) {
            if (origin) origin->m_isBroken = false;
        } else if (origin && priority >= required) {
            m_unkept.push_back(origin);
        }
        return;
    }
    m_system.constraints.push_back({std::move(expression.terms), expression.constant, relation, priority});
    m_origins.push_back(origin);
}

void LayoutProblem::addPins(std::size_t index) {
    const auto& insets = m_views[index].view->superviewInsets();
    if (!insets) return;
    const Box &box = m_boxes[index], &outer = m_boxes[m_views[index].parent];
    const bool isMirrored = m_root->isRightToLeft();
    const double left = isMirrored ? insets->trailing : insets->leading;
    add(box.left.plus(outer.left, -1).plus(-left), Relation::equal, required);
    add(box.top.plus(outer.top, -1).plus(-insets->top), Relation::equal, required);
    add(box.width.plus(outer.width, -1).plus(insets->horizontal()), Relation::equal, required);
    add(box.height.plus(outer.height, -1).plus(insets->vertical()), Relation::equal, required);
}

void LayoutProblem::addConstraints() {
    std::vector<NSLayoutConstraint*> all;
    for (const PlacedView& placed : m_views)
        for (const auto& constraint : placed.view->constraints()) all.push_back(constraint.get());
    // Of constraints that cannot hold together the one activated last yields.
    std::sort(all.begin(), all.end(),
              [](const NSLayoutConstraint* a, const NSLayoutConstraint* b) { return a->m_activation < b->m_activation; });
    for (NSLayoutConstraint* constraint : all)
        if (!decidesNothing(*constraint)) addConstraint(*constraint);
}

// A size of its own says nothing of a view whose superview has decided it already, or that stands in none yet.
bool LayoutProblem::decidesNothing(const NSLayoutConstraint& constraint) const {
    const auto& first = constraint.first().item;
    const auto& second = constraint.second().item;
    if (!first->view || (second && !second->view)) return true;
    const bool isOfRootAlone = first->view == m_root && (!second || second == first);
    if (m_purpose == Purpose::fit || !isOfRootAlone) return false;
    return !m_root->superview() || m_root->superview()->arranges(*m_root);
}

void LayoutProblem::addConstraint(NSLayoutConstraint& constraint) {
    const LayoutTerm &first = constraint.first(), &second = constraint.second();
    const bool isMirrored = (followsDirection(first) || followsDirection(second)) && first.item->view->isRightToLeft();
    LinearExpression expression = valueOf(first, second, isMirrored);
    if (second.item) expression.add(valueOf(second, first, isMirrored), -constraint.multiplier());
    add(expression.plus(-constraint.constant()), relationOf(constraint), constraint.priority(), &constraint);
}

void LayoutProblem::addNaturalSize(std::size_t index) {
    const UIView& view = *m_views[index].view;
    const Box& box = m_boxes[index];
    const double boundPriority = index == 0 ? required : sizeBoundPriority;
    add(box.width, Relation::greaterThanOrEqual, boundPriority);
    add(box.height, Relation::greaterThanOrEqual, boundPriority);

    const geometry::Size natural = m_naturalSizes[index - firstSized()];
    const auto keep = [&](const LinearExpression& length, double value, Axis axis) {
        if (!isLength(value)) return;
        add(length.plus(-value), Relation::greaterThanOrEqual, view.effectiveCompressionResistancePriority(axis));
        add(length.plus(-value), Relation::lessThanOrEqual, view.effectiveHuggingPriority(axis));
    };
    keep(box.width, natural.width, Axis::horizontal);
    keep(box.height, natural.height, Axis::vertical);
}

void LayoutProblem::addCorner(std::size_t index) {
    const Box &box = m_boxes[index], &outer = m_boxes[m_views[index].parent];
    LinearExpression x = box.left.plus(outer.left, -1);
    if (m_root->isRightToLeft()) x = outer.left.plus(outer.width).plus(box.left, -1).plus(box.width, -1);
    const LinearExpression y = box.top.plus(outer.top, -1);
    for (const LinearExpression& distance : {x, y}) {
        add(distance, Relation::greaterThanOrEqual, insidePriority);
        add(distance, Relation::lessThanOrEqual, cornerPriority);
    }
}

void LayoutProblem::addFittingSize() {
    const auto fit = [&](const LinearExpression& length, std::optional<double> proposed) {
        if (proposed && isLength(*proposed))
            add(length.plus(-*proposed), Relation::equal, required);
        else
            add(length, Relation::lessThanOrEqual, fittingPriority);
    };
    fit(m_boxes[0].width, m_proposal.width);
    fit(m_boxes[0].height, m_proposal.height);
}

// --- What the terms stand for ---

LayoutProblem::Box LayoutProblem::boxOf(const UIView& view) const {
    if (const auto placed = m_indexes.find(&view); placed != m_indexes.end()) return m_boxes[placed->second];
    const geometry::Rect& frame = view.frame();
    Box box{{}, {}, LinearExpression::ofConstant(frame.width()), LinearExpression::ofConstant(frame.height())};
    if (!view.superview()) return box;
    const Box outer = boxOf(*view.superview());
    const geometry::Point offset = frame.origin - boundsShift(*view.superview());
    box.left = outer.left.plus(offset.x);
    box.top = outer.top.plus(offset.y);
    return box;
}

// The insets follow from where the solution before this one has put the view.
LayoutProblem::Box LayoutProblem::safeBoxOf(UIView& view) {
    m_hasSafeAreas = true;
    geometry::PhysicalInsets insets;
    const auto placed = m_indexes.find(&view);
    if (placed == m_indexes.end() || placed->second == 0 || !m_root->window())
        insets = view.safeAreaInsets();
    else if (placed->second < m_former->size())
        insets = m_root->safeAreaInsetsOf((*m_former)[placed->second].offsetBy(boundsShift(*m_root)));
    Box box = boxOf(view);
    box.left = box.left.plus(insets.left);
    box.top = box.top.plus(insets.top);
    box.width = box.width.plus(-insets.left - insets.right);
    box.height = box.height.plus(-insets.top - insets.bottom);
    return box;
}

void LayoutProblem::seeFromContent(Box& box, UIScrollView& scrollView, NSLayoutAttribute attribute) {
    const bool isFar = attribute == NSLayoutAttribute::right || attribute == NSLayoutAttribute::bottom ||
                       attribute == NSLayoutAttribute::leading || attribute == NSLayoutAttribute::trailing;
    if (!isFar) return;
    auto content = std::find_if(m_contents.begin(), m_contents.end(), [&](const auto& known) { return known.view == &scrollView; });
    if (content == m_contents.end()) content = m_contents.insert(content, {&scrollView, {}, {}});
    auto& length = isHorizontal(attribute) ? content->width : content->height;
    if (!length) {
        length = makeVariable();
        add(LinearExpression::ofVariable(*length), Relation::greaterThanOrEqual, sizeBoundPriority);
    }
    (isHorizontal(attribute) ? box.width : box.height) = LinearExpression::ofVariable(*length);
}

LayoutProblem::Box LayoutProblem::boxFor(const LayoutTerm& term, const LayoutTerm& other) {
    UIView& view = *term.item->view;
    if (term.isOfSafeArea) return safeBoxOf(view);
    Box box = boxOf(view);
    const bool isSeenFromInside = other.item && other.item->view != &view && other.item->view->isDescendantOf(view);
    if (!isSeenFromInside || !m_indexes.count(&view)) return box;
    if (auto* scrollView = dynamic_cast<UIScrollView*>(&view)) seeFromContent(box, *scrollView, term.attribute);
    return box;
}

// Mirrored, positions are counted from the right: the leading edge is the right one, and everything grows to the left.
LinearExpression LayoutProblem::valueOf(const LayoutTerm& term, const LayoutTerm& other, bool isMirrored) {
    const Box box = boxFor(term, other);
    NSLayoutAttribute attribute = term.attribute;
    if (attribute == NSLayoutAttribute::leading) attribute = isMirrored ? NSLayoutAttribute::right : NSLayoutAttribute::left;
    if (attribute == NSLayoutAttribute::trailing) attribute = isMirrored ? NSLayoutAttribute::left : NSLayoutAttribute::right;
    LinearExpression value;
    switch (attribute) {
    case NSLayoutAttribute::leading:
    case NSLayoutAttribute::left: value = box.left; break;
    case NSLayoutAttribute::trailing:
    case NSLayoutAttribute::right: value = box.left.plus(box.width); break;
    case NSLayoutAttribute::centerX: value = box.left.plus(box.width, 0.5); break;
    case NSLayoutAttribute::top: value = box.top; break;
    case NSLayoutAttribute::bottom: value = box.top.plus(box.height); break;
    case NSLayoutAttribute::centerY: value = box.top.plus(box.height, 0.5); break;
    case NSLayoutAttribute::width: return box.width;
    case NSLayoutAttribute::height: return box.height;
    }
    if (!isMirrored) return value;
    LinearExpression mirrored;
    mirrored.add(value, -1);
    return mirrored;
}

} // namespace proupsells::uikit

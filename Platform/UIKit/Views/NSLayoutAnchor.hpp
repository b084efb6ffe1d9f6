// The edges, centres and lengths of views that constraints are made between.
#pragma once

#include <cstdint>
#include <memory>
#include <type_traits>

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Views/LayoutItem.hpp"

namespace proupsells::uikit {

class NSLayoutConstraint;

// What of a view a constraint is about. Leading is the left edge where text runs from left to right, otherwise the right edge.
enum class NSLayoutAttribute : std::uint8_t { left, right, leading, trailing, centerX, top, bottom, centerY, width, height };
// How the two sides of a constraint compare.
enum class NSLayoutRelation : std::uint8_t { lessThanOrEqual, equal, greaterThanOrEqual };

// One attribute of a view, or of the part of it that the window's unsafe edges leave free.
struct LayoutTerm {
    std::shared_ptr<LayoutItem> item; // null: stands for 0
    NSLayoutAttribute attribute = NSLayoutAttribute::width;
    bool isOfSafeArea = false;
};

// first ~ multiplier · second + constant, required and not active.
PROUPSELLS_EXPORT std::shared_ptr<NSLayoutConstraint> makeLayoutConstraint(const LayoutTerm& first, NSLayoutRelation relation,
                                                                           const LayoutTerm& second, double multiplier,
                                                                           double constant);

// Makes constraints with anchors of its own kind; they are required and not active yet. An anchor keeps no view alive.
template <class Kind>
class NSLayoutAnchor {
public:
    // What the anchor stands for.
    explicit NSLayoutAnchor(LayoutTerm term) : m_term(std::move(term)) {}
    const LayoutTerm& term() const { return m_term; }

    // This anchor stands at `other` + `constant`.
    std::shared_ptr<NSLayoutConstraint> constraintEqualTo(const NSLayoutAnchor& other, double constant = 0) const {
        return makeLayoutConstraint(m_term, NSLayoutRelation::equal, other.m_term, 1, constant);
    }
    // At most there.
    std::shared_ptr<NSLayoutConstraint> constraintLessThanOrEqualTo(const NSLayoutAnchor& other, double constant = 0) const {
        return makeLayoutConstraint(m_term, NSLayoutRelation::lessThanOrEqual, other.m_term, 1, constant);
    }
    // At least there.
    std::shared_ptr<NSLayoutConstraint> constraintGreaterThanOrEqualTo(const NSLayoutAnchor& other, double constant = 0) const {
        return makeLayoutConstraint(m_term, NSLayoutRelation::greaterThanOrEqual, other.m_term, 1, constant);
    }

protected:
    // What the anchor stands for.
    LayoutTerm m_term;
};

// The kinds of anchors: those of different kinds cannot be compared.
struct LayoutXAxis;
struct LayoutYAxis;
struct LayoutLength;

// Places from left to right, and from top to bottom.
using NSLayoutXAxisAnchor = NSLayoutAnchor<LayoutXAxis>;
using NSLayoutYAxisAnchor = NSLayoutAnchor<LayoutYAxis>;

// A width or a height.
class NSLayoutDimension : public NSLayoutAnchor<LayoutLength> {
public:
    using NSLayoutAnchor::NSLayoutAnchor;

    // This length is so many points.
    std::shared_ptr<NSLayoutConstraint> constraintEqualToConstant(double constant) const {
        return makeLayoutConstraint(m_term, NSLayoutRelation::equal, {}, 1, constant);
    }
    // So many at most.
    std::shared_ptr<NSLayoutConstraint> constraintLessThanOrEqualToConstant(double constant) const {
        return makeLayoutConstraint(m_term, NSLayoutRelation::lessThanOrEqual, {}, 1, constant);
    }
    // So many at least.
    std::shared_ptr<NSLayoutConstraint> constraintGreaterThanOrEqualToConstant(double constant) const {
        return makeLayoutConstraint(m_term, NSLayoutRelation::greaterThanOrEqual, {}, 1, constant);
    }
    // This length is `multiplier` times the other one, which may be of the other axis, + `constant`.
    std::shared_ptr<NSLayoutConstraint> constraintEqualToMultiplier(const NSLayoutDimension& other, double multiplier,
                                                                    double constant = 0) const {
        return makeLayoutConstraint(m_term, NSLayoutRelation::equal, other.m_term, multiplier, constant);
    }
    // At least that.
    std::shared_ptr<NSLayoutConstraint> constraintGreaterThanOrEqualToMultiplier(const NSLayoutDimension& other, double multiplier,
                                                                                 double constant = 0) const {
        return makeLayoutConstraint(m_term, NSLayoutRelation::greaterThanOrEqual, other.m_term, multiplier, constant);
    }
};

// The anchors of one rectangle: a view's own, or a layout guide's.
class LayoutAnchors {
public:
    // Of the item's view: of all of it, or of what the unsafe edges leave free.
    LayoutAnchors(std::shared_ptr<LayoutItem> item, bool isOfSafeArea) : m_item(std::move(item)), m_isOfSafeArea(isOfSafeArea) {}

    // Each call makes an anchor.
    NSLayoutXAxisAnchor leadingAnchor() const { return NSLayoutXAxisAnchor(term(NSLayoutAttribute::leading)); }
    NSLayoutXAxisAnchor trailingAnchor() const { return NSLayoutXAxisAnchor(term(NSLayoutAttribute::trailing)); }
    NSLayoutXAxisAnchor leftAnchor() const { return NSLayoutXAxisAnchor(term(NSLayoutAttribute::left)); }
    NSLayoutXAxisAnchor rightAnchor() const { return NSLayoutXAxisAnchor(term(NSLayoutAttribute::right)); }
    NSLayoutXAxisAnchor centerXAnchor() const { return NSLayoutXAxisAnchor(term(NSLayoutAttribute::centerX)); }
    NSLayoutYAxisAnchor topAnchor() const { return NSLayoutYAxisAnchor(term(NSLayoutAttribute::top)); }
    NSLayoutYAxisAnchor bottomAnchor() const { return NSLayoutYAxisAnchor(term(NSLayoutAttribute::bottom)); }
    NSLayoutYAxisAnchor centerYAnchor() const { return NSLayoutYAxisAnchor(term(NSLayoutAttribute::centerY)); }
    NSLayoutDimension widthAnchor() const { return NSLayoutDimension(term(NSLayoutAttribute::width)); }
    NSLayoutDimension heightAnchor() const { return NSLayoutDimension(term(NSLayoutAttribute::height)); }

private:
    LayoutTerm term(NSLayoutAttribute attribute) const { return {m_item, attribute, m_isOfSafeArea}; }

    std::shared_ptr<LayoutItem> m_item;
    bool m_isOfSafeArea;
};

// A rectangle that constraints can refer to and that is no view; so far a view's safe area is the only one.
class UILayoutGuide : public LayoutAnchors {
public:
    using LayoutAnchors::LayoutAnchors;
};

} // namespace proupsells::uikit

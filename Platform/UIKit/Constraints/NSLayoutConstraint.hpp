// A relation between the edges, centres and lengths of two views that layout keeps.
#pragma once

#include <string>
#include <vector>

#include "Platform/UIKit/Views/NSLayoutAnchor.hpp"
#include "Platform/UIKit/Views/UIKitTypes.hpp"

namespace proupsells::uikit {

class UIView;

// first ~ multiplier · second + constant. While active it is held by the nearest view around both views, and it ends when one of
// them leaves that view. Constraints hold no view.
class NSLayoutConstraint : public std::enable_shared_from_this<NSLayoutConstraint> {
    struct Creation {};

public:
    NSLayoutConstraint(Creation, LayoutTerm first, NSLayoutRelation relation, LayoutTerm second, double multiplier,
                       double constant);
    NSLayoutConstraint(const NSLayoutConstraint&) = delete;
    NSLayoutConstraint& operator=(const NSLayoutConstraint&) = delete;

    // In order. Views that have no view around both of them stop the program.
    static void activate(const std::vector<std::shared_ptr<NSLayoutConstraint>>& constraints);
    static void deactivate(const std::vector<std::shared_ptr<NSLayoutConstraint>>& constraints);
    bool isActive() const { return m_holder && m_holder->view; }
    void setActive(bool active);

    const LayoutTerm& first() const { return m_first; }
    const LayoutTerm& second() const { return m_second; } // its item is null where there is only a constant
    NSLayoutRelation relation() const { return m_relation; }
    double multiplier() const { return m_multiplier; }

    // In points, towards the trailing edge where the constraint is about leading and trailing edges.
    double constant() const { return m_constant; }
    void setConstant(double constant);
    // From layoutPriorityRequired on, layout must keep it; below, a higher one beats any number of lower ones.
    UILayoutPriority priority() const { return m_priority; }
    void setPriority(UILayoutPriority priority);
    // Names it in the log.
    const std::string& identifier() const { return m_identifier; }
    // For use right after the making.
    std::shared_ptr<NSLayoutConstraint> withPriority(UILayoutPriority priority);
    std::shared_ptr<NSLayoutConstraint> withIdentifier(std::string identifier);

    // The identifier, otherwise what it says: "label.leading = image.trailing - 16". Views go by their accessibility identifiers,
    // otherwise by their types.
    std::string description() const;

private:
    friend class UIView;
    friend class LayoutProblem;
    friend class LayoutSystem;
    friend std::shared_ptr<NSLayoutConstraint> makeLayoutConstraint(const LayoutTerm&, NSLayoutRelation, const LayoutTerm&, double,
                                                                    double);

    UIView& nearestHolder() const;
    bool involves(const UIView& view) const;
    void noteChange();

    LayoutTerm m_first, m_second;
    NSLayoutRelation m_relation;
    double m_multiplier;
    double m_constant;
    UILayoutPriority m_priority = layoutPriorityRequired;
    std::string m_identifier;
    std::shared_ptr<LayoutItem> m_holder; // null while it is not active
    std::uint64_t m_activation = 0;       // active ones, in the order in which they became so
    bool m_isBroken = false;              // said so in the log
};

} // namespace proupsells::uikit

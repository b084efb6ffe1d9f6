// A headline and its explanation, as the store page shows them below a picture and in a section's footer.
#pragma once

#include <memory>
#include <string>

#include "Platform/UIKit/Views/UILabel.hpp"

namespace proupsells {

// Both texts are empty at first. Setting one sets its label anew.
class TitleSubtitleLabels {
public:
    // The explanation has a font of its own, the same everywhere.
    explicit TitleSubtitleLabels(const uikit::UIFont& titleFont);

    // Puts the labels into `container`, the headline on top.
    void addTo(uikit::UIView& container) const;

    // How high the two are, one below the other, where the container has a width and these traits. They keep the traits: labels
    // that are shown are not asked.
    double heightIn(double width, const uikit::UITraitCollection& traits) const;

    // The share of their sizes, 0.8 at least, at which both are no higher than `room`. Where lines are to be worked out by hand, 1.
    // Leaves them at that share.
    double scaleInto(double room, double width, const uikit::UITraitCollection& traits);
    void setScale(double scale);

    const std::string& title() const { return m_title; }
    void setTitle(std::string text);
    const std::string& subtitle() const { return m_subtitle; }
    void setSubtitle(std::string text);
    const std::shared_ptr<uikit::UILabel>& titleLabel() const { return m_titleLabel; }
    const std::shared_ptr<uikit::UILabel>& subtitleLabel() const { return m_subtitleLabel; }

private:
    double m_scale = 1;
    uikit::UIFont m_titleFont;
    std::string m_title;
    std::shared_ptr<uikit::UILabel> m_titleLabel;
    std::string m_subtitle;
    std::shared_ptr<uikit::UILabel> m_subtitleLabel;
};

} // namespace proupsells

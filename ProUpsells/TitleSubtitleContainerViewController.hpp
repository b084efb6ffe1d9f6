// A shelf's headline and explanation.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "Platform/Foundation/Coder.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"
#include "ProUpsells/TitleSubtitleLabels.hpp"
#include "ProUpsells/VelaProStorePageShelf.hpp"

namespace proupsells {

class TitleSubtitleContainerViewController : public uikit::UIViewController {
public:
    // Of the view, in points, at the normal text size.
    static constexpr double usualHeight = 103;
    // The same at the person's text size, in a page of a width.
    static double heightFor(const VelaProStorePageShelf& shelf, double width, const uikit::UITraitCollection& traits);

    // Shows the texts of `shelf`, which is held weakly.
    explicit TitleSubtitleContainerViewController(const VelaProStorePageShelf& shelf);
    // Stops the program.
    [[noreturn]] explicit TitleSubtitleContainerViewController(const foundation::Coder& coder);
    std::string_view typeName() const override { return "TitleSubtitleContainerViewController"; }

    // How far down the texts may reach, in points from the view's top, before they are set smaller; anywhere until it is set.
    void setRoomForTexts(double room);

    const std::string& titleText() const { return m_labels.title(); }
    void setTitleText(std::string text) { m_labels.setTitle(std::move(text)); }
    const std::string& subtitleText() const { return m_labels.subtitle(); }
    void setSubtitleText(std::string text) { m_labels.setSubtitle(std::move(text)); }
    const std::shared_ptr<uikit::UILabel>& titleLabel() const { return m_labels.titleLabel(); }
    const std::shared_ptr<uikit::UILabel>& subtitleLabel() const { return m_labels.subtitleLabel(); }
    // Reads the shelf's texts anew; keeps what it shows once the shelf is gone.
    void applyTexts();
    void languageDidChange() override { applyTexts(); }

    void viewDidLoad() override;
    void viewDidLayoutSubviews() override;

private:
    void show(const VelaProStorePageShelf& shelf);

    static TitleSubtitleLabels emptyLabels();
    static TitleSubtitleLabels labelsFor(const VelaProStorePageShelf& shelf);

    std::weak_ptr<const VelaProStorePageShelf> m_shelf;
    std::shared_ptr<uikit::NSLayoutConstraint> m_height;
    std::optional<double> m_roomForTexts;
    TitleSubtitleLabels m_labels;
};

} // namespace proupsells

// A shelf's headline and explanation.
#pragma once

#include <memory>
#include <string>

#include "Platform/Foundation/Coder.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"
#include "ProUpsells/VelaProStorePageShelf.hpp"

namespace proupsells {

// 103 points high.
class TitleSubtitleContainerViewController : public uikit::UIViewController {
public:
    explicit TitleSubtitleContainerViewController(const VelaProStorePageShelf& shelf);
    // Stops the program.
    [[noreturn]] explicit TitleSubtitleContainerViewController(const foundation::Coder& coder);
    std::string_view typeName() const override { return "TitleSubtitleContainerViewController"; }

    const std::string& titleText() const { return m_titleText; }
    void setTitleText(std::string text);
    const std::string& subtitleText() const { return m_subtitleText; }
    void setSubtitleText(std::string text);
    const std::shared_ptr<uikit::UILabel>& titleLabel() const { return m_titleLabel; }
    const std::shared_ptr<uikit::UILabel>& subtitleLabel() const { return m_subtitleLabel; }

    void viewDidLoad() override;

private:
    std::string m_titleText;
    std::shared_ptr<uikit::UILabel> m_titleLabel;
    std::string m_subtitleText;
    std::shared_ptr<uikit::UILabel> m_subtitleLabel;
};

} // namespace proupsells

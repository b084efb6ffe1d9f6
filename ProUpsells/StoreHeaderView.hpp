// What the store page's headers have in common: a headline.
#pragma once

#include <memory>
#include <string>

#include "Platform/Foundation/Coder.hpp"
#include "Platform/UIKit/Views/UILabel.hpp"

namespace proupsells {

class StoreHeaderView : public uikit::UIView {
public:
    const std::shared_ptr<uikit::UILabel>& titleLabel() const { return m_titleLabel; }
    // Reads the headline anew, in the language of the moment.
    void applyTexts();
    void languageDidChange() override { applyTexts(); }

protected:
    // `headline` is the English text, which is the key of its translations. The label is the first subview.
    StoreHeaderView(const geometry::Rect& frame, std::string headline, double fontSize);
    // Stops the program: "init(coder:) has not been implemented".
    [[noreturn]] explicit StoreHeaderView(const foundation::Coder& coder);

private:
    std::string m_headline;
    double m_fontSize = 0;
    std::shared_ptr<uikit::UILabel> m_titleLabel;
};

} // namespace proupsells

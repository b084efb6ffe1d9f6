// A promotion, carried for the host; the module shows none of it.
#pragma once

#include <string>
#include <utility>

namespace proupsells {

class Promotion {
public:
    // Any of the texts may be empty.
    Promotion(std::string name, std::string upsellTitle, std::string upsellSubtitle, std::string upsellImageURL)
        : m_name(std::move(name)), m_upsellTitle(std::move(upsellTitle)), m_upsellSubtitle(std::move(upsellSubtitle)),
          m_upsellImageURL(std::move(upsellImageURL)) {}

    // As given.
    const std::string& name() const { return m_name; }
    const std::string& upsellTitle() const { return m_upsellTitle; }
    const std::string& upsellSubtitle() const { return m_upsellSubtitle; }
    const std::string& upsellImageURL() const { return m_upsellImageURL; }

private:
    std::string m_name;
    std::string m_upsellTitle;
    std::string m_upsellSubtitle;
    std::string m_upsellImageURL;
};

} // namespace proupsells

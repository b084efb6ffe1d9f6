// Locale services that do what a test tells them to.
#pragma once

#include "Platform/Foundation/Locale.hpp"

namespace proupsells::tests {

// In force as long as it lives. Unless told otherwise, what the services before it do.
class StubLocaleServices {
public:
    StubLocaleServices()
        : m_services(std::make_shared<Services>()), m_previous(foundation::LocaleServices::setCurrent(m_services)) {
        m_services->others = m_previous;
    }
    ~StubLocaleServices() { foundation::LocaleServices::setCurrent(m_previous); }
    StubLocaleServices(const StubLocaleServices&) = delete;

    void cannotFormatPercent() { m_services->formatsPercent = false; }
    // Each user-perceived character takes this many bytes.
    void setBytesPerCharacter(std::size_t count) { m_services->bytesPerCharacter = count; }

private:
    struct Services : foundation::LocaleServices {
        std::shared_ptr<const foundation::LocaleServices> others;
        bool formatsPercent = true;
        std::size_t bytesPerCharacter = 1;

        std::optional<std::string> percentText(double fraction, int, const foundation::Locale&) const override {
            if (!formatsPercent) return std::nullopt;
            return std::to_string(static_cast<int>(fraction * 100 + (fraction < 0 ? -0.5 : 0.5))) + "%";
        }
        std::string upperCased(std::string_view text, const foundation::Locale&) const override { return std::string(text); }
        std::string titleCased(std::string_view text, const foundation::Locale&) const override { return std::string(text); }
        std::size_t graphemeCount(std::string_view text) const override { return text.size() / bytesPerCharacter; }
        std::vector<std::size_t> graphemeEnds(std::string_view text) const override {
            std::vector<std::size_t> ends;
            for (std::size_t end = bytesPerCharacter; end <= text.size(); end += bytesPerCharacter) ends.push_back(end);
            return ends;
        }
        geometry::LayoutDirection layoutDirection(const foundation::Locale&) const override {
            return geometry::LayoutDirection::leftToRight;
        }
        std::vector<foundation::BidiRun> bidiRuns(std::string_view, geometry::LayoutDirection) const override { return {}; }
    };
    std::shared_ptr<Services> m_services;
    std::shared_ptr<const foundation::LocaleServices> m_previous;
};

} // namespace proupsells::tests

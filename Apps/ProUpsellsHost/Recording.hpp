// A session as a scenario.
#pragma once

#include <filesystem>
#include <memory>

#include "Apps/ProUpsellsHost/HostScreen.hpp"
#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Apps/ProUpsellsHost/Json.hpp"
#include "Platform/Host/RecordedContent.hpp"

namespace proupsells::hostprogram {

// Writes down what a session begins with and what is done to it from then on. Nothing of it is in the file before write().
class Recording {
public:
    // `device` has the translations and the theme that the session begins with. Throws InputError for a file that cannot be
    // written, and for translations or a theme that cannot be put into it.
    Recording(std::filesystem::path file, const Json& offers, const Device& device, HostScreen screen);
    ~Recording();

    // What is to be shown in the place of the session's window. Once, right after the session was presented.
    std::shared_ptr<host::WindowContent> begin(HostSession& session);

    // To be called before the session is changed.
    void willSetDevice(const Device& device);
    void willReplaceOffers(const Json& offers);
    void willOpen(StartScreen screen);

    // Ends it and writes the file whole, or not at all. Throws InputError.
    void write();

private:
    std::unique_ptr<Json> m_scenario; // without the inputs
    Device m_device;                  // as it is in there
    std::filesystem::path m_file;
    HostSession* m_session = nullptr;
    std::shared_ptr<host::RecordedContent> m_content;
};

} // namespace proupsells::hostprogram

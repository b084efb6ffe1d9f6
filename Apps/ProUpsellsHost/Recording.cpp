#include "Apps/ProUpsellsHost/Recording.hpp"

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/StepReading.hpp"
#include "Apps/ProUpsellsHost/WholeFile.hpp"
#include "Platform/Commons/FatalError.hpp"
#include "Platform/Host/RecordedInputText.hpp"

namespace proupsells::hostprogram {

namespace {

std::string memberText(const char* key, const Json& value) { return Json(key).dump() + ": " + value.dump(); }

} // namespace

Recording::Recording(std::filesystem::path file, const Json& offers, const Device& device, HostScreen screen)
    : m_device(device), m_file(std::move(file)) {
    expectWritable(m_file);
    const Json host{{"screen", wordFor(screen, hostScreens)}};
    m_scenario = std::make_unique<Json>(Json{{"offers", offers}, {"device", toJson(device)}, {"host", host}});
}

Recording::~Recording() = default;

std::shared_ptr<host::WindowContent> Recording::begin(HostSession& session) {
    m_session = &session;
    (*m_scenario)["device"].update(changesBetween(m_device, session.device()));
    m_content = std::make_shared<host::RecordedContent>(session.windowContent());
    return m_content;
}

void Recording::willSetDevice(const Device& device) {
    const Json changes = changesBetween(m_session->device(), device);
    if (!changes.empty()) m_content->willDo(memberText("set", changes));
}

void Recording::willReplaceOffers(const Json& offers) { m_content->willDo(memberText("offers", offers)); }

void Recording::willOpen(StartScreen screen) {
    if (screen != StartScreen::paywall) m_content->willDo(memberText("send", sentToOpen(screen)));
}

void Recording::write() {
    if (!m_content) commons::fatalError("A recording has to begin before it is written");
    m_content->end();
    std::string text = "{";
    for (const auto& [key, value] : m_scenario->items()) text += "\n" + memberText(key.c_str(), value) + ",";
    writeWhole(m_file, text + "\n\"inputs\": " + host::inputsAsJson(m_content->inputs()) + "\n}\n");
}

} // namespace proupsells::hostprogram

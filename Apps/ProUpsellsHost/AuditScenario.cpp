#include "Apps/ProUpsellsHost/AuditScenario.hpp"

#include <array>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/AuditMatrix.hpp"
#include "Apps/ProUpsellsHost/AuditTour.hpp"
#include "Apps/ProUpsellsHost/JsonFile.hpp"
#include "Apps/ProUpsellsHost/ParallelAnswers.hpp"
#include "Apps/ProUpsellsHost/ScenarioRunner.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

// What it leaves out is empty.
AuditMatrix readVariations(const std::filesystem::path& file) {
    const Json json = readJsonFile(file);
    const JsonCursor root{json, system::textOf(file)};
    root.expectObject({"locales", "sizes", "textSizes", "appearances"});
    return withKeysOf(root, {});
}

template <class Value>
std::vector<Value> orOnly(const std::vector<Value>& values, const Value& own) {
    return values.empty() ? std::vector{own} : values;
}

// The scenario in another language: what is set on the way changes it back only if it is set itself, and texts that are expected in
// the scenario's own language are not.
void translate(Scenario& scenario, const std::string& locale) {
    const std::string own = scenario.device.locale;
    if (locale == own) return;
    const auto follow = [&](auto& step) {
        auto* const set = std::get_if<SetStep>(&step);
        if (set && set->device && set->device->locale == own) set->device->locale = locale;
    };
    for (ScenarioInput& input : scenario.inputs) follow(input.step);
    for (Step& step : scenario.steps) {
        follow(step);
        if (std::holds_alternative<ExpectStep>(step)) step = WaitStep{};
    }
    scenario.device.locale = locale;
}

// A scenario that is played once.
class AuditedScenario {
public:
    AuditedScenario(const Scenario& scenario, AuditLedger& ledger)
        : m_scenario(scenario), m_loop(std::make_shared<runloop::VirtualClock>()),
          m_session(scenario.offers, scenario.device, hostPartsOf(scenario), ffmpegbackend::Pace::exact, m_log),
          m_driver(m_loop, m_session.window()), m_inspector(m_session, m_driver, ledger) {}

    void play() {
        ScenarioRunner(m_scenario, m_loop, m_session, m_log, std::nullopt).run([&](const std::string*) { look(); });
    }

    void vary(const AuditMatrix& matrix) {
        const Device last = m_session.device();
        Device device = last;
        for (const geometry::Size size : orOnly(matrix.sizes, last.size))
            for (const auto textSize : orOnly(matrix.textSizes, last.textSize))
                for (const auto appearance : orOnly(matrix.appearances, last.appearance)) {
                    device.size = size;
                    device.textSize = textSize;
                    device.appearance = appearance;
                    if (device == m_session.device()) continue;
                    m_session.setDevice(device);
                    m_driver.wait(0);
                    look();
                }
    }

private:
    void look() {
        if (!m_session.isShowing()) return;
        const std::string screen(m_session.window().frontMostViewController()->typeName());
        const accessibility::SemanticNode tree = m_session.window().semanticTree();
        m_inspector.lookAtTree(screen, tree, std::array{m_session.device().appearance});
        m_inspector.lookAtPainting(screen, tree);
        m_inspector.listen(screen);
    }

    const Scenario& m_scenario;
    std::ostringstream m_discarded;
    runloop::MainRunLoop m_loop;
    std::shared_ptr<EventLog> m_log = std::make_shared<EventLog>(m_discarded);
    HostSession m_session;
    tooling::Driver m_driver;
    ScreenInspector m_inspector;
};

// What is found in one language.
Json auditLanguage(Scenario scenario, const std::string& locale, const AuditMatrix& matrix) {
    AuditLedger ledger;
    translate(scenario, locale);
    AuditedScenario played(scenario, ledger);
    played.play();
    played.vary(matrix);
    Json entries = Json::array();
    for (const AuditEntry& entry : ledger.entries()) entries.push_back(toJson(entry));
    return entries;
}

} // namespace

AuditLedger auditScenario(const std::filesystem::path& file, const std::optional<std::filesystem::path>& matrixFile) {
    const Scenario scenario = readScenario(file);
    AuditLedger ledger;
    if (!matrixFile) {
        AuditedScenario(scenario, ledger).play();
        return ledger;
    }
    const AuditMatrix matrix = readVariations(*matrixFile);
    const auto locales = orOnly(matrix.locales, scenario.device.locale);
    // The comparison keeps the language of its first use.
    const auto answers =
        parallelAnswers(locales.size(), [&](std::size_t i) { return auditLanguage(scenario, locales[i], matrix); });
    for (const Json& entries : answers)
        for (const Json& entry : entries) ledger.merge(auditEntryOf(entry));
    return ledger;
}

} // namespace proupsells::hostprogram

#include "Apps/ProUpsellsHost/Program.hpp"

#include <iostream>

#include "Apps/ProUpsellsHost/AuditCommand.hpp"
#include "Apps/ProUpsellsHost/Emergency.hpp"
#include "Apps/ProUpsellsHost/EvidenceCommand.hpp"
#include "Apps/ProUpsellsHost/GalleryCommand.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/LintCommand.hpp"
#include "Apps/ProUpsellsHost/ReadCommand.hpp"
#include "Apps/ProUpsellsHost/RunCommand.hpp"
#include "Apps/ProUpsellsHost/TextsCommand.hpp"

namespace proupsells::hostprogram {

namespace {

using ShowFunction = std::function<int(const ShowArguments&)>;

int obey(const Arguments& command, const ShowFunction& show) {
    constexpr int done = 0;
    if (const auto* run = std::get_if<RunArguments>(&command)) return runScenario(run->scenario, run->folder);
    if (const auto* shown = std::get_if<ShowArguments>(&command)) return show(*shown);
    if (const auto* read = std::get_if<ReadArguments>(&command)) return readAloud(*read);
    if (const auto* lint = std::get_if<LintArguments>(&command)) return lintOffers(*lint);
    if (const auto* audit = std::get_if<AuditArguments>(&command)) return auditScreens(*audit);
    if (const auto* gallery = std::get_if<GalleryArguments>(&command)) return makeGallery(*gallery);
    if (const auto* evidence = std::get_if<EvidenceArguments>(&command)) return writeEvidence(*evidence);
    if (const auto* texts = std::get_if<TextsArguments>(&command)) printTexts(texts->format);
    return done;
}

} // namespace

int runProgram(int count, const char* const* arguments, const ShowFunction& show) {
    prepareForEmergencies();
    try {
        const int status = obey(readCommandLine(count, arguments), show);
        if (!std::cout.flush())
            throw InputError("standard output", "", "lines were lost, expected a place with room for all of them");
        return status;
    } catch (const std::runtime_error& error) {
        std::cerr << error.what() << '\n';
        return unusableInput;
    } catch (const std::bad_alloc&) {
        endForWantOfMemory();
    }
}

} // namespace proupsells::hostprogram

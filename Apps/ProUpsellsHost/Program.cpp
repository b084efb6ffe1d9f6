#include "Apps/ProUpsellsHost/Program.hpp"

#include <iostream>

#include "Apps/ProUpsellsHost/AuditCommand.hpp"
#include "Apps/ProUpsellsHost/GalleryCommand.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/LintCommand.hpp"
#include "Apps/ProUpsellsHost/ReadCommand.hpp"
#include "Apps/ProUpsellsHost/RunCommand.hpp"
#include "Apps/ProUpsellsHost/TextsCommand.hpp"

namespace proupsells::hostprogram {

int runProgram(int count, const char* const* arguments, const std::function<int(const ShowArguments&)>& show) {
    constexpr int done = 0, unusableInput = 2;
    try {
        const Arguments command = readCommandLine(count, arguments);
        if (const auto* run = std::get_if<RunArguments>(&command)) return runScenario(run->scenario, run->folder);
        if (const auto* shown = std::get_if<ShowArguments>(&command)) return show(*shown);
        if (const auto* read = std::get_if<ReadArguments>(&command)) return readAloud(*read);
        if (const auto* lint = std::get_if<LintArguments>(&command)) return lintOffers(*lint);
        if (const auto* audit = std::get_if<AuditArguments>(&command)) return auditScreens(*audit);
        if (const auto* gallery = std::get_if<GalleryArguments>(&command)) return makeGallery(*gallery);
        if (const auto* texts = std::get_if<TextsArguments>(&command)) printTexts(texts->format);
        return done;
    } catch (const std::runtime_error& error) {
        std::cerr << error.what() << '\n';
        return unusableInput;
    }
}

} // namespace proupsells::hostprogram

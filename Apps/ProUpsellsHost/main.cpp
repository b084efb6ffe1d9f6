#include <iostream>

#include "Apps/ProUpsellsHost/CommandLine.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/RunCommand.hpp"

using namespace proupsells;

namespace {

int perform(const hostprogram::RunArguments& arguments) { return hostprogram::runScenario(arguments.scenario, arguments.folder); }

int perform(const hostprogram::ShowArguments& arguments) {
    return hostprogram::showOffers(arguments.offers, arguments.device, arguments.start);
}

int perform(const hostprogram::HelpShown&) { return 0; }

} // namespace

int main(int count, char** arguments) {
    constexpr int unusableInput = 2;
    try {
        const auto command = hostprogram::readCommandLine(count, arguments);
        return std::visit([](const auto& known) { return perform(known); }, command);
    } catch (const std::runtime_error& error) {
        std::cerr << error.what() << '\n';
        return unusableInput;
    }
}

#include <iostream>

#include "Apps/ProUpsellsHost/CommandLine.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/RunCommand.hpp"

namespace {

int perform(const proupsellshost::RunArguments& arguments) { return proupsellshost::runScenario(arguments.scenario, arguments.folder); }

int perform(const proupsellshost::ShowArguments& arguments) {
    return proupsellshost::showOffers(arguments.offers, arguments.device, arguments.start);
}

int perform(const proupsellshost::HelpShown&) { return 0; }

} // namespace

int main(int count, char** arguments) {
    constexpr int unusableInput = 2;
    try {
        const auto command = proupsellshost::readCommandLine(count, arguments);
        return std::visit([](const auto& known) { return perform(known); }, command);
    } catch (const std::runtime_error& error) {
        std::cerr << error.what() << '\n';
        return unusableInput;
    }
}

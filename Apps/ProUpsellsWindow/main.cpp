// The program with windows.
#include "Apps/ProUpsellsHost/Program.hpp"
#include "Apps/ProUpsellsWindow/ShowCommand.hpp"

using namespace proupsells;

int main(int count, char** arguments) { return hostprogram::runProgram(count, arguments, hostprogram::showOffers); }

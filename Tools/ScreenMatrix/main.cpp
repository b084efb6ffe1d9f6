// Looks at the screens in one language as every person may see them, and prints what is wrong, one finding a line.
#include <chrono>
#include <iostream>

#include <CLI/CLI.hpp>

#include "Platform/System/PathText.hpp"
#include "Tools/ScreenMatrix/Matrix.hpp"

using namespace proupsells;

int main(int count, char** arguments) {
    constexpr int clean = 0, hasFindings = 1, unusableInput = 2;
    CLI::App app{"Prints what is wrong with the screens in a language, in every size, text size, appearance and direction."};
    matrix::Options options;
    std::string strings;
    bool isSample = false;
    app.add_option("LOCALE", options.locale, "Such as de_AT")->required();
    app.add_option("--strings", strings, "A folder of <language>.lproj/Localizable.strings");
    app.add_flag("--sample", isSample, "Only a telephone and a desk");
    app.add_option("--least-control", options.leastControl, "Points that a control must be wide and high, or have to itself");
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) ? unusableInput : clean;
    }
    options.strings = system::pathOf(strings);
    if (isSample) options.extent = matrix::Extent::sample;

    const auto start = std::chrono::steady_clock::now();
    std::size_t findings = 0;
    const std::size_t configurations = matrix::auditAll(options, [&](const std::string& configuration, const auto& finding) {
        std::cout << configuration << ": " << tooling::nameOf(finding.rule) << ": " << finding.path << ' ' << finding.detail
                  << '\n';
        ++findings;
    });
    const std::chrono::duration<double> duration = std::chrono::steady_clock::now() - start;
    std::cerr << options.locale << ": " << configurations << " screens, " << findings << " findings, " << duration.count()
              << " s\n";
    return findings ? hasFindings : clean;
}

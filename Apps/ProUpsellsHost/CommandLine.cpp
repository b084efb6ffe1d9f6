#include "Apps/ProUpsellsHost/CommandLine.hpp"

#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/CommandLineTexts.hpp"
#include "Apps/ProUpsellsHost/DeviceOptions.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/PreviewKeys.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr Word<TextsFormat> textsFormats[] = {
    {"strings", TextsFormat::strings},
    {"pot", TextsFormat::pot},
    {"json", TextsFormat::json},
};

constexpr Word<LintFormat> lintFormats[] = {
    {"text", LintFormat::text},
    {"json", LintFormat::json},
};

constexpr Word<AuditFormat> auditFormats[] = {
    {"text", AuditFormat::text},
    {"json", AuditFormat::json},
    {"sarif", AuditFormat::sarif},
};

template <class Value, std::size_t count>
Value readWord(const char* key, const std::string& given, const Word<Value> (&words)[count]) {
    const Json all{{key, given}};
    return JsonCursor{all, commandLinePlace}.at(key).oneOf(words);
}

std::optional<std::filesystem::path> readFile(const std::string& given) {
    return given.empty() ? std::nullopt : std::optional(system::pathOf(given));
}

// What every subcommand does: it names its options, and reads them once they have been parsed. It lives as long as the parser.
class Command {
public:
    virtual ~Command() = default;
    virtual Arguments read() const = 0;
};

class Show final : public Command {
public:
    explicit Show(CLI::App& parent) {
        CLI::App& command = *parent.add_subcommand("show", "A window; one line for every event on standard output until it closes");
        command.add_option("OFFERS.json", m_offers, "The offers; the sample ones when left out");
        m_device.addTo(command);
        command.add_option("--start", m_start, "paywall, comparison or store");
        command.add_option("--record", m_recording, "A file for what is done, which `proupsells run` plays");
        command.add_flag("--watch", m_isWatching, "Follows changes of offers, translations and theme");
        command.footer(std::string(previewKeysHelp) + "\nExample: proupsells show offers.json --strings translations --watch");
    }

    Arguments read() const override {
        const Device device = m_device.read();
        return ShowArguments{readFile(m_offers),
                             device,
                             m_device.given(),
                             readWord("start", m_start, startScreens),
                             readFile(m_recording),
                             m_isWatching,
                             readFile(m_device.value("theme"))};
    }

private:
    std::string m_offers, m_start = "paywall", m_recording;
    bool m_isWatching = false;
    DeviceOptions m_device;
};

class Run final : public Command {
public:
    explicit Run(CLI::App& parent) {
        CLI::App& command = *parent.add_subcommand("run", "A scripted run on a virtual clock, without a window");
        command.add_option("SCENARIO.json", m_scenario, "The script")->required();
        command.add_option("--out", m_folder, "Where pictures go; the current folder when left out");
        command.footer("Example: proupsells run tour.json --out pictures");
    }

    Arguments read() const override { return RunArguments{system::pathOf(m_scenario), readFile(m_folder).value_or(".")}; }

private:
    std::string m_scenario, m_folder;
};

class Texts final : public Command {
public:
    explicit Texts(CLI::App& parent) {
        CLI::App& command = *parent.add_subcommand("texts", "Every text of the screens with its comment, for translators");
        command.add_option("--format", m_format, "strings, pot or json");
        command.footer("Example: proupsells texts --format pot > proupsells.pot");
    }

    Arguments read() const override { return TextsArguments{readWord("format", m_format, textsFormats)}; }

private:
    std::string m_format = "strings";
};

class Read final : public Command {
public:
    explicit Read(CLI::App& parent) {
        CLI::App& command = *parent.add_subcommand("read", "What a screen reader says, as text to compare");
        command.add_option("SCREEN", m_subject, "paywall, comparison, store, or the file of a scenario")->required();
        command.add_option("--offers", m_offers, "The offers of a screen; the sample ones when left out");
        m_device.addTo(command);
        command.footer("A scenario has a device of its own; what each of its steps changes is told below it.\n\n"
                       "Example: proupsells read paywall --locale de_DE --strings translations > paywall.txt");
    }

    Arguments read() const override {
        ReadArguments result{.subject = StartScreen::paywall, .offers = readFile(m_offers), .device = m_device.read()};
        if (const auto screen = entryFor(m_subject, startScreens); screen != std::end(startScreens))
            result.subject = screen->value;
        else
            result.subject = system::pathOf(m_subject);
        return result;
    }

private:
    std::string m_subject, m_offers;
    DeviceOptions m_device;
};

class Lint final : public Command {
public:
    explicit Lint(CLI::App& parent) {
        CLI::App& command = *parent.add_subcommand("lint", "What is wrong with offers and with translations");
        command.add_option("OFFERS.json", m_offers, "The offers")->required();
        command.add_option("--strings", m_strings, "A folder of <language>.lproj/Localizable.strings");
        command.add_option("--accept", m_accepted, "A file of findings that are known, each with a reason");
        command.add_option("--format", m_format, "text or json");
        command.footer("Exit status: 0 nothing is wrong; 1 something is, each on a line of its own; 2 unusable input.\n\n"
                       "Example: proupsells lint offers.json --strings translations");
    }

    Arguments read() const override {
        return LintArguments{system::pathOf(m_offers), readFile(m_strings), readFile(m_accepted),
                             readWord("format", m_format, lintFormats)};
    }

private:
    std::string m_offers, m_strings, m_accepted, m_format = "text";
};

class Audit final : public Command {
public:
    explicit Audit(CLI::App& parent) {
        CLI::App& command = *parent.add_subcommand("audit", "What is wrong with the screens, however they are shown");
        command.add_option("SUBJECT", m_subject, "An offers file, or a scenario to look at after each step; the sample offers");
        command.add_option("--matrix", m_matrix,
                           "A file with locales, sizes, textSizes, appearances, of offers also screens; all of them");
        command.add_option("--accept", m_accepted, "A file of findings that are known, each with a reason");
        command.add_option("--strings", m_strings, "A folder of <language>.lproj/Localizable.strings");
        command.add_option("--theme", m_theme, "A file with colours, typefaces and pictures of a brand");
        command.add_option("--format", m_format, "text, json or sarif");
        command.footer("Exit status: 0 nothing is wrong; 1 something is, each on a line of its own; 2 unusable input.\n\n"
                       "Example: proupsells audit offers.json --strings translations --accept accepted.json");
    }

    Arguments read() const override {
        return AuditArguments{readFile(m_subject), readFile(m_matrix), readFile(m_accepted),
                              readFile(m_strings), readFile(m_theme),  readWord("format", m_format, auditFormats)};
    }

private:
    std::string m_subject, m_matrix, m_accepted, m_strings, m_theme, m_format = "text";
};

class MakeGallery final : public Command {
public:
    explicit MakeGallery(CLI::App& parent) {
        CLI::App& command = *parent.add_subcommand("gallery", "Pictures of all screens, however they are shown, in one page");
        command.add_option("OFFERS.json", m_offers, "The offers; the sample ones when left out");
        command.add_option("--out", m_folder, "The folder of the gallery, a new one or one to write over")->required();
        command.add_option("--compare", m_former, "The folder of another gallery: the page shows what has changed");
        command.add_option("--matrix", m_matrix, "A file with screens, locales, sizes, textSizes, appearances, scale");
        command.add_option("--strings", m_strings, "A folder of <language>.lproj/Localizable.strings");
        command.add_option("--theme", m_theme, "A file with colours, typefaces and pictures of a brand");
        command.footer("Exit status: 0 done; 1 something has changed, each change on a line of its own; 2 unusable input.\n\n"
                       "Example: proupsells gallery offers.json --out gallery --compare gallery-of-last-release");
    }

    Arguments read() const override {
        return GalleryArguments{readFile(m_offers), system::pathOf(m_folder), readFile(m_former),
                                readFile(m_matrix), readFile(m_strings),      readFile(m_theme)};
    }

private:
    std::string m_offers, m_folder, m_former, m_matrix, m_strings, m_theme;
};

class MakeEvidence final : public Command {
public:
    explicit MakeEvidence(CLI::App& parent) {
        CLI::App& command =
            *parent.add_subcommand("evidence", "What a customer was shown and agreed to, word by word, as one document");
        command.add_option("SCENARIO.json", m_scenario, "The script, or a recording of what somebody did")->required();
        command.add_option("--out", m_file, "The document, a page of HTML with its pictures inside")->required();
        command.footer("Prints the SHA-256 digest that the document's second line has. The same scenario gives the same one.\n\n"
                       "Example: proupsells evidence recording.json --out evidence.html");
    }

    Arguments read() const override { return EvidenceArguments{system::pathOf(m_scenario), system::pathOf(m_file)}; }

private:
    std::string m_scenario, m_file;
};

constexpr Word<Shell> shells[] = {
    {"bash", Shell::bash},
    {"zsh", Shell::zsh},
    {"fish", Shell::fish},
};

// What is printed about the program itself.
class Completion final : public Command {
public:
    explicit Completion(CLI::App& parent) : m_program(parent) {
        CLI::App& command = *parent.add_subcommand("completion", "A script that makes a shell complete what is typed");
        command.add_option("SHELL", m_shell, "bash, zsh or fish")->required();
        command.footer("Example: source <(proupsells completion bash)");
    }

    Arguments read() const override {
        std::cout << completionScript(m_program, readWord("shell", m_shell, shells));
        return HelpShown{};
    }

private:
    const CLI::App& m_program;
    std::string m_shell;
};

class Manual final : public Command {
public:
    explicit Manual(CLI::App& parent) : m_program(parent) {
        parent.add_subcommand("manual", "All that --help says, as a page for man(1)")
            ->footer("Example: proupsells manual | man -l -");
    }

    Arguments read() const override {
        std::cout << manualPage(m_program);
        return HelpShown{};
    }

private:
    const CLI::App& m_program;
};

} // namespace

Arguments readCommandLine(int count, const char* const* arguments) {
    CLI::App app{"Shows the ProUpsells screens in a window, plays a script of them without one, and tells what is in them and what "
                 "is wrong.",
                 "proupsells"};
    app.require_subcommand(1);
    std::unique_ptr<Command> commands[] = {std::make_unique<Show>(app),        std::make_unique<Run>(app),
                                           std::make_unique<Texts>(app),       std::make_unique<Read>(app),
                                           std::make_unique<Lint>(app),        std::make_unique<Audit>(app),
                                           std::make_unique<MakeGallery>(app), std::make_unique<MakeEvidence>(app),
                                           std::make_unique<Completion>(app),  std::make_unique<Manual>(app)};
    const auto all = app.get_subcommands([](const CLI::App*) { return true; });
    const auto chosen = [&] { return std::find_if(all.begin(), all.end(), [](const CLI::App* each) { return each->parsed(); }); };
    try {
        app.parse(count, arguments);
    } catch (const CLI::CallForHelp&) {
        std::cout << (chosen() == all.end() ? &app : *chosen())->help();
        return HelpShown{};
    } catch (const CLI::ParseError& error) {
        throw InputError(commandLinePlace, "",
                         std::string(error.what()) + ", expected arguments as `proupsells --help` lists them");
    }
    return commands[chosen() - all.begin()]->read();
}

} // namespace proupsells::hostprogram

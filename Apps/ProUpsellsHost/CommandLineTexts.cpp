#include "Apps/ProUpsellsHost/CommandLineTexts.hpp"

#include <sstream>

namespace proupsells::hostprogram {

namespace {

std::vector<const CLI::App*> commandsOf(const CLI::App& program) {
    return program.get_subcommands([](const CLI::App*) { return true; });
}

std::vector<const CLI::Option*> optionsOf(const CLI::App& command) {
    return command.get_options([](const CLI::Option* option) { return !option->get_positional(); });
}

std::vector<const CLI::Option*> placesOf(const CLI::App& command) {
    return command.get_options([](const CLI::Option* option) { return option->get_positional(); });
}

std::string longNameOf(const CLI::Option& option) { return "--" + option.get_lnames().front(); }

bool takesValue(const CLI::Option& option) { return option.get_items_expected_max() > 0; }

// With a backslash before every character of `special`.
std::string quoted(const std::string& text, std::string_view special) {
    std::string result;
    for (const char c : text) result += special.find(c) == std::string_view::npos ? std::string(1, c) : std::string("\\") + c;
    return result;
}

std::string bashScript(const CLI::App& program) {
    std::string commands, cases;
    for (const CLI::App* command : commandsOf(program)) {
        commands += (commands.empty() ? "" : " ") + command->get_name();
        std::string options;
        for (const CLI::Option* option : optionsOf(*command)) options += (options.empty() ? "" : " ") + longNameOf(*option);
        cases += "        " + command->get_name() + ") words=\"" + options + "\" ;;\n";
    }
    return "# bash completion for proupsells\n"
           "_proupsells() {\n"
           "    local current=${COMP_WORDS[COMP_CWORD]} words=\n"
           "    case ${COMP_WORDS[1]} in\n" +
           cases +
           "    esac\n"
           "    if ((COMP_CWORD == 1)); then\n"
           "        COMPREPLY=($(compgen -W \"" +
           commands +
           "\" -- \"$current\"))\n"
           "    elif [[ $current == -* ]]; then\n"
           "        COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
           "    else\n"
           "        COMPREPLY=($(compgen -f -- \"$current\"))\n"
           "    fi\n"
           "}\n"
           "complete -o filenames -F _proupsells proupsells\n";
}

std::string zshScript(const CLI::App& program) {
    const auto described = [](const std::string& text) { return quoted(text, "[]:\\"); };
    const auto inQuotes = [](const std::string& text) {
        std::string result;
        for (const char c : text) result += c == '\'' ? "'\\''" : std::string(1, c);
        return "'" + result + "'";
    };
    std::string commands, cases;
    for (const CLI::App* command : commandsOf(program)) {
        commands += "        " + inQuotes(command->get_name() + ":" + described(command->get_description())) + "\n";
        cases += "        " + command->get_name() + ") _arguments";
        for (const CLI::Option* option : optionsOf(*command))
            cases += " \\\n            " + inQuotes(longNameOf(*option) + "[" + described(option->get_description()) + "]" +
                                                    (takesValue(*option) ? ":value:_files" : ""));
        cases += " \\\n            '*:file:_files' ;;\n";
    }
    return "#compdef proupsells\n"
           "_proupsells() {\n"
           "    local -a commands\n"
           "    commands=(\n" +
           commands +
           "    )\n"
           "    if ((CURRENT == 2)); then\n"
           "        _describe command commands\n"
           "        return\n"
           "    fi\n"
           "    local command=${words[2]}\n"
           "    shift words\n"
           "    ((CURRENT--))\n"
           "    case $command in\n" +
           cases +
           "    esac\n"
           "}\n"
           "_proupsells \"$@\"\n";
}

std::string fishScript(const CLI::App& program) {
    const auto inQuotes = [](const std::string& text) { return "'" + quoted(text, "'\\") + "'"; };
    std::string script = "# fish completion for proupsells\n";
    for (const CLI::App* command : commandsOf(program)) {
        script += "complete -c proupsells -n __fish_use_subcommand -f -a " + command->get_name() + " -d " +
                  inQuotes(command->get_description()) + "\n";
        for (const CLI::Option* option : optionsOf(*command))
            script += "complete -c proupsells -n '__fish_seen_subcommand_from " + command->get_name() + "' -l " +
                      option->get_lnames().front() + (takesValue(*option) ? " -r" : "") + " -d " +
                      inQuotes(option->get_description()) + "\n";
    }
    return script;
}

// For troff: no backslash or hyphen that means something else, and no line that begins with a command.
std::string troff(const std::string& text) {
    std::string result;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.empty()) {
            result += ".PP\n";
            continue;
        }
        if (line.front() == '.' || line.front() == '\'') result += "\\&";
        for (const char c : line) result += c == '\\' ? "\\e" : c == '-' ? "\\-" : std::string(1, c);
        result += '\n';
    }
    return result;
}

std::string commandSection(const CLI::App& command) {
    std::string synopsis = "proupsells " + command.get_name();
    for (const CLI::Option* place : placesOf(command)) {
        const std::string name = place->get_single_name();
        synopsis += place->get_required() ? " " + name : " [" + name + "]";
    }
    std::string result = ".SS " + troff(synopsis + " [OPTIONS]") + troff(command.get_description() + ".");
    for (const CLI::Option* place : placesOf(command))
        result += ".TP\n.I " + troff(place->get_single_name()) + troff(place->get_description() + ".");
    for (const CLI::Option* option : optionsOf(command))
        result += ".TP\n.B " + troff(longNameOf(*option) + (takesValue(*option) ? " VALUE" : "")) +
                  troff(option->get_description() + ".");
    return result + (command.get_footer().empty() ? "" : ".PP\n" + troff(command.get_footer()));
}

} // namespace

std::string completionScript(const CLI::App& program, Shell shell) {
    switch (shell) {
    case Shell::bash: return bashScript(program);
    case Shell::zsh: return zshScript(program);
    case Shell::fish: return fishScript(program);
    }
    return {};
}

std::string manualPage(const CLI::App& program) {
    std::string page = ".TH PROUPSELLS 1\n.SH NAME\nproupsells \\- shows and judges screens that sell a subscription\n"
                       ".SH SYNOPSIS\n.B proupsells\n.I COMMAND\n[\\fIOPTIONS\\fR]\n.SH DESCRIPTION\n" +
                       troff(program.get_description()) + ".SH COMMANDS\n";
    for (const CLI::App* command : commandsOf(program)) page += commandSection(*command);
    return page +
           ".SH EXIT STATUS\n.TP\n0\nDone.\n.TP\n1\nAn expectation of a scenario did not hold, or something was found or has "
           "changed.\n"
           ".TP\n2\nInput or arguments cannot be used; one line on standard error says why.\n.TP\n3\nThere is no display for a "
           "window.\n";
}

} // namespace proupsells::hostprogram

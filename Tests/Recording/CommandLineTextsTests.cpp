// What shells and readers of manuals are told of a program whose words are awkward.
#include <gmock/gmock.h>

#include "Apps/ProUpsellsHost/CommandLineTexts.hpp"

namespace proupsells::hostprogram {

using ::testing::HasSubstr;

namespace {

class AwkwardProgram : public ::testing::Test {
protected:
    AwkwardProgram() {
        CLI::App& go = *app.add_subcommand("go", "Does [it]: 'now'\\");
        go.add_option("PLACE", text, "Where")->required();
        go.add_option("MORE", other, "Further");
        go.add_option("--to", to, "What's [there]");
        go.add_flag("--fast", isFast, "Quick: very");
        app.add_subcommand("stay", "Stays")->footer(".x\n\n'y'\n-z");
    }

    CLI::App app{"-a \\ 'b'\n.c\n'd\n\ne", "proupsells"};
    std::string text, other, to;
    bool isFast = false;
};

} // namespace

TEST_F(AwkwardProgram, IsAPageInWhichNoLineIsACommandByMistake) {
    const std::string page = manualPage(app);

    EXPECT_THAT(page, HasSubstr("\n.SH DESCRIPTION\n\\-a \\e 'b'\n\\&.c\n\\&'d\n.PP\ne\n.SH COMMANDS\n"));
    EXPECT_THAT(page, HasSubstr("\n.SS proupsells go PLACE [MORE] [OPTIONS]\nDoes [it]: 'now'\\e.\n.TP\n.I PLACE\nWhere.\n"
                                ".TP\n.I MORE\nFurther.\n.TP\n.B \\-\\-help\nPrint this help message and exit.\n"
                                ".TP\n.B \\-\\-to VALUE\nWhat's [there].\n.TP\n.B \\-\\-fast\nQuick: very.\n"
                                ".SS proupsells stay [OPTIONS]\nStays.\n.TP\n.B \\-\\-help\nPrint this help message and exit.\n"
                                ".PP\n\\&.x\n.PP\n\\&'y'\n\\-z\n.SH EXIT STATUS\n"));
}

TEST_F(AwkwardProgram, IsCompletedByBash) {
    const std::string script = completionScript(app, Shell::bash);

    EXPECT_THAT(script, HasSubstr("        go) words=\"--help --to --fast\" ;;\n        stay) words=\"--help\" ;;\n"));
    EXPECT_THAT(script, HasSubstr("(compgen -W \"go stay\" --"));
}

TEST_F(AwkwardProgram, IsCompletedByZsh) {
    EXPECT_THAT(completionScript(app, Shell::zsh), HasSubstr(R"(
        'go:Does \[it\]\: '\''now'\''\\'
        'stay:Stays'
    ))"));
    EXPECT_THAT(completionScript(app, Shell::zsh), HasSubstr(R"(
        go) _arguments \
            '--help[Print this help message and exit]' \
            '--to[What'\''s \[there\]]:value:_files' \
            '--fast[Quick\: very]' \
            '*:file:_files' ;;
        stay) _arguments \
            '--help[Print this help message and exit]' \
            '*:file:_files' ;;
)"));
}

TEST_F(AwkwardProgram, IsCompletedByFish) {
    EXPECT_EQ(completionScript(app, Shell::fish), R"(# fish completion for proupsells
complete -c proupsells -n __fish_use_subcommand -f -a go -d 'Does [it]: \'now\'\\'
complete -c proupsells -n '__fish_seen_subcommand_from go' -l help -d 'Print this help message and exit'
complete -c proupsells -n '__fish_seen_subcommand_from go' -l to -r -d 'What\'s [there]'
complete -c proupsells -n '__fish_seen_subcommand_from go' -l fast -d 'Quick: very'
complete -c proupsells -n __fish_use_subcommand -f -a stay -d 'Stays'
complete -c proupsells -n '__fish_seen_subcommand_from stay' -l help -d 'Print this help message and exit'
)");
}

} // namespace proupsells::hostprogram

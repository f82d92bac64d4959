// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "cli/help_formatter.h"
#include "every_command.h"

namespace hx::cli {

namespace {

TEST(Help, TellsTheExitStatusOfEveryCommand) {
    Program program;
    EXPECT_TRUE(program.app->get_footer().starts_with("Exit status: 0 "));
    forEachCommand(*program.app, [](const std::string& name, const CLI::App& command) {
        EXPECT_TRUE(command.get_footer().starts_with("Exit status: 0 ")) << name;
        EXPECT_TRUE(command.get_footer().ends_with('.')) << name;
    });
}

TEST(Help, SaysOfEverythingWhatItIsInASentence) {
    Program program;
    forEachCommand(*program.app, [](const std::string& name, const CLI::App& command) {
        EXPECT_TRUE(command.get_description().ends_with('.')) << name;
        for (const CLI::Option* option : command.get_options()) {
            EXPECT_TRUE(option->get_description().ends_with('.')) << name << " " << option->get_name(true);
        }
    });
}

TEST(Help, FitsIntoATerminal) {
    Program program;
    const auto expectFit = [](const std::string& name, const CLI::App& command) {
        std::istringstream lines(command.help());
        for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), HelpFormatter::width) << name << line;
    };
    expectFit("hxrecipe", *program.app);
    forEachCommand(*program.app, expectFit);
}

TEST(Help, NamesTheValueOfAnOption) {
    CLI::App app("Does things.", "tool");
    app.formatter(std::make_shared<HelpFormatter>());
    std::string text;
    int number = 0;
    bool flag = false;
    app.add_option("FILE", text, "Where.")->required()->check(CLI::ExistingFile);
    app.add_option("--mode", text, "How.")->check(CLI::IsMember({"add", "update"}));
    app.add_option("--from", text, "Whence.")->check(CLI::ExistingFile);
    CLI::Option* count = app.add_option("--count", number, "How many.")->required()->check(CLI::Range(1, 9));
    app.add_flag("--dry-run", flag, "Only a look.")->needs(count);
    const std::string help = app.help();
    for (const char* line : {"  FILE                        Where.\n", "  --mode add|update           How.\n",
                             "  --from FILE                 Whence.\n", "  --count INT (required)      How many.\n",
                             "  --dry-run (with --count)    Only a look.\n"}) {
        EXPECT_NE(help.find(line), std::string::npos) << line << help;
    }
}

TEST(Help, GoesOnBelowTheDescriptionWhereALineIsBroken) {
    CLI::App app("Does things.", "tool");
    app.formatter(std::make_shared<HelpFormatter>());
    bool flag = false;
    app.add_flag("--flag", flag, "One two three four five six seven eight nine ten eleven twelve.");
    app.footer(std::string(30, 'a') + " " + std::string(49, 'b') + " " + std::string(81, 'c'));
    const std::string help = app.help();
    EXPECT_NE(help.find("  --flag                      One two three four five six seven eight nine ten\n"
                        "                              eleven twelve.\n"),
              std::string::npos)
        << help;
    EXPECT_TRUE(
        help.ends_with("\n" + std::string(30, 'a') + " " + std::string(49, 'b') + "\n" + std::string(81, 'c') + "\n"))
        << help;
}

}  // namespace

}  // namespace hx::cli

// SPDX-License-Identifier: MIT
#include "cli/run_macro.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "adapters/lua/engine.h"
#include "adapters/sqlite/session.h"
#include "automation/text.h"
#include "cli/interruption.h"
#include "hosting/file_bytes.h"
#include "hosting/visible.h"
#include "macros/globals.h"
#include "project/reader.h"

namespace hx::cli {

namespace {

std::string readMacro(const std::string& path) {
    std::ifstream file(hosting::fileSystemPath(path), std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    if (file.bad() || !file.is_open()) throw automation::Error(automation::errFail, "Cannot read '" + path + "'");
    return text;
}

// CLI11's own checks end the program when there is no memory for the path.
CLI::Validator existingFile() {
    const auto check = [](const std::string& path) -> std::string {
        std::error_code ignored;
        const auto status = std::filesystem::status(hosting::fileSystemPath(path), ignored);
        if (!std::filesystem::exists(status)) return "File does not exist: " + path;
        return std::filesystem::is_directory(status) ? "File is actually a directory: " + path : "";
    };
    return {check, "FILE"};
}

CLI::Validator existingFolder() {
    const auto check = [](const std::string& path) -> std::string {
        std::error_code ignored;
        const auto status = std::filesystem::status(hosting::fileSystemPath(path), ignored);
        if (!std::filesystem::exists(status)) return "Directory does not exist: " + path;
        return std::filesystem::is_directory(status) ? "" : "Directory is actually a file: " + path;
    };
    return {check, "DIR"};
}

void makeFolder(const std::string& path) {
    std::error_code problem;
    const std::filesystem::path folder = hosting::fileSystemPath(path);
    std::filesystem::create_directories(folder, problem);
    if (std::filesystem::is_directory(folder)) return;
    throw automation::Error(automation::errFail, "Cannot make the folder '" + path + "'" +
                                                     (problem ? ": " + problem.message() : std::string()));
}

/// The studio and its engine. The macro's answers end with it, before the project is closed.
class MacroSession {
  public:
    MacroSession(const MacroPlan& plan, const Output& output)
        : files_(plan.studio.files),
          studio_(plan.studio),
          engine_({.print = [&output](std::string_view text) { output.results << text << std::flush; },
                   .files = files_,
                   .trusted = plan.studio.trusted,
                   .stopRequested = [this] { return interruption_.requested(); }}) {
        macros::defineGlobals(engine_, studio_, files_);
    }
    ~MacroSession() { close(); }
    MacroSession(const MacroSession&) = delete;
    MacroSession& operator=(const MacroSession&) = delete;

    void run(const MacroPlan& plan, const std::string& text) {
        if (!plan.project.empty()) studio_.openProject(studio_.fileOf(plan.project));
        engine_.run(text, plan.macro, plan.arguments);
    }
    /// Closes the project, as by leaving the studio.
    void close() {
        studio_.script() = {};
        studio_.components().clear();
        studio_.closeProject();
    }
    /// What the macro has found counts as a failure: who runs it in a shell asks for its exit status.
    [[nodiscard]] bool foundSomething() { return !studio_.found().empty(); }
    /// The messages that only tell something, which nobody has read: the macro goes on as if all were well.
    [[nodiscard]] std::vector<forms::ShownMessage> unread() {
        std::vector<forms::ShownMessage> left = studio_.record().messages;
        std::erase_if(left, [](const forms::ShownMessage& box) { return box.scripted || box.buttons.size() > 1; });
        return left;
    }

  private:
    Interruption interruption_;
    const lua::MacroFiles files_;
    MacroStudio studio_;
    lua::Engine engine_;
};

// What the command line names is the user's choice, whatever the macro is.
lua::MacroFiles filesOf(const MacroPlan& plan) {
    if (plan.studio.trusted) return lua::MacroFiles::all();
    lua::MacroFiles files;
    if (!plan.project.empty())
        files.allow(std::filesystem::absolute(hosting::fileSystemPath(plan.project)).parent_path());
    if (!plan.folder.empty()) files.allow(std::filesystem::absolute(hosting::fileSystemPath(plan.folder)));
    return files;
}

/// The decimal points of languages, by the first part of a locale's name.
struct DecimalPoint {
    std::string_view language;
    const char* point;
};
constexpr auto decimalPoints = std::to_array<DecimalPoint>({
    {"de_CH", "."}, {"de_LI", "."}, {"it_CH", "."}, {"C", "."},  {"POSIX", "."}, {"en", "."}, {"ja", "."}, {"ko", "."},
    {"zh", "."},    {"cs", ","},    {"da", ","},    {"de", ","}, {"es", ","},    {"fi", ","}, {"fr", ","}, {"hu", ","},
    {"it", ","},    {"nb", ","},    {"nl", ","},    {"pl", ","}, {"pt", ","},    {"ru", ","}, {"sv", ","}, {"tr", ","},
});

// "de-DE", "de_DE.UTF-8" and "de" alike.
std::string decimalPointOf(const std::string& locale) {
    const std::string name = automation::replaceAll(locale, "-", "_");
    for (const DecimalPoint& row : decimalPoints) {
        const std::string_view rest = std::string_view(name).substr(std::min(row.language.size(), name.size()));
        const bool ends = rest.empty() || rest.front() == '_' || rest.front() == '.' || rest.front() == '@';
        if (name.starts_with(row.language) && ends) return row.point;
    }
    throw CLI::ValidationError("--locale", "\"" + locale + "\" is not a known locale");
}

bool runToItsEnd(MacroSession& session, const MacroPlan& plan, const std::string& text, const Output& output) {
    try {
        session.run(plan, text);
        return true;
    } catch (const lua::MacroError& error) {
        output.problems << "hxrecipe: " << hosting::visibleLines(error.what()) << "\n";
        if (!error.traceback().empty()) output.problems << hosting::visibleLines(error.traceback()) << "\n";
        return false;
    }
}

}  // namespace

int runMacro(const MacroPlan& plan, const Output& output) {
    // Before the signals are the macro's: a pipe may keep this waiting.
    const std::string text = readMacro(plan.macro);
    if (!plan.project.empty()) (void)sqlite::Session(plan.project);
    if (!plan.studio.config.empty()) makeFolder(plan.studio.config);
    MacroSession session(plan, output);
    const bool ended = runToItsEnd(session, plan, text, output);
    session.close();
    const auto unread = session.unread();
    for (const forms::ShownMessage& box : unread)
        output.problems << "hxrecipe: " << hosting::visibleLines(box.title + ": " + box.text) << "\n";
    return ended && unread.empty() && !session.foundSomething() ? succeeded : failed;
}

void addRunMacro(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("run", "Run a macro on a studio without a screen.");
    const auto plan = std::make_shared<MacroPlan>();
    const auto locale = std::make_shared<std::string>("C");
    command->add_option("MACRO", plan->macro, "The macro, a text in Lua 5.4.")->required()->check(existingFile());
    command->add_option("ARG", plan->arguments, "What the macro gets as arguments; behind -- also with a dash.");
    command->add_option("--project", plan->project, "The project file to open first.")->check(existingFile());
    command->add_option("--lcid", plan->studio.lcid, "The language: 1031 German, 1033 English.")
        ->check(CLI::IsMember({automation::germanLcid, automation::englishLcid}));
    command->add_option("--locale", *locale, "How numbers are written, as de_DE.")->type_name("NAME");
    command
        ->add_option("--folder", plan->folder,
                     "A folder whose files and projects the macro may use, besides that of --project.")
        ->type_name("DIR")
        ->check(existingFolder());
    command
        ->add_option("--config", plan->studio.config,
                     "The folder of the registry, made when it is missing; without one nothing is kept.")
        ->type_name("DIR");
    command->add_flag("--trust", plan->studio.trusted,
                      "Let the macro use all files and the registry, and start programs.");
    command->footer(
        "Exit status: 0 done, 1 the macro failed, found something, was stopped by Ctrl+C or left an error message "
        "unread, 2 wrong usage.");
    command->callback([plan, locale, &chosen, &output] {
        plan->studio.decimalPoint = decimalPointOf(*locale);
        plan->studio.files = filesOf(*plan);
        chosen = Command{[plan, &output] { return runMacro(*plan, output); }, failed};
    });
}

}  // namespace hx::cli

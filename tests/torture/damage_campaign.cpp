// SPDX-License-Identifier: MIT
#include <filesystem>

#include "support/temporary_folder.h"
#include "torture/campaign.h"
#include "torture/damage.h"
#include "torture/operation.h"
#include "torture/programs.h"
#include "torture/state.h"

/// Damaged projects through every command and a macro that clicks through them: no crash and no waiting without end,
/// and what cannot be done is told.
namespace hx::torture {

namespace {

namespace fs = std::filesystem;
using Command = Process::Command;

constexpr int shortCount = 12, longCount = 20000;  // accidents

std::string file(const std::string& name) { return programs::files + ("/" + name); }

// "~" is the folder; the sound project lies beside the damaged one.
std::vector<Command> commands() {
    std::vector<Command> list = {{"check", "~/plant.hxs"},
                                 {"list", "~/plant.hxs"},
                                 {"list", "--json", "~/plant.hxs"},
                                 {"show", "~/plant.hxs", "Cola"},
                                 {"where", "~/plant.hxs", "Pump"},
                                 {"export", "~/plant.hxs", "~/out.json"},
                                 {"diff", "~/plant.hxs", "~/sound.hxs"},
                                 {"variables", "list", "~/plant.hxs"},
                                 {"run", "--project", "~/plant.hxs", file("work.lua"), "look"},
                                 {"import", "~/plant.hxs", file("more.json"), "--mode", "update"},
                                 {"variables", "import", "~/plant.hxs", file("more.csv")},
                                 {"run", "--project", "~/plant.hxs", file("work.lua"), "recipes"}};
    for (Command& command : list) command.insert(command.begin(), programs::hxrecipe);
    return list;
}

std::string judge(const Command& command, const Ending& ending, bool sound) {
    const bool compares = command[1] == "check" || command[1] == "diff";
    std::string problem;
    if (ending.brokeDown()) problem = "broke down";
    else if (ending.status != 0 && ending.problems.empty() && !compares) problem = "failed and said nothing";
    else if (command[1] == "check" && ending.status == 0 && !sound) problem = "found nothing in a damaged file";
    return problem.empty() ? problem : command[1] + ": " + problem + ": " + ending.words();
}

std::string attempt(const std::string& original, const Damage& damage) {
    const support::TemporaryFolder folder;
    const std::string damaged = folder.file("damaged.hxs");
    fs::copy_file(original, damaged);
    fs::copy_file(original, folder.file("sound.hxs"));
    damage.make(damaged);
    const std::string copy = folder.file("plant.hxs");
    fs::copy_file(damaged, copy);
    const bool sound = isSound(copy);
    for (const Command& command : commands()) {
        fs::copy_file(damaged, copy, fs::copy_options::overwrite_existing);
        fs::remove(copy + "-journal");
        const Ending ending = Process::run(inFolder(command, folder.path()), folder.path(), {{"HOME", folder.path()}});
        if (std::string problem = judge(command, ending, sound); !problem.empty()) return problem;
    }
    return {};
}

void makeOriginal(const std::string& folder, bool jet) {
    for (Command command : {Command{"new", "~/original.hxs"},
                            {"variables", "import", "~/original.hxs", file("variables.csv")},
                            {"import", "~/original.hxs", file("plant.json")}}) {
        command.insert(command.begin(), programs::hxrecipe);
        if (jet) command = onJet(std::move(command));
        const Ending ending = Process::run(inFolder(command, folder), folder, {});
        if (ending.told()) throw std::runtime_error("damage cannot begin: " + ending.words());
    }
}

}  // namespace

void tryDamage(const Extent& extent, Figures& figures) {
    const support::TemporaryFolder folder, jetFolder;
    makeOriginal(folder.path(), false);
    makeOriginal(jetFolder.path(), true);
    const std::string original = folder.file("original.hxs"), jet = jetFolder.file("original.hxs");
    std::mt19937 chance(extent.seed);
    std::vector<Attempt> attempts;
    for (const Damage& damage : schemas()) {
        attempts.push_back({"damage schema", damage.name, [original, damage] { return attempt(original, damage); }});
    }
    for (int i = 0; i < (extent.isShort ? shortCount : longCount); ++i) {
        const Damage damage = accident(chance);
        attempts.push_back({"damage accident", damage.name, [original, damage] { return attempt(original, damage); }});
        attempts.push_back({"damage jet accident", damage.name, [jet, damage] { return attempt(jet, damage); }});
    }
    makeAll(std::move(attempts), extent, figures);
}

}  // namespace hx::torture

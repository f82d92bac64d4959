// SPDX-License-Identifier: MIT
#include <array>
#include <filesystem>

#include "support/temporary_folder.h"
#include "torture/campaign.h"
#include "torture/operation.h"
#include "torture/programs.h"
#include "torture/state.h"

/// Two processes at once: none takes from the other what it has stored, and none works on the other's project.
namespace hx::torture {

namespace {

namespace fs = std::filesystem;
using Command = Process::Command;

constexpr int shortCount = 3, longCount = 3000;  // of each kind

std::string file(const std::string& name) { return programs::files + ("/" + name); }

Command hxrecipe(Command arguments, const std::string& folder) {
    arguments.insert(arguments.begin(), programs::hxrecipe);
    return inFolder(std::move(arguments), folder);
}

std::array<Ending, 2> together(const Command& first, const Command& second, const std::string& folder) {
    for (const char* name : {"/one", "/two"}) fs::create_directory(folder + name);
    Process one(first, folder + "/one", {{"HOME", folder}}), two(second, folder + "/two", {{"HOME", folder}});
    return {one.wait(), two.wait()};
}

void make(const Command& arguments, const std::string& folder) {
    const Ending ending = Process::run(hxrecipe(arguments, folder), folder, {{"HOME", folder}});
    if (ending.told()) throw std::runtime_error("pairs cannot begin: " + ending.words());
}

std::string brokenDown(const Ending& ending) {
    const bool broken = ending.brokeDown() || (ending.status != 0 && ending.problems.empty());
    return broken ? ending.words() : std::string();
}

// Both write values of their own into one registry.
std::string registry() {
    const support::TemporaryFolder folder;
    const auto command = [&](const char* name) {
        return hxrecipe({"run", "--trust", "--config", "~/config", file("pair.lua"), "registry", name}, folder.path());
    };
    fs::create_directory(folder.file("config"));
    for (const Ending& ending : together(command("A"), command("B"), folder.path())) {
        if (ending.told()) return ending.words();
    }
    const State state = State::of(folder.file("config"));
    for (const char* name : {"A", "B"}) {
        for (int i = 1; i <= 20; ++i) {
            const std::string key = "registry.ini[SOFTWARE\\Tarnwell\\Torture]" + (name + std::to_string(i));
            if (!state.values.contains(key)) return key + " is lost";
        }
    }
    return {};
}

// Two projects of one name in two folders, one registry.
std::string sameNames() {
    const support::TemporaryFolder folder;
    for (const char* name : {"a", "b"}) {
        fs::create_directory(folder.file(name));
        make({"new", "~/" + std::string(name) + "/plant.hxs"}, folder.path());
    }
    const auto command = [&](const std::string& name) {
        return hxrecipe(
            {"run", "--config", "~/config", "--project", "~/" + name + "/plant.hxs", file("pair.lua"), "recipe", name},
            folder.path());
    };
    for (const Ending& ending : together(command("a"), command("b"), folder.path())) {
        if (ending.told()) return ending.words();
    }
    for (const char* name : {"a", "b"}) {
        const State state = State::of(folder.file(name));
        const std::string own = "'Recipe of " + std::string(name) + "'",
                          other = name == std::string("a") ? "'Recipe of b'" : "'Recipe of a'";
        if (state.project.find(own) == std::string::npos) return own + " is missing in its project";
        if (state.project.find(other) != std::string::npos) return other + " is in another project";
    }
    return {};
}

// Both change the same project; each may find it locked or changed, and says so.
std::string oneProject(const Command& makeProject, const std::vector<Command>& both) {
    const support::TemporaryFolder folder;
    make(makeProject, folder.path());
    make({"variables", "import", "~/plant.hxs", file("variables.csv")}, folder.path());
    make({"import", "~/plant.hxs", file("plant.json")}, folder.path());
    const auto endings = together(hxrecipe(both[0], folder.path()), hxrecipe(both[1], folder.path()), folder.path());
    for (const Ending& ending : endings) {
        if (std::string problem = brokenDown(ending); !problem.empty()) return problem;
    }
    const State state = State::of(folder.path());
    if (state.project.starts_with("damaged")) return state.project;
    const bool added = state.project.find("'More 39'") != std::string::npos;
    for (std::size_t i = 0; i < both.size(); ++i) {
        if (both[i][0] == "import" && !endings[i].told() && !added) return "an import is lost";
    }
    return {};
}

std::vector<Command> imports() {
    const Command import{"import", "~/plant.hxs", file("more.json")};
    return {import, import};
}

std::vector<Command> macros(const char* one, const char* two) {
    std::vector<Command> both;
    for (const char* name : {one, two}) {
        both.push_back({"run", "--project", "~/plant.hxs", "--config", "~/config", file("work.lua"), name});
    }
    return both;
}

}  // namespace

void tryPairs(const Extent& extent, Figures& figures) {
    std::vector<Attempt> kinds = {{"pairs registry", {}, registry}, {"pairs of one name", {}, sameNames}};
    for (const Command& makeProject : {Command{"new", "~/plant.hxs"}, {"new", "--format", "jet", "~/plant.hxs"}}) {
        const auto add = [&](const std::string& kind, const std::string& text, const std::vector<Command>& both) {
            const std::string store = makeProject.size() > 2 ? "jet " : "";
            kinds.push_back({"pairs of " + store + kind, text, [=] { return oneProject(makeProject, both); }});
        };
        add("imports", {}, imports());
        add("macros", "members", macros("members", "members"));
        add("macros", "recipes and members", macros("recipes", "members"));
        add("macros and imports", {}, {macros("recipes", "members")[0], imports()[0]});
    }
    std::vector<Attempt> attempts;
    for (int i = 0; i < (extent.isShort ? shortCount : longCount); ++i)
        attempts.insert(attempts.end(), kinds.begin(), kinds.end());
    makeAll(std::move(attempts), extent, figures);
}

}  // namespace hx::torture

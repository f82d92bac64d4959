// SPDX-License-Identifier: MIT
#include "torture/experiment.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "torture/programs.h"

namespace hx::torture {

namespace fs = std::filesystem;

Place::Place() {
    fs::create_directory(work());
    fs::create_directory(side());
}

namespace {

std::string contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Where two texts differ, for a message.
std::string difference(const std::string& is, const std::string& expected) {
    const auto at = std::ranges::mismatch(is, expected).in1 - is.begin();
    const auto start = static_cast<std::size_t>(std::max<std::ptrdiff_t>(at - 20, 0));
    const auto part = [start](const std::string& text) {
        return "\"" + text.substr(std::min(start, text.size()), 80) + "\"";
    };
    return part(is) + ", not " + part(expected);
}

}  // namespace

void Place::fillFrom(const std::string& folder) {
    for (const std::string& path : {work(), side(), log()}) fs::remove_all(path);
    fs::create_directory(side());
    fs::copy(folder, work(), fs::copy_options::recursive);
    for (const auto& entry : fs::recursive_directory_iterator(work())) {
        if (entry.path().extension() != ".ini") continue;
        const std::string text = inFolder(contents(entry.path()), folder, work());
        std::ofstream(entry.path(), std::ios::binary) << text;
    }
}

Environment Place::environment(const Operation& operation, const Environment& faults) const {
    Environment environment = faults;
    const std::string home = work() + "/home";
    environment.insert({{"HOME", home},
                        {"XDG_CONFIG_HOME", home + "/config"},
                        {"XDG_DATA_HOME", home + "/data"},
                        {"XDG_CACHE_HOME", path() + "/cache"},
                        {"XDG_RUNTIME_DIR", path()},
                        {"QT_QPA_PLATFORM", "offscreen"}});
    std::string libraries = faults.empty() ? "" : programs::faults;
    if (operation.usesStudio()) libraries += std::string(libraries.empty() ? "" : ":") + programs::driver;
    if (!libraries.empty()) environment["LD_PRELOAD"] = libraries;
    for (const auto& [name, value] : operation.environment) environment[name] = inFolder(value, "~", work());
    return environment;
}

std::string Fault::text() const { return mode + (keep.empty() ? "" : " " + keep) + " at " + std::to_string(at); }

Environment Fault::environment(const Place& place) const {
    return {{"HX_FAULTS_FOLDER", place.work()}, {"HX_FAULTS_SIDE", place.side()}, {"HX_FAULTS_LOG", place.log()},
            {"HX_FAULTS_MODE", mode},           {"HX_FAULTS_KEEP", keep},         {"HX_FAULTS_AT", std::to_string(at)}};
}

Experiment::Experiment(const Operation& operation) : operation_(operation) {
    makeBefore();
    for (int steps = 0; steps <= operation.steps; ++steps) learn(steps);
    if (!operation.partly.empty()) learnPart();
    countCalls();
}

Ending Experiment::run(const Place& place, const Process::Command& command, const Environment& faults) const {
    return Process::run(inFolder(command, place.work()), place.path(), place.environment(operation_, faults));
}

void Experiment::makeBefore() {
    for (const Process::Command& command : operation_.before) {
        const Ending ending = run(template_, command, {});
        if (ending.told()) throw std::runtime_error(operation_.name + " cannot begin: " + ending.words());
    }
    before_ = template_.work();
}

void Experiment::learn(int steps) {
    Place place;
    place.fillFrom(before_);
    if (steps > 0 || operation_.counted) {
        const auto start = std::chrono::steady_clock::now();
        const Ending ending = run(place, operation_.commandOf(steps), {});
        time_ = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
        if (ending.told()) throw std::runtime_error(operation_.name + " fails undisturbed: " + ending.words());
    }
    states_.push_back(State::of(place.work()));
    if (states_.back().project.find("damaged: ") != std::string::npos)
        throw std::runtime_error(operation_.name + ": " + states_.back().project);
}

void Experiment::learnPart() {
    Place place;
    place.fillFrom(before_);
    (void)run(place, operation_.commandOf(operation_.steps - 1), {});
    change(place.work() + "/plant.hxs", operation_.partly);
    part_ = State::of(place.work()).project;
}

void Experiment::countCalls() {
    Place place;
    place.fillFrom(before_);
    (void)run(place, operation_.commandOf(operation_.steps), Fault{"count", 0, {}}.environment(place));
    calls_ = std::ranges::count(contents(place.log()), '\n');
    if (calls_ == 0) throw std::runtime_error(operation_.name + " writes nothing");
}

long Experiment::countBlocks() const {
    Place place;
    place.fillFrom(before_);
    (void)run(place, operation_.commandOf(operation_.steps), Fault{"memory", 0, {}}.environment(place));
    return std::atol(contents(place.log()).c_str());
}

std::string Experiment::attempt(const Fault& fault) const {
    Place place;
    place.fillFrom(before_);
    const Ending ending = run(place, operation_.commandOf(operation_.steps), fault.environment(place));
    // A disk that has gone takes nothing away either; what is left is cleared later.
    const bool cleared = !fault.kills() && fault.mode != "gone";
    return judge(place, ending, fault.kills(), cleared);
}

std::string Experiment::attemptKilledAfter(std::chrono::microseconds time) const {
    Place place;
    place.fillFrom(before_);
    Process process(inFolder(operation_.commandOf(operation_.steps), place.work()), place.path(),
                    place.environment(operation_, {}));
    if (!process.endsWithin(time)) process.kill();
    return judge(place, process.wait(), true, false);
}

std::string Experiment::judge(const Place& place, const Ending& ending, bool killed, bool cleared) const {
    if (ending.late || (ending.signal != 0 && !killed)) return ending.words();
    if (ending.status > 0 && ending.problems.empty()) return "nothing was said; " + ending.words();
    if (ending.problems.find("hxrecipe: std::") != std::string::npos) return "words for nobody; " + ending.words();
    const State state = State::of(place.work());
    if (const std::string problem = judgeState(state, ending, killed); !problem.empty()) return problem;
    if (const std::string left = strange(state); cleared && !left.empty())
        return "left behind: " + left + "; " + ending.words();
    return judgeNext(place, state);
}

bool Experiment::isLegitimate(const State& state, int first, int last) const {
    return std::any_of(states_.begin() + first, states_.begin() + last + 1,
                       [&](const State& each) { return each.project == state.project; });
}

// What was told to be done is there, and what was not told to have failed.
std::string Experiment::judgeState(const State& state, const Ending& ending, bool killed) const {
    int done = 0;
    for (auto at = ending.output.find("step "); at != std::string::npos; at = ending.output.find("step ", at + 1))
        ++done;
    if (!operation_.counted || ending.output.find("message: ") != std::string::npos) done = 0;
    const bool silent = !killed && !ending.told();
    const int first = silent ? operation_.steps : done;
    const bool isPart = ending.told() && state.project == part_;
    if (!isPart && !isLegitimate(state, first, operation_.steps) &&
        (silent || !isLegitimate(state, 0, operation_.steps) || done > 0)) {
        return "the project is neither as before nor as after: " + difference(state.project, states_.back().project) +
               "; " + ending.words();
    }
    for (const auto& [name, text] : state.texts) {
        const auto has = [&](const State& each) { return each.texts.contains(name) && each.texts.at(name) == text; };
        const bool known = std::ranges::any_of(states_, [&](const State& each) { return each.texts.contains(name); });
        if (known && !(silent ? has(states_.back()) : std::ranges::any_of(states_, has))) {
            return name + " is neither as before nor as after; " + ending.words();
        }
    }
    for (const auto& [key, value] : state.values) {
        const auto has = [&](const State& each) { return each.values.contains(key) && each.values.at(key) == value; };
        if (!std::ranges::any_of(states_, has)) return key + "=" + value + " was never written; " + ending.words();
    }
    const auto lost = std::ranges::find_if(states_.front().values,
                                           [&](const auto& value) { return !state.values.contains(value.first); });
    if (lost != states_.front().values.end()) return lost->first + " is lost; " + ending.words();
    for (const auto& [key, value] : states_.back().values) {
        const auto found = state.values.find(key);
        if (silent && (found == state.values.end() || found->second != value)) {
            return key + " was not stored, and nobody was told; " + ending.words();
        }
    }
    return {};
}

std::string Experiment::strange(const State& state) const {
    for (const std::string& file : state.files) {
        const auto has = [&](const State& each) { return each.files.contains(file); };
        // A journal belongs to its project: the next change takes it.
        const bool isOthers = file.ends_with(".hxs-journal") || isToolkits(file);
        if (!isOthers && !std::ranges::any_of(states_, has)) return file;
    }
    return {};
}

// The next start works, loses nothing more and clears away.
std::string Experiment::judgeNext(const Place& place, const State& after) const {
    const Environment environment = place.environment(operation_, {});
    const bool madeBefore = operation_.once && after.project != "none";
    for (const Process::Command& command : operation_.next) {
        const Ending ending = Process::run(inFolder(command, place.work()), place.path(), environment);
        if (ending.brokeDown() || (ending.told() && !madeBefore)) {
            return "the next start: " + ending.words();
        }
    }
    const State state = State::of(place.work());
    if (state.project != after.project && state.project != states_.back().project) {
        return "the next start changes the project: " + difference(state.project, after.project);
    }
    const std::string left = strange(state);
    return left.empty() ? std::string() : "left behind after the next start: " + left;
}

}  // namespace hx::torture

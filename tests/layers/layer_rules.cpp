// SPDX-License-Identifier: MIT
#include "layers/layer_rules.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <optional>
#include <span>

#include "layers/include_reader.h"

namespace hx::layers {
namespace {

constexpr int usualLines = 400;

// What a folder may be made of: the standard library alone, or anything that is installed.
enum class Ground { StandardLibrary, Anything };

struct Layer {
    std::string_view folder;
    Ground ground;
    std::size_t level;             // sees the levels below its own, and its own folder
    std::string_view unseen = "";  // but not this folder of them
};

// What a host is made of stands above the editor's folders, so that none of them sees it.
constexpr std::string_view toolkit = "adapters/qt";
constexpr std::size_t hostingLevel = 10;
constexpr std::size_t historyLevel = 11;
constexpr std::size_t adapterLevel = 12;
constexpr std::size_t macroLevel = 13;
constexpr std::size_t programLevel = 14;
constexpr std::size_t serverViewLevel = 15;
constexpr std::size_t serverLibraryLevel = 16;

constexpr auto layers = std::to_array<Layer>({
    {"automation", Ground::StandardLibrary, 0},
    {"ado", Ground::StandardLibrary, 1},
    {"project", Ground::StandardLibrary, 2},
    {"forms", Ground::StandardLibrary, 2},
    {"host", Ground::StandardLibrary, 3},
    {"resources", Ground::StandardLibrary, 4},
    {"settings", Ground::StandardLibrary, 5},
    {"dialogs", Ground::StandardLibrary, 6},
    {"recipe", Ground::StandardLibrary, 7},
    {"editor", Ground::StandardLibrary, 8},
    {"addin", Ground::StandardLibrary, 9},
    {"hosting", Ground::StandardLibrary, hostingLevel},
    {"history", Ground::StandardLibrary, historyLevel},
    {"adapters/jet", Ground::StandardLibrary, historyLevel},  // mounted where there is SQL
    {"adapters/", Ground::Anything, adapterLevel},
    {"report", Ground::StandardLibrary, adapterLevel},
    {"macros", Ground::Anything, macroLevel, "adapters/qt"},
    {"exchange", Ground::Anything, macroLevel, "adapters/qt"},
    {"lists", Ground::Anything, macroLevel, "adapters/qt"},
    {"report/program", Ground::Anything, programLevel},
    {"report/", Ground::Anything, macroLevel},
    {"studio", Ground::Anything, programLevel},
    {"cli", Ground::Anything, programLevel, "adapters/qt"},
    {"server", Ground::Anything, programLevel, "adapters/qt"},
    {"server/toolkit", Ground::Anything, serverViewLevel},
    {"server/libraries", Ground::Anything, serverLibraryLevel},
});

/// A room of the adapter for the toolkit sees those of the levels below its own, and itself.
struct Room {
    std::string_view name;
    int level;
};

constexpr auto rooms = std::to_array<Room>({
    {"", 0},  // what lies in no room
    {"controls", 1},
    {"grid", 2},
    {"choosers", 2},
    {"screen", 3},
    {"explorer", 4},
    {"help", 4},
});

constexpr auto standardHeaders = std::to_array<std::string_view>({
    "algorithm",
    "any",
    "array",
    "atomic",
    "barrier",
    "bit",
    "bitset",
    "cassert",
    "cctype",
    "cerrno",
    "cfenv",
    "cfloat",
    "charconv",
    "chrono",
    "cinttypes",
    "climits",
    "clocale",
    "cmath",
    "codecvt",
    "compare",
    "complex",
    "concepts",
    "condition_variable",
    "coroutine",
    "csetjmp",
    "csignal",
    "cstdarg",
    "cstddef",
    "cstdint",
    "cstdio",
    "cstdlib",
    "cstring",
    "ctime",
    "cuchar",
    "cwchar",
    "cwctype",
    "deque",
    "exception",
    "execution",
    "filesystem",
    "format",
    "forward_list",
    "fstream",
    "functional",
    "future",
    "initializer_list",
    "iomanip",
    "ios",
    "iosfwd",
    "iostream",
    "istream",
    "iterator",
    "latch",
    "limits",
    "list",
    "locale",
    "map",
    "memory",
    "memory_resource",
    "mutex",
    "new",
    "numbers",
    "numeric",
    "optional",
    "ostream",
    "queue",
    "random",
    "ranges",
    "ratio",
    "regex",
    "scoped_allocator",
    "semaphore",
    "set",
    "shared_mutex",
    "source_location",
    "span",
    "sstream",
    "stack",
    "stdexcept",
    "stop_token",
    "streambuf",
    "string",
    "string_view",
    "syncstream",
    "system_error",
    "thread",
    "tuple",
    "type_traits",
    "typeindex",
    "typeinfo",
    "unordered_map",
    "unordered_set",
    "utility",
    "valarray",
    "variant",
    "vector",
});

static_assert(std::ranges::is_sorted(standardHeaders));

bool isStandardHeader(std::string_view name) { return std::ranges::binary_search(standardHeaders, name); }

/// The folder below src/ that a path lies in: one name, or two for an adapter and for what draws the report or the
/// server's editor. Empty for a bare file name.
std::string_view folderOf(std::string_view path) {
    const auto first = path.find('/');
    if (first == std::string_view::npos) return {};
    const auto name = path.substr(0, first);
    const auto second = path.find('/', first + 1);
    const bool hasRooms = name == "report" || name == "server";
    if (name == "adapters" || (hasRooms && second != std::string_view::npos)) return path.substr(0, second);
    return name;
}

/// The room that a path of the adapter for the toolkit lies in; null for one that has no place.
const Room* roomOf(std::string_view path) {
    path.remove_prefix(toolkit.size() + 1);
    const auto name = path.substr(0, path.find('/') == path.npos ? 0 : path.find('/'));
    const auto found = std::ranges::find(rooms, name, &Room::name);
    return found == rooms.end() ? nullptr : &*found;
}

/// Why a file of the adapter for the toolkit may not include another of it, empty when it may.
std::string objectionOfRooms(std::string_view path, std::string_view include) {
    const Room* from = roomOf(path);
    const Room* to = roomOf(include);
    if (from == nullptr || to == nullptr) return "this room has no place among the others";
    if (from == to || to->level < from->level) return {};
    return std::string(from->name.empty() ? toolkit : from->name) + " may not include " + std::string(to->name);
}

std::optional<Layer> layerOf(std::string_view folder) {
    const auto found = std::ranges::find_if(layers, [&](const Layer& layer) {
        return layer.folder.ends_with('/') ? folder.starts_with(layer.folder) : folder == layer.folder;
    });
    if (found == layers.end()) return std::nullopt;
    return *found;
}

/// Why a file of `folder` may not include `include`, empty when it may.
std::string objection(std::string_view path, std::string_view folder, const Layer& layer, const Include& include) {
    const auto target = folderOf(include.name);
    const auto targetLayer = layerOf(target);
    if (targetLayer) {
        if (target == toolkit && folder == toolkit) return objectionOfRooms(path, include.name);
        if (target == folder || (targetLayer->level < layer.level && target != layer.unseen)) return {};
        return std::string(folder) + " may not include " + std::string(target);
    }
    if (include.inQuotes) return "the path of a header of this tree begins with its folder below src";
    if (layer.ground == Ground::Anything || isStandardHeader(include.name)) return {};
    return std::string(folder) + " stands on the standard library alone";
}

Finding findingAt(std::string_view path, int line, std::string_view what) {
    return std::string(path) + ":" + std::to_string(line) + ": " + std::string(what);
}

bool isName(char c) { return c == '_' || std::isalnum(static_cast<unsigned char>(c)) != 0; }

/// Where `word` stands as a whole word.
std::vector<std::size_t> placesOf(std::string_view word, std::string_view text) {
    std::vector<std::size_t> places;
    for (auto at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
        const auto end = at + word.size();
        if ((at == 0 || !isName(text[at - 1])) && (end == text.size() || !isName(text[end]))) places.push_back(at);
    }
    return places;
}

int lineAt(std::string_view text, std::size_t place) {
    return 1 + static_cast<int>(std::ranges::count(text.substr(0, place), '\n'));
}

bool liesIn(std::string_view path, std::span<const std::string_view> folders) {
    return std::ranges::any_of(folders, [&](std::string_view folder) { return path.starts_with(folder); });
}

// Also the header's name, and asking whether there is one, show nothing.
bool isPlainToolTip(std::string_view call) {
    if (call.starts_with("QToolTip>") || call.starts_with("ToolTipRole).isValid()")) return true;
    return !placesOf("plainToolTip", call).empty() || !placesOf("titledToolTip", call).empty();
}

// There is one for each operating system; their headers name nothing of it.
bool speaksToTheSystem(std::string_view path) {
    const bool isNamedAfterOne = path.starts_with("hosting/posix_") || path.starts_with("hosting/windows_");
    return isNamedAfterOne && path.ends_with(".cpp");
}

}  // namespace

std::vector<Finding> textsAsHtml(std::string_view path, std::string_view text) {
    static constexpr std::array<std::string_view, 4> folders = {"adapters/qt/", "studio/", "report/preview/",
                                                                "server/toolkit/"};
    if (!liesIn(path, folders) || path == "adapters/qt/controls/plain_label.h") return {};
    std::vector<Finding> findings;
    for (const std::size_t place : placesOf("QLabel", text)) {
        findings.push_back(findingAt(path, lineAt(text, place), "QLabel shows HTML: use PlainLabel"));
    }
    for (const std::string_view word : {"setToolTip", "ToolTipRole", "QToolTip"}) {
        for (const std::size_t place : placesOf(word, text)) {
            if (isPlainToolTip(text.substr(place, text.find(';', place) - place))) continue;
            findings.push_back(findingAt(path, lineAt(text, place), "a tool tip shows HTML: use plainToolTip"));
        }
    }
    return findings;
}

std::vector<Finding> rawExceptions(std::string_view path, std::string_view text) {
    static constexpr std::array<std::string_view, 5> folders = {"addin/", "adapters/qt/", "dialogs/", "editor/",
                                                                "report/"};
    if (!liesIn(path, folders)) return {};
    std::vector<Finding> findings;
    for (const std::size_t place : placesOf("what()", text)) {
        findings.push_back(findingAt(path, lineAt(text, place), "what() knows no language: use caughtError()"));
    }
    return findings;
}

std::vector<Finding> wrongIncludes(std::string_view path, std::string_view text) {
    const auto folder = folderOf(path);
    auto layer = layerOf(folder);
    if (!layer) return {findingAt(path, 1, "this folder has no place in the layers")};
    if (speaksToTheSystem(path)) layer->ground = Ground::Anything;
    std::vector<Finding> findings;
    for (const auto& include : includesOf(text)) {
        const auto why = objection(path, folder, *layer, include);
        if (why.empty()) continue;
        findings.push_back(findingAt(path, include.line, "includes " + include.name + ": " + why));
    }
    return findings;
}

std::vector<Finding> tooManyLines(std::string_view path, std::string_view text) {
    const int lines = lineCount(text);
    if (lines <= usualLines || text.find("\n// Long: ") != text.npos) return {};
    return {findingAt(path, usualLines + 1,
                      std::to_string(lines) + " lines: split it, or say behind \"// Long: \" why it is one concept")};
}

}  // namespace hx::layers

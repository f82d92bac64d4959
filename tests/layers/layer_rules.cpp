#include "layers/layer_rules.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "layers/include_reader.h"

namespace hx::layers {
namespace {

constexpr int maximumLines = 400;

// What a folder may be made of: the standard library alone, or anything that is installed.
enum class Ground { StandardLibrary, Anything };

struct Layer {
    std::string_view folder;
    Ground ground;
    std::size_t level;  // sees the levels below its own, and its own folder
};

constexpr std::size_t adapterLevel = 10;
constexpr std::size_t macroLevel = 11;
constexpr std::size_t programLevel = 12;

constexpr std::array layers{
    Layer{"automation", Ground::StandardLibrary, 0},    Layer{"ado", Ground::StandardLibrary, 1},
    Layer{"forms", Ground::StandardLibrary, 2},         Layer{"host", Ground::StandardLibrary, 3},
    Layer{"resources", Ground::StandardLibrary, 4},     Layer{"settings", Ground::StandardLibrary, 5},
    Layer{"dialogs", Ground::StandardLibrary, 6},       Layer{"recipe", Ground::StandardLibrary, 7},
    Layer{"editor", Ground::StandardLibrary, 8},        Layer{"addin", Ground::StandardLibrary, 9},
    Layer{"adapters/", Ground::Anything, adapterLevel}, Layer{"report", Ground::StandardLibrary, adapterLevel},
    Layer{"report/", Ground::Anything, programLevel},   Layer{"macros", Ground::Anything, macroLevel},
    Layer{"studio", Ground::Anything, programLevel},    Layer{"cli", Ground::Anything, programLevel},
};

/// The files that speak to the operating system, one for each; their headers name nothing of it.
constexpr auto systemFiles = std::to_array<std::string_view>({"host/posix_disk.cpp"});

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

/// The folder below src/ that a path lies in: one name, or two for an adapter and for what draws the report. Empty for
/// a bare file name.
std::string_view folderOf(std::string_view path) {
    const auto first = path.find('/');
    if (first == std::string_view::npos) return {};
    const auto name = path.substr(0, first);
    const auto second = path.find('/', first + 1);
    if (name == "adapters" || (name == "report" && second != std::string_view::npos)) return path.substr(0, second);
    return name;
}

std::optional<Layer> layerOf(std::string_view folder) {
    const auto found = std::ranges::find_if(layers, [&](const Layer& layer) {
        return layer.folder.ends_with('/') ? folder.starts_with(layer.folder) : folder == layer.folder;
    });
    if (found == layers.end()) return std::nullopt;
    return *found;
}

/// Why a file of `folder` may not include `include`, empty when it may.
std::string objection(std::string_view folder, const Layer& layer, const Include& include) {
    const auto target = folderOf(include.name);
    const auto targetLayer = layerOf(target);
    if (targetLayer) {
        if (target == folder || targetLayer->level < layer.level || layer.level == programLevel) return {};
        return std::string(folder) + " may not include " + std::string(target);
    }
    if (include.inQuotes) return "the path of a header of this tree begins with its folder below src";
    if (layer.ground == Ground::Anything || isStandardHeader(include.name)) return {};
    return std::string(folder) + " stands on the standard library alone";
}

Finding findingAt(std::string_view path, int line, std::string_view what) {
    return std::string(path) + ":" + std::to_string(line) + ": " + std::string(what);
}

}  // namespace

std::vector<Finding> wrongIncludes(std::string_view path, std::string_view text) {
    const auto folder = folderOf(path);
    auto layer = layerOf(folder);
    if (!layer) return {findingAt(path, 1, "this folder has no place in the layers")};
    if (std::ranges::find(systemFiles, path) != systemFiles.end()) layer->ground = Ground::Anything;
    std::vector<Finding> findings;
    for (const auto& include : includesOf(text)) {
        const auto why = objection(folder, *layer, include);
        if (why.empty()) continue;
        findings.push_back(findingAt(path, include.line, "includes " + include.name + ": " + why));
    }
    return findings;
}

std::vector<Finding> tooManyLines(std::string_view path, std::string_view text) {
    const int lines = lineCount(text);
    if (lines <= maximumLines) return {};
    return {findingAt(path, maximumLines + 1,
                      std::to_string(lines) + " lines, " + std::to_string(maximumLines) + " are allowed")};
}

}  // namespace hx::layers

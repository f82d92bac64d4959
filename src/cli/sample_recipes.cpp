#include <algorithm>
#include <array>
#include <set>

#include "automation/convert.h"
#include "automation/text.h"
#include "cli/project_reader.h"
#include "cli/sample.h"

namespace hx::cli {

using automation::Variant;

namespace {

constexpr std::size_t longest = 255;

enum class Kind { text, longText, variable, boolean, number, integer };

struct ColumnRule {
    std::string_view name;
    Kind kind;
};

constexpr std::array<ColumnRule, 16> columnRules = {{
    {"VarRecipeName", Kind::variable},
    {"VarDescription", Kind::variable},
    {"FilePath", Kind::longText},
    {"FileExtension", Kind::text},
    {"Enabled", Kind::boolean},
    {"Comment", Kind::text},
    {"VarLoad", Kind::variable},
    {"VarSave", Kind::variable},
    {"VarRead", Kind::variable},
    {"VarWrite", Kind::variable},
    {"StandardValue", Kind::number},
    {"VarSetValue", Kind::variable},
    {"SaveSubRecipes", Kind::boolean},
    {"SaveChanges", Kind::boolean},
    {"CryptEngine", Kind::boolean},
    {"Options", Kind::integer},
}};

std::string_view trimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Takes "NAME" off the front of `rest`; inside, "" stands for one quotation mark.
std::string takeQuoted(const Line& line, std::string_view& rest) {
    rest = trimBlanks(rest);
    if (!rest.starts_with('"')) line.fail("a name in quotation marks is expected");
    std::string name;
    for (std::size_t at = 1; at < rest.size(); ++at) {
        if (rest[at] != '"') {
            name += rest[at];
        } else if (rest.substr(at + 1).starts_with('"')) {
            name += rest[at++];
        } else {
            rest = trimBlanks(rest.substr(at + 1));
            if (name.empty()) line.fail("the name is empty");
            if (automation::characterCount(name) > longest) line.fail("the name is longer than 255 characters");
            return name;
        }
    }
    line.fail("the closing quotation mark is missing");
}

class RecipesReader {
  public:
    explicit RecipesReader(const std::vector<SampleVariable>& variables) {
        for (const SampleVariable& variable : variables) variables_.insert(variable.name);
    }

    std::vector<SampleRecipe> read(const std::vector<Line>& lines) {
        for (const Line& line : lines) readLine(line);
        for (const SampleRecipe& recipe : recipes_) checkMembers(recipe);
        return std::move(recipes_);
    }

  private:
    void readLine(const Line& line) {
        const std::string_view text = trimBlanks(line.text);
        if (text.empty() || text.starts_with('#')) return;
        const bool indented = line.text.front() == ' ' || line.text.front() == '\t';
        const std::string_view word = text.substr(0, text.find_first_of(" \t=\""));
        const std::string_view rest = text.substr(word.size());
        if (!indented) return beginRecipe(line, word, rest);
        if (recipes_.empty()) line.fail("this line belongs to no recipe");
        if (word == "variable") return addVariable(line, rest);
        if (word == "subrecipe") return addSubRecipe(line, rest);
        setColumn(line, word, rest);
    }

    void beginRecipe(const Line& line, std::string_view word, std::string_view rest) {
        if (word != "recipe") line.fail("a line in the first column begins with \"recipe\"");
        const std::string name = takeQuoted(line, rest);
        if (!rest.empty()) line.fail("unexpected text behind the name");
        if (!foldedNames_.insert(automation::foldCase(name)).second) {
            line.fail("the recipe " + inQuotes(name) + " exists already");
        }
        names_.insert(name);
        recipes_.push_back({name, {}, {}, line});
    }

    void addVariable(const Line& line, std::string_view rest) {
        const std::string name(trimBlanks(rest));
        requireVariable(line, name);
        recipes_.back().members.push_back({name, {}, line});
    }

    void addSubRecipe(const Line& line, std::string_view rest) {
        const std::string name = takeQuoted(line, rest);
        std::string variable;
        if (!rest.empty()) {
            const std::string_view word = rest.substr(0, rest.find_first_of(" \t"));
            if (word != "file") line.fail("\"file\" or the end of the line is expected behind the name");
            variable = trimBlanks(rest.substr(word.size()));
            requireVariable(line, variable);
        }
        recipes_.back().members.push_back({variable, name, line});
    }

    void setColumn(const Line& line, std::string_view word, std::string_view rest) {
        rest = trimBlanks(rest);
        if (!rest.starts_with('=')) line.fail(inQuotes(word) + " begins no line of a recipe");
        const auto rule = std::ranges::find(columnRules, word, &ColumnRule::name);
        if (rule == columnRules.end()) line.fail("there is no column " + inQuotes(word));
        SampleRecipe& recipe = recipes_.back();
        if (!recipe.members.empty()) line.fail("columns come before members");
        for (const auto& [name, value] : recipe.columns) {
            if (name == word) line.fail("the column " + inQuotes(word) + " is set already");
        }
        recipe.columns.emplace_back(word, valueOf(line, *rule, std::string(trimBlanks(rest.substr(1)))));
    }

    Variant valueOf(const Line& line, const ColumnRule& rule, const std::string& text) const {
        switch (rule.kind) {
            case Kind::boolean:
                if (text != "true" && text != "false") line.fail(inQuotes(text) + " is neither true nor false");
                return text == "true";
            case Kind::number: return number(line, text);
            case Kind::integer: return integer(line, text);
            case Kind::variable:
                if (!text.empty()) requireVariable(line, text);
                return text;
            case Kind::text:
                if (automation::characterCount(text) > longest) line.fail("the text is longer than 255 characters");
                return text;
            case Kind::longText: return text;
        }
        return {};
    }

    static double number(const Line& line, const std::string& text) {
        try {
            return automation::wholeNumber(text);
        } catch (const automation::Error&) {
            line.fail(inQuotes(text) + " is not a number");
        }
    }

    static std::int32_t integer(const Line& line, const std::string& text) {
        const double value = number(line, text);
        try {
            const std::int32_t rounded = automation::roundToInt32(value);
            if (rounded == value) return rounded;
        } catch (const automation::Error&) {
            line.fail(inQuotes(text) + " is too large");
        }
        line.fail(inQuotes(text) + " is not a whole number");
    }

    void requireVariable(const Line& line, const std::string& name) const {
        if (!variables_.contains(name)) line.fail("the variable " + inQuotes(name) + " is not in variables.csv");
    }

    // What can only be told when all recipes are known.
    void checkMembers(const SampleRecipe& recipe) const {
        const auto saves = std::ranges::find(recipe.columns, "SaveSubRecipes", [](const auto& c) { return c.first; });
        const bool savesSubRecipes = saves != recipe.columns.end() && saves->second == Variant(true);
        for (const SampleMember& member : recipe.members) {
            if (member.subRecipe.empty()) continue;
            if (!names_.contains(member.subRecipe)) {
                member.line.fail("there is no recipe " + inQuotes(member.subRecipe));
            }
            if (member.variable.empty() && !savesSubRecipes) {
                member.line.fail("without SaveSubRecipes = true a sub-recipe needs \"file\" and a variable");
            }
        }
    }

    std::set<std::string> variables_;
    std::set<std::string> names_;
    std::set<std::string> foldedNames_;
    std::vector<SampleRecipe> recipes_;
};

}  // namespace

std::vector<SampleRecipe> readRecipes(const std::vector<Line>& lines, const std::vector<SampleVariable>& variables) {
    return RecipesReader(variables).read(lines);
}

Sample readSample(const std::string& folder) {
    Sample sample;
    sample.variables = readVariables(readLines(folder + "/variables.csv"));
    sample.recipes = readRecipes(readLines(folder + "/recipes.txt"), sample.variables);
    return sample;
}

}  // namespace hx::cli

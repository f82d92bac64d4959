#include <algorithm>
#include <iterator>
#include <limits>
#include <map>

#include "adapters/sqlite/project_file.h"
#include "automation/error.h"
#include "automation/text.h"
#include "exchange/content.h"
#include "exchange/json.h"
#include "hosting/text_file.h"
#include "hosting/visible.h"

namespace hx::exchange {

using automation::equalIgnoreCase;

namespace {

constexpr std::size_t mostFields = 2000;  // more columns no table can have

/// How far a text has been read.
struct Place {
    int line = 1;
    bool atLineEnd = false;  // the character read last ends a line
};

/// Reads a text and counts its lines.
class CountingIterator {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, Place* place) : at_(at), place_(place) {}
    reference operator*() const { return *at_; }
    CountingIterator& operator++() {
        place_->atLineEnd = *at_ == '\n';
        if (place_->atLineEnd) ++place_->line;
        ++at_;
        return *this;
    }
    CountingIterator operator++(int) {
        CountingIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const CountingIterator& a, const CountingIterator& b) { return a.at_ == b.at_; }

  private:
    const char* at_;
    Place* place_;
};

/// Builds the content while the text is read, so that each field still knows its line.
class Parser : public nlohmann::json_sax<Json> {
  public:
    Parser(const std::string& path, const Place& place) : path_(path), place_(place) {}

    [[nodiscard]] Content finish() {
        if (!hasFormat_) fail(1, "this is no export: \"format\": \"hxrecipe\" is missing");
        if (!hasVersion_) fail(1, "\"version\" is missing");
        if (!hasRecipes_) fail(1, "\"recipes\" is missing");
        return std::move(content_);
    }

    bool null() override { return take({}, place_.line); }
    bool boolean(bool value) override { return take(value, place_.line); }
    bool number_integer(number_integer_t value) override { return take(value, lineOfLast()); }
    bool number_unsigned(number_unsigned_t value) override {
        if (value > static_cast<number_unsigned_t>(std::numeric_limits<std::int64_t>::max())) {
            fail(lineOfLast(), hosting::inQuotes(key_) + ": the number is too large");
        }
        return take(static_cast<std::int64_t>(value), lineOfLast());
    }
    bool number_float(number_float_t value, const string_t&) override { return take(value, lineOfLast()); }
    bool string(string_t& value) override { return take(std::move(value), place_.line); }
    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override {
        switch (level()) {
            case Level::none: return enter(Level::root);
            case Level::recipes: content_.recipes.push_back({{}, {}, {}, place_.line}); return enter(Level::recipe);
            case Level::members: newMember(content_.recipes.back().members); return enter(Level::member);
            case Level::orphans: newMember(content_.orphans); return enter(Level::orphan);
            case Level::recipe:
                if (equalIgnoreCase(key_, "members")) unexpected("an object");
                return enter(Level::blob);
            case Level::member:
            case Level::orphan: return enter(Level::blob);
            default: unexpected("an object");
        }
    }
    bool start_array(std::size_t) override {
        if (level() == Level::root && key_ == "recipes") {
            hasRecipes_ = true;
            return enter(Level::recipes);
        }
        if (level() == Level::root && key_ == "membersWithoutRecipe") return enter(Level::orphans);
        if (level() == Level::recipe && key_ == "members") return enter(Level::members);
        unexpected("a list");
    }
    bool end_object() override {
        if (level() == Level::blob && levels_.back().keys.empty()) failBlob(place_.line);
        if (level() == Level::recipe) finishRecipe();
        if (level() == Level::member || level() == Level::orphan) finishMember();
        return leave();
    }
    bool end_array() override { return leave(); }

    bool key(string_t& name) override {
        key_ = std::move(name);
        for (const std::string& other : levels_.back().keys) {
            if (equalIgnoreCase(other, key_)) fail(place_.line, hosting::inQuotes(key_) + " is given twice");
        }
        if (levels_.back().keys.size() == mostFields) fail(place_.line, "there are more fields than columns can be");
        levels_.back().keys.push_back(key_);
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& error) override {
        // "[name of the error] what is wrong", or "[...] parse error at ...: what is wrong"
        const std::string_view text = error.what();
        const auto colon = text.find(": ");
        const auto bracket = text.find("] ");
        const auto at = colon != std::string_view::npos ? colon : bracket;
        fail(lineOfLast(), std::string(at == std::string_view::npos ? text : text.substr(at + 2)));
    }

  private:
    enum class Level { none, root, recipes, recipe, members, member, orphans, orphan, blob };
    struct Open {
        Level level;
        std::vector<std::string> keys;
    };

    [[noreturn]] void fail(int line, const std::string& problem) const { hosting::Line{path_, line, {}}.fail(problem); }
    [[noreturn]] void unexpected(const std::string& what) const {
        fail(place_.line, what + " is not expected here" + (key_.empty() ? "" : " (" + hosting::inQuotes(key_) + ")"));
    }

    [[nodiscard]] Level level() const { return levels_.empty() ? Level::none : levels_.back().level; }
    bool enter(Level level) {
        levels_.push_back({level, {}});
        return true;
    }
    bool leave() {
        levels_.pop_back();
        return true;
    }

    // Of the character read last: to know where a number ends, one more has been read.
    [[nodiscard]] int lineOfLast() const { return place_.line - (place_.atLineEnd ? 1 : 0); }

    void newMember(std::vector<ContentMember>& members) {
        members.emplace_back();
        members.back().line = place_.line;
        hasSubRecipe_ = false;
    }

    bool take(Value value, int line) {
        switch (level()) {
            case Level::root: takeHeader(value, line); return true;
            case Level::recipe: takeRecipe(std::move(value), line); return true;
            case Level::member: takeMember(content_.recipes.back().members.back(), std::move(value), line); return true;
            case Level::orphan: takeMember(content_.orphans.back(), std::move(value), line); return true;
            case Level::blob: takeBlob(value, line); return true;
            default: fail(line, "a value is not expected here");
        }
    }

    void takeHeader(const Value& value, int line) {
        if (key_ == "format" && value == Value(std::string("hxrecipe"))) {
            hasFormat_ = true;
        } else if (key_ == "version") {
            if (value != Value(std::int64_t{1})) fail(line, "\"version\": this program reads version 1 alone");
            hasVersion_ = true;
        } else {
            fail(line, hosting::inQuotes(key_) + " is unknown here, or has a wrong value");
        }
    }

    [[nodiscard]] std::int64_t idOf(const Value& value, int line) const {
        const auto* id = std::get_if<std::int64_t>(&value);
        if (id == nullptr) fail(line, hosting::inQuotes(key_) + ": a whole number is expected");
        using Limits = std::numeric_limits<std::int32_t>;
        if (*id < Limits::min() || *id > Limits::max())
            fail(line, hosting::inQuotes(key_) + ": the number is too large");
        return *id;
    }

    void takeRecipe(Value value, int line) {
        ContentRecipe& recipe = content_.recipes.back();
        if (equalIgnoreCase(key_, "members")) fail(line, "\"members\": a list is expected");
        if (!equalIgnoreCase(key_, "ID")) return recipe.cells.push_back({key_, std::move(value), line});
        recipe.id = idOf(value, line);
        // No recipe has these: they stand for a variable and for no recipe.
        if (*recipe.id == 0 || *recipe.id == -1)
            fail(line, "\"ID\": no recipe has the ID " + std::to_string(*recipe.id));
        if (!ids_.emplace(*recipe.id, line).second) fail(line, "\"ID\": another recipe of this file has it");
    }

    void takeMember(ContentMember& member, Value value, int line) {
        if (equalIgnoreCase(key_, "ID")) {
            member.id = idOf(value, line);
        } else if (equalIgnoreCase(key_, "ParentID")) {
            if (level() != Level::orphan) fail(line, "\"ParentID\": the member belongs to the recipe around it");
            member.parent = idOf(value, line);
        } else if (equalIgnoreCase(key_, "ChildID")) {
            member.child = idOf(value, line);
        } else if (equalIgnoreCase(key_, "subRecipe")) {
            hasSubRecipe_ = true;
            if (auto* name = std::get_if<std::string>(&value)) member.childName = std::move(*name);
            else if (!std::holds_alternative<std::monostate>(value)) fail(line, "\"subRecipe\": a name is expected");
        } else {
            member.cells.push_back({key_, std::move(value), line});
        }
    }

    [[noreturn]] void failBlob(int line) const { fail(line, "bytes are written as {\"hex\": \"0A1B...\"}"); }

    static std::string withCapitals(std::string digits) {
        std::ranges::transform(digits, digits.begin(),
                               [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
        return digits;
    }

    void takeBlob(const Value& value, int line) {
        const auto* digits = std::get_if<std::string>(&value);
        const bool hexadecimal = digits != nullptr && digits->size() % 2 == 0 &&
                                 digits->find_first_not_of("0123456789ABCDEFabcdef") == std::string::npos;
        if (key_ != "hex" || !hexadecimal) failBlob(line);
        const std::string column = levels_[levels_.size() - 2].keys.back();
        levels_.pop_back();
        key_ = column;
        take(Blob{withCapitals(*digits)}, line);
        levels_.push_back({Level::blob, {"hex"}});
    }

    void finishRecipe() {
        const ContentRecipe& recipe = content_.recipes.back();
        const Cell* name = findCell(recipe.cells, "Name");
        if (name == nullptr) fail(recipe.line, "the recipe has no \"Name\"");
        const auto* text = std::get_if<std::string>(&name->value);
        if (text == nullptr || text->empty()) fail(name->line, "\"Name\": a name is expected");
        if (!names_.emplace(automation::foldCase(*text), 0).second) {
            fail(name->line, "\"Name\": another recipe of this file has the name " + hosting::inQuotes(*text));
        }
    }

    void finishMember() const {
        const ContentMember& member =
            level() == Level::orphan ? content_.orphans.back() : content_.recipes.back().members.back();
        if (member.child != 0 && !hasSubRecipe_) {
            fail(member.line, "\"ChildID\": \"subRecipe\" with the name of the recipe is missing");
        }
        if (!hasSubRecipe_ && findCell(member.cells, "VarRecipe") == nullptr) {
            fail(member.line, "the member names neither a variable (\"VarRecipe\") nor a \"subRecipe\"");
        }
        if (hasSubRecipe_ && !member.isSubRecipe()) {
            fail(member.line, "\"subRecipe\": a name, or null with the \"ChildID\" of a missing recipe, is expected");
        }
    }

    const std::string& path_;
    const Place& place_;
    Content content_;
    std::vector<Open> levels_;
    std::string key_;
    bool hasFormat_ = false, hasVersion_ = false, hasRecipes_ = false;
    bool hasSubRecipe_ = false;  // the member being read
    std::map<std::int64_t, int> ids_;
    std::map<std::string, int> names_;
};

}  // namespace

Content parseContent(const std::string& path) {
    if (sqlite::beginsLikeProject(path)) {
        throw automation::Error(automation::errFail, path + " is a project, not an export");
    }
    const std::string text = hosting::readText(path);
    if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
        hosting::Line{path, 1, {}}.fail("the file is empty");
    }
    Place place;
    Parser parser(path, place);
    Json::sax_parse(CountingIterator(text.data(), &place), CountingIterator(text.data() + text.size(), &place),
                    &parser);
    return parser.finish();
}

}  // namespace hx::exchange

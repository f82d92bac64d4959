// SPDX-License-Identifier: MIT
#include "exchange/content_parser.h"

#include <algorithm>
#include <limits>

#include "automation/error.h"
#include "automation/text.h"
#include "hosting/visible.h"
#include "project/schema.h"

namespace hx::exchange {

using automation::equalIgnoreCase;
namespace schema = project::schema;

namespace {

constexpr std::size_t mostFields = 2000;  // more columns no table can have

}  // namespace

Content ContentParser::finish() {
    if (!hasFormat_) fail(1, "this is no export: \"format\": \"hxrecipe\" is missing");
    if (!hasVersion_) fail(1, "\"version\" is missing");
    if (!hasRecipes_) fail(1, "\"recipes\" is missing");
    return std::move(content_);
}

bool ContentParser::number_unsigned(number_unsigned_t value) {
    if (value > static_cast<number_unsigned_t>(std::numeric_limits<std::int64_t>::max())) {
        fail(lineOfLast(), hosting::inQuotes(key_) + ": the number is too large");
    }
    return take(static_cast<std::int64_t>(value), lineOfLast());
}

bool ContentParser::start_object(std::size_t) {
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

bool ContentParser::start_array(std::size_t) {
    if (level() == Level::root && key_ == "recipes") {
        hasRecipes_ = true;
        return enter(Level::recipes);
    }
    if (level() == Level::root && key_ == "membersWithoutRecipe") return enter(Level::orphans);
    if (level() == Level::recipe && key_ == "members") return enter(Level::members);
    unexpected("a list");
}

bool ContentParser::end_object() {
    if (level() == Level::blob && levels_.back().keys.empty()) failBlob(place_.line);
    if (level() == Level::recipe) finishRecipe();
    if (level() == Level::member || level() == Level::orphan) finishMember();
    if (progress_) progress_(++objects_, 0);
    return leave();
}

bool ContentParser::key(string_t& name) {
    key_ = std::move(name);
    for (const std::string& other : levels_.back().keys) {
        if (equalIgnoreCase(other, key_)) fail(place_.line, hosting::inQuotes(key_) + " is given twice");
    }
    if (levels_.back().keys.size() == mostFields) fail(place_.line, "there are more fields than columns can be");
    levels_.back().keys.push_back(key_);
    return true;
}

bool ContentParser::parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& error) {
    // "[name of the error] what is wrong", or "[...] parse error at ...: what is wrong"
    const std::string_view text = error.what();
    const auto colon = text.find(": ");
    const auto bracket = text.find("] ");
    const auto at = colon != std::string_view::npos ? colon : bracket;
    fail(lineOfLast(), std::string(at == std::string_view::npos ? text : text.substr(at + 2)));
}

void ContentParser::unexpected(const std::string& what) const {
    fail(place_.line, what + " is not expected here" + (key_.empty() ? "" : " (" + hosting::inQuotes(key_) + ")"));
}

bool ContentParser::enter(Level level) {
    levels_.push_back({level, {}});
    return true;
}

bool ContentParser::leave() {
    levels_.pop_back();
    return true;
}

void ContentParser::newMember(std::vector<ContentMember>& members) {
    members.emplace_back();
    members.back().line = place_.line;
    hasSubRecipe_ = false;
}

bool ContentParser::take(Value value, int line) {
    switch (level()) {
        case Level::root: takeHeader(value, line); return true;
        case Level::recipe: takeRecipe(std::move(value), line); return true;
        case Level::member: takeMember(content_.recipes.back().members.back(), std::move(value), line); return true;
        case Level::orphan: takeMember(content_.orphans.back(), std::move(value), line); return true;
        case Level::blob: takeBlob(value, line); return true;
        default: fail(line, "a value is not expected here");
    }
}

void ContentParser::takeHeader(const Value& value, int line) {
    if (key_ == "format" && value == Value(std::string("hxrecipe"))) {
        hasFormat_ = true;
    } else if (key_ == "version") {
        if (value != Value(std::int64_t{1})) fail(line, "\"version\": this program reads version 1 alone");
        hasVersion_ = true;
    } else {
        fail(line, hosting::inQuotes(key_) + " is unknown here, or has a wrong value");
    }
}

std::int64_t ContentParser::idOf(const Value& value, int line) const {
    const auto* id = std::get_if<std::int64_t>(&value);
    if (id == nullptr) fail(line, hosting::inQuotes(key_) + ": a whole number is expected");
    using Limits = std::numeric_limits<std::int32_t>;
    if (*id < Limits::min() || *id > Limits::max()) fail(line, hosting::inQuotes(key_) + ": the number is too large");
    return *id;
}

void ContentParser::takeRecipe(Value value, int line) {
    ContentRecipe& recipe = content_.recipes.back();
    if (equalIgnoreCase(key_, "members")) fail(line, "\"members\": a list is expected");
    if (!equalIgnoreCase(key_, "ID")) return recipe.cells.push_back({key_, std::move(value), line});
    recipe.id = idOf(value, line);
    // No recipe has these: they stand for a variable and for no recipe.
    if (*recipe.id == 0 || *recipe.id == -1) fail(line, "\"ID\": no recipe has the ID " + std::to_string(*recipe.id));
    if (!ids_.emplace(*recipe.id, line).second) fail(line, "\"ID\": another recipe of this file has it");
}

void ContentParser::takeMember(ContentMember& member, Value value, int line) {
    if (equalIgnoreCase(key_, "ID")) {
        member.id = idOf(value, line);
    } else if (equalIgnoreCase(key_, schema::member::parentId)) {
        if (level() != Level::orphan) fail(line, "\"ParentID\": the member belongs to the recipe around it");
        member.parent = idOf(value, line);
    } else if (equalIgnoreCase(key_, schema::member::childId)) {
        member.child = idOf(value, line);
    } else if (equalIgnoreCase(key_, "subRecipe")) {
        hasSubRecipe_ = true;
        if (auto* name = std::get_if<std::string>(&value)) member.childName = std::move(*name);
        else if (!std::holds_alternative<std::monostate>(value)) fail(line, "\"subRecipe\": a name is expected");
    } else {
        member.cells.push_back({key_, std::move(value), line});
    }
}

std::string ContentParser::withCapitals(std::string digits) {
    std::ranges::transform(digits, digits.begin(),
                           [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    return digits;
}

void ContentParser::takeBlob(const Value& value, int line) {
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

void ContentParser::finishRecipe() {
    const ContentRecipe& recipe = content_.recipes.back();
    const Cell* name = findCell(recipe.cells, schema::recipe::name);
    if (name == nullptr) fail(recipe.line, "the recipe has no \"Name\"");
    const auto* text = std::get_if<std::string>(&name->value);
    if (text == nullptr || text->empty()) fail(name->line, "\"Name\": a name is expected");
    if (!names_.emplace(automation::foldCase(*text), 0).second) {
        fail(name->line, "\"Name\": another recipe of this file has the name " + hosting::inQuotes(*text));
    }
}

void ContentParser::finishMember() const {
    const ContentMember& member =
        level() == Level::orphan ? content_.orphans.back() : content_.recipes.back().members.back();
    if (member.child != 0 && !hasSubRecipe_) {
        fail(member.line, "\"ChildID\": \"subRecipe\" with the name of the recipe is missing");
    }
    if (!hasSubRecipe_ && findCell(member.cells, schema::member::varRecipe) == nullptr) {
        fail(member.line, "the member names neither a variable (\"VarRecipe\") nor a \"subRecipe\"");
    }
    if (hasSubRecipe_ && !member.isSubRecipe()) {
        fail(member.line, "\"subRecipe\": a name, or null with the \"ChildID\" of a missing recipe, is expected");
    }
}

}  // namespace hx::exchange

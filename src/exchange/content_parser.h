// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "exchange/content_file.h"
#include "exchange/json.h"
#include "hosting/text_file.h"

namespace hx::exchange {

/// How far a text has been read.
struct Place {
    int line = 1;
    bool atLineEnd = false;  // the character read last ends a line
};

/// Builds the content while the text is read, so that each field still knows its line.
class ContentParser : public nlohmann::json_sax<Json> {
  public:
    /// `place` is lent.
    ContentParser(const std::string& path, const Place& place, Progress progress = {})
        : path_(path), place_(place), progress_(std::move(progress)) {}

    /// What has been read. Throws automation::Error with line and field of what is wrong, as all do that take a value.
    [[nodiscard]] Content finish();

    bool null() override { return take({}, place_.line); }
    bool boolean(bool value) override { return take(value, place_.line); }
    bool number_integer(number_integer_t value) override { return take(value, lineOfLast()); }
    bool number_unsigned(number_unsigned_t value) override;
    bool number_float(number_float_t value, const string_t&) override { return take(value, lineOfLast()); }
    bool string(string_t& value) override { return take(std::move(value), place_.line); }
    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override;
    bool start_array(std::size_t) override;
    bool end_object() override;
    bool end_array() override { return leave(); }

    bool key(string_t& name) override;

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& error) override;

  private:
    enum class Level { none, root, recipes, recipe, members, member, orphans, orphan, blob };
    struct Open {
        Level level;
        std::vector<std::string> keys;
    };
    [[noreturn]] void fail(int line, const std::string& problem) const { hosting::Line{path_, line, {}}.fail(problem); }
    [[noreturn]] void unexpected(const std::string& what) const;
    [[nodiscard]] Level level() const { return levels_.empty() ? Level::none : levels_.back().level; }
    bool enter(Level level);
    bool leave();

    // Of the character read last: to know where a number ends, one more has been read.
    [[nodiscard]] int lineOfLast() const { return place_.line - (place_.atLineEnd ? 1 : 0); }
    void newMember(std::vector<ContentMember>& members);
    bool take(Value value, int line);
    void takeHeader(const Value& value, int line);
    [[nodiscard]] std::int64_t idOf(const Value& value, int line) const;
    void takeRecipe(Value value, int line);
    void takeMember(ContentMember& member, Value value, int line);
    [[noreturn]] void failBlob(int line) const { fail(line, "bytes are written as {\"hex\": \"0A1B...\"}"); }
    static std::string withCapitals(std::string digits);
    void takeBlob(const Value& value, int line);
    void finishRecipe();
    void finishMember() const;

    const std::string& path_;
    const Place& place_;
    Progress progress_;
    std::int64_t objects_ = 0;  // that have ended
    Content content_;
    std::vector<Open> levels_;
    std::string key_;
    bool hasFormat_ = false, hasVersion_ = false, hasRecipes_ = false;
    bool hasSubRecipe_ = false;  // the member being read
    std::map<std::int64_t, int> ids_;
    std::map<std::string, int> names_;
};

}  // namespace hx::exchange

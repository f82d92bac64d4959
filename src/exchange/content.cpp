// SPDX-License-Identifier: MIT
#include "exchange/content.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <unordered_map>

#include "automation/error.h"
#include "automation/text.h"
#include "hosting/in_file.h"
#include "project/schema.h"

namespace hx::exchange {

using automation::equalIgnoreCase;
namespace schema = project::schema;

namespace {

std::optional<double> numberOf(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? 1 : 0;
    if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<double>(*number);
    if (const auto* number = std::get_if<double>(&value)) return *number;
    return std::nullopt;
}

std::string hexOf(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string hex;
    for (const char c : bytes) {
        hex += digits[static_cast<unsigned char>(c) >> 4U];
        hex += digits[static_cast<unsigned char>(c) & 15U];
    }
    return hex;
}

Value valueOf(const ado::StoredValue& stored, ado::DataType type) {
    using Kind = ado::StoredValue::Kind;
    switch (stored.kind) {
        case Kind::integer: {
            const bool yesNo = type == ado::adBoolean && (stored.integer == 0 || stored.integer == 1);
            return yesNo ? Value(stored.integer == 1) : Value(stored.integer);
        }
        case Kind::real: return stored.real;
        case Kind::text: return std::string(stored.text);
        case Kind::bytes: return Blob{hexOf(stored.text)};
        default: return {};
    }
}

/// Reads the rows of one table, whatever columns it has.
class RowReader {
  public:
    using Receiver = std::function<void(std::span<const std::int64_t> numbers, std::vector<Cell> cells)>;

    /// `keys` are columns of whole numbers, which are not among the cells.
    RowReader(project::Reader& reader, std::string_view table, std::initializer_list<std::string_view> keys)
        : reader_(reader), table_(table), columns_(keys), numbers_(keys.size()) {
        for (const ado::Column& column : reader.columns(table)) {
            const auto isName = [&](std::string_view key) { return equalIgnoreCase(column.name, key); };
            if (std::ranges::none_of(keys, isName)) others_.push_back(column);
        }
        for (const ado::Column& column : others_) columns_.push_back(column.name);
    }

    void read(const Receiver& receive, const std::string& condition = {}) {
        reader_.read(
            table_, columns_,
            [&](std::span<const ado::StoredValue> row) {
                for (std::size_t i = 0; i < numbers_.size(); ++i) numbers_[i] = row[i].integer;
                receive(numbers_, cellsOf(row.subspan(numbers_.size())));
            },
            condition);
    }

  private:
    [[nodiscard]] std::vector<Cell> cellsOf(std::span<const ado::StoredValue> values) const {
        std::vector<Cell> cells;
        cells.reserve(values.size());
        for (std::size_t i = 0; i < values.size(); ++i) {
            cells.push_back({others_[i].name, valueOf(values[i], others_[i].type), 0});
        }
        return cells;
    }

    project::Reader& reader_;
    std::string_view table_;
    std::vector<std::string_view> columns_;
    std::vector<ado::Column> others_;
    std::vector<std::int64_t> numbers_;
};

// Everything else goes by the name.
void requireName(const ContentRecipe& recipe) {
    const Cell* name = findCell(recipe.cells, schema::recipe::name);
    if (name != nullptr && std::holds_alternative<std::string>(name->value)) return;
    throw automation::Error(automation::errFail,
                            "The recipe with the ID " + std::to_string(*recipe.id) + " has a name that is no text.");
}

Content contentOf(project::Reader& reader) {
    Content content;
    std::unordered_map<std::int64_t, std::size_t> numbers;
    RowReader(reader, schema::recipeTable, {schema::recipe::id}).read([&](auto keys, std::vector<Cell> cells) {
        numbers.emplace(keys[0], content.recipes.size());
        content.recipes.push_back({keys[0], std::move(cells), {}, 0});
        requireName(content.recipes.back());
    });
    using namespace schema::member;
    RowReader(reader, schema::memberTable, {id, parentId, childId}).read([&](auto keys, std::vector<Cell> cells) {
        ContentMember member{keys[0], keys[1], keys[2], {}, std::move(cells), 0};
        if (const auto child = numbers.find(member.child); member.child != 0 && child != numbers.end()) {
            member.childName = content.recipes[child->second].name();
        }
        const auto parent = numbers.find(member.parent);
        if (parent == numbers.end()) {
            content.orphans.push_back(std::move(member));
            return;
        }
        member.parent = 0;
        content.recipes[parent->second].members.push_back(std::move(member));
    });
    return content;
}

}  // namespace

bool isSame(const Value& a, const Value& b) {
    // Beyond 2^53 neighbours are the same real number.
    if (std::holds_alternative<std::int64_t>(a) && std::holds_alternative<std::int64_t>(b)) return a == b;
    const auto x = numberOf(a);
    const auto y = numberOf(b);
    if (x && y) {
        // A yes/no column may hold any number but 0 for true.
        if (std::holds_alternative<bool>(a) || std::holds_alternative<bool>(b)) return (*x != 0) == (*y != 0);
        return *x == *y;
    }
    return a == b;
}

const Cell* findCell(const std::vector<Cell>& cells, std::string_view column) {
    const auto found = std::ranges::find_if(cells, [&](const Cell& c) { return equalIgnoreCase(c.column, column); });
    return found == cells.end() ? nullptr : &*found;
}

const std::string& ContentRecipe::name() const {
    return std::get<std::string>(findCell(cells, schema::recipe::name)->value);
}

ContentRecipe readRecipe(project::Reader& reader, std::int64_t id) {
    ContentRecipe recipe{id, {}, {}, 0};
    RowReader(reader, schema::recipeTable, {schema::recipe::id})
        .read([&](auto, std::vector<Cell> cells) { recipe.cells = std::move(cells); }, "ID = " + std::to_string(id));
    return recipe;
}

Content readContent(project::Reader& reader) {
    return hosting::inFile(reader.path(), [&] { return contentOf(reader); });
}

}  // namespace hx::exchange

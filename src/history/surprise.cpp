// SPDX-License-Identifier: MIT
#include "history/surprise.h"

#include <algorithm>
#include <array>
#include <functional>

#include "automation/text.h"
#include "history/sentences.h"
#include "project/schema.h"

namespace hx::history {

namespace schema = project::schema;

namespace {

constexpr std::size_t mostRemoved = 100, mostInclusions = 100, mostVisited = 1000;

using Receiver = std::function<void(const ado::StoredValue& wanted)>;

// Gives one column of the rows in which another holds the number.
void forEach(ado::Session& session, std::string_view table, std::string_view column, std::int64_t number,
             std::string_view wanted, const Receiver& receive) {
    const auto rows = session.open("SELECT " + std::string(wanted) + " FROM " + std::string(table) + " WHERE " +
                                       std::string(column) + " = " + std::to_string(number),
                                   ado::adCmdText);
    rows->scan(std::array{std::size_t{0}}, [&](std::span<const ado::StoredValue> row) { receive(row[0]); });
}

std::optional<std::string> nameOfRecipe(ado::Session& session, std::int64_t id) {
    std::optional<std::string> name;
    forEach(session, schema::recipeTable, schema::recipe::id, id, schema::recipe::name,
            [&](const ado::StoredValue& value) { name = value.text; });
    return name;
}

// Whether the recipe is among those that another includes, itself counted in. Gives up where there are very many.
bool includes(ado::Session& session, std::int64_t recipe, std::int64_t sought) {
    std::vector<std::int64_t> found = {recipe};
    for (std::size_t next = 0; next < found.size() && next < mostVisited; ++next) {
        if (found[next] == sought) return true;
        forEach(session, schema::memberTable, schema::member::parentId, found[next], schema::member::childId,
                [&](const ado::StoredValue& child) {
                    const bool isNew = child.integer != 0 && std::ranges::find(found, child.integer) == found.end();
                    if (isNew) found.push_back(child.integer);
                });
    }
    return false;
}

}  // namespace

std::string Surprise::text(automation::Language language) const {
    const std::string number = std::to_string(count);
    switch (kind) {
        case Kind::includedRecipeDeleted: return automation::say(language, sentence::stillIncluded, {recipe, number});
        case Kind::subRecipesDropped: return automation::say(language, sentence::subRecipesDropped, {recipe, number});
        case Kind::includesItself: return automation::say(language, sentence::includesItself, {recipe});
    }
    return {};
}

void SurpriseFinder::recipeRemoved(std::int64_t id, std::string name) {
    if (removed_.size() < mostRemoved) removed_.emplace_back(id, std::move(name));
}

void SurpriseFinder::memberRemoved(std::int64_t parent, std::int64_t child) {
    oneParent_ = oneParent_ && (parent_ == 0 || parent_ == parent);
    parent_ = parent;
    ++(child == 0 ? othersTouched_ : subRecipesGone_);
}

void SurpriseFinder::memberAdded(std::int64_t parent, std::int64_t child) {
    oneParent_ = oneParent_ && (parent_ == 0 || parent_ == parent);
    parent_ = parent;
    if (child == 0) {
        ++othersTouched_;
        return;
    }
    --subRecipesGone_;
    if (inclusions_.size() < mostInclusions) inclusions_.emplace_back(parent, child);
}

std::optional<Surprise> SurpriseFinder::find(ado::Session& session) const {
    if (auto surprise = deletedOne(session)) return surprise;
    if (auto surprise = cycle(session)) return surprise;
    return dropped(session);
}

std::optional<Surprise> SurpriseFinder::deletedOne(ado::Session& session) const {
    for (const auto& [id, name] : removed_) {
        std::int64_t count = 0;
        forEach(session, schema::memberTable, schema::member::childId, id, schema::member::parentId,
                [&](const ado::StoredValue&) { ++count; });
        if (count > 0) return Surprise{Surprise::Kind::includedRecipeDeleted, name, count};
    }
    return {};
}

std::optional<Surprise> SurpriseFinder::cycle(ado::Session& session) const {
    for (const auto& [parent, child] : inclusions_) {
        if (!includes(session, child, parent)) continue;
        if (auto name = nameOfRecipe(session, parent)) return Surprise{Surprise::Kind::includesItself, *name};
    }
    return {};
}

// Who deletes sub-recipes alone means them.
std::optional<Surprise> SurpriseFinder::dropped(ado::Session& session) const {
    if (subRecipesGone_ <= 0 || othersTouched_ == 0 || !oneParent_ || !removed_.empty()) return {};
    auto name = nameOfRecipe(session, parent_);
    if (!name) return {};
    return Surprise{Surprise::Kind::subRecipesDropped, std::move(*name), subRecipesGone_};
}

}  // namespace hx::history

// SPDX-License-Identifier: MIT
#include "exchange/importer.h"

#include "automation/text.h"
#include "exchange/differences.h"
#include "hosting/text_file.h"
#include "hosting/visible.h"
#include "project/schema.h"

namespace hx::exchange {

using automation::foldCase;
namespace schema = project::schema;

namespace {

// What the file does not say of a member stays as it was.
void addColumnsOf(const ContentMember& old, std::vector<Cell>& cells) {
    for (const Cell& cell : old.cells) {
        if (findCell(cells, cell.column) == nullptr) cells.push_back(cell);
    }
}

}  // namespace

Importer::Importer(ado::Session& session, const Content& before, const Content& file, const std::string& path,
                   ImportMode mode, const Progress& progress)
    : before_(before),
      file_(file),
      path_(path),
      mode_(mode),
      recipeRows_(session, schema::recipeTable, path),
      memberRows_(session, schema::memberTable, path),
      progress_(progress) {}

ImportCounts Importer::run() {
    checkCells();
    collectIds();
    if (mode_ == ImportMode::replace) removeOthers();
    writeRecipes();
    deleteMembersOfChanged();
    writeMembers();
    writeOrphans();
    return counts_;
}

void Importer::checkCells() const {
    for (const ContentRecipe& recipe : file_.recipes) {
        recipeRows_.check(recipe.cells);
        for (const ContentMember& member : recipe.members) memberRows_.check(member.cells);
    }
    for (const ContentMember& member : file_.orphans) memberRows_.check(member.cells);
}

void Importer::collectIds() {
    for (const ContentRecipe& recipe : before_.recipes) {
        recipeIds_.take(*recipe.id);
        known_.emplace(foldCase(recipe.name()), &recipe);
        idsByName_.emplace(foldCase(recipe.name()), *recipe.id);
        for (const ContentMember& member : recipe.members) takeMember(member);
    }
    for (const ContentMember& member : before_.orphans) takeMember(member);
    // IDs that were given once are not given to others.
    recipeIds_.reserve(recipeRows_.lastId());
    memberIds_.reserve(memberRows_.lastId());
    for (const ContentRecipe& recipe : file_.recipes) {
        recipeIds_.reserve(recipe.id.value_or(0));
        for (const ContentMember& member : recipe.members) reserve(member);
    }
    for (const ContentMember& member : file_.orphans) reserve(member);
}

void Importer::reserve(const ContentMember& member) {
    memberIds_.reserve(member.id.value_or(0));
    recipeIds_.reserve(member.parent);
    if (!member.childName) recipeIds_.reserve(member.child);
}

// A recipe must not come to the ID of a missing one: the members that refer to it would be given to it.
void Importer::takeMember(const ContentMember& member) {
    memberIds_.take(*member.id);
    if (member.child != 0 && !member.childName) recipeIds_.take(member.child);
    if (member.parent != 0) recipeIds_.take(member.parent);
}

void Importer::removeOthers() {
    std::unordered_set<std::string> names;
    for (const ContentRecipe& recipe : file_.recipes) names.insert(foldCase(recipe.name()));
    for (const ContentRecipe& recipe : before_.recipes) {
        if (names.contains(foldCase(recipe.name()))) continue;
        deleteMembers(recipe);
        recipeRows_.remove(*recipe.id);
        recipeIds_.release(*recipe.id);
        idsByName_.erase(foldCase(recipe.name()));
        ++counts_.removed;
    }
    for (const ContentMember& member : before_.orphans) {
        memberRows_.remove(*member.id);
        memberIds_.release(*member.id);
    }
}

void Importer::deleteMembers(const ContentRecipe& recipe) {
    for (const ContentMember& member : recipe.members) {
        memberRows_.remove(*member.id);
        memberIds_.release(*member.id);
    }
}

void Importer::writeRecipes() {
    for (const ContentRecipe& recipe : file_.recipes) {
        const auto known = known_.find(foldCase(recipe.name()));
        if (known == known_.end()) addRecipe(recipe);
        else if (mode_ != ImportMode::add) updateRecipe(*known->second, recipe);
    }
}

void Importer::addRecipe(const ContentRecipe& recipe) {
    const bool keeps = recipe.id && recipeIds_.isFree(*recipe.id);
    const std::int64_t id = keeps ? *recipe.id : newId(recipeIds_, recipe.line);
    recipeIds_.take(id);
    recipeRows_.insert({{schema::recipe::id, id}}, recipe.cells, recipe.line);
    idsByName_[foldCase(recipe.name())] = id;
    toFill_.push_back({id, &recipe, &noMembers_});
    ++counts_.added;
}

void Importer::updateRecipe(const ContentRecipe& old, const ContentRecipe& recipe) {
    const auto differences = compare(old, recipe, false);
    if (differences.empty()) return;
    ++counts_.changed;
    recipeRows_.update(*old.id, recipe.cells, recipe.line);
    const bool members = std::ranges::any_of(differences, [](const auto& d) { return !d.member.empty(); });
    if (!members) return;
    toEmpty_.push_back(&old);
    toFill_.push_back({*old.id, &recipe, &old.members});
}

void Importer::deleteMembersOfChanged() {
    for (const ContentRecipe* recipe : toEmpty_) deleteMembers(*recipe);
}

void Importer::writeMembers() {
    std::int64_t done = 0;
    for (const Unfilled& recipe : toFill_) {
        writeMembers(recipe);
        if (progress_) progress_(++done, static_cast<std::int64_t>(toFill_.size()));
    }
}

void Importer::writeMembers(const Unfilled& recipe) {
    const auto& members = recipe.recipe->members;
    const Partners partners = partnersOf(*recipe.members, members, false);
    const bool keep = canKeepIds(members);
    for (std::size_t i = 0; i < members.size(); ++i) {
        const std::int64_t id = keep ? *members[i].id : newId(memberIds_, members[i].line);
        auto cells = members[i].cells;
        if (partners[i]) addColumnsOf((*recipe.members)[*partners[i]], cells);
        writeMember(members[i], cells, recipe.id, id);
    }
}

std::int64_t Importer::newId(const Ids& ids, int line) const {
    if (!ids.hasNext())
        hosting::Line{path_, line, {}}.fail("\"ID\": the project has no ID left beyond its largest one");
    return ids.next();
}

// The order of the members is that of their IDs.
bool Importer::canKeepIds(const std::vector<ContentMember>& members) const {
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (!members[i].id || !memberIds_.isFree(*members[i].id)) return false;
        if (i > 0 && *members[i].id <= *members[i - 1].id) return false;
    }
    return true;
}

void Importer::writeMember(const ContentMember& member, const std::vector<Cell>& cells, std::int64_t parent,
                           std::int64_t id) {
    memberIds_.take(id);
    memberRows_.insert(
        {{schema::member::id, id}, {schema::member::parentId, parent}, {schema::member::childId, childOf(member)}},
        cells, member.line);
}

std::int64_t Importer::childOf(const ContentMember& member) {
    if (!member.isSubRecipe()) return 0;
    if (member.childName) {
        const auto found = idsByName_.find(foldCase(*member.childName));
        if (found != idsByName_.end()) return found->second;
        fail(member, "\"subRecipe\": there is no recipe " + hosting::inQuotes(*member.childName));
    }
    if (recipeRows_.has(member.child)) {
        fail(member, "\"ChildID\": the missing recipe's ID " + std::to_string(member.child) +
                         " belongs to a recipe of the project");
    }
    return member.child;
}

void Importer::writeOrphans() {
    const auto& old = mode_ == ImportMode::replace ? noMembers_ : before_.orphans;
    const Partners partners = partnersOf(old, file_.orphans, false);
    for (std::size_t i = 0; i < partners.size(); ++i) {
        const ContentMember& member = file_.orphans[i];
        if (partners[i]) updateOrphan(old[*partners[i]], member);
        else writeOrphan(member);
    }
}

void Importer::updateOrphan(const ContentMember& old, const ContentMember& member) {
    if (mode_ == ImportMode::add || hasSameColumns(old, member, false)) return;
    memberRows_.update(*old.id, member.cells, member.line);
}

void Importer::writeOrphan(const ContentMember& member) {
    if (recipeRows_.has(member.parent)) {
        fail(member, "\"ParentID\": the missing recipe's ID " + std::to_string(member.parent) +
                         " belongs to a recipe of the project");
    }
    const bool keeps = member.id && memberIds_.isFree(*member.id);
    writeMember(member, member.cells, member.parent, keeps ? *member.id : newId(memberIds_, member.line));
}

void Importer::fail(const ContentMember& member, const std::string& problem) const {
    hosting::Line{path_, member.line, {}}.fail(problem);
}

}  // namespace hx::exchange

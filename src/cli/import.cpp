#include "cli/import.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "adapters/sqlite/transaction.h"
#include "automation/text.h"
#include "cli/content.h"
#include "cli/differences.h"
#include "cli/progress.h"
#include "cli/project_reader.h"
#include "cli/row_writer.h"
#include "cli/text_file.h"

namespace hx::cli {

using automation::foldCase;

namespace {

/// IDs of one table: those in use, and new ones beyond them all.
class Ids {
  public:
    void take(std::int64_t id) {
        taken_.insert(id);
        last_ = std::max(last_, id);
    }
    void release(std::int64_t id) { taken_.erase(id); }
    /// New IDs come behind this one as well.
    void reserve(std::int64_t id) { last_ = std::max(last_, id); }
    [[nodiscard]] bool isFree(std::int64_t id) const { return !taken_.contains(id); }
    [[nodiscard]] std::int64_t next() { return last_ + 1; }

  private:
    std::unordered_set<std::int64_t> taken_;
    std::int64_t last_ = 0;
};

struct Counts {
    std::size_t added = 0, changed = 0, removed = 0;
};

/// Carries an import out within a transaction that the caller holds.
class Import {
  public:
    Import(sqlite::Database& database, const Content& before, const Content& file, const std::string& path,
           ImportMode mode, const Output& output)
        : database_(database),
          before_(before),
          file_(file),
          path_(path),
          mode_(mode),
          recipeRows_(database, "TrcpRecipe", path),
          memberRows_(database, "TrcpRecipeMember", path),
          progress_(output, static_cast<std::int64_t>(file.recipes.size())) {}

    Counts run() {
        checkCells();
        collectIds();
        if (mode_ == ImportMode::replace) removeOthers();
        writeRecipes();
        deleteMembersOfChanged();
        writeMembers();
        writeOrphans();
        return counts_;
    }

  private:
    void checkCells() const {
        for (const ContentRecipe& recipe : file_.recipes) {
            recipeRows_.check(recipe.cells);
            for (const ContentMember& member : recipe.members) memberRows_.check(member.cells);
        }
        for (const ContentMember& member : file_.orphans) memberRows_.check(member.cells);
    }

    void collectIds() {
        for (const ContentRecipe& recipe : before_.recipes) {
            recipeIds_.take(*recipe.id);
            known_.emplace(foldCase(recipe.name()), &recipe);
            idsByName_.emplace(foldCase(recipe.name()), *recipe.id);
            for (const ContentMember& member : recipe.members) takeMember(member);
        }
        for (const ContentMember& member : before_.orphans) takeMember(member);
        // IDs that were given once are not given to others.
        for (auto [table, ids] : {std::pair{"TrcpRecipe", &recipeIds_}, std::pair{"TrcpRecipeMember", &memberIds_}}) {
            ids->reserve(database_.number("SELECT seq FROM sqlite_sequence WHERE name = '" + std::string(table) + "'"));
        }
        for (const ContentRecipe& recipe : file_.recipes) {
            recipeIds_.reserve(recipe.id.value_or(0));
            for (const ContentMember& member : recipe.members) memberIds_.reserve(member.id.value_or(0));
        }
        for (const ContentMember& member : file_.orphans) {
            memberIds_.reserve(member.id.value_or(0));
            recipeIds_.reserve(member.parent);
        }
    }

    // A recipe must not come to the ID of a missing one: the members that refer to it would be given to it.
    void takeMember(const ContentMember& member) {
        memberIds_.take(*member.id);
        if (member.child != 0 && !member.childName) recipeIds_.take(member.child);
        if (member.parent != 0) recipeIds_.take(member.parent);
    }

    void removeOthers() {
        std::unordered_set<std::string> names;
        for (const ContentRecipe& recipe : file_.recipes) names.insert(foldCase(recipe.name()));
        for (const ContentRecipe& recipe : before_.recipes) {
            if (names.contains(foldCase(recipe.name()))) continue;
            deleteMembers(recipe);
            execute("DELETE FROM TrcpRecipe WHERE ID = ?1", *recipe.id);
            recipeIds_.release(*recipe.id);
            idsByName_.erase(foldCase(recipe.name()));
            ++counts_.removed;
        }
        for (const ContentMember& member : before_.orphans) {
            execute("DELETE FROM TrcpRecipeMember WHERE ID = ?1", *member.id);
            memberIds_.release(*member.id);
        }
    }

    void deleteMembers(const ContentRecipe& recipe) {
        execute("DELETE FROM TrcpRecipeMember WHERE ParentID = ?1", *recipe.id);
        for (const ContentMember& member : recipe.members) memberIds_.release(*member.id);
    }

    void execute(const std::string& sql, std::int64_t id) {
        sqlite::Statement& statement = database_.prepared(sql);
        const sqlite::ResetGuard guard(statement);
        statement.bind(1, id);
        statement.step();
    }

    void writeRecipes() {
        for (const ContentRecipe& recipe : file_.recipes) {
            const auto known = known_.find(foldCase(recipe.name()));
            if (known == known_.end()) addRecipe(recipe);
            else if (mode_ != ImportMode::add) updateRecipe(*known->second, recipe);
        }
    }

    void addRecipe(const ContentRecipe& recipe) {
        const bool keeps = recipe.id && recipeIds_.isFree(*recipe.id);
        const std::int64_t id = keeps ? *recipe.id : recipeIds_.next();
        recipeIds_.take(id);
        recipeRows_.insert({{"ID", id}}, recipe.cells, recipe.line);
        idsByName_[foldCase(recipe.name())] = id;
        toFill_.push_back({id, &recipe});
        ++counts_.added;
    }

    void updateRecipe(const ContentRecipe& old, const ContentRecipe& recipe) {
        const auto differences = compare(old, recipe, false);
        if (differences.empty()) return;
        ++counts_.changed;
        recipeRows_.update(*old.id, recipe.cells, recipe.line);
        const bool members = std::ranges::any_of(differences, [](const auto& d) { return !d.member.empty(); });
        if (!members) return;
        toEmpty_.push_back(&old);
        toFill_.push_back({*old.id, &recipe});
    }

    void deleteMembersOfChanged() {
        for (const ContentRecipe* recipe : toEmpty_) deleteMembers(*recipe);
    }

    void writeMembers() {
        std::int64_t done = 0;
        for (const auto& [id, recipe] : toFill_) {
            const bool keep = canKeepIds(recipe->members);
            for (const ContentMember& member : recipe->members) {
                writeMember(member, id, keep ? *member.id : memberIds_.next());
            }
            progress_.reach(++done);
        }
    }

    // The order of the members is that of their IDs.
    [[nodiscard]] bool canKeepIds(const std::vector<ContentMember>& members) const {
        for (std::size_t i = 0; i < members.size(); ++i) {
            if (!members[i].id || !memberIds_.isFree(*members[i].id)) return false;
            if (i > 0 && *members[i].id <= *members[i - 1].id) return false;
        }
        return true;
    }

    void writeMember(const ContentMember& member, std::int64_t parent, std::int64_t id) {
        memberIds_.take(id);
        memberRows_.insert({{"ID", id}, {"ParentID", parent}, {"ChildID", childOf(member)}}, member.cells, member.line);
    }

    [[nodiscard]] std::int64_t childOf(const ContentMember& member) const {
        if (!member.isSubRecipe()) return 0;
        if (member.childName) {
            const auto found = idsByName_.find(foldCase(*member.childName));
            if (found != idsByName_.end()) return found->second;
            fail(member, "\"subRecipe\": there is no recipe " + inQuotes(*member.childName));
        }
        if (isRecipe(member.child)) {
            fail(member, "\"ChildID\": the missing recipe's ID " + std::to_string(member.child) +
                             " belongs to a recipe of the project");
        }
        return member.child;
    }

    void writeOrphans() {
        Content old;
        if (mode_ != ImportMode::replace) old.orphans = before_.orphans;
        for (const ContentMember& member : file_.orphans) {
            if (isThere(old, member)) continue;
            if (isRecipe(member.parent)) {
                fail(member, "\"ParentID\": the missing recipe's ID " + std::to_string(member.parent) +
                                 " belongs to a recipe of the project");
            }
            const bool keeps = member.id && memberIds_.isFree(*member.id);
            writeMember(member, member.parent, keeps ? *member.id : memberIds_.next());
        }
    }

    [[nodiscard]] static bool isThere(const Content& old, const ContentMember& member) {
        Content one;
        one.orphans.push_back(member);
        const auto differences = compare(old, one, {false, false, false});
        return differences.empty();
    }

    [[nodiscard]] bool isRecipe(std::int64_t id) const {
        return database_.number("SELECT count(*) FROM TrcpRecipe WHERE ID = " + std::to_string(id)) != 0;
    }

    [[noreturn]] void fail(const ContentMember& member, const std::string& problem) const {
        Line{path_, member.line, {}}.fail(problem);
    }

    sqlite::Database& database_;
    const Content& before_;
    const Content& file_;
    const std::string& path_;
    ImportMode mode_;
    RowWriter recipeRows_, memberRows_;
    Progress progress_;
    Ids recipeIds_, memberIds_;
    std::unordered_map<std::string, const ContentRecipe*> known_;  // of the project, by folded name
    std::unordered_map<std::string, std::int64_t> idsByName_;      // of all that will be there
    std::vector<const ContentRecipe*> toEmpty_;
    std::vector<std::pair<std::int64_t, const ContentRecipe*>> toFill_;
    Counts counts_;
};

}  // namespace

void importContent(const std::string& project, const std::string& file, ImportMode mode, const Output& output) {
    const Content content = parseContent(file);
    requireProject(project);
    sqlite::Database database(project);
    sqlite::Transaction transaction(database);
    const Content before = readContent(database);
    const Counts counts = Import(database, before, content, file, mode, output).run();
    transaction.commit();
    output.results << "Imported " << file << ": " << counts.added << " recipes added, " << counts.changed
                   << " changed, " << counts.removed << " removed.\n";
}

void previewImport(const std::string& project, const std::string& file, ImportMode mode, bool json,
                   const Output& output) {
    const Content content = parseContent(file);
    requireProject(project);
    sqlite::Database database(project);
    database.execute("PRAGMA cache_spill=OFF");  // nothing of it reaches the file
    const sqlite::Transaction transaction(database);
    const Content before = readContent(database);
    Import(database, before, content, file, mode, output).run();
    print(compare(before, readContent(database), {}), json, output);
}

}  // namespace hx::cli

// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "exchange/import.h"
#include "exchange/row_writer.h"

namespace hx::exchange {

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
    [[nodiscard]] bool hasNext() const { return last_ < std::numeric_limits<std::int32_t>::max(); }
    [[nodiscard]] std::int64_t next() const { return last_ + 1; }

  private:
    std::unordered_set<std::int64_t> taken_;
    std::int64_t last_ = 0;
};

/// Carries an import out within a transaction that the caller holds. `before` is what the project has, `path` the file
/// for messages; all is lent.
class Importer {
  public:
    Importer(ado::Session& session, const Content& before, const Content& file, const std::string& path,
             ImportMode mode, const Progress& progress);

    /// Throws automation::Error, with line and field when something in the file is wrong.
    ImportCounts run();

  private:
    /// A recipe whose members are to be written.
    struct Unfilled {
        std::int64_t id;
        const ContentRecipe* recipe;                // of the file
        const std::vector<ContentMember>* members;  // that it had
    };
    void checkCells() const;
    void collectIds();
    void reserve(const ContentMember& member);
    void takeMember(const ContentMember& member);
    void removeOthers();
    void deleteMembers(const ContentRecipe& recipe);
    void writeRecipes();
    void addRecipe(const ContentRecipe& recipe);
    void updateRecipe(const ContentRecipe& old, const ContentRecipe& recipe);
    void deleteMembersOfChanged();
    void writeMembers();
    void writeMembers(const Unfilled& recipe);
    [[nodiscard]] std::int64_t newId(const Ids& ids, int line) const;
    [[nodiscard]] bool canKeepIds(const std::vector<ContentMember>& members) const;
    void writeMember(const ContentMember& member, const std::vector<Cell>& cells, std::int64_t parent, std::int64_t id);
    [[nodiscard]] std::int64_t childOf(const ContentMember& member);
    void writeOrphans();
    void updateOrphan(const ContentMember& old, const ContentMember& member);
    void writeOrphan(const ContentMember& member);
    [[noreturn]] void fail(const ContentMember& member, const std::string& problem) const;

    const Content& before_;
    const Content& file_;
    const std::string& path_;
    ImportMode mode_;
    RowWriter recipeRows_, memberRows_;
    const Progress& progress_;
    Ids recipeIds_, memberIds_;
    std::unordered_map<std::string, const ContentRecipe*> known_;  // of the project, by folded name
    std::unordered_map<std::string, std::int64_t> idsByName_;      // of all that will be there
    std::vector<const ContentRecipe*> toEmpty_;
    std::vector<Unfilled> toFill_;
    const std::vector<ContentMember> noMembers_;
    ImportCounts counts_;
};

}  // namespace hx::exchange

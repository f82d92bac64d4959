#include "cli/generate.h"

#include <algorithm>

#include "adapters/sqlite/database.h"
#include "adapters/sqlite/project_file.h"
#include "cli/generated_names.h"
#include "cli/progress.h"
#include "cli/unfinished_file.h"

namespace hx::cli {

using automation::Variant;
using sqlite::ResetGuard;
using sqlite::Statement;

namespace {

constexpr std::int64_t usualVariables = 10'000;  // a plant has no more; recipes use them again and again
constexpr std::int64_t blockSize = 32;

// The file is thrown away when anything goes wrong, so nothing has to be safe before it is finished.
constexpr const char* fast = "PRAGMA synchronous=OFF; PRAGMA cache_size=-65536; PRAGMA journal_mode=OFF;";

class Generator {
  public:
    Generator(const GeneratePlan& plan, const std::string& file, const Output& output)
        : plan_(plan),
          database_(file),
          membersEach_(plan.recipes == 0 ? 0 : (plan.members + plan.recipes - 1) / plan.recipes),
          variables_(std::max({std::min(usualVariables, plan.members), membersEach_, plan.bigMembers})),
          progress_(output, plan.recipes + plan.members + plan.bigMembers) {}

    void run() {
        database_.execute(fast);
        database_.execute("BEGIN");
        addVariables();
        addRecipes();
        addMembers();
        database_.execute("COMMIT");
    }

  private:
    void addVariables() {
        Statement insert(database_, "INSERT INTO ThxVariable (Name, Type) VALUES (?1, ?2)");
        for (std::int64_t i = 0; i < variables_; ++i) {
            const ResetGuard guard(insert);
            insert.bind(1, Variant(variableName(i)));
            insert.bind(2, Variant(variableType(i)));
            insert.step();
        }
    }

    void addRecipes() {
        Statement insert(database_,
                         "INSERT INTO TrcpRecipe (Name, FilePath, FileExtension, Enabled) VALUES (?1, "
                         "'<ProjectDir>\\Rezepte', 'rz', 1)");
        if (plan_.bigMembers > 0) addRecipe(insert, "Gesamtanlage");
        for (std::int64_t i = 0; i < plan_.recipes; ++i) {
            addRecipe(insert, recipeName(i));
            progress_.reach(++done_);
        }
    }

    static void addRecipe(Statement& insert, const std::string& name) {
        const ResetGuard guard(insert);
        insert.bind(1, Variant(name));
        insert.step();
    }

    void addMembers() {
        Statement insert(database_, "INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (?1, ?2, 0)");
        const std::int64_t firstSpread = plan_.bigMembers > 0 ? 2 : 1;
        std::int64_t big = 0;
        std::int64_t spread = 0;
        while (big < plan_.bigMembers || spread < plan_.members) {
            // Whichever is behind its share comes next.
            const bool bigIsNext = static_cast<double>(big) * static_cast<double>(plan_.members) <=
                                   static_cast<double>(spread) * static_cast<double>(plan_.bigMembers);
            const bool takeBig = big < plan_.bigMembers && (bigIsNext || spread >= plan_.members);
            std::int64_t& written = takeBig ? big : spread;
            const std::int64_t end = std::min(written + blockSize, takeBig ? plan_.bigMembers : plan_.members);
            for (; written < end; ++written) {
                if (takeBig) addMember(insert, 1, written);
                else addMember(insert, firstSpread + written % plan_.recipes, spreadVariable(written));
            }
        }
    }

    // A recipe has each of its variables once.
    [[nodiscard]] std::int64_t spreadVariable(std::int64_t written) const {
        return (written % plan_.recipes * membersEach_ + written / plan_.recipes) % variables_;
    }

    void addMember(Statement& insert, std::int64_t recipe, std::int64_t variable) {
        const ResetGuard guard(insert);
        insert.bind(1, recipe);
        insert.bind(2, Variant(variableName(variable)));
        insert.step();
        progress_.reach(++done_);
    }

    const GeneratePlan& plan_;
    sqlite::Database database_;
    std::int64_t membersEach_;
    std::int64_t variables_;
    Progress progress_;
    std::int64_t done_ = 0;
};

}  // namespace

void generate(const GeneratePlan& plan, const Output& output) {
    sqlite::ProjectDraft draft(plan.path);
    const UnfinishedFile unfinished(draft.temporaryPath());
    draft.createTables(false);
    Generator(plan, draft.temporaryPath(), output).run();
    draft.createIndexes();
    draft.publish();
    const std::int64_t recipes = plan.recipes + (plan.bigMembers > 0 ? 1 : 0);
    output.results << "Made " << plan.path << ": " << recipes << " recipes, " << plan.members + plan.bigMembers
                   << " members.\n";
    if (plan.bigMembers > 0) output.results << "Recipe 1 has " << plan.bigMembers << " members.\n";
}

}  // namespace hx::cli

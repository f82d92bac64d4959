// SPDX-License-Identifier: MIT
#include "cli/generate.h"

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/session.h"
#include "cli/progress.h"
#include "cli/unfinished_file.h"
#include "hosting/file_bytes.h"

namespace hx::cli {

namespace {

// The file is thrown away when anything goes wrong, so nothing has to be safe before it is finished.
constexpr const char* fast = "PRAGMA synchronous=OFF; PRAGMA cache_size=-65536; PRAGMA journal_mode=OFF;";

}  // namespace

void generate(const project::GeneratorPlan& plan, const std::string& path, const Output& output) {
    sqlite::ProjectDraft draft(path);
    const UnfinishedFile unfinished(hosting::fileSystemPath(draft.temporaryPath()));
    draft.createTables(false);
    {
        Progress progress(output);
        sqlite::Session session(draft.temporaryPath(), false, {.comparesNames = false});
        session.database().execute(fast);
        project::generate(session, plan, [&](std::int64_t done) { progress.reach(done, plan.rows()); });
    }
    draft.createIndexes();
    draft.publish();
    const std::int64_t recipes = plan.recipes + (plan.bigMembers > 0 ? 1 : 0);
    output.results << "Made " << path << ": " << recipes << " recipes, " << plan.members + plan.bigMembers
                   << " members.\n";
    if (plan.bigMembers > 0) output.results << "Recipe 1 has " << plan.bigMembers << " members.\n";
}

}  // namespace hx::cli

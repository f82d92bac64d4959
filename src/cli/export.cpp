#include "cli/export.h"

#include <filesystem>
#include <system_error>

#include "automation/error.h"
#include "cli/content.h"
#include "cli/project_reader.h"
#include "cli/unfinished_file.h"
#include "hosting/file_bytes.h"
#include "hosting/file_replacement.h"

namespace hx::cli {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const std::string& problem) { throw automation::Error(automation::errFail, problem); }

bool isExport(const std::string& path) {
    constexpr std::string_view mark = "{\n  \"format\": \"hxrecipe\"";
    return hosting::startOf(path, mark.size()) == mark;
}

// What is written is all that could be read.
void sayWhatIsDamaged(sqlite::Database& database, const std::string& target) {
    const auto damages = sqlite::damagesOf(database, 1);
    if (damages.empty()) return;
    refuse("The file '" + database.path() + "' is damaged: " + damages.front() + ". Something may be missing in " +
           target + ".");
}

}  // namespace

void exportProject(const std::string& path, const std::string& target, const Output& output) {
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(target, ignored)) && !isExport(target)) {
        refuse("The file '" + target + "' exists already and is no export.");
    }
    ProjectReader project(path, ProjectReader::Damage::read);
    const Content content = readContent(project.database());
    const std::string text = exportOf(content);
    hosting::FileReplacement file(target);
    const UnfinishedFile unfinished(file.temporary());
    file.write(text);
    file.publish();
    std::size_t members = content.orphans.size();
    for (const ContentRecipe& recipe : content.recipes) members += recipe.members.size();
    output.results << "Wrote " << target << ": " << content.recipes.size() << " recipes, " << members << " members.\n";
    sayWhatIsDamaged(project.database(), target);
}

}  // namespace hx::cli

// SPDX-License-Identifier: MIT
#include "cli/export.h"

#include <filesystem>
#include <system_error>

#include "adapters/sqlite/provider.h"
#include "automation/error.h"
#include "cli/progress.h"
#include "cli/unfinished_file.h"
#include "exchange/content_writer.h"
#include "hosting/file_bytes.h"
#include "hosting/file_replacement.h"

namespace hx::cli {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const std::string& problem) { throw automation::Error(automation::errFail, problem); }

bool isExport(const std::string& path) {
    constexpr std::string_view mark = "{\n  \"format\": \"hxrecipe\"";
    return hosting::startOf(hosting::fileSystemPath(path), mark.size()) == mark;
}

exchange::Content readWithProgress(project::Reader& reader, const Output& output) {
    Progress progress(output);
    reader.tell(progress.hearer());
    return exchange::readContent(reader);
}

// What is written is all that could be read.
void sayWhatIsDamaged(project::Reader& reader, const std::string& target) {
    const auto damages = reader.session().damages(1, ado::Session::Check::thorough);
    if (damages.empty()) return;
    refuse("The file '" + reader.path() + "' is damaged: " + damages.front() + ". Something may be missing in " +
           target + ".");
}

}  // namespace

void exportProject(const std::string& path, const std::string& target, const Output& output) {
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(hosting::fileSystemPath(target), ignored)) && !isExport(target)) {
        refuse("The file '" + target + "' exists already and is no export.");
    }
    sqlite::Provider provider;
    project::Reader reader(provider, path, project::Reader::Damage::read);
    const exchange::Content content = readWithProgress(reader, output);
    const std::string text = exchange::exportOf(content);
    hosting::FileReplacement file(hosting::fileSystemPath(target));
    const UnfinishedFile unfinished(file.temporary());
    file.write(text);
    file.publish();
    std::size_t members = content.orphans.size();
    for (const exchange::ContentRecipe& recipe : content.recipes) members += recipe.members.size();
    output.results << "Wrote " << target << ": " << content.recipes.size() << " recipes, " << members << " members.\n";
    sayWhatIsDamaged(reader, target);
}

}  // namespace hx::cli

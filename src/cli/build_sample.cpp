#include "cli/build_sample.h"

#include <array>
#include <map>
#include <memory>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "ado/recordset.h"
#include "cli/sample.h"
#include "cli/unfinished_file.h"

namespace hx::cli {

using ado::Recordset;
using automation::Variant;
using Values = std::vector<std::pair<std::string, Variant>>;

namespace {

/// Writes a sample through the same recordsets as the editor.
class SampleWriter {
  public:
    explicit SampleWriter(const std::string& file) : connection_(std::make_shared<ado::Connection>(provider_)) {
        connection_->open("Data Source=\"" + file + "\";Mode=Read|Write;");
    }

    void write(const Sample& sample) {
        connection_->beginTrans();
        writeVariables(sample);
        writeRecipes(sample);
        writeMembers(sample);
        connection_->commitTrans();
        connection_->close();
    }

  private:
    void writeVariables(const Sample& sample) {
        Recordset table;
        table.open("ThxVariable", connection_);
        for (const SampleVariable& variable : sample.variables) {
            table.addNew(std::to_array<Values::value_type>(
                {{"Name", variable.name}, {"Type", variable.type}, {"Comment", variable.comment}}));
        }
    }

    void writeRecipes(const Sample& sample) {
        Recordset table;
        table.open("TrcpRecipe", connection_);
        for (const SampleRecipe& recipe : sample.recipes) {
            Values values = {{"Name", recipe.name}};
            values.insert(values.end(), recipe.columns.begin(), recipe.columns.end());
            table.addNew(values);
            ids_[recipe.name] = table.field("ID").value().asInt32();
        }
    }

    void writeMembers(const Sample& sample) {
        Recordset table;
        table.open("TrcpRecipeMember", connection_);
        for (const SampleRecipe& recipe : sample.recipes) {
            for (const SampleMember& member : recipe.members) {
                const std::int32_t child = member.subRecipe.empty() ? 0 : ids_.at(member.subRecipe);
                table.addNew(std::to_array<Values::value_type>(
                    {{"ParentID", ids_.at(recipe.name)}, {"VarRecipe", member.variable}, {"ChildID", child}}));
            }
        }
    }

    sqlite::Provider provider_;
    std::shared_ptr<ado::Connection> connection_;
    std::map<std::string, std::int32_t> ids_;  // of the recipes by name
};

std::size_t memberCount(const Sample& sample) {
    std::size_t count = 0;
    for (const SampleRecipe& recipe : sample.recipes) count += recipe.members.size();
    return count;
}

}  // namespace

void buildSample(const std::string& folder, const std::string& path, const Output& output) {
    const Sample sample = readSample(folder);
    sqlite::ProjectDraft draft(path);
    const UnfinishedFile unfinished(draft.temporaryPath());
    draft.createTables();
    SampleWriter(draft.temporaryPath()).write(sample);
    draft.publish();
    output.results << "Made " << path << ": " << sample.variables.size() << " variables, " << sample.recipes.size()
                   << " recipes, " << memberCount(sample) << " members.\n";
}

}  // namespace hx::cli

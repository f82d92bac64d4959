// SPDX-License-Identifier: MIT
#include <array>

#include "editor/commands.h"
#include "editor/database_work.h"
#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/record_count.h"
#include "forms/wait_cursor.h"

namespace hx::editor {

using automation::Variant;

namespace {

constexpr std::string_view serverConfigurationId = "HXRecipeServerConfig.Connect", reportId = "HXProjectReport.Connect";
constexpr std::string_view reportSubject = "HXRecipe";

/// Lets go of an object at the end of the block, also after an error.
class Released {
  public:
    explicit Released(automation::ObjectRef& object) : object_(object) {}
    ~Released() { object_.reset(); }
    Released(const Released&) = delete;
    Released& operator=(const Released&) = delete;

  private:
    automation::ObjectRef& object_;
};

}  // namespace

void Commands::mnuOption(std::int16_t index) {
    static constexpr auto rows = std::to_array<Row>({
        {0, anyNode, &Commands::statistic},
        {2, anyNode, &Commands::refresh},
        {5, anyNode, &Commands::configureRecipeServer},
        {6, anyNode, &Commands::editorOptions},
        {7, anyNode, &Commands::report},
    });
    run(rows, index, "mnuOption");
}

void Commands::statistic() {
    const DatabaseWork work(window_.dataEnvironment());
    const recipe::DataEnvironment& data = *window_.dataEnvironment();
    const forms::WaitCursor wait(window_.screen());
    std::int32_t recipes = countRecords(*data.rsRecipes);
    std::int32_t members = countRecords(*data.rsRecipeMembers);
    addIn_.counters().UpdateStatusCounters(*window_.sb, addIn_.texts(), "Statistik", recipe::StatusCounters::Mode::set,
                                           recipes, members);
}

// The window may be gone when this returns.
void Commands::refresh() { addIn_.RefreshView(); }

void Commands::configureRecipeServer() {
    const automation::ObjectRef server = sibling(serverConfigurationId);
    if (server == nullptr) return;
    const std::array<Variant, 2> arguments = {Variant(window_.secondPath()), Variant(window_.handle())};
    server->get("Show", arguments);
}

void Commands::editorOptions() {
    constexpr std::int32_t readAgain = 1;
    if (dialogs::ShowConfigEditor(window_, addIn_.services(), addIn_.help()) == readAgain) refresh();
}

void Commands::report() {
    report_ = sibling(reportId);
    if (report_ == nullptr) return;
    const std::array<Variant, 3> arguments = {Variant(reportSubject), Variant(window_.path()),
                                              Variant(window_.handle())};
    const Released released(report_);
    report_->get("Show", arguments);
}

automation::ObjectRef Commands::sibling(std::string_view programId) {
    try {
        return addIn_.services().components.create(programId);
    } catch (const automation::Error& error) {
        const Busy busy(addIn_.busy());
        window_.screen().messageBox(
            std::to_string(error.number()) + "\r\n" + error.description(window_.screen().language()),
            forms::message::ok, forms::message::defaultTitle);
        return nullptr;
    }
}

}  // namespace hx::editor

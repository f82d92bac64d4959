// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "recipe/data_environment.h"
#include "recipe/mhxrcp_hirarch_func.h"

namespace hx::editor {

[[noreturn]] inline void throwNoDatabase() {
    constexpr automation::Sentence noDatabase{"The editor has no database now", "Der Editor hat jetzt keine Datenbank"};
    throw automation::Error(automation::errFail, noDatabase);
}

/// The database during one command. When the command ends, also by an error, the table of recipes is closed, and what
/// waits in it is dropped; and what the database refused is forgotten, so that the grid does not take it for the reason
/// of an error of its own.
class DatabaseWork {
  public:
    /// Throws errFail without a database.
    explicit DatabaseWork(std::shared_ptr<recipe::DataEnvironment> data) : data_(std::move(data)) {
        if (!data_) throwNoDatabase();
    }
    ~DatabaseWork() {
        recipe::CloseRecordset(*data_->rsRecipes, false);
        data_->CnnRecipes->clearErrors();
    }
    DatabaseWork(const DatabaseWork&) = delete;
    DatabaseWork& operator=(const DatabaseWork&) = delete;

    [[nodiscard]] const std::shared_ptr<ado::Connection>& connection() const noexcept { return data_->CnnRecipes; }
    [[nodiscard]] ado::Recordset& recipes() const noexcept { return *data_->rsRecipes; }

  private:
    std::shared_ptr<recipe::DataEnvironment> data_;  // the window may end before the command
};

}  // namespace hx::editor

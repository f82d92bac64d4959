// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "adapters/lua/macro_files.h"
#include "automation/restore.h"
#include "forms/record.h"
#include "forms/script.h"
#include "hosting/components.h"

namespace hx::macros {

/// Who answers in a studio with a user: while a macro runs, the functions that it has set, and the user where it has
/// set none; else the user alone. What happens is recorded while a macro runs.
class Attendance {
  public:
    /// `cancels` says that nobody is to be asked any more: everything is then answered as by a user who cancels.
    void begin(std::function<bool()> cancels, lua::MacroFiles files);
    /// Forgets answers, record and the components that the macro has put in.
    void end();

    [[nodiscard]] bool running() const noexcept { return running_; }
    /// Whether the macro may be asked: not while the studio handles the user's own events between two of its steps.
    [[nodiscard]] bool answers() const noexcept { return running_ && !aside_; }
    [[nodiscard]] bool cancels() const { return answers() && cancels_ && cancels_(); }
    /// Those of the macro that runs.
    [[nodiscard]] const lua::MacroFiles& files() const noexcept { return files_; }
    /// Whether a function of the macro may be running that the add-in waits for.
    [[nodiscard]] bool asking() const noexcept { return depth_ > 0; }

    /// While it lives, a function of the macro may be running.
    [[nodiscard]] automation::Restore<int> ask() { return {depth_, depth_ + 1}; }
    /// While it lives, what happens is the user's own doing.
    [[nodiscard]] automation::Restore<bool> stepAside() { return {aside_, true}; }

    forms::Script script;
    forms::Record record;
    hosting::Components components{record};

  private:
    std::function<bool()> cancels_;
    lua::MacroFiles files_;
    bool running_ = false, aside_ = false;
    int depth_ = 0;
};

}  // namespace hx::macros

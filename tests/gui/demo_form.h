// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "ado/recordset.h"
#include "forms/bar.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "forms/picture_box.h"
#include "forms/status_bar.h"
#include "forms/tool_bar.h"
#include "support/faulty_provider.h"
#include "support/memory_provider.h"

namespace hx::gui {

/// A window with a menu bar, a tool bar, a grid over recipe members, a split bar and a status line, laid out as an
/// editor does.
class DemoForm : public forms::Form {
  public:
    explicit DemoForm(forms::Screen& screen);

    std::shared_ptr<forms::Bar> abr;
    std::shared_ptr<forms::ToolBar> tools;
    std::shared_ptr<forms::Grid> grid;
    std::shared_ptr<forms::StatusBar> sb;
    std::shared_ptr<forms::PictureBox> split;
    support::FaultPlan faults;  ///< of the database

    /// Adds members to the table and shows all of them.
    void fill(int rows);
    [[nodiscard]] support::MemoryTable& table();
    [[nodiscard]] std::shared_ptr<ado::Recordset> rows() const { return rows_; }

  private:
    void layOut();
    support::MemoryProvider provider_;
    support::MemoryDatabase& database_;
    support::FaultyProvider faulty_{provider_, faults};
    std::shared_ptr<ado::Connection> connection_;
    std::shared_ptr<ado::Recordset> rows_;
};

}  // namespace hx::gui

// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <memory>
#include <string>

#include "gui/demo_form.h"
#include "gui/desktop.h"

namespace hx::gui {

/// A grid over the members "Var1", "Var2", ... in a window of its own.
class GridFixture : public Desktop {
  protected:
    std::shared_ptr<DemoForm> form = std::make_shared<DemoForm>(screen);

    /// Shows so many more rows, with the keyboard in the grid.
    void show(int rows);
    [[nodiscard]] QTableView& table() { return find<QTableView>(windowOf(*form), "grid.Splits(1)"); }
    [[nodiscard]] QTableView& leftTable() { return find<QTableView>(windowOf(*form), "grid.Splits(0)"); }
    [[nodiscard]] forms::Grid& grid() { return *form->grid; }
    [[nodiscard]] int numberOf(const char* field);
    /// The shown text of the variable in a row.
    [[nodiscard]] std::string variable(int row);
    [[nodiscard]] QRect cell(int row, const char* field);
    void click(int row, const char* field, Qt::KeyboardModifiers modifiers = {});
    void clickSelector(int row, Qt::KeyboardModifiers modifiers = {});
    /// Presses a key where the keyboard is.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    [[nodiscard]] QLineEdit* editor() { return table().findChild<QLineEdit*>("cellEditor"); }
    /// What the database holds in place of a variable.
    [[nodiscard]] std::string stored(int key);

  private:
    [[nodiscard]] std::size_t numberInTable(const char* field);
};

}  // namespace hx::gui

// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "ado/connection.h"
#include "ado/recordset.h"
#include "fake_screen.h"
#include "forms/grid.h"
#include "recorder.h"
#include "support/memory_provider.h"
#include "support/table_walker.h"

namespace hx::forms {

class GridForm : public Form {
  public:
    explicit GridForm(Screen& screen) : Form("frmGrid", screen) {}
    std::shared_ptr<Grid> grid = add<Grid>("tdbRM");
};

/// A grid on a form, bound to the recipes "A", "B" and "C" of a database in memory; a column for each field.
class GridTest : public testing::Test {
  protected:
    GridTest() {
        provider.add("plant.hxs");
        connection = connect();
        for (const char* name : {"A", "B", "C"}) addRecipe(name);
        recipes->open("TrcpRecipe", connection);
        for (const ado::Column& column : recipes->columns()) grid.addColumn(column.name);
        grid.setDataSource(recipes);
    }

    [[nodiscard]] std::shared_ptr<ado::Connection> connect() {
        auto opened = std::make_shared<ado::Connection>(provider);
        opened->open("Data Source=plant.hxs");
        return opened;
    }
    void addRecipe(const std::string& name) {
        ado::Recordset table;
        table.open("TrcpRecipe", connection);
        const std::vector<std::pair<std::string, automation::Variant>> row{{"Name", name}, {"Comment", "of " + name}};
        table.addNew(row);
    }
    /// Somebody else deletes a recipe.
    void deleteElsewhere(const std::string& name) {
        ado::Recordset table;
        table.open("TrcpRecipe", connect());
        table.find("Name='" + name + "'");
        table.remove();
    }
    [[nodiscard]] std::string stored(const std::string& column) {
        ado::Recordset table;
        table.open("TrcpRecipe", connect());
        std::string all;
        for (std::size_t i = 0; i < static_cast<std::size_t>(table.recordCount()); ++i) {
            for (std::size_t c = 0; c < table.fieldCount(); ++c) {
                if (table.columns()[c].name != column) continue;
                all += automation::toText(table.valueAt(i, c)) + ";";
            }
        }
        return all;
    }
    [[nodiscard]] std::int32_t col(const char* field) const { return grid.columnNumber(automation::Variant(field)); }
    [[nodiscard]] std::string text(std::int32_t row, const char* field) const { return grid.text(row, col(field)); }
    void type(std::int32_t row, const char* field, const std::string& text) { grid.setText(row, col(field), text); }

    support::MemoryProvider provider;
    std::shared_ptr<ado::Connection> connection;
    std::shared_ptr<ado::Recordset> recipes = std::make_shared<ado::Recordset>();
    FakeScreen screen;
    std::shared_ptr<GridForm> form = std::make_shared<GridForm>(screen);
    Grid& grid = *form->grid;
};

}  // namespace hx::forms

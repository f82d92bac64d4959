// SPDX-License-Identifier: MIT
#pragma once

#include "gui/find_fixture.h"

namespace hx::gui {

/// The studio's window of the project's variable list.
class StudioVariables : public StudioFind {
  protected:
    void showVariables() {
        showMembers();
        click("Variablen");
        ASSERT_TRUE(
            comeRows({"Datei.Limonade|STRING||1", "Mischer.Apfelsaft|REAL||1", "Mischer.Wasser|REAL|in Liter|1"}));
    }
    [[nodiscard]] QTableView& variables() { return find<QTableView>(window(), "variableRows"); }
    [[nodiscard]] Texts rows() {
        const QAbstractItemModel& model = *variables().model();
        Texts texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList columns;
            for (int column = 0; column < model.columnCount(); ++column)
                columns << model.index(row, column).data().toString();
            texts.push_back(qt::fromQt(columns.join('|')));
        }
        return texts;
    }
    [[nodiscard]] bool comeRows(const Texts& wanted) {
        const bool came = waitUntil([&] { return rows() == wanted; });
        EXPECT_EQ(rows(), wanted);
        return came;
    }
    /// Types into a cell and ends with Enter.
    void typeIn(int row, int column, const QString& text) {
        QTest::keyClick(&typing(row, column, text), Qt::Key_Return);
        handleEvents();
    }
    QLineEdit& typing(int row, int column, const QString& text) {
        variables().setFocus();
        variables().setCurrentIndex(variables().model()->index(row, column));
        QTest::keyClick(&variables(), Qt::Key_F2);
        auto* const line = variables().viewport()->findChild<QLineEdit*>();
        if (line == nullptr) throw std::runtime_error("no cell is edited");
        line->selectAll();
        type(*line, text);
        return *line;
    }
    void select(int first, int last) {
        variables().setFocus();
        variables().setCurrentIndex(variables().model()->index(first, 0));
        variables().selectionModel()->select(
            {variables().model()->index(first, 0), variables().model()->index(last, 3)},
            QItemSelectionModel::ClearAndSelect);
    }
    [[nodiscard]] std::string step() { return action("actionUndo").text().toStdString(); }
    void undo() {
        action("actionUndo").trigger();
        handleEvents();
    }
    [[nodiscard]] std::string status() { return find<QLabel>(window(), "variableState").text().toStdString(); }
};

}  // namespace hx::gui

// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QLabel>
#include <QTest>
#include <QTreeView>

#include "adapters/qt/text.h"
#include "adapters/sqlite/database.h"
#include "gui/studio_fixture.h"

namespace hx::gui {

/// The studio's docks that list what is in the project.
class StudioFind : public StudioTest {
  protected:
    using Texts = std::vector<std::string>;
    QString file;

    /// At the variables of "Limonade", with two of the project's variables in its list; "Mischer.Wasser" is in it,
    /// "Mischer.Zucker" is not.
    void showMembers() {
        start();
        file = makeProject();
        execute(
            "INSERT INTO ThxVariable (Name, Type, Comment) VALUES ('Mischer.Wasser', 'REAL', 'in Liter'), "
            "('Mischer.Apfelsaft', 'REAL', ''), ('Datei.Limonade', 'STRING', '')");
        open(file);
        click("Rezepte");
        click("Rezepte/Limonade");
    }
    void execute(const std::string& sql) { sqlite::Database(qt::fromQt(file)).execute(sql); }
    [[nodiscard]] QAction& action(const char* name) { return find<QAction>(window(), name); }
    [[nodiscard]] QTreeView& list(const char* name) { return find<QTreeView>(window(), name); }
    /// The groups of a list, and below them its things, their columns joined by "|".
    [[nodiscard]] Texts lines(const char* name) {
        Texts texts;
        const QAbstractItemModel& model = *list(name).model();
        for (int group = 0; group < model.rowCount(); ++group) {
            const QModelIndex at = model.index(group, 0);
            texts.push_back(qt::fromQt(at.data().toString()));
            for (int row = 0; row < model.rowCount(at); ++row) {
                QStringList columns;
                for (int column = 0; column < model.columnCount(); ++column) {
                    if (!list(name).isColumnHidden(column)) columns << model.index(row, column, at).data().toString();
                }
                texts.push_back("  " + qt::fromQt(columns.join('|')));
            }
        }
        return texts;
    }
    [[nodiscard]] bool comes(const char* name, const Texts& wanted) {
        const bool came = waitUntil([&] { return lines(name) == wanted; });
        EXPECT_EQ(lines(name), wanted);
        return came;
    }
    [[nodiscard]] QModelIndex thing(const char* name, int group, int row) {
        const QAbstractItemModel& model = *list(name).model();
        return model.index(row, 0, model.index(group, 0));
    }
    void clickThing(const char* name, int group, int row, bool twice = false) {
        const QModelIndex at = thing(name, group, row);
        list(name).scrollTo(at);
        const QPoint point = list(name).visualRect(at).center();
        QTest::mouseClick(list(name).viewport(), Qt::LeftButton, {}, point);
        if (twice) QTest::mouseDClick(list(name).viewport(), Qt::LeftButton, {}, point);
        handleEvents();
    }
};

}  // namespace hx::gui

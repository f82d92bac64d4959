// SPDX-License-Identifier: MIT

// The peer: Qt's own model of a table, on the same file.
#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlTableModel>
#include <memory>
#include <stdexcept>

#include "bench/subjects.h"

namespace hx::bench {

namespace {

class PeerDatabase {
  public:
    explicit PeerDatabase(const Project& project) {
        database_.setDatabaseName(QString::fromStdString(project.path));
        if (!database_.open()) throw std::runtime_error(database_.lastError().text().toStdString());
    }
    [[nodiscard]] const QSqlDatabase& database() const { return database_; }

  private:
    // The plug-in of the database is found through an application.
    int count_ = 1;
    char name_[9] = "hx_bench";
    char* arguments_[2] = {name_, nullptr};
    QCoreApplication application_{count_, arguments_};
    QSqlDatabase database_ = QSqlDatabase::addDatabase("QSQLITE");
};

void fetchAll(QSqlTableModel& model) {
    if (!model.select()) throw std::runtime_error(model.lastError().text().toStdString());
    while (model.canFetchMore()) model.fetchMore();
    if (model.rowCount() == 0) throw std::runtime_error("the peer found nothing");
}

}  // namespace

Subject select_recipe::peer(const Project& project, std::int32_t recipe) {
    return [=]() -> Work {
        const auto database = std::make_shared<PeerDatabase>(project);
        // The model lives on: what the user sees needs its rows, and the memory that they take counts.
        const auto model = std::make_shared<std::unique_ptr<QSqlTableModel>>();
        return [=] {
            *model = std::make_unique<QSqlTableModel>(nullptr, database->database());
            QSqlTableModel& table = **model;
            table.setTable("TrcpRecipeMember");
            table.setFilter(QString("ParentID = %1 AND ChildID = 0").arg(recipe));
            table.setSort(0, Qt::AscendingOrder);
            fetchAll(table);
            for (const int row : {0, table.rowCount() / 2, table.rowCount() - 1}) {
                for (int column = 0; column < table.columnCount(); ++column) {
                    if (table.index(row, column).data().isNull()) throw std::runtime_error("a row is missing");
                }
            }
        };
    };
}

Subject read_recipes::peer(const Project& project) {
    return [=]() -> Work {
        const auto database = std::make_shared<PeerDatabase>(project);
        return [=] {
            QSqlTableModel table(nullptr, database->database());
            table.setTable("TrcpRecipe");
            table.setSort(0, Qt::AscendingOrder);
            fetchAll(table);
            qint64 sum = 0;
            for (int row = 0; row < table.rowCount(); ++row) {
                sum += table.index(row, 0).data().toInt() + table.index(row, 1).data().toString().size();
            }
            if (sum == 0) throw std::runtime_error("no recipes");
        };
    };
}

}  // namespace hx::bench

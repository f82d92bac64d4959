// SPDX-License-Identifier: MIT

// What the user sees, drawn by Qt without a display.
#include <QScrollBar>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTableView>
#include <QTreeWidget>
#include <array>
#include <memory>
#include <stdexcept>

#include "adapters/qt/explorer/explorer_tree.h"
#include "adapters/qt/explorer/qt_explorer.h"
#include "adapters/qt/screen/qt_clipboard.h"
#include "addin/msurfing_tree.h"
#include "bench/desktop.h"
#include "bench/editor_data.h"
#include "bench/subjects.h"
#include "forms/form.h"
#include "recipe/node_key.h"
#include "studio/explorer_filter.h"

namespace hx::bench {

namespace {

/// A form with nothing but the member grid.
class GridForm : public forms::Form {
  public:
    explicit GridForm(forms::Screen& screen) : Form("f", screen), grid(add<forms::Grid>("tdbRM")) {}
    const std::shared_ptr<forms::Grid> grid;
};

class PaintCounter : public QObject {
  public:
    int count = 0;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++count;
        return false;
    }
};

/// The member grid of an open editor in a window.
class GridWindow {
  public:
    explicit GridWindow(const Project& project) : editor(project, form_->grid) {
        constexpr double width = 18000;
        constexpr double height = 13500;
        form_->move(0, 0, width, height);
        editor.grid()->move(0, 0, width, height);
        form_->show();
        Desktop::settle();
        table_ = desktop_.windows.widget(form_->handle())->findChild<QTableView*>("tdbRM.Splits(1)");
        if (table_ == nullptr || !table_->isVisible()) throw std::runtime_error("the grid is not shown");
        table_->viewport()->installEventFilter(&paints_);
    }

    /// Shows what has changed, as the event loop does.
    void paint() {
        const int before = paints_.count;
        Desktop::settle();
        if (paints_.count == before) throw std::runtime_error("the grid was not painted");
    }
    void scrollTo(int row) {
        table_->verticalScrollBar()->setValue(row);
        table_->viewport()->update();  // a few rows have nowhere to scroll to
        paint();
        if (table_->rowAt(1) != row) throw std::runtime_error("the grid did not scroll");
    }

  private:
    PaintCounter paints_;
    Desktop desktop_;
    std::shared_ptr<GridForm> form_ = std::make_shared<GridForm>(desktop_.screen);
    QTableView* table_ = nullptr;

  public:
    EditorData editor;
};

}  // namespace

Subject show_grid::firstPage(const Project& project) {
    return [=]() -> Work {
        const auto window = std::make_shared<GridWindow>(project);
        const auto select = [=] {
            window->editor.select(smallRecipe);
            window->paint();
            window->editor.select(bigRecipe);
            if (window->editor.memberRecordset().recordCount() != project.big)
                throw std::runtime_error("rows are missing");
        };
        return {select, [=] { window->paint(); }};
    };
}

Subject show_grid::anyPage(const Project& project) {
    return [=]() -> Work {
        const auto window = std::make_shared<GridWindow>(project);
        window->editor.select(bigRecipe);
        window->paint();
        const auto row = std::make_shared<std::int64_t>(0);
        return [=] {
            constexpr std::int64_t step = 382'859;
            constexpr std::int64_t page = 50;  // no more rows than that are in view
            *row = project.big > page ? (*row + step) % (project.big - page) : 0;
            window->scrollTo(static_cast<int>(*row));
        };
    };
}

namespace {

/// An explorer in a window, with the root of the recipe branch.
class ExplorerWindow {
  public:
    explicit ExplorerWindow(const Project& project) : editor(project) {
        constexpr int width = 300;
        constexpr int height = 900;
        tree_.resize(width, height);
        explorer.openProject("Plant", {});
        explorer.addNode({.parent = {}, .caption = "Rezepte", .key = recipe::rootKey, .tag = {}, .image = {}});
        sort_.setCheckable(true);
        tree_.show();
        Desktop::settle();
    }
    void paint() {
        tree_.expand(explorer.model().find(recipe::rootKey));
        Desktop::settle();
    }
    void filter(const char* words) {
        filter_.findChild<QLineEdit*>("explorerFilter")->setText(QLatin1StringView(words));
        Desktop::settle();
    }
    void orderByName(bool byName) {
        sort_.setChecked(byName);
        Desktop::settle();
    }

  private:
    Desktop desktop_;
    qt::ExplorerTree tree_;
    qt::QtClipboard clipboard_;
    QAction sort_;

  public:
    EditorData editor;
    qt::QtExplorer explorer{tree_, 0, clipboard_, desktop_.screen};

  private:
    studio::ExplorerFilter filter_{explorer, tree_, sort_, desktop_.wording};
};

/// Qt's own tree, filled the fast way: all items at once.
class PeerTree {
  public:
    explicit PeerTree(const Project& project) {
        database_.setDatabaseName(QString::fromStdString(project.path));
        if (!database_.open()) throw std::runtime_error(database_.lastError().text().toStdString());
        constexpr int width = 300;
        constexpr int height = 900;
        tree_.resize(width, height);
        root_ = new QTreeWidgetItem(&tree_, {"Rezepte"});
        tree_.show();
        Desktop::settle();
    }

    void fill() {
        QSqlQuery query(database_);
        query.setForwardOnly(true);
        if (!query.exec("SELECT ID, Name FROM TrcpRecipe ORDER BY ID"))
            throw std::runtime_error("the peer cannot read");
        QList<QTreeWidgetItem*> items;
        while (query.next()) items.append(recipe(query.value(0).toInt(), query.value(1).toString()));
        root_->addChildren(items);
        root_->setExpanded(true);
        Desktop::settle();
    }

  private:
    static QTreeWidgetItem* recipe(int id, const QString& name) {
        auto* item = new QTreeWidgetItem({name});
        item->setData(0, Qt::UserRole, "RCPR" + QString::number(id));
        auto* subRecipes = new QTreeWidgetItem(item, {"Unterrezepte"});
        subRecipes->setData(0, Qt::UserRole, "RCPU" + QString::number(id));
        return item;
    }

    Desktop desktop_;
    QSqlDatabase database_ = QSqlDatabase::addDatabase("QSQLITE");
    QTreeWidget tree_;
    QTreeWidgetItem* root_ = nullptr;
};

}  // namespace

Subject fill_explorer::ours(const Project& project) {
    return [=]() -> Work {
        const auto window = std::make_shared<ExplorerWindow>(project);
        return [=] {
            addin::addRecipeNodes(*window->editor.data().rsRecipes, window->explorer, window->editor.texts());
            window->paint();
        };
    };
}

Subject filter_explorer::ours(const Project& project, bool byName) {
    return [=]() -> Work {
        const auto window = std::make_shared<ExplorerWindow>(project);
        addin::addRecipeNodes(*window->editor.data().rsRecipes, window->explorer, window->editor.texts());
        window->paint();
        window->orderByName(byName);
        // Hits all, many, few and none.
        constexpr std::array words{"a", "l", "cola", "cola -1", "nothing", ""};
        return [=, next = std::make_shared<std::size_t>(0)] { window->filter(words[(*next)++ % words.size()]); };
    };
}

Subject fill_explorer::peer(const Project& project) {
    return [=]() -> Work {
        const auto tree = std::make_shared<PeerTree>(project);
        return [=] { tree->fill(); };
    };
}

}  // namespace hx::bench

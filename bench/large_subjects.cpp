// SPDX-License-Identifier: MIT

// What users do with a recipe of very many members, in the studio.
#include <QAbstractButton>
#include <QApplication>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <chrono>
#include <memory>

#include "bench/limit_database.h"
#include "bench/require.h"
#include "bench/studio_window.h"
#include "bench/subjects.h"
#include "bench/work_copy.h"

namespace hx::bench {

namespace {

const QString variable = QStringLiteral("Variable");

using Clock = std::chrono::steady_clock;

double since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Opens the choice of the variables, types words to search for where there are some, and cancels it; each as soon as
/// what it shows is painted.
class Choice : public QObject {
  public:
    explicit Choice(StudioWindow& studio, QString words = {}) : studio_(studio), words_(std::move(words)) {
        QCoreApplication::instance()->installEventFilter(this);
        studio_.press(Qt::Key_F8);
        closing_ = since(now_);
        require(stage_ == Stage::cancelled, "the choice of variables was not shown");
    }
    [[nodiscard]] double opening() const noexcept { return opening_; }
    [[nodiscard]] double searching() const noexcept { return searching_; }
    [[nodiscard]] double closing() const noexcept { return closing_; }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        const bool list =
            object->parent() != nullptr && object->parent()->objectName() == QLatin1StringView("hxMI.list");
        if (list && event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(this, &Choice::painted, Qt::QueuedConnection);
        return false;
    }

  private:
    enum class Stage { opening, searching, cancelled };

    void painted() {
        if (stage_ == Stage::opening) {
            opening_ = since(now_);
            if (words_.isEmpty()) return cancel();
            stage_ = Stage::searching;
            now_ = Clock::now();
            dialogPart<QLineEdit>("hxMI.search").setText(words_);
        } else if (stage_ == Stage::searching) {
            searching_ = since(now_);
            cancel();
        }
    }
    void cancel() {
        stage_ = Stage::cancelled;
        auto& button = dialogPart<QAbstractButton>("cmdCancel");
        now_ = Clock::now();
        button.click();
    }
    template <class W>
    static W& dialogPart(const char* name) {
        QWidget* dialog = QApplication::activeModalWidget();
        require(dialog != nullptr, "no dialog is open");
        return *dialog->findChild<W*>(QLatin1StringView(name));
    }

    StudioWindow& studio_;
    QString words_;
    Stage stage_ = Stage::opening;
    Clock::time_point now_ = Clock::now();
    double opening_ = 0, searching_ = 0, closing_ = 0;
};

Subject choice(const Project& project, double (Choice::*spent)() const noexcept, const QString& words = {}) {
    return [=]() -> Work {
        const auto studio = std::make_shared<StudioWindow>(project);
        return Work::timing([=] { return (Choice(*studio, words).*spent)(); });
    };
}

}  // namespace

Subject sort_members::ours(const Project& project) {
    return [=]() -> Work {
        const auto studio = std::make_shared<StudioWindow>(project);
        return {[=] { studio->sortByNothing(variable); }, [=] { studio->clickHeader(variable); }};
    };
}

Subject sort_members::limit(const Project& project) {
    return [=]() -> Work {
        const auto database = std::make_shared<LimitDatabase>(project);
        return [=] {
            database->readAll(
                "SELECT ID FROM TrcpRecipeMember WHERE ParentID = ?1 AND ChildID = 0 ORDER BY VarRecipe, ID",
                bigRecipe);
        };
    };
}

Subject delete_member::ours(const Project& project, bool sorted) {
    return [=]() -> Work {
        const auto copy = std::make_shared<WorkCopy>(project);
        copy->renew();
        const auto studio = std::make_shared<StudioWindow>(copy->project());
        if (sorted) studio->clickHeader(variable);
        const auto rows = std::make_shared<int>();
        const auto select = [=] {
            *rows = studio->rows();
            studio->grid().selectRow(*rows / 2);
            studio->settle();
        };
        // The copy stays as long as the work.
        const auto check = [=, copy = copy] { require(studio->rows() == *rows - 1, "no member was deleted"); };
        return {select, [=] { studio->press(Qt::Key_Delete, Qt::ControlModifier); }, check};
    };
}

Subject select_all::ours(const Project& project) {
    return [=]() -> Work {
        const auto studio = std::make_shared<StudioWindow>(project);
        const auto selectNone = [=] {
            studio->grid().clearSelection();
            studio->settle();
        };
        return {selectNone, [=] { studio->press(Qt::Key_A, Qt::ControlModifier); },
                [=] { require(studio->grid().selectionModel()->hasSelection(), "nothing was selected"); }};
    };
}

Subject refresh_view::ours(const Project& project) {
    return [=]() -> Work {
        const auto studio = std::make_shared<StudioWindow>(project);
        studio->showNextRecipe();
        const int rows = studio->rows();
        return {[] {}, [=] { studio->refreshView(); },
                [=] { require(studio->rows() == rows, "the editor does not show the recipe any more"); }};
    };
}

Subject choose_many::open(const Project& project) { return choice(project, &Choice::opening); }
Subject choose_many::search(const Project& project) { return choice(project, &Choice::searching, "real soll"); }
Subject choose_many::cancel(const Project& project) { return choice(project, &Choice::closing); }

}  // namespace hx::bench

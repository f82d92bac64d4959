// SPDX-License-Identifier: MIT

// The choice of a recipe's variables among all of a project.
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "adapters/headless/host.h"
#include "adapters/sqlite/provider.h"
#include "bench/desktop.h"
#include "bench/require.h"
#include "bench/subjects.h"
#include "dialogs/fmulti_select_items.h"
#include "project/generated_names.h"
#include "resources/help.h"
#include "studio/project_variables.h"

namespace hx::bench {

namespace {

constexpr const char* listName = "hxMI.list";

/// Counts how often the list of variables is painted, from the first time it is shown.
class ListPaints : public QObject {
  public:
    ListPaints() { QCoreApplication::instance()->installEventFilter(this); }
    [[nodiscard]] int count() const noexcept { return count_; }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        const bool paint = event->type() == QEvent::Paint && object->parent() != nullptr;
        if (paint && object->parent()->objectName() == QLatin1StringView(listName)) ++count_;
        return false;
    }

  private:
    int count_ = 0;
};

host::Services onScreen(const host::Services& services, forms::Screen& screen) {
    return {screen,         services.database,     services.registry,   services.iniFile, services.clipboard,
            services.help,  services.windows,      services.components, services.items,   services.folders,
            services.paths, services.numberFormat, services.moduleFile};
}

std::vector<std::string> someNames(std::int64_t variables) {
    constexpr std::int64_t count = 1000;
    std::vector<std::string> names;
    for (std::int64_t i = 0; i < count; ++i) names.push_back(project::variableName(i * variables / count));
    return names;
}

enum class Found { some, all, none };

struct Filter {
    const char* words;
    Found found = Found::some;
};

// Hits nearly all, some and none, with one and several words.
constexpr auto filters = std::to_array<Filter>({{"a"},
                                                {"", Found::all},
                                                {"soll"},
                                                {"real soll"},
                                                {"-real"},
                                                {"raum 1 -ist"},
                                                {"nothing", Found::none},
                                                {"mischer -bool -1 -2 temperatur"},
                                                {"REAL"},
                                                {"x"}});

/// The dialog over the variables of a project.
class VariablesWindow {
  public:
    explicit VariablesWindow(const Project& project) : count_(project.big), checked_(someNames(project.big)) {
        variables_.setFile(project.path);
        desktop_.screen.setVariables(variables_);
    }
    void close() {
        dialog_.reset();
        Desktop::settle();
    }
    void open() {
        dialog_ = std::make_shared<dialogs::FMultiSelectItems>(services_, help_);
        dialog_->hxMI->setSelectedItems(checked_);
        const int before = paints_.count();
        dialog_->show();
        settle(before);
        require(list().isVisible() && list().model()->rowCount() == count_, "not all variables are shown");
    }
    void type(const Filter& filter) {
        const int before = paints_.count();
        part<QLineEdit>("hxMI.search").setText(QLatin1StringView(filter.words));
        settle(before);
        const int rows = list().model()->rowCount();
        require((rows == count_) == (filter.found == Found::all), "the filter did not find what it should");
        require((rows == 0) == (filter.found == Found::none), "the filter did not find what it should");
    }
    void checkAll() {
        const int before = paints_.count();
        list().selectAll();
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
        QCoreApplication::sendEvent(&list(), &space);
        settle(before);
    }
    [[nodiscard]] QTableView& list() { return part<QTableView>(listName); }

  private:
    template <class W>
    [[nodiscard]] W& part(const char* name) {
        return *desktop_.windows.widget(dialog_->handle())->findChild<W*>(QLatin1StringView(name));
    }
    void settle(int paintsBefore) {
        Desktop::settle();
        require(paints_.count() > paintsBefore, "the list was not painted");
    }

    Desktop desktop_;
    ListPaints paints_;
    sqlite::Provider provider_;
    headless::Host host_{provider_};
    host::Services services_ = onScreen(host_.services(), desktop_.screen);
    resources::Help help_{services_};
    studio::ProjectVariables variables_;
    std::int64_t count_;
    std::vector<std::string> checked_;
    std::shared_ptr<dialogs::FMultiSelectItems> dialog_;
};

}  // namespace

Subject choose_variables::open(const Project& project) {
    return [=]() -> Work {
        const auto window = std::make_shared<VariablesWindow>(project);
        return {[=] { window->close(); }, [=] { window->open(); }};
    };
}

Subject choose_variables::filter(const Project& project) {
    return [=]() -> Work {
        const auto window = std::make_shared<VariablesWindow>(project);
        window->open();
        return [=, next = std::make_shared<std::size_t>(0)] { window->type(filters[(*next)++ % filters.size()]); };
    };
}

Subject choose_variables::checkAll(const Project& project) {
    return [=]() -> Work {
        const auto window = std::make_shared<VariablesWindow>(project);
        window->open();
        window->list().setCurrentIndex(window->list().model()->index(0, 0));
        return [=] { window->checkAll(); };
    };
}

}  // namespace hx::bench

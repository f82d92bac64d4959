// The choice of a recipe's variables among all of a project.
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "bench/desktop.h"
#include "bench/subjects.h"
#include "cli/generated_names.h"
#include "forms/form.h"
#include "forms/multi_items.h"
#include "studio/project_variables.h"

namespace hx::bench {

namespace {

class VariablesForm : public forms::Form {
  public:
    explicit VariablesForm(forms::Screen& screen) : Form("f", screen) { addRow({.field = items.get(), .grows = true}); }
    const std::shared_ptr<forms::HXMultiItems> items = add<forms::HXMultiItems>("hxMI");
};

std::vector<std::string> someNames(std::int64_t variables) {
    constexpr std::int64_t count = 1000;
    std::vector<std::string> names;
    for (std::int64_t i = 0; i < count; ++i) names.push_back(cli::variableName(i * variables / count));
    return names;
}

/// The dialog over the variables of a project.
class VariablesWindow {
  public:
    explicit VariablesWindow(const Project& project) : checked_(someNames(project.big)) {
        variables_.setFile(project.path);
        desktop_.screen.setVariables(variables_);
    }
    void close() {
        form_.reset();
        Desktop::settle();
    }
    void open() {
        form_ = std::make_shared<VariablesForm>(desktop_.screen);
        form_->items->setSelectedItems(checked_);
        form_->show();
        Desktop::settle();
    }
    template <class W>
    [[nodiscard]] W& part(const char* name) {
        return *desktop_.windows.widget(form_->handle())->findChild<W*>(QLatin1StringView(name));
    }

  private:
    Desktop desktop_;
    studio::ProjectVariables variables_;
    std::vector<std::string> checked_;
    std::shared_ptr<VariablesForm> form_;
};

// Hits nearly all, some and none, with one and several words.
constexpr auto filters = std::to_array<const char*>(
    {"a", "", "soll", "real soll", "-real", "tank 17 -ist", "nothing", "mischer -bool -1 -2 temperatur", "REAL", "9"});

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
        return [=, next = std::make_shared<std::size_t>(0)] {
            window->part<QLineEdit>("hxMI.search").setText(QLatin1StringView(filters[(*next)++ % filters.size()]));
            Desktop::settle();
        };
    };
}

Subject choose_variables::checkAll(const Project& project) {
    return [=]() -> Work {
        const auto window = std::make_shared<VariablesWindow>(project);
        window->open();
        auto& first = window->part<QTableView>("hxMI.list");
        first.setCurrentIndex(first.model()->index(0, 0));
        return [=] {
            auto& all = window->part<QTableView>("hxMI.list");
            all.selectAll();
            QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
            QCoreApplication::sendEvent(&all, &space);
            Desktop::settle();
        };
    };
}

}  // namespace hx::bench

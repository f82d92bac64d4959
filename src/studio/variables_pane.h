// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>
#include <QWidget>
#include <optional>

#include "adapters/qt/controls/plain_label.h"
#include "studio/live_project.h"
#include "studio/variables_filter.h"
#include "studio/variables_view.h"

namespace hx::studio {

/// The list of the project's variables with what stands around it, kept up to date while somebody sees it.
class VariablesPane : public QWidget {
  public:
    /// All are lent. `actions` stand above the list and in its menu.
    VariablesPane(LiveProject& live, const qt::Wording& wording, const QList<QAction*>& actions, VariablesKeys keys,
                  VariablesModel::Change change);

    [[nodiscard]] VariablesModel& model() noexcept { return model_; }
    [[nodiscard]] VariablesView& list() noexcept { return list_; }
    void startFilter() { filter_.start(); }
    /// Makes the variable of this name the current one once it is there, whatever was wanted of the list.
    void showVariable(const std::string& name);
    void retranslate();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void arrange(const QList<QAction*>& actions);
    void read();
    void take(std::shared_ptr<const project::VariableTable> table);
    /// Changes what is shown; the current cell and the place stay.
    void keepPlace(const std::function<void()>& change);
    void goToWanted();
    void showState();

    LiveProject& live_;
    const qt::Wording& wording_;
    VariablesModel model_;
    VariablesView list_;
    VariablesFilter filter_;
    QToolBar tools_;
    qt::PlainLabel state_;
    std::optional<std::shared_ptr<const project::VariableTable>> waiting_;  // for the end of an edit
    std::string wanted_;
    QString failure_;
    forms::Subscription changes_;
    ProjectReading reading_;
};

}  // namespace hx::studio

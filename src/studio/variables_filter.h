// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QTableView>
#include <array>
#include <functional>

#include "adapters/qt/wording.h"
#include "studio/variables_model.h"

namespace hx::studio {

/// The row above the list in which the user says, column by column, what he wants to see of it.
class VariablesFilter : public QWidget {
  public:
    /// All are lent. `changed` is called when another part is wanted.
    VariablesFilter(QTableView& list, const qt::Wording& wording, std::function<void()> changed);

    /// What stands in the fields, in the order of `wish`.
    [[nodiscard]] VariablesModel::Wish applyTo(VariablesModel::Wish wish) const;
    /// Gives the first field the keyboard.
    void start();
    void clear();
    void retranslate(const QStringList& titles);
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void place();

    QTableView& list_;
    const qt::Wording& wording_;
    std::array<QLineEdit, VariablesModel::columns> fields_;
};

}  // namespace hx::studio

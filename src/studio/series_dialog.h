// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/wording.h"
#include "project/series.h"
#include "studio/known_variables.h"

namespace hx::studio {

/// Asks for the pattern of a series of recipes, and shows what it stands for.
class SeriesDialog : public QDialog {
  public:
    /// Begins with this name and these variables; `known` is lent.
    SeriesDialog(QWidget& window, const QString& name, const QStringList& variables, const KnownVariables& known,
                 const qt::Wording& wording);

    [[nodiscard]] const std::vector<project::NewRecipe>& recipes() const noexcept { return recipes_; }

  private:
    void build();
    void expand();
    void show(std::size_t unknown);

    const KnownVariables& known_;
    const qt::Wording& wording_;
    QLineEdit name_;
    QPlainTextEdit variables_;
    QTreeWidget preview_;
    qt::PlainLabel state_;
    QPushButton* create_ = nullptr;
    std::vector<project::NewRecipe> recipes_;
};

}  // namespace hx::studio

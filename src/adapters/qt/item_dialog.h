#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include "adapters/qt/variable_model.h"

namespace hx::qt {

/// Chooses one variable: a search field over a list; what is typed must stand in the name or the comment.
class ItemDialog : public QDialog {
  public:
    ItemDialog(const Wording& wording, std::vector<Variable> variables, QWidget* owner);
    /// Selects the variable of this name, when there is one.
    void select(const QString& name);
    [[nodiscard]] QString selected() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void setUpList();
    void setUpButtons(const Wording& wording);
    void search(const QString& text);
    void refreshButtons();

    VariableModel model_;
    QSortFilterProxyModel found_;
    QVBoxLayout column_{this};
    QHBoxLayout searchRow_;
    QLabel searchLabel_;
    QLineEdit searchField_;
    QTableView list_;
    QLabel empty_;
    QDialogButtonBox buttons_;
};

}  // namespace hx::qt

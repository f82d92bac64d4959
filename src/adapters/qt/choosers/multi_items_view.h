// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include "adapters/qt/choosers/multi_items_model.h"
#include "adapters/qt/choosers/variable_table.h"
#include "adapters/qt/controls/control_view.h"
#include "adapters/qt/controls/plain_label.h"

namespace hx::qt {

/// The project's variables with check marks, below a search field. Space checks or unchecks all selected rows as the
/// current one. What is checked lives in the model of the control alone.
class MultiItemsView : public ControlView {
  public:
    /// Throws automation::Error when the variables cannot be read.
    MultiItemsView(forms::HXMultiItems& items, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return panel_; }
    void detach() override;

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] QString accessibleName() const override { return {}; }

  private:
    void name(const forms::HXMultiItems& items);
    void arrange();
    void search();
    void toggle();
    void showCount();

    const Wording& wording_;
    QWidget panel_;
    QVBoxLayout column_{&panel_};
    QHBoxLayout searchRow_;
    PlainLabel searchLabel_;
    QLineEdit searchField_;
    QCheckBox onlyChecked_;
    MultiItemsModel model_;
    VariableTable table_;
    PlainLabel count_;
};

}  // namespace hx::qt

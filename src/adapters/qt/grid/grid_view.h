// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "adapters/qt/controls/control_view.h"
#include "adapters/qt/grid/grid_model.h"
#include "adapters/qt/grid/grid_pane.h"
#include "adapters/qt/grid/grid_selection.h"
#include "forms/grid.h"

namespace hx::qt {

/// Shows a grid in one table, or in two beside each other while split 0 has a width. The widget is called as the
/// control, its tables in addition ".Splits(0)" and ".Splits(1)".
class GridView : public ControlView {
  public:
    GridView(forms::Grid& grid, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return box_; }
    void layOut() override;
    void settle() override;
    void containerResized() override { layOut(); }
    void detach() override;

    // --- what a table reports
    void headClicked(int column);
    void columnMoved(int column, int order);
    void columnResized(int column, int pixels);
    void buttonClicked(const QModelIndex& cell);
    void editorOpened(QLineEdit& editor);
    void editorClosed();
    void reportMouse(const QMouseEvent& event, QWidget& part);
    void reportMenuKey(GridPane& pane);
    /// Leaves the rows that were edited as they were stored.
    void giveUpEdit();
    [[nodiscard]] int pixels(double twips) const { return units().pixels(twips); }
    /// From a failure until the user has been told of it.
    [[nodiscard]] bool telling() const noexcept { return telling_; }

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] std::vector<std::string_view> ownProperties() const override { return {"SortText"}; }
    [[nodiscard]] QString accessibleName() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] forms::Grid* grid() const noexcept { return modelOf<forms::Grid>(*this); }
    [[nodiscard]] std::vector<GridPane*> panes() const;
    void addPane(std::unique_ptr<GridPane>& pane, int split);
    void subscribe();
    void followColumns();
    void rowsChanged();
    void currentCellChanged();
    void layOutColumns();
    void place();
    void placeInTabOrder(GridPane& left);
    void repaint();
    void report(const automation::Error& error);
    void tell(const automation::Error& error);
    void goOn();
    [[nodiscard]] Qt::FocusPolicy focusPolicy(const GridPane& pane) const;
    [[nodiscard]] bool claims(const QKeyEvent& event) const;
    void reportLater(const QMouseEvent& event, const QWidget& editor);
    [[nodiscard]] forms::GridHit hitTest(double x, double y) const;

    QWidget box_;
    GridModel model_;
    GridSelection selection_;
    std::unique_ptr<GridPane> right_, left_;
    bool telling_ = false;
    std::vector<forms::Subscription> subscriptions_, columnChanges_;
};

}  // namespace hx::qt

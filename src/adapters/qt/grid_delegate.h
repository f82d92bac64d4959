#pragma once

#include <QIcon>
#include <QStyledItemDelegate>
#include <map>
#include <string>

#include "adapters/qt/grid_model.h"

namespace hx::qt {

/// Paints the cells of a grid and makes their editors. A cell button stands at the right end of its column's cell in
/// the current row and in the row under the mouse.
class GridDelegate : public QStyledItemDelegate {
  public:
    explicit GridDelegate(GridModel& model) : model_(model) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    [[nodiscard]] bool hasButton(const QModelIndex& index) const;
    [[nodiscard]] static QRect buttonRect(const QRect& cell);
    /// The row under the mouse, -1 for none; the button that is held down.
    void setHoveredRow(int row) noexcept { hoveredRow_ = row; }
    [[nodiscard]] int hoveredRow() const noexcept { return hoveredRow_; }
    void setPressed(const QModelIndex& index) { pressed_ = index; }

  private:
    void paintButton(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    [[nodiscard]] QIcon pictureOf(const forms::Column& column) const;
    GridModel& model_;
    mutable std::map<std::string, QIcon> pictures_;  // by their SVG text
    QPersistentModelIndex pressed_;
    int hoveredRow_ = -1;
};

}  // namespace hx::qt

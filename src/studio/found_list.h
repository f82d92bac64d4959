// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <QTreeView>
#include <functional>
#include <memory>

#include "studio/place.h"

namespace hx::studio {

/// What a list of things in the project shows, in groups. Texts are asked for when they are shown.
class FoundThings {
  public:
    virtual ~FoundThings() = default;
    [[nodiscard]] virtual std::size_t groups() const = 0;
    /// The number of the first thing of a group; of group groups(), how many there are.
    [[nodiscard]] virtual std::size_t firstOf(std::size_t group) const = 0;
    [[nodiscard]] virtual QString title(std::size_t group) const = 0;
    [[nodiscard]] virtual QString text(std::size_t thing, int column) const = 0;
    [[nodiscard]] virtual QString toolTip(std::size_t thing) const = 0;
    [[nodiscard]] virtual Place place(std::size_t thing) const = 0;
    [[nodiscard]] virtual Place placeOfGroup(std::size_t /*group*/) const { return {}; }

    [[nodiscard]] std::size_t size() const { return firstOf(groups()); }
};

/// The groups, and in each of them its things.
class FoundModel : public QAbstractItemModel {
  public:
    explicit FoundModel(int columns) : columns_(columns) {}

    /// Null for nothing.
    void setThings(std::shared_ptr<const FoundThings> things);
    [[nodiscard]] const FoundThings* things() const noexcept { return things_.get(); }
    void setTitles(const QStringList& titles);
    /// The texts are others now.
    void refresh();
    [[nodiscard]] Place place(const QModelIndex& index) const;
    /// The thing, or all of the group: the first and the one behind the last.
    [[nodiscard]] std::pair<std::size_t, std::size_t> thingsIn(const QModelIndex& index) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& = {}) const override { return columns_; }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    static constexpr quintptr ofGroup = 0;  // else one more than the number of the group that it lies in
    [[nodiscard]] std::size_t thingOf(const QModelIndex& index) const;

    int columns_;
    std::shared_ptr<const FoundThings> things_;
    QStringList titles_;
};

/// Shows them as a tree. A click goes to the place, a double click or Enter goes into it.
class FoundView : public QTreeView {
  public:
    /// `into`: the keyboard goes along.
    using GoTo = std::function<void(const Place& place, bool into)>;
    /// The model is lent.
    FoundView(FoundModel& model, GoTo goTo);
    /// The things that are selected, or whose group is, in ascending order.
    [[nodiscard]] std::vector<std::size_t> selected() const;
    /// Opens the groups unless there is too much in them.
    void showAll();

  private:
    FoundModel& model_;
};

/// A field with what is said of the list beside it, above the list.
void arrangeList(QWidget& panel, QWidget& field, QWidget& state, FoundView& list);

}  // namespace hx::studio

// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/jet/space.h"
#include "adapters/jet/table_definition.h"

namespace hx::jet {

struct IndexKind {
    bool unique = false, primary = false, ignoresNulls = false;
};

/// Columns and indexes of a table that is to be made. Numbers and places are given when it is.
class TablePlan {
  public:
    explicit TablePlan(std::string name) { definition_.name = std::move(name); }

    TablePlan& column(std::string name, ColumnType type, std::uint16_t characters = 0);
    TablePlan& counter(std::string name);
    /// The value for new rows of the column that was named last, as an expression.
    TablePlan& standard(std::string expression);
    TablePlan& required();
    TablePlan& index(std::string name, std::initializer_list<std::string_view> columns, IndexKind kind = {});

    [[nodiscard]] const TableDefinition& definition() const noexcept { return definition_; }

    /// Writes the definition; the pages get their numbers. `page` is one of zeros that is the table's.
    void write(Pages& pages, Space& space, const PageRef& page, bool isSystem);

  private:
    void place();
    void makeMaps(Pages& pages, Space& space, std::uint32_t page);
    [[nodiscard]] Buffer bytes(bool isSystem) const;

    TableDefinition definition_;
};

}  // namespace hx::jet

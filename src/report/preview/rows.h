// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "report/preview/row.h"
#include "report/report.h"

namespace hx::report {

/// Sets the parts of a report as rows of a width. Long parts are set in blocks, so that few rows are there at a time.
class RowMaker {
  public:
    /// So many lines of the contents or variables of a recipe are in a block; whole rows, in any number of columns.
    static constexpr std::size_t blockSize = 600;

    /// The report and the faces are lent.
    RowMaker(const Report& report, const Faces& faces, double width);

    /// Title, summary, findings and contents: the block that begins with the line `first` of the contents.
    [[nodiscard]] std::vector<Row> front(std::size_t first) const;
    /// The block of a recipe's section that begins with the variable `first`.
    [[nodiscard]] std::vector<Row> section(std::size_t recipe, std::size_t first) const;

  private:
    using Rows = std::vector<Row>;
    void addTitle(Rows& rows, std::size_t recipe) const;
    void addHeading(Rows& rows, const QString& text) const;
    void addNote(Rows& rows, Text text) const;
    void addProperties(Rows& rows, const std::vector<Property>& properties) const;
    void addFindings(Rows& rows) const;
    void addHeadingOfContents(Rows& rows) const;
    void addContents(Rows& rows, std::size_t first) const;
    void addSwitches(Rows& rows, const Section& section) const;
    void addVariables(Rows& rows, std::size_t recipe, std::size_t first) const;
    /// In how many columns the variables of a recipe stand.
    [[nodiscard]] std::size_t columnsOf(std::size_t recipe) const;
    void addTree(Rows& rows, const project::Tree& tree) const;
    [[nodiscard]] Row branchRow(const project::Branch& branch, const std::vector<bool>& goesOn) const;
    void addUses(Rows& rows, const project::Uses& uses, std::size_t self) const;
    void addUse(Row& row, double x, double width, std::size_t user, std::size_t self) const;
    [[nodiscard]] Cell text(double x, double width, const QString& text, const Face& face, Tone tone = Tone::ink) const;
    /// The page of a recipe at the right edge, or at the end of another place.
    [[nodiscard]] Cell page(std::size_t recipe) const;
    [[nodiscard]] Cell page(std::size_t recipe, double x, double width) const;

    const Report& report_;
    const Texts& texts_;
    const Faces& faces_;
    double width_;
    mutable std::optional<std::size_t> measured_;  // the recipe whose columns_ are known
    mutable std::size_t columns_ = 1;
};

}  // namespace hx::report

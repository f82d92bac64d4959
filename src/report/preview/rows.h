#pragma once

#include <vector>

#include "report/preview/row.h"
#include "report/report.h"

namespace hx::report {

/// Sets the parts of a report as rows of a width.
class RowMaker {
  public:
    /// The report and the faces are lent.
    RowMaker(const Report& report, const Faces& faces, double width);

    /// Title, summary, findings and contents.
    [[nodiscard]] std::vector<Row> front() const;
    [[nodiscard]] std::vector<Row> section(std::size_t recipe) const;

  private:
    using Rows = std::vector<Row>;
    void addTitle(Rows& rows, std::size_t recipe) const;
    void addHeading(Rows& rows, const QString& text) const;
    void addNote(Rows& rows, Text text) const;
    void addProperties(Rows& rows, const std::vector<Property>& properties) const;
    void addFindings(Rows& rows) const;
    void addContents(Rows& rows) const;
    void addSwitches(Rows& rows, const Section& section) const;
    void addVariables(Rows& rows, const project::RecipeData& recipe) const;
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
};

}  // namespace hx::report

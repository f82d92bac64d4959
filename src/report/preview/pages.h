#pragma once

#include <QPainter>
#include <QSizeF>
#include <optional>
#include <vector>

#include "report/preview/rows.h"
#include "report/report.h"

namespace hx::report {

/// A report on pages of one size. It knows where each page begins; what stands on a page is set when it is drawn.
class Pages {
  public:
    /// The report is lent. The size is that of the paper in twips.
    Pages(const Report& report, const QSizeF& paper);
    Pages(const Pages&) = delete;
    Pages& operator=(const Pages&) = delete;

    [[nodiscard]] int count() const noexcept { return static_cast<int>(starts_.size()); }
    [[nodiscard]] const QSizeF& paper() const noexcept { return paper_; }
    /// Draws a page, 0-based, on white; the painter's unit is one twip, its origin the corner of the paper.
    void paint(QPainter& painter, int page) const;
    /// The page on which a recipe begins.
    [[nodiscard]] int pageOf(std::size_t recipe) const { return places_[recipe].page; }
    /// Where on that page it begins, in twips from the top.
    [[nodiscard]] double topOf(std::size_t recipe) const { return places_[recipe].top; }
    /// The recipe that stands at the top of a page; none before the first one.
    [[nodiscard]] std::optional<std::size_t> recipeAt(int page) const;
    /// The recipe that the text at a point of a page leads to.
    [[nodiscard]] std::optional<std::size_t> targetAt(int page, const QPointF& point) const;

  private:
    /// A row of a part: 0 is the front, part n the section of recipe n - 1.
    struct Start {
        std::size_t part, row;
    };
    struct Place {
        int page;
        double top;
    };
    /// Calls `use` with each row of a page and its top edge.
    template <class Use>
    void forEachRow(int page, Use use) const;
    void place(std::size_t part);
    [[nodiscard]] const std::vector<Row>& rowsOf(std::size_t part) const;
    void paintFrame(QPainter& painter, int page) const;
    void paintRow(QPainter& painter, const Row& row, double top) const;
    void paintCell(QPainter& painter, const Cell& cell, const Row& row, double top) const;
    [[nodiscard]] double bottom() const;

    const Report& report_;
    QSizeF paper_;
    Faces faces_;
    RowMaker maker_;
    std::vector<Row> front_;
    std::vector<Start> starts_;
    std::vector<Place> places_;  // of the recipes
    double y_ = 0;               // while the rows are placed
    mutable std::vector<Row> section_;
    mutable std::size_t sectionPart_ = 0;
};

}  // namespace hx::report

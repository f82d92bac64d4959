// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractScrollArea>
#include <functional>

#include "report/preview/pages.h"

namespace hx::report {

/// Shows pages one below the other, at any zoom. Only the pages in sight are drawn.
class PageView : public QAbstractScrollArea {
  public:
    enum class Fit { none, width, page };
    static constexpr double smallest = 0.1, largest = 5;

    /// The pages are lent.
    PageView(const Pages& pages, QWidget* parent);

    /// 1 is the size on paper. What stands at the top stays there.
    void setZoom(double zoom);
    /// Follows the size of the view from now on. Fit::page shows one page as a whole.
    void setFit(Fit fit);
    [[nodiscard]] double zoom() const noexcept { return zoom_; }
    [[nodiscard]] Fit fit() const noexcept { return fit_; }
    /// The next larger or smaller of the usual zooms.
    void zoomStep(int direction);

    /// The page that takes up the middle of the view, 0-based.
    [[nodiscard]] int page() const;
    /// Shows the top of a page; beyond the ends the first or the last.
    void showPage(int page);
    /// Shows where a recipe begins, at the top: as soon as that is known, if it is not yet and nothing else is shown
    /// before.
    void showRecipe(std::size_t recipe);
    [[nodiscard]] bool awaitsRecipe() const noexcept { return awaited_.has_value(); }
    /// Brings a row into sight and marks it; none marks nothing.
    void showMatch(const std::optional<Pages::Match>& match);
    [[nodiscard]] const std::optional<Pages::Match>& match() const noexcept { return match_; }
    /// There are more pages, or all of them.
    void pagesChanged();

    /// Called when page() or the zoom may have changed.
    std::function<void()> changed;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    [[nodiscard]] double scale() const;  ///< pixels of a twip
    [[nodiscard]] QSize pageSize() const;
    [[nodiscard]] int pitch() const;  ///< from one page to the next
    [[nodiscard]] QRect pageRect(int page) const;
    [[nodiscard]] std::optional<std::size_t> targetAt(const QPoint& point) const;
    void applyFit();
    void layOut();
    void applyZoom(double zoom);
    void paintPage(QPainter& painter, int page);

    const Pages& pages_;
    double zoom_ = 1;
    Fit fit_ = Fit::width;
    std::optional<std::size_t> awaited_;  // the recipe to be shown
    std::optional<Pages::Match> match_;
};

}  // namespace hx::report

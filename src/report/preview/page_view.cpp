// SPDX-License-Identifier: MIT
#include "report/preview/page_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cmath>

#include "report/preview/face.h"

namespace hx::report {

namespace {

constexpr int gap = 18, shadow = 4;
const QColor matchColor(0xff, 0xe0, 0x82);  // on paper, which is white whatever the desktop is
constexpr std::array usualZooms = {0.25, 0.33, 0.5, 0.67, 0.75, 0.9, 1.0, 1.1, 1.25, 1.5, 2.0, 3.0, 4.0};

}  // namespace

PageView::PageView(const Pages& pages, QWidget* parent) : QAbstractScrollArea(parent), pages_(pages) {
    setObjectName(QStringLiteral("reportPages"));
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // a bar that comes and goes would change the page width
    viewport()->setMouseTracking(true);
    viewport()->setBackgroundRole(QPalette::Dark);
}

double PageView::scale() const { return zoom_ * logicalDpiX() / twipsPerInch; }

QSize PageView::pageSize() const { return (pages_.paper() * scale()).toSize(); }

int PageView::pitch() const { return pageSize().height() + gap; }

QRect PageView::pageRect(int page) const {
    const QSize size = pageSize();
    const int room = viewport()->width() - size.width();
    const int x = room >= 2 * gap ? room / 2 : gap - horizontalScrollBar()->value();
    return {QPoint(x, gap + page * pitch() - verticalScrollBar()->value()), size};
}

int PageView::page() const {
    const int middle = verticalScrollBar()->value() + viewport()->height() / 2;
    return std::clamp((middle - gap / 2) / pitch(), 0, pages_.count() - 1);
}

void PageView::showPage(int page) {
    awaited_.reset();
    verticalScrollBar()->setValue(std::clamp(page, 0, pages_.count() - 1) * pitch());
    if (changed) changed();
}

void PageView::showRecipe(std::size_t recipe) {
    awaited_ = pages_.knows(recipe) ? std::nullopt : std::optional(recipe);
    if (awaited_) {
        if (changed) changed();
        return;
    }
    const auto top = static_cast<int>(pages_.topOf(recipe) * scale());
    verticalScrollBar()->setValue(pages_.pageOf(recipe) * pitch() + top);
    if (changed) changed();
}

void PageView::showMatch(const std::optional<Pages::Match>& match) {
    match_ = match;
    viewport()->update();
    if (!match) return;
    const int top = match->page * pitch() + gap + static_cast<int>(match->top * scale());
    const int bottom = top + static_cast<int>(match->height * scale());
    const int above = verticalScrollBar()->value(), room = viewport()->height();
    if (top < above || bottom > above + room) verticalScrollBar()->setValue(top - room / 3);
    if (changed) changed();
}

void PageView::pagesChanged() {
    const bool endInSight = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    layOut();
    // What is shown refers to pages, and says how many there are.
    if (endInSight || pages_.complete()) viewport()->update();
    if (awaited_ && pages_.knows(*awaited_)) showRecipe(*awaited_);
    else if (changed) changed();
}

void PageView::setZoom(double zoom) {
    fit_ = Fit::none;
    applyZoom(zoom);
}

void PageView::setFit(Fit fit) {
    const int shown = page();
    fit_ = fit;
    applyFit();
    if (fit == Fit::page) showPage(shown);
}

void PageView::zoomStep(int direction) {
    constexpr double little = 0.005;
    if (direction > 0) {
        const auto next = std::ranges::find_if(usualZooms, [&](double zoom) { return zoom > zoom_ + little; });
        setZoom(next == usualZooms.end() ? zoom_ : *next);
    } else {
        const auto next =
            std::find_if(usualZooms.rbegin(), usualZooms.rend(), [&](double zoom) { return zoom < zoom_ - little; });
        setZoom(next == usualZooms.rend() ? zoom_ : *next);
    }
}

void PageView::applyFit() {
    if (fit_ == Fit::none) return layOut();
    const double perTwip = logicalDpiX() / twipsPerInch;
    const double width = (viewport()->width() - 2 * gap) / (pages_.paper().width() * perTwip);
    const double height = (viewport()->height() - 2 * gap) / (pages_.paper().height() * perTwip);
    applyZoom(fit_ == Fit::width ? width : std::min(width, height));
}

void PageView::applyZoom(double zoom) {
    const double place = static_cast<double>(verticalScrollBar()->value()) / pitch();
    zoom_ = std::clamp(zoom, smallest, largest);
    layOut();
    verticalScrollBar()->setValue(static_cast<int>(std::lround(place * pitch())));
    viewport()->update();
    if (changed) changed();
}

void PageView::layOut() {
    const QSize room = viewport()->size();
    verticalScrollBar()->setRange(0, std::max(0, gap + pages_.count() * pitch() - room.height()));
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setRange(0, std::max(0, pageSize().width() + 2 * gap - room.width()));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setSingleStep(40);
}

void PageView::resizeEvent(QResizeEvent*) { applyFit(); }

void PageView::scrollContentsBy(int, int) {
    awaited_.reset();
    viewport()->update();
    if (changed) changed();
}

void PageView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().color(QPalette::Mid));
    const int above = verticalScrollBar()->value() + event->rect().top() - gap;
    for (int page = std::max(0, above / pitch()); page < pages_.count(); ++page) {
        if (pageRect(page).top() > event->rect().bottom()) break;
        paintPage(painter, page);
    }
}

void PageView::paintPage(QPainter& painter, int page) {
    const QRect rect = pageRect(page);
    painter.fillRect(rect.translated(shadow, shadow), QColor(0, 0, 0, 40));
    painter.fillRect(rect, Qt::white);
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setClipRect(rect);
    painter.translate(rect.topLeft());
    painter.scale(scale(), scale());
    if (match_ && match_->page == page)
        painter.fillRect(QRectF(0, match_->top, pages_.paper().width(), match_->height), matchColor);
    pages_.paint(painter, page);
    painter.restore();
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect.adjusted(-1, -1, 0, 0));
}

void PageView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Home: return showPage(0);
        case Qt::Key_End: return verticalScrollBar()->setValue(verticalScrollBar()->maximum());
        case Qt::Key_Space:
            return verticalScrollBar()->triggerAction(event->modifiers() & Qt::ShiftModifier
                                                          ? QAbstractSlider::SliderPageStepSub
                                                          : QAbstractSlider::SliderPageStepAdd);
        default: QAbstractScrollArea::keyPressEvent(event);
    }
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
    if (event->angleDelta().y() != 0) zoomStep(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

std::optional<std::size_t> PageView::targetAt(const QPoint& point) const {
    const int page = std::clamp((point.y() + verticalScrollBar()->value() - gap) / pitch(), 0, pages_.count() - 1);
    const QRect rect = pageRect(page);
    if (!rect.contains(point)) return std::nullopt;
    return pages_.targetAt(page, QPointF(point - rect.topLeft()) / scale());
}

void PageView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    if (const auto target = targetAt(event->position().toPoint())) showRecipe(*target);
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
    const bool link = targetAt(event->position().toPoint()).has_value();
    viewport()->setCursor(link ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

}  // namespace hx::report

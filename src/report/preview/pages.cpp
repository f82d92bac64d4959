// SPDX-License-Identifier: MIT
#include "report/preview/pages.h"

#include <algorithm>

#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"

namespace hx::report {

using qt::toQt;

namespace {

constexpr double twipsPerMillimetre = twipsPerInch / 25.4;
constexpr double left = 20 * twipsPerMillimetre, right = 15 * twipsPerMillimetre;
constexpr double top = 22 * twipsPerMillimetre, below = 20 * twipsPerMillimetre;
constexpr double headerLine = 16 * twipsPerMillimetre, footerLine = 15 * twipsPerMillimetre;
constexpr double hairline = 8, titleMark = 60;

QColor colorOf(Tone tone) {
    switch (tone) {
        case Tone::muted: return {0x5b, 0x6b, 0x7b};
        case Tone::accent: return {0x1f, 0x5c, 0x8b};
        case Tone::warning: return {0x9a, 0x34, 0x12};
        default: return {0x1d, 0x27, 0x33};
    }
}

const QColor lineColor(0xd5, 0xdd, 0xe5), guideColor(0xa9, 0xb7, 0xc4), fillColor(0xee, 0xf4, 0xf9);

// The rows from `first` on that no page break may part.
std::size_t blockEnd(const std::vector<Row>& rows, std::size_t first) {
    while (rows[first].keepsNext && first + 1 < rows.size()) ++first;
    return first + 1;
}

double heightOf(const std::vector<Row>& rows, std::size_t first, std::size_t end) {
    double height = 0;
    for (std::size_t i = first; i < end; ++i) height += rows[i].height + (i == first ? 0 : rows[i].before);
    return height;
}

void paintCheck(QPainter& painter, const CheckMark& check, double middle) {
    constexpr double size = 150;
    const QRectF box(check.x + 20, middle - size / 2, size, size);
    painter.setPen(QPen(colorOf(check.on ? Tone::accent : Tone::muted), 12));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box);
    if (!check.on) return;
    painter.setPen(QPen(colorOf(Tone::accent), 26));
    painter.drawPolyline(
        QPolygonF({box.topLeft() + QPointF(size * 0.2, size * 0.52), box.topLeft() + QPointF(size * 0.42, size * 0.76),
                   box.topLeft() + QPointF(size * 0.82, size * 0.22)}));
}

}  // namespace

Pages::Pages(const Report& report, const QSizeF& paper)
    : report_(report), paper_(paper), maker_(report, faces_, paper.width() - left - right), y_(top) {
    const std::vector<project::RecipeData>& recipes = report.recipes();
    places_.reserve(recipes.size());
    addParts({}, recipes.size());
    for (std::size_t i = 0; i < recipes.size(); ++i) addParts(i, recipes[i].variables.size());
    starts_.push_back({0, 0});
    while (!complete() && count() == 0) layOutPart();
}

void Pages::addParts(std::optional<std::size_t> recipe, std::size_t lines) {
    std::size_t first = 0;
    do parts_.push_back({recipe, first});
    while ((first += RowMaker::blockSize) < lines);
}

double Pages::bottom() const { return paper_.height() - below; }

void Pages::layOutPart() {
    const std::size_t part = laidOut_++;
    const std::vector<Row>& rows = rowsOf(part);
    const bool section = parts_[part].recipe.has_value() && parts_[part].first == 0;
    for (std::size_t row = 0; row < rows.size();) {
        std::size_t end = blockEnd(rows, row);
        // What is higher than half a page is parted all the same.
        while (end > row + 1 && heightOf(rows, row, end) > (bottom() - top) / 2) --end;
        const double before = y_ > top ? rows[row].before : 0, height = heightOf(rows, row, end);
        const bool behindFront = section && places_.empty();  // the recipes begin on a page of their own
        if (behindFront || (y_ > top && y_ + before + height > bottom())) {
            starts_.push_back({part, row});
            y_ = top + height;
        } else {
            y_ += before + height;
        }
        if (section && row == 0) places_.push_back({static_cast<int>(starts_.size()) - 1, y_ - height});
        row = end;
    }
}

const std::vector<Row>& Pages::rowsOf(std::size_t part) const {
    if (part != rowsPart_) {
        const auto& [recipe, first] = parts_[part];
        rows_ = recipe ? maker_.section(*recipe, first) : maker_.front(first);
        rowsPart_ = part;
    }
    return rows_;
}

template <class Use>
void Pages::forEachRow(int page, Use use) const {
    const auto number = static_cast<std::size_t>(page);
    Start at = starts_[number];
    const Start end = number + 1 < starts_.size() ? starts_[number + 1] : Start{laidOut_, 0};
    double y = top;
    for (; at.part < end.part || (at.part == end.part && at.row < end.row); at = {at.part + 1, 0}) {
        const std::vector<Row>& rows = rowsOf(at.part);
        const std::size_t last = at.part == end.part ? end.row : rows.size();
        for (; at.row < last; ++at.row) {
            const Row& row = rows[at.row];
            if (y > top) y += row.before;
            use(row, y);
            y += row.height;
        }
    }
}

std::optional<std::size_t> Pages::recipeAt(int page) const {
    return parts_[starts_[static_cast<std::size_t>(page)].part].recipe;
}

std::optional<std::size_t> Pages::targetAt(int page, const QPointF& point) const {
    std::optional<std::size_t> target;
    forEachRow(page, [&](const Row& row, double y) {
        if (point.y() < y || point.y() >= y + row.height) return;
        for (const Cell& cell : row.cells) {
            const double x = point.x() - left - cell.x;
            if (x >= 0 && x < cell.width && cell.target) target = cell.target;
        }
    });
    return target;
}

std::vector<Pages::Match> Pages::matchesOn(int page, const QString& text) const {
    std::vector<Match> matches;
    int number = 0;
    forEachRow(page, [&](const Row& row, double y) {
        const bool found = std::ranges::any_of(row.cells, [&](const Cell& cell) {
            return cell.lines.join(QLatin1Char(' ')).contains(text, Qt::CaseInsensitive);
        });
        if (found) matches.push_back({page, number, y, row.height});
        ++number;
    });
    return matches;
}

void Pages::paint(QPainter& painter, int page) const {
    paintFrame(painter, page);
    forEachRow(page, [&](const Row& row, double y) { paintRow(painter, row, y); });
}

// What stands around the text of every page.
void Pages::paintFrame(QPainter& painter, int page) const {
    const double end = paper_.width() - right, footer = paper_.height() - footerLine;
    const Texts& texts = report_.texts();
    const auto recipe = recipeAt(page);
    painter.setFont(faces_.small.font());
    painter.setPen(colorOf(Tone::muted));
    const auto put = [&](const QString& text, double y, Qt::Alignment side) {
        painter.drawText(QRectF(left, y, end - left, faces_.small.lineHeight()), Qt::TextSingleLine | int(side), text);
    };
    const double headerText = headerLine - faces_.small.lineHeight() - 40;
    const QFontMetricsF metrics(faces_.small.font());
    const auto half = [&](const QString& text) {
        return metrics.elidedText(text, Qt::ElideRight, (end - left) * 0.48);
    };
    put(half(toQt(report_.fullTitle())), headerText, Qt::AlignLeft);
    if (recipe) put(half(toQt(report_.nameOf(*recipe))), headerText, Qt::AlignRight);
    put(toQt(report_.created()), footer + 60, Qt::AlignLeft);
    const QString pages = complete() ? QString::number(count()) : QStringLiteral("…");
    put(qt::Wording(texts.wording()).translate("report", "Page %1 of %2").arg(page + 1).arg(pages), footer + 60,
        Qt::AlignRight);
    painter.setPen(QPen(lineColor, hairline));
    painter.drawLine(QLineF(left, headerLine, end, headerLine));
    painter.drawLine(QLineF(left, footer, end, footer));
}

void Pages::paintRow(QPainter& painter, const Row& row, double y) const {
    const double width = paper_.width() - left - right;
    painter.save();
    painter.translate(left, 0);
    if (row.filled) {
        painter.fillRect(QRectF(0, y, width, row.height), fillColor);
        painter.fillRect(QRectF(0, y, titleMark, row.height), colorOf(Tone::accent));
    }
    painter.setPen(QPen(row.ruled ? lineColor : guideColor, hairline));
    if (row.ruled) painter.drawLine(QLineF(0, y + row.height, width, y + row.height));
    for (const QLineF& line : row.lines) painter.drawLine(line.translated(0, y));
    for (const CheckMark& check : row.checks) paintCheck(painter, check, y + faces_.body.lineHeight() / 2);
    for (const Cell& cell : row.cells) paintCell(painter, cell, row, y);
    painter.restore();
}

void Pages::paintCell(QPainter& painter, const Cell& cell, const Row& row, double y) const {
    if (cell.pageOf && !knows(*cell.pageOf)) return;
    const Face& face = *cell.face;
    painter.setFont(face.font());
    painter.setPen(colorOf(cell.tone));
    // Smaller texts stand on the line of the first one.
    const Cell& first = row.cells.front();
    const double base = first.y == cell.y ? std::max(first.face->ascent(), face.ascent()) : face.ascent();
    double baseline = y + cell.y + base;
    for (QString line : cell.lines) {
        if (cell.pageOf) line = line.arg(pageOf(*cell.pageOf) + 1);
        const double x = cell.right ? cell.x + cell.width - face.width(line) : cell.x;
        painter.drawText(QPointF(x, baseline), line);
        baseline += face.lineHeight();
    }
    if (!row.dotted || !cell.pageOf) return;
    // From the end of the name to the number.
    const Cell& name = row.cells[1];
    const double from = name.x + name.face->width(name.lines.constLast()) + 100;
    const double to = cell.x + cell.width - face.width(QString::number(pageOf(*cell.pageOf) + 1)) - 100;
    const double at = y + name.face->ascent() + static_cast<double>(name.lines.size() - 1) * name.face->lineHeight();
    QPen dots(guideColor, 18, Qt::DotLine, Qt::RoundCap);
    dots.setDashPattern({0.1, 4});
    painter.setPen(dots);
    if (from < to) painter.drawLine(QLineF(from, at, to, at));
}

}  // namespace hx::report

// SPDX-License-Identifier: MIT
#include "report/preview/rows.h"

#include <algorithm>
#include <cmath>

#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"
#include "resources/text_ids.h"

namespace hx::report {

using qt::toQt;

namespace {

constexpr double captionWidth = 3000, gap = 160, pageWidth = 900, useWidth = 620, padding = 60;
constexpr double indent = 200, checkWidth = 280;
constexpr qsizetype mostLines = 24;  // a text with more goes on in a row of its own, so that every row fits on a page
const QString unset = QStringLiteral("–");

// The height that holds all cells.
void fit(Row& row, double space) {
    for (const Cell& cell : row.cells) {
        const double lines = static_cast<double>(cell.lines.size()) * cell.face->lineHeight();
        row.height = std::max(row.height, cell.y + lines + space);
    }
}

// A row whose last text may have more lines than a page has room for.
void addTall(std::vector<Row>& rows, Row row) {
    QStringList rest = row.cells.back().lines;
    while (rest.size() > mostLines) {
        Row part = row;
        part.ruled = false;
        part.cells.back().lines = rest.mid(0, mostLines);
        rest.remove(0, mostLines);
        fit(part, 0);
        rows.push_back(std::move(part));
        row.cells.erase(row.cells.begin(), row.cells.end() - 1);
    }
    row.cells.back().lines = rest;
    fit(row, padding);
    rows.push_back(std::move(row));
}

}  // namespace

RowMaker::RowMaker(const Report& report, const Faces& faces, double width)
    : report_(report), texts_(report.texts()), faces_(faces), width_(width) {}

Cell RowMaker::text(double x, double width, const QString& text, const Face& face, Tone tone) const {
    return {.x = x, .width = width, .lines = face.lines(text, width), .face = &face, .tone = tone};
}

Cell RowMaker::page(std::size_t recipe) const { return page(recipe, width_ - pageWidth, pageWidth); }

Cell RowMaker::page(std::size_t recipe, double x, double width) const {
    return {.x = x,
            .width = width,
            .lines = {qt::Wording(texts_.wording()).translate("report", "p. %1")},
            .face = &faces_.small,
            .tone = Tone::muted,
            .right = true,
            .target = recipe,
            .pageOf = recipe};
}

std::vector<Row> RowMaker::front(std::size_t first) const {
    Rows rows;
    if (first > 0) {
        addContents(rows, first);
        return rows;
    }
    Row title{.keepsNext = true};
    title.cells.push_back(text(0, width_, toQt(texts_.text(Text::title)), faces_.title, Tone::accent));
    fit(title, gap);
    rows.push_back(std::move(title));
    addProperties(rows, report_.summary());
    addFindings(rows);
    addHeadingOfContents(rows);
    addContents(rows, first);
    return rows;
}

void RowMaker::addFindings(Rows& rows) const {
    if (report_.findings().empty()) return;
    addHeading(rows, toQt(texts_.text(Text::findings)));
    for (const std::string& finding : report_.findings()) {
        Row row;
        row.cells.push_back(text(0, width_, toQt(finding), faces_.body, Tone::warning));
        fit(row, padding);
        rows.push_back(std::move(row));
    }
}

void RowMaker::addHeadingOfContents(Rows& rows) const {
    Row heading{.before = 2 * gap, .keepsNext = true};
    heading.cells.push_back(text(0, width_, toQt(texts_.text(Text::contents)), faces_.section, Tone::accent));
    fit(heading, gap / 2);
    rows.push_back(std::move(heading));
}

void RowMaker::addContents(Rows& rows, std::size_t first) const {
    const double numberWidth = faces_.body.width(QString::number(report_.recipes().size())) + 2 * gap;
    const double nameWidth = width_ - numberWidth - pageWidth - gap;
    for (std::size_t i = first; i < std::min(first + blockSize, report_.recipes().size()); ++i) {
        Row row{.dotted = true};
        Cell number = text(0, numberWidth - gap, QString::number(i + 1), faces_.body, Tone::muted);
        number.right = true;
        row.cells.push_back(std::move(number));
        row.cells.push_back(text(numberWidth, nameWidth, toQt(report_.nameOf(i)), faces_.body));
        row.cells.back().target = i;
        Cell where = page(i);
        where.face = &faces_.body;
        where.tone = Tone::ink;
        where.lines = {QStringLiteral("%1")};
        row.cells.push_back(std::move(where));
        fit(row, padding / 2);
        rows.push_back(std::move(row));
    }
}

std::vector<Row> RowMaker::section(std::size_t recipe, std::size_t first) const {
    Rows rows;
    const bool begins = first == 0, ends = first + blockSize >= report_.recipes()[recipe].variables.size();
    const Section section = begins || ends ? report_.section(recipe) : Section{};
    if (begins) {
        addTitle(rows, recipe);
        for (const PropertyGroup& group : section.groups) {
            addHeading(rows, toQt(group.caption));
            addProperties(rows, group.properties);
        }
        addSwitches(rows, section);
    }
    addVariables(rows, recipe, first);
    if (ends) {
        addTree(rows, section.tree);
        addUses(rows, section.uses, recipe);
    }
    return rows;
}

void RowMaker::addTitle(Rows& rows, std::size_t recipe) const {
    const bool active = report_.recipes()[recipe].enabled;
    const QString note = active ? QString() : toQt(texts_.text(Text::notActive));
    const QString number = QString::number(recipe + 1);
    const double noteWidth = active ? 0 : faces_.small.width(note) + gap;
    const double start = gap + faces_.section.width(number) + gap;
    Row row{.before = 480, .keepsNext = true, .filled = true};
    row.cells.push_back(text(gap, start, number, faces_.section, Tone::muted));
    row.cells.push_back(text(start, width_ - start - noteWidth - gap, toQt(report_.nameOf(recipe)), faces_.section));
    if (!active) {
        Cell cell = text(width_ - noteWidth - gap, noteWidth, note, faces_.small, Tone::muted);
        cell.right = true;
        row.cells.push_back(std::move(cell));
    }
    for (Cell& cell : row.cells) cell.y = padding;
    fit(row, padding);
    rows.push_back(std::move(row));
}

void RowMaker::addHeading(Rows& rows, const QString& heading) const {
    Row row{.before = gap, .keepsNext = true};
    row.cells.push_back(text(0, width_, heading, faces_.heading, Tone::accent));
    fit(row, padding / 2);
    rows.push_back(std::move(row));
}

void RowMaker::addNote(Rows& rows, Text note) const {
    Row row;
    row.cells.push_back(text(0, width_, toQt(texts_.text(note)), faces_.body, Tone::muted));
    fit(row, padding);
    rows.push_back(std::move(row));
}

void RowMaker::addProperties(Rows& rows, const std::vector<Property>& properties) const {
    for (const Property& property : properties) {
        const bool isSet = !property.value.empty();
        Row row{.ruled = true};
        row.cells.push_back(text(0, captionWidth, toQt(property.caption), faces_.body, Tone::muted));
        row.cells.push_back(text(captionWidth + gap, width_ - captionWidth - gap, isSet ? toQt(property.value) : unset,
                                 faces_.body, isSet ? Tone::ink : Tone::muted));
        for (Cell& cell : row.cells) cell.y = padding / 3;
        addTall(rows, std::move(row));
        rows.back().keepsNext = &property != &properties.back();
    }
}

void RowMaker::addSwitches(Rows& rows, const Section& section) const {
    addHeading(rows, toQt(section.switchesCaption));
    constexpr std::size_t columns = 2;
    const double column = width_ / columns;
    for (std::size_t i = 0; i < section.switches.size(); ++i) {
        if (i % columns == 0) rows.push_back({.keepsNext = i + columns < section.switches.size()});
        Row& row = rows.back();
        const Switch& one = section.switches[i];
        const double x = column * static_cast<double>(i % columns);
        row.checks.push_back({x, one.on});
        row.cells.push_back(text(x + checkWidth, column - checkWidth - gap, toQt(one.caption), faces_.body,
                                 one.on ? Tone::ink : Tone::muted));
        fit(row, padding / 2);
    }
}

std::size_t RowMaker::columnsOf(std::size_t recipe) const {
    if (measured_ == recipe) return columns_;
    double widest = 0;
    for (const std::size_t number : report_.recipes()[recipe].variables)
        widest = std::max(widest, faces_.body.width(toQt(report_.variable(number))));
    constexpr double mostColumns = 3;
    columns_ = static_cast<std::size_t>(std::clamp(std::floor(width_ / (widest + gap)), 1.0, mostColumns));
    measured_ = recipe;
    return columns_;
}

void RowMaker::addVariables(Rows& rows, std::size_t recipe, std::size_t first) const {
    const std::span variables = report_.recipes()[recipe].variables;
    const std::size_t count = variables.size();
    if (first == 0) {
        const QString heading = toQt(texts_.text(Text::variables));
        addHeading(rows, count == 0 ? heading : heading + QStringLiteral(" (%1)").arg(toQt(texts_.number(count))));
        if (count == 0) return addNote(rows, Text::noVariables);
    }
    const std::size_t columns = columnsOf(recipe);
    const double column = width_ / static_cast<double>(columns);
    for (std::size_t i = first; i < std::min(first + blockSize, count); ++i) {
        if (i % columns == 0) rows.push_back({});
        const std::string_view name = report_.variable(variables[i]);
        const double x = column * static_cast<double>(i % columns);
        rows.back().cells.push_back(text(x, column - gap / 2, name.empty() ? unset : toQt(name), faces_.body));
        fit(rows.back(), 0);
    }
}

void RowMaker::addTree(Rows& rows, const project::Tree& tree) const {
    const auto own = std::ranges::count(tree.branches, std::size_t{0}, &project::Branch::depth);
    const QString heading = toQt(texts_.caption(resources::text_id::subRecipes));
    addHeading(rows, own == 0 ? heading : heading + QStringLiteral(" (%1)").arg(own));
    if (own == 0) return addNote(rows, Text::noSubRecipes);
    std::vector<bool> goesOn;
    for (const project::Branch& branch : tree.branches) {
        goesOn.resize(branch.depth);
        rows.push_back(branchRow(branch, goesOn));
        goesOn.push_back(!branch.last);
    }
    if (tree.cut) addNote(rows, Text::subRecipesCut);
}

// `goesOn` tells of each depth above whether more comes below this line.
Row RowMaker::branchRow(const project::Branch& branch, const std::vector<bool>& goesOn) const {
    const double depth = static_cast<double>(branch.depth), start = (depth + 1) * indent;
    const double fileAt = std::max(start + 2400, width_ * 0.56), fileWidth = width_ - pageWidth - fileAt - gap;
    const bool bad = branch.mark == project::BranchMark::cycle || branch.mark == project::BranchMark::missing;
    const QString name = toQt(report_.branchName(branch)), note = toQt(report_.branchNote(branch));
    const double room = fileAt - start - gap;
    Row row;
    row.cells.push_back(text(start, room, name, faces_.body, branch.recipe ? Tone::ink : Tone::warning));
    row.cells.back().target = branch.recipe;
    if (!note.isEmpty()) {
        // Beside the name where there is room, else below it.
        const double after = faces_.body.width(name) + gap;
        const bool beside = row.cells[0].lines.size() == 1 && after + faces_.small.width(note) <= room;
        const double below = static_cast<double>(row.cells[0].lines.size()) * faces_.body.lineHeight();
        Cell cell = text(beside ? start + after : start, beside ? room - after : room, note, faces_.small,
                         bad ? Tone::warning : Tone::muted);
        cell.y = beside ? 0 : below;
        row.cells.push_back(std::move(cell));
    }
    if (const std::string_view file = report_.branchFile(branch); !file.empty()) {
        row.cells.push_back(text(fileAt, fileWidth, toQt(file), faces_.small, Tone::muted));
    }
    if (branch.recipe) row.cells.push_back(page(*branch.recipe));
    fit(row, 0);
    const double middle = faces_.body.lineHeight() / 2, x = depth * indent + indent / 3;
    for (std::size_t level = 0; level < branch.depth; ++level) {
        const double at = static_cast<double>(level) * indent + indent / 3;
        if (goesOn[level]) row.lines.emplace_back(at, 0, at, row.height);
    }
    row.lines.emplace_back(x, 0, x, branch.last ? middle : row.height);
    row.lines.emplace_back(x, middle, start - padding, middle);
    return row;
}

void RowMaker::addUses(Rows& rows, const project::Uses& uses, std::size_t self) const {
    const auto count = uses.list.size();
    const QString heading = toQt(texts_.text(Text::usedIn));
    addHeading(rows, count == 0 ? heading : heading + QStringLiteral(" (%1)").arg(toQt(texts_.number(count))));
    if (count == 0) return addNote(rows, report_.notUsed());
    constexpr std::size_t columns = 2;
    const double between = 3 * gap, column = (width_ - between) / columns;
    for (std::size_t i = 0; i < uses.directCount; ++i) {
        if (i % columns == 0) rows.push_back({});
        addUse(rows.back(), (column + between) * static_cast<double>(i % columns), column, uses.list[i].recipe, self);
    }
    for (const project::Use& use : uses.indirect()) {
        rows.push_back({});
        const std::string through = texts_.text(Text::usedThrough, {report_.nameOf(use.through)});
        addUse(rows.back(), 0, column, use.recipe, self);
        rows.back().cells.push_back(text(column + between, column, toQt(through), faces_.small, Tone::muted));
        fit(rows.back(), 0);
    }
    if (uses.cut) addNote(rows, Text::usesCut);
}

void RowMaker::addUse(Row& row, double x, double width, std::size_t user, std::size_t self) const {
    const QString cycle = user == self ? toQt(texts_.text(Text::branchCycle)) : QString();
    const double cycleWidth = user == self ? faces_.small.width(cycle) + gap : 0;
    const double room = width - useWidth - gap - cycleWidth;
    const QString name = toQt(report_.nameOf(user));
    row.cells.push_back(text(x, room, name, faces_.body));
    row.cells.back().target = user;
    if (user == self) {
        const double after = std::min(room, faces_.body.width(name)) + gap;
        row.cells.push_back(text(x + after, cycleWidth, cycle, faces_.small, Tone::warning));
    }
    row.cells.push_back(page(user, x + width - useWidth, useWidth));
    fit(row, 0);
}

}  // namespace hx::report

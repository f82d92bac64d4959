// SPDX-License-Identifier: MIT
#include "gui/demo_form.h"

#include <algorithm>
#include <array>

namespace hx::gui {

DemoForm::DemoForm(forms::Screen& screen)
    : Form("demo", screen),
      database_(provider_.add("demo.hxs")),
      connection_(std::make_shared<ado::Connection>(faulty_)),
      rows_(std::make_shared<ado::Recordset>()) {
    setCaption("Demo");
    move(0, 0, 9000, 6000);
    abr = add<forms::Bar>("abr");
    tools = add<forms::ToolBar>("tools");
    grid = add<forms::Grid>("grid");
    split = add<forms::PictureBox>("split");
    sb = add<forms::StatusBar>("sb", std::size_t{3});
    split->move(0, 0, 60, 1000);
    forms::Band& main = abr->addBand("main");
    abr->setMainBand("main");
    forms::Tool& file = main.add("mnuEdit", forms::ToolKind::menu);
    file.setCaption("&Bearbeiten");
    file.setSubBand("edit");
    forms::Band& edit = abr->addBand("edit");
    edit.add("title", forms::ToolKind::title).setCaption("Rezept");
    edit.add("new", forms::ToolKind::command).setCaption("&Neu");
    edit.add("sep", forms::ToolKind::separator);
    edit.add("delete", forms::ToolKind::command).setCaption("&Löschen");
    edit.find("delete")->setShortcut("Control+Delete");
    abr->setLocalisation(43, "Strg+");
    abr->resizeEvent.connect([this] { layOut(); });
    connection_->open("Data Source=demo.hxs");
}

support::MemoryTable& DemoForm::table() { return database_.table("TrcpRecipeMember"); }

void DemoForm::fill(int count) {
    using automation::Variant;
    const int before = static_cast<int>(table().rows().size());
    for (int i = before + 1; i <= before + count; ++i) {
        const std::array<ado::ColumnValue, 3> row{
            {{1, Variant(std::int32_t{1})}, {2, Variant(std::int32_t{0})}, {3, Variant("Var" + std::to_string(i))}}};
        const auto& columns = table().columns();
        auto values = row;
        for (ado::ColumnValue& value : values) {
            const char* const name = value.column == 1 ? "ParentID" : value.column == 2 ? "ChildID" : "VarRecipe";
            const auto found = std::ranges::find(columns, name, &ado::Column::name);
            value.column = static_cast<std::size_t>(found - columns.begin());
        }
        table().insert(values);
    }
    if (rows_->state() == ado::adStateOpen) rows_->close();
    rows_->open("SELECT * FROM TrcpRecipeMember", connection_);
    if (grid->columns().empty()) {
        for (const ado::Column& column : rows_->columns()) grid->addColumn(column.name);
        grid->column(Variant("VarRecipe")).setButton(true);
        grid->column(Variant("VarRecipe")).setWidth(3000);
        grid->column(Variant("VarRecipe")).setCaption("Variable");
    }
    grid->setDataSource(rows_);
}

void DemoForm::layOut() {
    const double top = abr->mainBand().height();
    tools->move(0, top, abr->clientAreaWidth(), tools->height());
    sb->move(0, top + abr->clientAreaHeight() - sb->height(), abr->clientAreaWidth(), sb->height());
    const double height = abr->clientAreaHeight() - tools->height() - sb->height();
    grid->move(0, top + tools->height(), scaleWidth(), std::max(0.0, height));
    split->move(grid->left() + grid->split(0).size() + 30, grid->top(), split->width(), grid->height());
}

}  // namespace hx::gui

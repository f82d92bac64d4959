// SPDX-License-Identifier: MIT
#include "gui/grid_fixture.h"

#include <QApplication>
#include <QHeaderView>
#include <algorithm>

#include "automation/convert.h"

namespace hx::gui {

void GridFixture::show(int rows) {
    form->fill(rows);
    form->show();
    ASSERT_TRUE(activate(windowOf(*form)));
    table().setFocus();
}

int GridFixture::numberOf(const char* field) {
    for (std::size_t i = 0; i < grid().columns().size(); ++i) {
        if (grid().columns()[i]->dataField() == field) return static_cast<int>(i);
    }
    throw std::runtime_error(field);
}

std::string GridFixture::variable(int row) { return grid().text(row, numberOf("VarRecipe")); }

QRect GridFixture::cell(int row, const char* field) {
    return table().visualRect(table().model()->index(row, numberOf(field)));
}

void GridFixture::click(int row, const char* field, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers, cell(row, field).center() - QPoint(30, 0));
}

void GridFixture::clickSelector(int row, Qt::KeyboardModifiers modifiers) {
    QHeaderView& header = *table().verticalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, modifiers, QPoint(5, header.sectionViewportPosition(row) + 5));
}

void GridFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    handleEvents();  // an editor closes behind the key
}

std::string GridFixture::stored(int key) {
    return automation::toText((*form->table().row(key))[numberInTable("VarRecipe")]);
}

std::size_t GridFixture::numberInTable(const char* field) {
    const auto& columns = form->table().columns();
    return static_cast<std::size_t>(std::ranges::find(columns, field, &ado::Column::name) - columns.begin());
}

}  // namespace hx::gui

// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/form_layout.h"

#include <QLineEdit>
#include <QStyle>
#include <algorithm>

#include "adapters/qt/controls/command_button_view.h"
#include "adapters/qt/controls/label_view.h"
#include "adapters/qt/screen/form_view.h"
#include "adapters/qt/text.h"
#include "automation/error.h"
#include "forms/captioned.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/frame.h"
#include "forms/text_box.h"

namespace hx::qt {

namespace {

constexpr int usualCharacters = 40;  // a variable of a plant, or most of a path
constexpr int labelColumn = 0, fieldColumn = 1, buttonColumn = 2, columns = 3;

bool isEntry(const forms::Control& control) {
    return dynamic_cast<const forms::TextBox*>(&control) != nullptr ||
           dynamic_cast<const forms::ComboBox*>(&control) != nullptr;
}

QString captionOf(const forms::Control* label) {
    const auto* captioned = dynamic_cast<const forms::Captioned*>(label);
    return captioned == nullptr ? QString() : toQt(captioned->caption()).remove('&');
}

}  // namespace

FormLayout::FormLayout(const forms::Layout& layout, FormView& form)
    : layout_(layout), form_(form), root_(&form.widget()) {
    root_.addLayout(areaOf(nullptr).grid.get(), 1);
    for (const auto& row : layout.rows) addRow(row);
    for (Area& area : areas_) {
        if (!area.grows) area.grid->setRowStretch(area.rows, 1);
    }
    addDialogButtons();
    hideUnplaced();
    if (!areas_.front().grows) root_.setSizeConstraint(QLayout::SetFixedSize);
    fit();
}

FormLayout::Area& FormLayout::areaOf(const forms::Control* container) {
    QWidget* widget = form_.areaOf(container);
    if (widget == nullptr) throw automation::Error(automation::errFail, "No view shows " + container->name());
    const auto known = std::ranges::find(areas_, widget, &Area::widget);
    if (known != areas_.end()) return *known;
    const bool isPage = container != nullptr && container->form() == nullptr;
    Area& area = areas_.emplace_back(Area{.widget = widget, .grid = std::make_unique<QGridLayout>(), .isPage = isPage});
    area.grid->setColumnStretch(fieldColumn, 1);
    if (widget != &form_.widget()) widget->setLayout(area.grid.get());
    return area;
}

ControlView& FormLayout::place(forms::Control& control) {
    ControlView* view = form_.viewOf(control);
    if (view == nullptr) throw automation::Error(automation::errFail, "No view shows " + control.name());
    placed_.push_back(view);
    return *view;
}

void FormLayout::addRow(const forms::LayoutRow& row) {
    Area& area = areaOf(row.container);
    if (row.label != nullptr) addLabel(area, row);
    if (row.field != nullptr) addField(area, row);
    if (row.button != nullptr) addButton(area, row);
    if (row.grows) {
        area.grid->setRowStretch(area.rows, 1);
        area.grows = true;
    }
    ++area.rows;
}

void FormLayout::addLabel(Area& area, const forms::LayoutRow& row) {
    ControlView& view = place(*row.label);
    const bool alone = row.field == nullptr;
    const int end = !alone ? fieldColumn : row.button != nullptr ? buttonColumn : columns;
    const bool tall = row.grows || dynamic_cast<const forms::Frame*>(row.field) != nullptr;
    area.grid->addWidget(&view.widget(), area.rows, labelColumn, 1, end - labelColumn,
                         tall ? Qt::AlignTop : Qt::Alignment());
    auto* label = dynamic_cast<LabelView*>(&view);
    if (label == nullptr || alone) return;
    label->keepOnOneLine();
    label->setBuddy(form_.viewOf(*row.field)->widget());
}

// A field without a button reaches as far as the buttons of the others, so that the right edges meet.
void FormLayout::addField(Area& area, const forms::LayoutRow& row) {
    const int first = row.label == nullptr ? labelColumn : fieldColumn;
    const int end = row.button == nullptr ? columns : buttonColumn;
    const Qt::Alignment side = row.characters > 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment();
    area.grid->addWidget(&place(*row.field).widget(), area.rows, first, 1, end - first, side);
}

void FormLayout::addButton(Area& area, const forms::LayoutRow& row) {
    ControlView& view = place(*row.button);
    area.grid->addWidget(&view.widget(), area.rows, buttonColumn);
    const QString subject = captionOf(row.label);
    if (subject.isEmpty()) return;
    const QString what = form_.services().wording.translate("dialogs", "Select %1").arg(subject);
    view.widget().setAccessibleName(what);
    if (view.widget().toolTip().isEmpty()) view.widget().setToolTip(plainToolTip(what));
}

void FormLayout::addDialogButtons() {
    if (layout_.buttons.empty() && layout_.help == nullptr) return;
    root_.addSpacing(form_.widget().style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    root_.addLayout(&buttons_);
    if (layout_.help != nullptr) buttons_.addWidget(&place(*layout_.help).widget());
    buttons_.addStretch(1);
    for (forms::CommandButton* button : layout_.buttons) buttons_.addWidget(&place(*button).widget());
}

// What stands in no row has no place.
void FormLayout::hideUnplaced() {
    for (const auto& view : form_.views()) {
        if (std::ranges::find(placed_, view.get()) == placed_.end()) view->widget().hide();
    }
}

void FormLayout::fit() {
    for (const auto& row : layout_.rows) fitRow(row);
    alignLabels();
    fitDialogButtons();
    // A page that is not shown does not notice by itself that its rows want another size; the innermost come last.
    std::for_each(areas_.rbegin(), areas_.rend(), [](const auto& area) { area.grid->activate(); });
}

void FormLayout::fitRow(const forms::LayoutRow& row) {
    const QFontMetrics font(form_.widget().font());
    QWidget* field = row.field == nullptr ? nullptr : &form_.viewOf(*row.field)->widget();
    if (field != nullptr && isEntry(*row.field)) {
        const int characters = row.characters > 0 ? row.characters : usualCharacters;
        const int width = font.averageCharWidth() * characters + font.height();
        field->setMinimumWidth(width);
        if (row.characters > 0) field->setMaximumWidth(width);
    }
    if (row.label != nullptr && dynamic_cast<const forms::Frame*>(row.field) != nullptr) alignWithFirstRow(row);
    if (row.button == nullptr) return;
    auto* button = dynamic_cast<CommandButtonView*>(form_.viewOf(*row.button));
    if (button == nullptr) return;
    // As high as a field of the window's font: one with a large font of its own does not make the button large.
    QLineEdit line;
    line.setFont(form_.widget().font());
    button->makeSmall(line.sizeHint().height());
}

// A label beside a frame stands at the height of the first row in it.
void FormLayout::alignWithFirstRow(const forms::LayoutRow& row) {
    QWidget& label = form_.viewOf(*row.label)->widget();
    const QWidget& frame = form_.viewOf(*row.field)->widget();
    const auto* grid = qobject_cast<const QGridLayout*>(frame.layout());
    const QLayoutItem* first = grid == nullptr ? nullptr : grid->itemAtPosition(0, labelColumn);
    if (first == nullptr) return;
    const int text = label.sizeHint().height() - label.contentsMargins().top();
    const int lower = (first->sizeHint().height() - text) / 2;
    const int top = frame.contentsMargins().top() + grid->contentsMargins().top() + lower;
    if (label.contentsMargins().top() != top) label.setContentsMargins(0, top, 0, 0);
}

// All as wide as the widest.
void FormLayout::fitDialogButtons() {
    std::vector<QWidget*> buttons;
    for (int i = 0; i < buttons_.count(); ++i) {
        if (QWidget* button = buttons_.itemAt(i)->widget()) buttons.push_back(button);
    }
    int widest = 0;
    for (const QWidget* button : buttons) widest = std::max(widest, button->sizeHint().width());
    for (QWidget* button : buttons) button->setMinimumWidth(widest);
}

// The fields of all pages begin at the same place.
void FormLayout::alignLabels() {
    int widest = 0;
    for (const auto& row : layout_.rows) {
        if (row.label == nullptr || row.field == nullptr || !areaOf(row.container).isPage) continue;
        widest = std::max(widest, form_.viewOf(*row.label)->widget().sizeHint().width());
    }
    for (const Area& area : areas_) {
        const bool differs = area.isPage && area.grid->columnMinimumWidth(labelColumn) != widest;
        if (differs) area.grid->setColumnMinimumWidth(labelColumn, widest);
    }
}

}  // namespace hx::qt

// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/combo_box_view.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include "adapters/qt/text.h"

namespace hx::qt {

ComboBoxView::ComboBoxView(forms::ComboBox& box, SurroundingForm& form, QWidget& area)
    : ControlView(box, form), combo_(&area) {
    combo_.setEditable(box.style() == forms::ComboBox::Style::dropDownCombo);
    combo_.setInsertPolicy(QComboBox::NoInsert);
    // The width does not follow from the entries: there may be thousands.
    combo_.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo_.setMinimumContentsLength(1);
    // What is completed by itself would not reach the model.
    if (combo_.isEditable()) combo_.setCompleter(nullptr);
    watch(combo_);
    if (QLineEdit* line = combo_.lineEdit()) {
        watch(*line);
        connect(line, &QLineEdit::textEdited, this, &ComboBoxView::typed);
    }
    connect(&combo_, &QComboBox::activated, this, &ComboBoxView::chosen);
}

void ComboBoxView::chosen(int index) {
    const auto keep = model()->share();
    modelOf<forms::ComboBox>(*this)->setListIndex(index);
}

void ComboBoxView::typed(const QString& text) {
    const auto keep = model()->share();
    modelOf<forms::ComboBox>(*this)->setText(fromQt(text));
}

// A list only grows at its end or is cleared, and each step is told: what is there already stays.
void ComboBoxView::showList() {
    const auto& box = *modelOf<forms::ComboBox>(*this);
    const QSignalBlocker quiet(combo_);
    if (box.listCount() < combo_.count()) combo_.clear();
    for (std::int32_t i = combo_.count(); i < box.listCount(); ++i) combo_.addItem(toQt(box.list(i)));
    showChoice();
}

// Whatever sets the text of the field, also the choice of an entry, ends the undo list and moves the caret: not while
// the user types what is shown already.
void ComboBoxView::showChoice() {
    const auto& box = *modelOf<forms::ComboBox>(*this);
    const QSignalBlocker quiet(combo_);
    const QString text = toQt(box.text());
    if (combo_.isEditable() && combo_.currentText() == text) return;
    if (box.listIndex() < combo_.count()) combo_.setCurrentIndex(box.listIndex());
    if (combo_.isEditable()) combo_.setEditText(text);
}

void ComboBoxView::show(std::string_view property) {
    if (property == "List") showList();
    else if (property == "ListIndex" || property == "Text") showChoice();
    else ControlView::show(property);
}

}  // namespace hx::qt

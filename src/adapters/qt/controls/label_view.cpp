// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/label_view.h"

#include "adapters/qt/text.h"

namespace hx::qt {

LabelView::LabelView(forms::Label& label, SurroundingForm& form, QWidget& area)
    : ControlView(label, form), label_(&area) {
    label_.setWordWrap(true);
    watch(label_);
}

void LabelView::setBuddy(QWidget& field) {
    label_.setBuddy(&field);
    field.setAccessibleName(label_.text().remove('&'));
}

void LabelView::show(std::string_view property) {
    if (property != "Caption") return ControlView::show(property);
    label_.setText(toQt(modelOf<forms::Label>(*this)->caption()));
    if (QWidget* field = label_.buddy()) setBuddy(*field);
}

}  // namespace hx::qt

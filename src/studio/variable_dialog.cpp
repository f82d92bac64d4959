// SPDX-License-Identifier: MIT
#include "studio/variable_dialog.h"

#include <QFormLayout>
#include <QPushButton>

#include "adapters/qt/dialog_buttons.h"
#include "adapters/qt/text.h"

namespace hx::studio {

VariableDialog::VariableDialog(QWidget& window, const qt::Wording& wording,
                               std::function<bool(const std::string& name)> isTaken)
    : QDialog(&window), wording_(wording), isTaken_(std::move(isTaken)) {
    setObjectName(QStringLiteral("variableDialog"));
    setWindowTitle(wording.translate("studio", "New Variable"));
    name_.setObjectName(QStringLiteral("newName"));
    type_.setObjectName(QStringLiteral("newType"));
    comment_.setObjectName(QStringLiteral("newComment"));
    auto* const form = new QFormLayout(this);
    const std::pair<QLineEdit*, QString> rows[] = {{&name_, wording.translate("studio", "&Name:")},
                                                   {&type_, wording.translate("studio", "&Type:")},
                                                   {&comment_, wording.translate("studio", "Co&mment:")}};
    constexpr int characters = 48;
    for (const auto& [field, text] : rows) {
        form->addRow(text, field);
        field->setAccessibleName(QString(text).remove('&').remove(':'));
        field->setMinimumWidth(characters * field->fontMetrics().averageCharWidth());
    }
    form->addRow(&state_);
    form->addRow(&buttons_);
    buttons_.setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    qt::dressButtons(buttons_, wording);
    connect(&buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(&buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&name_, &QLineEdit::textChanged, this, [this] { check(); });
    check();
}

lists::ListedVariable VariableDialog::variable() const {
    return {qt::fromQt(name_.text().trimmed()), qt::fromQt(type_.text().trimmed()), qt::fromQt(comment_.text()), 1};
}

void VariableDialog::check() {
    const std::string name = variable().name;
    const bool taken = isTaken_(name);
    state_.setText(taken ? wording_.translate("studio", "There is a variable of this name") : QStringLiteral(" "));
    buttons_.button(QDialogButtonBox::Ok)->setEnabled(!name.empty() && !taken);
}

}  // namespace hx::studio

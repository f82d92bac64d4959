// SPDX-License-Identifier: MIT
#include "studio/series_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QVBoxLayout>

#include "adapters/qt/text.h"
#include "automation/text.h"

namespace hx::studio {

namespace {

constexpr QSize seriesSize(620, 560);
constexpr std::size_t mostPreviewed = 100;

}  // namespace

SeriesDialog::SeriesDialog(QWidget& window, const QString& name, const QStringList& variables,
                           const KnownVariables& known, const qt::Wording& wording)
    : QDialog(&window), known_(known), wording_(wording) {
    setObjectName(QStringLiteral("seriesDialog"));
    setWindowTitle(wording.translate("studio", "Create Series"));
    name_.setObjectName(QStringLiteral("seriesName"));
    variables_.setObjectName(QStringLiteral("seriesVariables"));
    preview_.setObjectName(QStringLiteral("seriesPreview"));
    state_.setObjectName(QStringLiteral("seriesState"));
    name_.setText(name);
    variables_.setPlainText(variables.join('\n'));
    build();
    connect(&name_, &QLineEdit::textChanged, this, [this] { expand(); });
    connect(&variables_, &QPlainTextEdit::textChanged, this, [this] { expand(); });
    resize(seriesSize);
    name_.setFocus();
    expand();
}

void SeriesDialog::build() {
    name_.setPlaceholderText(QStringLiteral("Tank {1..12}"));
    variables_.setPlaceholderText(QStringLiteral("Tank{1..12}.Soll\nTank{1..12}.Zeit"));
    variables_.setTabChangesFocus(true);
    variables_.setLineWrapMode(QPlainTextEdit::NoWrap);
    preview_.setHeaderHidden(true);
    preview_.setAccessibleName(wording_.translate("studio", "Preview"));
    auto* const form = new QFormLayout;
    form->addRow(wording_.translate("studio", "&Name:"), &name_);
    form->addRow(wording_.translate("studio", "&Variables, a line each:"), &variables_);
    form->addRow(wording_.translate("studio", "&Preview:"), &preview_);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    state_.setWordWrap(true);
    auto* const buttons = new QDialogButtonBox;
    create_ = buttons->addButton(wording_.translate("studio", "&Create"), QDialogButtonBox::AcceptRole);
    create_->setObjectName(QStringLiteral("createSeries"));
    buttons->addButton(wording_.translate("studio", "Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(form, 1);
    rows->addWidget(&state_);
    rows->addWidget(buttons);
}

void SeriesDialog::expand() {
    std::vector<std::string> variables;
    for (const QString& line : variables_.toPlainText().split('\n')) {
        if (!line.trimmed().isEmpty()) variables.push_back(qt::fromQt(line.trimmed()));
    }
    recipes_.clear();
    preview_.clear();
    try {
        recipes_ = project::expandSeries(qt::fromQt(name_.text().trimmed()), variables);
    } catch (const automation::Error& error) {
        create_->setEnabled(false);
        return state_.setText(qt::toQt(error.description(automation::languageOf(wording_.language()))));
    }
    std::size_t unknown = 0;
    for (const project::NewRecipe& recipe : recipes_) {
        for (const std::string& variable : recipe.variables)
            unknown += known_.isMarked(project::schema::member::varRecipe, variable) ? 1U : 0U;
    }
    create_->setEnabled(true);
    show(unknown);
}

void SeriesDialog::show(std::size_t unknown) {
    QList<QTreeWidgetItem*> items;
    for (const project::NewRecipe& recipe : recipes_) {
        if (static_cast<std::size_t>(items.size()) == mostPreviewed) break;
        items << new QTreeWidgetItem(QStringList{qt::toQt(recipe.name)});
        for (const std::string& variable : recipe.variables) {
            auto* const item = new QTreeWidgetItem(items.back(), QStringList{qt::toQt(variable)});
            if (known_.isMarked(project::schema::member::varRecipe, variable))
                item->setToolTip(0, qt::plainToolTip(known_.reason(variable)));
        }
    }
    preview_.addTopLevelItems(items);
    if (!items.isEmpty()) preview_.expandItem(items.front());
    QString text = wording_.translate("studio", "%1 recipes, %2 variables in each.")
                       .arg(wording_.number(recipes_.size()), wording_.number(recipes_.front().variables.size()));
    if (unknown > 0)
        text +=
            ' ' + wording_.translate("studio", "%1 of all are not in the variable list.").arg(wording_.number(unknown));
    state_.setText(text);
}

}  // namespace hx::studio

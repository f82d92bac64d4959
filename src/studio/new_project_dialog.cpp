// SPDX-License-Identifier: MIT
#include "studio/new_project_dialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "adapters/qt/text.h"
#include "host/project_file.h"

namespace hx::studio {

namespace {

constexpr int dialogWidth = 520;

}  // namespace

NewProjectDialog::NewProjectDialog(QWidget& window, const QString& folder, const qt::Wording& wording)
    : QDialog(&window), wording_(wording) {
    setObjectName(QStringLiteral("newProjectDialog"));
    setWindowTitle(wording.translate("studio", "New Project"));
    name_.setObjectName(QStringLiteral("projectName"));
    folder_.setObjectName(QStringLiteral("projectFolder"));
    choose_.setObjectName(QStringLiteral("chooseProjectFolder"));
    state_.setObjectName(QStringLiteral("newProjectState"));
    folder_.setText(QDir::toNativeSeparators(folder));
    build();
    connect(&choose_, &QPushButton::clicked, this, [this] { chooseFolder(); });
    for (const QLineEdit* field : {&name_, &folder_})
        connect(field, &QLineEdit::textChanged, this, [this] { check(); });
    resize(dialogWidth, sizeHint().height());
    name_.setFocus();
    check();
}

void NewProjectDialog::build() {
    auto* const form = new QFormLayout;
    form->addRow(wording_.translate("studio", "&Name:"), &name_);
    auto* const folder = new QHBoxLayout;
    folder->addWidget(&folder_, 1);
    choose_.setText(wording_.translate("studio", "&Browse…"));
    folder->addWidget(&choose_);
    folderLabel_.setText(wording_.translate("studio", "&Folder:"));
    folderLabel_.setBuddy(&folder_);
    form->addRow(&folderLabel_, folder);
    state_.setWordWrap(true);
    form->addRow(&state_);
    auto* const buttons = new QDialogButtonBox;
    create_ = buttons->addButton(wording_.translate("studio", "&Create"), QDialogButtonBox::AcceptRole);
    create_->setObjectName(QStringLiteral("createProject"));
    buttons->addButton(wording_.translate("studio", "Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(form);
    rows->addStretch();
    rows->addWidget(buttons);
}

QString NewProjectDialog::path() const {
    QString name = name_.text().trimmed();
    if (!host::isProjectFile(qt::fromQt(name))) name += qt::toQt(host::projectExtension);
    return QDir(QDir::fromNativeSeparators(folder_.text().trimmed())).absoluteFilePath(name);
}

void NewProjectDialog::chooseFolder() {
    const QString folder =
        QFileDialog::getExistingDirectory(this, wording_.translate("studio", "Folder of the Project"), folder_.text());
    if (!folder.isEmpty()) folder_.setText(QDir::toNativeSeparators(folder));
}

QString NewProjectDialog::problem() const {
    if (name_.text().contains('/') || name_.text().contains('\\'))
        return wording_.translate("studio", "A name cannot contain \"/\" or \"\\\".");
    if (QFileInfo::exists(path()))
        return wording_.translate("studio", "The file exists already. Please choose another name:\n%1")
            .arg(QDir::toNativeSeparators(path()));
    if (!host::isNameable(qt::fromQt(path())))
        return wording_
            .translate("studio", "The name and the folder of a project must not contain \";\" or \"\"\":\n%1")
            .arg(QDir::toNativeSeparators(path()));
    return {};
}

void NewProjectDialog::check() {
    const bool complete = !name_.text().trimmed().isEmpty() && !folder_.text().trimmed().isEmpty();
    const QString wrong = complete ? problem() : QString();
    create_->setEnabled(complete && wrong.isEmpty());
    state_.setText(
        !complete ? QString()
        : wrong.isEmpty()
            ? wording_.translate("studio", "The project will be the file %1.").arg(QDir::toNativeSeparators(path()))
            : wrong);
}

}  // namespace hx::studio

// SPDX-License-Identifier: MIT
#include "studio/about_dialog.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>
#include <QSysInfo>
#include <QVBoxLayout>

#include "adapters/lua/engine.h"
#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "adapters/sqlite/database.h"
#include "studio/options.h"

namespace hx::studio {

namespace {

constexpr int aboutIconSize = 64, aboutSpacing = 16, aboutWidth = 440;

struct UsedPart {
    QString name, licence;
};

QList<UsedPart> usedParts() {
    return {{QStringLiteral("Qt ") + QLatin1StringView(qVersion()), QStringLiteral("LGPL-3.0")},
            {qt::toQt(sqlite::libraryVersion()), QStringLiteral("Public Domain")},
            {qt::toQt(lua::libraryVersion()), QStringLiteral("MIT")},
            {QStringLiteral("CHMLib"), QStringLiteral("LGPL-2.1")}};
}

qt::PlainLabel& addLine(QVBoxLayout& column, const QString& text) {
    auto* const line = new qt::PlainLabel;
    line->setText(text);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    line->setFocusPolicy(Qt::NoFocus);
    line->setWordWrap(true);
    column.addWidget(line);
    return *line;
}

}  // namespace

QString AboutDialog::details() {
    QStringList lines{versionText()};
    for (const UsedPart& part : usedParts()) lines << part.name;
    lines << QSysInfo::prettyProductName() + QStringLiteral(", ") + QSysInfo::currentCpuArchitecture();
    return lines.join('\n');
}

AboutDialog::AboutDialog(QWidget& window, const qt::Wording& wording) : QDialog(&window) {
    setObjectName(QStringLiteral("aboutDialog"));
    setWindowTitle(wording.translate("studio", "&About HelvixStudio").remove('&'));
    auto* const rows = new QVBoxLayout(this);
    auto* const row = new QHBoxLayout;
    row->setSpacing(aboutSpacing);
    auto* const icon = new qt::PlainLabel;
    icon->setPixmap(qt::namedIcon("studio/studio").pixmap(QSize(aboutIconSize, aboutIconSize)));
    row->addWidget(icon, 0, Qt::AlignTop);
    auto* const column = new QVBoxLayout;
    qt::PlainLabel& title = addLine(*column, versionText());
    title.setObjectName(QStringLiteral("aboutVersion"));
    QFont bold = title.font();
    bold.setBold(true);
    title.setFont(bold);
    addLine(*column, wording.translate("studio", "Engineering of process visualisations with the recipe editor."));
    addLine(*column, wording.translate("studio", "Licence: MIT. Copyright © 2026 The HXRecipeEditor authors"));
    QStringList made;
    for (const UsedPart& part : usedParts()) made << QStringLiteral("%1 (%2)").arg(part.name, part.licence);
    addLine(*column, wording.translate("studio", "Made with: %1").arg(made.join(QStringLiteral(", "))));
    row->addLayout(column, 1);
    rows->addLayout(row);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* const close = buttons->button(QDialogButtonBox::Close);
    close->setText(wording.translate("studio", "&Close"));
    close->setDefault(true);
    QPushButton* const copy = buttons->addButton(wording.translate("studio", "Cop&y"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("copyAbout"));
    copy->setToolTip(qt::plainToolTip(details()));
    connect(copy, &QPushButton::clicked, this, [] { QGuiApplication::clipboard()->setText(details()); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    rows->addWidget(buttons);
    setMinimumWidth(aboutWidth);
    close->setFocus();
}

}  // namespace hx::studio

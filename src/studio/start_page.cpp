// SPDX-License-Identifier: MIT
#include "studio/start_page.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QTimer>
#include <QToolButton>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "studio/studio_menus.h"

namespace hx::studio {

namespace {

constexpr int pageMargin = 32, pageSpacing = 12, pageIconSize = 24, recentWidth = 420, titleScale = 2;

}  // namespace

StartPage::StartPage(StudioCommands& commands, const QList<QAction*>& actions, const qt::Wording& wording)
    : commands_(commands),
      wording_(wording),
      content_(new QWidget),
      title_(new qt::PlainLabel(content_)),
      startTitle_(new qt::PlainLabel(content_)),
      recentTitle_(new qt::PlainLabel(content_)),
      none_(new qt::PlainLabel(content_)),
      recent_(new QListWidget(content_)),
      remove_(this) {
    setObjectName(QStringLiteral("startPage"));
    recent_->setObjectName(QStringLiteral("recentProjects"));
    remove_.setObjectName(QStringLiteral("actionForgetProject"));
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    build(actions);
    setWidget(content_);
    connect(recent_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { open(*item); });
    connect(recent_, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) { open(*item); });
    connect(&remove_, &QAction::triggered, this, [this] {
        if (const QListWidgetItem* item = recent_->currentItem())
            commands_.forgetRecent(item->data(Qt::UserRole).toString());
        refresh();
    });
    retranslate();
}

void StartPage::build(const QList<QAction*>& actions) {
    auto* const grid = new QGridLayout(content_);
    grid->setContentsMargins(pageMargin, pageMargin, pageMargin, pageMargin);
    grid->setSpacing(pageSpacing);
    grid->setColumnMinimumWidth(1, pageMargin);
    grid->addWidget(title_, 0, 0, 1, 3);
    grid->addWidget(startTitle_, 1, 0);
    auto* const begin = new QVBoxLayout;
    for (QAction* action : actions) {
        if (!action->isVisible()) continue;
        auto* const button = new QToolButton;
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setIconSize(QSize(pageIconSize, pageIconSize));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        begin->addWidget(button);
        if (first_ == nullptr) first_ = button;
    }
    begin->addStretch();
    grid->addLayout(begin, 2, 0, 2, 1);
    grid->addWidget(recentTitle_, 1, 2);
    none_->setWordWrap(true);
    grid->addWidget(none_, 2, 2, Qt::AlignTop);
    recent_->setFrameShape(NoFrame);
    recent_->setIconSize(QSize(pageIconSize, pageIconSize));
    recent_->setMinimumWidth(recentWidth / 2);
    recent_->setTextElideMode(Qt::ElideMiddle);
    recent_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    recent_->viewport()->setAutoFillBackground(false);
    recent_->setContextMenuPolicy(Qt::ActionsContextMenu);
    remove_.setShortcut(QKeySequence(Qt::Key_Delete));
    remove_.setShortcutContext(Qt::WidgetShortcut);
    recent_->addAction(&remove_);
    grid->addWidget(recent_, 3, 2);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(2, 1);
}

void StartPage::setTitleFonts() {
    const auto setFont = [this](qt::PlainLabel& label, qreal scale) {
        QFont bold = font();
        bold.setBold(true);
        if (bold.pointSizeF() > 0) bold.setPointSizeF(bold.pointSizeF() * scale);
        label.setFont(bold);
    };
    setFont(*title_, titleScale);
    setFont(*startTitle_, 1);
    setFont(*recentTitle_, 1);
}

void StartPage::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) setTitleFonts();
    QScrollArea::changeEvent(event);
}

void StartPage::retranslate() {
    setTitleFonts();
    title_->setText(QStringLiteral("HelvixStudio"));
    startTitle_->setText(wording_.translate("studio", "Start"));
    recentTitle_->setText(wording_.translate("studio", "Recent projects"));
    none_->setText(wording_.translate("studio", "The projects that you open are listed here."));
    remove_.setText(wording_.translate("studio", "&Remove from List"));
    recent_->setAccessibleName(recentTitle_->text());
    setAccessibleName(startTitle_->text());
}

void StartPage::refresh() {
    recent_->clear();
    for (const QString& path : commands_.recentProjects()) {
        auto* const item =
            new QListWidgetItem(qt::namedIcon("studio/project"),
                                QFileInfo(path).completeBaseName() + '\n' + QDir::toNativeSeparators(path));
        item->setData(Qt::UserRole, path);
        item->setToolTip(qt::plainToolTip(QDir::toNativeSeparators(path)));
        recent_->addItem(item);
    }
    none_->setVisible(recent_->count() == 0);
    recent_->setVisible(recent_->count() > 0);
    recent_->setCurrentRow(0);
    setFocusProxy(recent_->count() > 0 ? static_cast<QWidget*>(recent_) : first_);
}

// A click may be the first of two; the list has done with it before the project opens.
void StartPage::open(const QListWidgetItem& item) {
    QTimer::singleShot(0, this, [this, path = item.data(Qt::UserRole).toString()] {
        if (isVisible()) commands_.openRecent(path);
    });
}

}  // namespace hx::studio

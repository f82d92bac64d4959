// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_search_pane.h"

#include <QKeyEvent>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"

namespace hx::qt {

namespace {

constexpr int foundPathRole = Qt::UserRole;

}  // namespace

HelpSearchPane::HelpSearchPane(const Wording& wording, QWidget* parent) : QWidget(parent), wording_(wording) {
    field_.setObjectName(QStringLiteral("helpSearch"));
    field_.setClearButtonEnabled(true);
    field_.installEventFilter(this);
    list_.setObjectName(QStringLiteral("helpHits"));
    list_.setFrameShape(QFrame::NoFrame);
    list_.setTextElideMode(Qt::ElideRight);
    list_.setIconSize(QSize(16, 16));
    state_.setObjectName(QStringLiteral("helpSearchState"));
    state_.setWordWrap(true);
    column_.setContentsMargins(6, 6, 6, 6);
    column_.addWidget(&field_);
    column_.addWidget(&state_);
    column_.addWidget(&list_, 1);
    connect(&field_, &QLineEdit::textChanged, this, [this] { search(); });
    connect(&list_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) { choose(item); });
    connect(&list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { choose(item); });
    retranslate();
}

void HelpSearchPane::retranslate() {
    field_.setPlaceholderText(wording_.translate("help", "Search all topics for words"));
    field_.setAccessibleName(wording_.translate("help", "Search all topics for words"));
    list_.setAccessibleName(wording_.translate("help", "&Search").remove('&'));
    search();
}

void HelpSearchPane::setBook(const HelpBook& book) {
    book_ = &book;
    index_.reset();
    search();
}

void HelpSearchPane::focusField() {
    field_.setFocus(Qt::ShortcutFocusReason);
    field_.selectAll();
}

void HelpSearchPane::search() {
    const QSignalBlocker quiet(list_);
    list_.clear();
    const QString query = field_.text().simplified();
    if (query.isEmpty() || book_ == nullptr)
        return state_.setText(wording_.translate("help", "A topic is found when it contains all of the words."));
    if (!index_) index_ = std::make_unique<HelpSearch>(*book_);
    for (const HelpHit& hit : index_->find(query)) {
        auto* item = new QListWidgetItem(namedIcon("help/topic"), hit.title, &list_);
        item->setData(foundPathRole, hit.path);
        item->setToolTip(titledToolTip(hit.title, hit.excerpt));
    }
    const int count = list_.count();
    state_.setText(count == 0 ? wording_.translate("help", "No topic contains all of these words.")
                              : wording_.translate("help", "Topics: %1").arg(count));
}

void HelpSearchPane::choose(const QListWidgetItem* item) {
    if (item != nullptr && chosen) {
        chosen(item->data(foundPathRole).toString(), field_.text().split(' ', Qt::SkipEmptyParts));
    }
}

bool HelpSearchPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &field_ && event->type() == QEvent::KeyPress && list_.count() > 0) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (enter || key == Qt::Key_Down) {
            if (!enter) list_.setFocus(Qt::OtherFocusReason);
            if (list_.currentRow() < 0) list_.setCurrentRow(0);
            else choose(list_.currentItem());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace hx::qt

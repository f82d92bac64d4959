#include "adapters/qt/item_dialog.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>

namespace hx::qt {

namespace {

constexpr QSize usualSize(560, 460);

}  // namespace

ItemDialog::ItemDialog(const Wording& wording, std::vector<Variable> variables, QWidget* owner)
    : QDialog(owner == nullptr ? QApplication::activeWindow() : owner->window()),
      model_(std::move(variables), wording),
      searchLabel_(wording.text(Word::searchVariable)),
      empty_(wording.text(Word::noVariables)) {
    setObjectName(QStringLiteral("itemDialog"));
    setWindowTitle(wording.text(Word::chooseVariable));
    searchLabel_.setBuddy(&searchField_);
    searchField_.setObjectName(QStringLiteral("itemSearch"));
    searchField_.setClearButtonEnabled(true);
    searchField_.installEventFilter(this);
    searchRow_.addWidget(&searchLabel_);
    searchRow_.addWidget(&searchField_);
    column_.addLayout(&searchRow_);
    column_.addWidget(&list_);
    column_.addWidget(&empty_);
    column_.addWidget(&buttons_);
    empty_.setVisible(model_.rowCount() == 0);
    setUpList();
    setUpButtons(wording);
    connect(&searchField_, &QLineEdit::textChanged, this, [this](const QString& text) { search(text); });
    resize(usualSize);
}

void ItemDialog::setUpList() {
    found_.setSourceModel(&model_);
    found_.setFilterCaseSensitivity(Qt::CaseInsensitive);
    found_.setSortCaseSensitivity(Qt::CaseInsensitive);
    found_.setFilterKeyColumn(-1);
    list_.setObjectName(QStringLiteral("itemList"));
    list_.setAccessibleName(windowTitle());
    list_.setModel(&found_);
    list_.setSelectionBehavior(QAbstractItemView::SelectRows);
    list_.setSelectionMode(QAbstractItemView::SingleSelection);
    list_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_.setTabKeyNavigation(false);
    list_.setShowGrid(false);
    list_.setWordWrap(false);
    list_.setAlternatingRowColors(true);
    list_.verticalHeader()->hide();
    list_.verticalHeader()->setDefaultSectionSize(list_.fontMetrics().height() + 6);
    list_.horizontalHeader()->setHighlightSections(false);
    list_.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list_.horizontalHeader()->setStretchLastSection(true);
    list_.setColumnWidth(0, usualSize.width() / 2);
    connect(&list_, &QTableView::doubleClicked, this, &QDialog::accept);
    connect(list_.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { refreshButtons(); });
}

void ItemDialog::setUpButtons(const Wording& wording) {
    buttons_.setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons_.button(QDialogButtonBox::Ok)->setText(wording.text(Word::ok));
    buttons_.button(QDialogButtonBox::Cancel)->setText(wording.text(Word::cancel));
    connect(&buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(&buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    refreshButtons();
}

void ItemDialog::search(const QString& text) {
    found_.setFilterFixedString(text);
    if (found_.rowCount() > 0 && !list_.selectionModel()->hasSelection()) list_.selectRow(0);
}

void ItemDialog::refreshButtons() {
    buttons_.button(QDialogButtonBox::Ok)->setEnabled(list_.selectionModel()->hasSelection());
}

void ItemDialog::select(const QString& name) {
    const int row = model_.find(name.trimmed());
    if (row < 0) return;
    list_.selectRow(found_.mapFromSource(model_.index(row, 0)).row());
    list_.scrollTo(list_.currentIndex(), QAbstractItemView::PositionAtCenter);
}

QString ItemDialog::selected() const {
    const auto rows = list_.selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.front().data().toString();
}

bool ItemDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &searchField_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool moves = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
        if (moves) return QApplication::sendEvent(&list_, event);
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace hx::qt

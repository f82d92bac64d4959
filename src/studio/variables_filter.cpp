// SPDX-License-Identifier: MIT
#include "studio/variables_filter.h"

#include <QHeaderView>
#include <QIntValidator>
#include <QKeyEvent>
#include <QScrollBar>
#include <limits>

#include "adapters/qt/text.h"

namespace hx::studio {

VariablesFilter::VariablesFilter(QTableView& list, const qt::Wording& wording, std::function<void()> changed)
    : list_(list), wording_(wording) {
    constexpr std::array names{"filterName", "filterType", "filterComment", "filterUses"};
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        QLineEdit& field = fields_[i];
        field.setParent(this);
        field.setObjectName(QLatin1StringView(names[i]));
        field.setClearButtonEnabled(true);
        field.installEventFilter(this);
        connect(&field, &QLineEdit::textChanged, this, changed);
    }
    fields_.back().setValidator(new QIntValidator(0, std::numeric_limits<int>::max(), this));
    const QHeaderView& header = *list_.horizontalHeader();
    connect(&header, &QHeaderView::sectionResized, this, [this] { place(); });
    connect(&header, &QHeaderView::geometriesChanged, this, [this] { place(); });
    connect(list_.horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { place(); });
    list_.installEventFilter(this);
}

VariablesModel::Wish VariablesFilter::applyTo(VariablesModel::Wish wish) const {
    for (std::size_t i = 0; i < wish.words.size(); ++i)
        wish.words[i] = automation::WordFilter(qt::fromQt(fields_[i].text()));
    bool isNumber = false;
    const std::uint32_t uses = fields_.back().text().toUInt(&isNumber);
    wish.uses = isNumber ? std::optional(uses) : std::nullopt;
    return wish;
}

void VariablesFilter::start() {
    fields_.front().setFocus(Qt::ShortcutFocusReason);
    fields_.front().selectAll();
}

void VariablesFilter::clear() {
    for (QLineEdit& field : fields_) field.clear();
}

void VariablesFilter::retranslate(const QStringList& titles) {
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        fields_[i].setPlaceholderText(wording_.translate("studio", "Filter"));
        fields_[i].setAccessibleName(
            wording_.translate("studio", "Filter: %1").arg(titles.value(static_cast<qsizetype>(i))));
        fields_[i].setToolTip(qt::plainToolTip(
            i + 1 < fields_.size()
                ? wording_.translate("studio", "Shows the variables with all of these words, and none with \"-\"")
                : wording_.translate("studio", "Shows the variables that so many recipes use; 0: the unused ones")));
    }
}

QSize VariablesFilter::sizeHint() const { return {0, fields_.front().sizeHint().height()}; }

void VariablesFilter::place() {
    if (list_.parentWidget() == nullptr) return;
    const QHeaderView& header = *list_.horizontalHeader();
    const int left = header.mapTo(list_.parentWidget(), QPoint()).x() - x();
    for (int i = 0; i < VariablesModel::columns; ++i) {
        QLineEdit& field = fields_[static_cast<std::size_t>(i)];
        field.setGeometry(left + header.sectionViewportPosition(i), 0, header.sectionSize(i), height());
    }
}

bool VariablesFilter::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &list_) {
        if (event->type() == QEvent::Resize) place();
        return false;
    }
    if (event->type() != QEvent::KeyPress) return false;
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter: list_.setFocus(Qt::OtherFocusReason); return true;
        case Qt::Key_Escape:
            static_cast<QLineEdit*>(watched)->clear();
            list_.setFocus(Qt::OtherFocusReason);
            return true;
        default: return false;
    }
}

}  // namespace hx::studio

// SPDX-License-Identifier: MIT
#include "studio/variables_pane.h"

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QScrollBar>

#include "adapters/qt/text.h"

namespace hx::studio {

VariablesPane::VariablesPane(LiveProject& live, const qt::Wording& wording, const QList<QAction*>& actions,
                             VariablesKeys keys, VariablesModel::Change change)
    : live_(live),
      wording_(wording),
      model_(wording, std::move(change)),
      list_(model_, std::move(keys)),
      filter_(list_, wording, [this] { keepPlace([this] { model_.setWish(filter_.applyTo(model_.wish())); }); }) {
    setObjectName(QStringLiteral("variables"));
    list_.setObjectName(QStringLiteral("variableRows"));
    tools_.setObjectName(QStringLiteral("variableTools"));
    state_.setObjectName(QStringLiteral("variableState"));
    arrange(actions);
    list_.edited = [this] {
        if (waiting_) QTimer::singleShot(0, this, [this] { take(waiting_.value_or(nullptr)); });
    };
    changes_ = live_.changed.subscribe([this] { read(); });
    setFocusProxy(&list_);
    retranslate();
}

void VariablesPane::arrange(const QList<QAction*>& actions) {
    constexpr int margin = 4;
    tools_.setToolButtonStyle(Qt::ToolButtonTextOnly);
    tools_.addActions(actions);
    for (QAction* action : actions) tools_.widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    list_.addActions(actions);
    auto* const top = new QHBoxLayout;
    top->setContentsMargins(margin, margin, margin, margin);
    top->addWidget(&tools_);
    top->addStretch();
    top->addWidget(&state_);
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(top);
    rows->addWidget(&filter_);
    rows->addWidget(&list_, 1);
}

void VariablesPane::retranslate() {
    setWindowTitle(wording_.translate("studio", "Variables"));
    list_.setAccessibleName(wording_.translate("studio", "Variable list"));
    const QStringList titles{wording_.translate("studio", "Name"), wording_.translate("studio", "Type"),
                             wording_.translate("studio", "Comment"), wording_.translate("studio", "Recipes")};
    model_.setTitles(titles);
    filter_.retranslate(titles);
    showState();
}

void VariablesPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    read();
}

// A list that nobody sees is read when it is shown.
void VariablesPane::read() {
    if (!live_.isOpen()) {
        filter_.clear();
        return take(nullptr);
    }
    if (!isVisible()) return;
    const auto list = [this](project::Reader& reader) -> ProjectReading::Result {
        const auto table = std::make_shared<const project::VariableTable>(reader);
        return [this, table] { take(table); };
    };
    live_.read(reading_, list, [this](const automation::Error& error) {
        failure_ = qt::toQt(error.description(live_.host().screen().language()));
        showState();
    });
    showState();
}

// What is being typed is not taken from under the user's hands.
void VariablesPane::take(std::shared_ptr<const project::VariableTable> table) {
    if (list_.isEditing() && table) {
        waiting_ = std::move(table);
        return;
    }
    waiting_.reset();
    failure_.clear();
    keepPlace([&] { model_.take(std::move(table)); });
    goToWanted();
}

void VariablesPane::keepPlace(const std::function<void()>& change) {
    const QModelIndex current = list_.currentIndex();
    const std::optional<ado::Key> key = current.isValid() ? std::optional(model_.key(current.row())) : std::nullopt;
    const int column = current.column();
    const int scrolled = list_.verticalScrollBar()->value();
    change();
    list_.verticalScrollBar()->setValue(scrolled);
    const int row = key && model_.table() != nullptr ? model_.rowOf(*key) : -1;
    if (row >= 0) list_.setCurrentIndex(model_.index(row, column));
    showState();
}

void VariablesPane::showVariable(const std::string& name) {
    wanted_ = name;
    goToWanted();
}

void VariablesPane::goToWanted() {
    if (wanted_.empty() || model_.table() == nullptr) return;
    const auto number = model_.table()->find(wanted_);
    if (!number) return;
    wanted_.clear();
    const ado::Key key = model_.table()->key(*number);
    if (model_.rowOf(key) < 0) filter_.clear();
    list_.setCurrentIndex(model_.index(model_.rowOf(key), 0));
    list_.scrollTo(list_.currentIndex());
}

void VariablesPane::showState() {
    const auto text = [&] {
        if (!failure_.isEmpty()) return failure_;
        if (model_.table() == nullptr)
            return reading_.isRunning() ? wording_.translate("studio", "Reading …") : QString();
        const auto shown = static_cast<std::size_t>(model_.rowCount());
        const std::size_t all = model_.table()->size();
        if (shown != all)
            return wording_.translate("studio", "%1 of %2").arg(wording_.number(shown), wording_.number(all));
        return all == 1 ? wording_.translate("studio", "1 variable")
                        : wording_.translate("studio", "%1 variables").arg(wording_.number(all));
    };
    state_.setText(text());
}

}  // namespace hx::studio

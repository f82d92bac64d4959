// SPDX-License-Identifier: MIT
#include "studio/variable_dock.h"

#include <QVBoxLayout>

#include "adapters/qt/text.h"

namespace hx::studio {

namespace {

constexpr int settledAfter = 120;  // milliseconds: who runs through the rows does not wait for each

}  // namespace

VariableDock::VariableDock(QWidget& window, LiveProject& live, Navigator& navigator, const qt::Wording& wording,
                           FoundView::GoTo goTo)
    : QDockWidget(&window),
      live_(live),
      navigator_(navigator),
      wording_(wording),
      panel_(this),
      list_(model_, std::move(goTo)) {
    const std::pair<QObject*, const char*> names[] = {{this, "variableDock"},    {&name_, "variableName"},
                                                      {&type_, "variableType"},  {&comment_, "variableComment"},
                                                      {&state_, "variableUses"}, {&list_, "variableUseList"}};
    for (const auto& [object, text] : names) object->setObjectName(QLatin1StringView(text));
    arrange();
    soon_.setSingleShot(true);
    soon_.setInterval(settledAfter);
    connect(&soon_, &QTimer::timeout, this, [this] { read(); });
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible) follow();
    });
    changes_ = live_.changed.subscribe([this] {
        if (!live_.isOpen()) variable_.clear();
        follow();
        read();
    });
    moves_ = navigator_.moved.subscribe([this] { follow(); });
    retranslate();
    hide();
}

void VariableDock::arrange() {
    constexpr int margin = 6;
    auto* const rows = new QVBoxLayout(&panel_);
    rows->setContentsMargins(margin, margin, margin, 0);
    for (qt::PlainLabel* label : {&name_, &type_, &comment_, &state_}) {
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        rows->addWidget(label);
    }
    QFont bold = name_.font();
    bold.setBold(true);
    name_.setFont(bold);
    rows->addWidget(&list_, 1);
    constexpr int recipeWidth = 24;  // characters
    list_.setColumnWidth(0, recipeWidth * list_.fontMetrics().averageCharWidth());
    setWidget(&panel_);
}

void VariableDock::retranslate() {
    setWindowTitle(wording_.translate("studio", "Current Variable"));
    list_.setAccessibleName(wording_.translate("studio", "Other recipes that use it"));
    model_.setTitles({wording_.translate("studio", "Recipe"), wording_.translate("studio", "Use")});
    showState();
}

void VariableDock::follow() {
    if (isHidden() || !live_.isOpen()) return;
    Navigator::Here here;
    try {
        here = navigator_.here();
    } catch (const std::exception&) {
        // A row that cannot be read: the grid tells of it.
    }
    if (here.variable == variable_ && here.recipe == recipe_) return;
    variable_ = here.variable;
    recipe_ = here.recipe;
    found_.reset();
    model_.setThings(nullptr);
    soon_.start();
    showState();
}

void VariableDock::read() {
    failure_.clear();
    if (variable_.empty() || !live_.isOpen()) return take({});
    if (isHidden()) return;
    const auto find = [this, name = variable_, recipe = recipe_](project::Reader& reader) -> ProjectReading::Result {
        Found found{project::findVariable(reader, name),
                    std::make_shared<const FoundUses>(project::WhereUsed(reader, name), wording_, recipe)};
        return [this, found] { take(found); };
    };
    live_.read(reading_, find, [this](const automation::Error& error) {
        failure_ = qt::toQt(error.description(live_.host().screen().language()));
        showState();
    });
}

void VariableDock::take(Found found) {
    found_ = std::move(found);
    model_.setThings(found_->uses);
    list_.showAll();
    showState();
}

void VariableDock::showState() {
    const project::VariableEntry* const entry = found_ && found_->entry ? &*found_->entry : nullptr;
    name_.setText(variable_.empty() ? wording_.translate("studio", "No variable is chosen") : qt::toQt(variable_));
    type_.setText(entry == nullptr ? QString() : qt::toQt(entry->type));
    comment_.setText(entry == nullptr ? QString() : qt::toQt(entry->comment));
    const auto text = [&] {
        if (!failure_.isEmpty()) return failure_;
        if (!found_ || variable_.empty()) return QString();
        const std::size_t uses = found_->uses ? found_->uses->size() : 0;
        const QString used = uses == 0 ? wording_.translate("studio", "No other recipe uses it")
                                       : wording_.translate("studio", "Other uses: %1").arg(wording_.number(uses));
        if (entry != nullptr) return used;
        return wording_.translate("studio", "It is not in the variable list.") + '\n' + used;
    };
    state_.setText(text());
    for (qt::PlainLabel* label : {&type_, &comment_, &state_}) label->setVisible(!label->text().isEmpty());
}

}  // namespace hx::studio

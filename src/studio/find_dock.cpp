// SPDX-License-Identifier: MIT
#include "studio/find_dock.h"

#include <QGridLayout>
#include <QScrollBar>
#include <numeric>

#include "adapters/qt/text.h"
#include "studio/regular_pattern.h"

namespace hx::studio {

FindDock::FindDock(QWidget& window, LiveProject& live, const qt::Wording& wording, FoundView::GoTo goTo,
                   Replace replace)
    : QDockWidget(&window),
      live_(live),
      wording_(wording),
      replace_(std::move(replace)),
      panel_(this),
      list_(model_, std::move(goTo)) {
    name();
    arrange();
    connectParts();
    changes_ = live_.changed.subscribe([this] { read(); });
    retranslate();
    hide();
}

void FindDock::name() {
    const std::pair<QObject*, const char*> names[] = {
        {this, "findDock"},         {&text_, "findText"},         {&with_, "replaceText"},
        {&find_, "findButton"},     {&replaceAll_, "replaceAll"}, {&replaceSelected_, "replaceSelected"},
        {&replacing_, "replacing"}, {&matchCase_, "matchCase"},   {&wholeWord_, "wholeWord"},
        {&regular_, "regular"},     {&recipes_, "findInRecipes"}, {&members_, "findInMembers"},
        {&state_, "findState"},     {&list_, "findList"},         {&variables_, "findInVariables"}};
    for (const auto& [object, text] : names) object->setObjectName(QLatin1StringView(text));
}

void FindDock::arrange() {
    constexpr int margin = 4, placeWidth = 260, textWidth = 320, choices = 3;
    auto* const grid = new QGridLayout;
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(margin);
    grid->addWidget(&text_, 0, 1);
    grid->addWidget(&find_, 0, 2);
    grid->addWidget(&state_, 0, choices, 1, 1);
    grid->addWidget(&replacing_, 1, 0);
    grid->addWidget(&with_, 1, 1);
    grid->addWidget(&replaceSelected_, 1, 2);
    grid->addWidget(&replaceAll_, 1, choices);
    grid->setColumnStretch(1, 1);
    auto* const options = new QHBoxLayout;
    options->setContentsMargins(margin, 0, margin, margin);
    for (QCheckBox* box : {&matchCase_, &wholeWord_, &regular_}) options->addWidget(box);
    options->addSpacing(margin * margin);
    for (QCheckBox* box : {&recipes_, &members_, &variables_}) {
        box->setChecked(true);
        options->addWidget(box);
    }
    options->addStretch();
    auto* const rows = new QVBoxLayout(&panel_);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(grid);
    rows->addLayout(options);
    rows->addWidget(&list_, 1);
    setWidget(&panel_);
    for (QLineEdit* line : {&text_, &with_}) line->setClearButtonEnabled(true);
    for (QPushButton* button : {&find_, &replaceSelected_, &replaceAll_}) button->setAutoDefault(false);
    state_.setWordWrap(true);
    list_.setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_.setColumnWidth(0, placeWidth);
    list_.setColumnWidth(1, textWidth);
}

void FindDock::connectParts() {
    connect(&text_, &QLineEdit::returnPressed, this, [this] { find(); });
    connect(&find_, &QPushButton::clicked, this, [this] { find(); });
    for (const QCheckBox* box : {&matchCase_, &wholeWord_, &regular_, &recipes_, &members_, &variables_})
        connect(box, &QCheckBox::toggled, this, [this] { read(); });
    connect(&replacing_, &QCheckBox::toggled, this, [this] { preview(); });
    connect(&with_, &QLineEdit::textChanged, this, [this] { preview(); });
    connect(list_.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { showState(); });
    connect(&replaceSelected_, &QPushButton::clicked, this, [this] { replace(list_.selected()); });
    connect(&replaceAll_, &QPushButton::clicked, this, [this] {
        std::vector<std::size_t> all(found_->size());
        std::iota(all.begin(), all.end(), std::size_t{0});
        replace(all);
    });
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible) read();
    });
}

void FindDock::retranslate() {
    setWindowTitle(wording_.translate("studio", "Find and Replace"));
    list_.setAccessibleName(windowTitle());
    const std::pair<QAbstractButton*, QString> buttons[] = {
        {&find_, wording_.translate("studio", "Fi&nd")},
        {&replacing_, wording_.translate("studio", "Re&place by")},
        {&replaceSelected_, wording_.translate("studio", "Replace Selecte&d")},
        {&replaceAll_, wording_.translate("studio", "Repla&ce All")},
        {&matchCase_, wording_.translate("studio", "Ma&tch case")},
        {&wholeWord_, wording_.translate("studio", "&Whole word")},
        {&regular_, wording_.translate("studio", "Regular e&xpression")},
        {&recipes_, wording_.translate("studio", "Recipes")},
        {&members_, wording_.translate("studio", "Members")},
        {&variables_, wording_.translate("studio", "Variable list")}};
    for (const auto& [button, text] : buttons) button->setText(text);
    text_.setPlaceholderText(wording_.translate("studio", "Text in names, comments and variables"));
    text_.setAccessibleName(wording_.translate("studio", "Text to find"));
    with_.setPlaceholderText(wording_.translate("studio", "New text; \\1 for the first group of a regular expression"));
    with_.setAccessibleName(wording_.translate("studio", "New text"));
    model_.setTitles({wording_.translate("studio", "Place"), wording_.translate("studio", "Text"),
                      wording_.translate("studio", "New text")});
    take(found_, pattern_);
}

void FindDock::start() {
    show();
    raise();
    text_.setFocus(Qt::ShortcutFocusReason);
    text_.selectAll();
}

std::shared_ptr<project::TextPattern> FindDock::pattern() {
    if (!regular_.isChecked())
        return std::make_shared<project::PlainPattern>(qt::fromQt(text_.text()), matchCase_.isChecked(),
                                                       wholeWord_.isChecked());
    auto expression = std::make_shared<RegularPattern>(text_.text(), matchCase_.isChecked(), wholeWord_.isChecked());
    if (expression->fault().isEmpty()) return expression;
    fail(wording_.translate("studio", "This is no regular expression: %1").arg(expression->fault()));
    return nullptr;
}

void FindDock::find() {
    looking_ = !text_.text().isEmpty();
    if (looking_) return read();
    take(nullptr, nullptr);
}

// A list that nobody sees is read when it is shown.
void FindDock::read() {
    if (!live_.isOpen()) {
        looking_ = false;
        return take(nullptr, nullptr);
    }
    if (isHidden() || !looking_) return;
    const auto wanted = pattern();
    if (!wanted) return;
    const auto own = pattern();  // a pattern serves one thread
    const project::SearchScope scope{recipes_.isChecked(), members_.isChecked(), variables_.isChecked()};
    const auto search = [this, wanted, own, scope](project::Reader& reader) -> ProjectReading::Result {
        const auto found = std::make_shared<FoundTexts>(project::TextSearch(reader, *wanted, scope), wording_);
        return [this, found, own] { take(found, own); };
    };
    failure_.clear();
    live_.read(reading_, search, [this](const automation::Error& error) {
        fail(qt::toQt(error.description(live_.host().screen().language())));
    });
    showState();
}

void FindDock::take(std::shared_ptr<FoundTexts> found, std::shared_ptr<project::TextPattern> pattern) {
    const int scrolled = list_.verticalScrollBar()->value();
    found_ = std::move(found);
    pattern_ = std::move(pattern);
    failure_.clear();
    model_.setThings(found_);
    preview();
    list_.showAll();
    list_.verticalScrollBar()->setValue(scrolled);
}

void FindDock::preview() {
    const bool replacing = replacing_.isChecked();
    with_.setEnabled(replacing);
    list_.setColumnHidden(2, !replacing);
    if (found_) found_->replaceBy(replacing ? pattern_ : nullptr, qt::fromQt(with_.text()));
    model_.refresh();
    list_.viewport()->update();
    showState();
}

void FindDock::replace(const std::vector<std::size_t>& things) {
    if (!found_ || reading_.isRunning()) return;
    const auto replacements = found_->replacements(things);
    if (replacements.empty()) return;
    replace_(replacements, wording_.translate("studio", "Replaced: “%1” by “%2”").arg(text_.text(), with_.text()));
}

void FindDock::fail(const QString& text) {
    failure_ = text;
    showState();
}

void FindDock::showState() {
    const bool any = found_ && found_->size() > 0 && replacing_.isChecked() && !reading_.isRunning();
    replaceAll_.setEnabled(any);
    replaceSelected_.setEnabled(any && list_.selectionModel()->hasSelection());
    const auto text = [&] {
        if (!failure_.isEmpty()) return failure_;
        if (reading_.isRunning()) return wording_.translate("studio", "Searching …");
        if (!found_) return QString();
        if (found_->size() == 0) return wording_.translate("studio", "Not found");
        return wording_.translate("studio", "%1 found").arg(wording_.number(found_->size()));
    };
    state_.setText(text());
}

}  // namespace hx::studio

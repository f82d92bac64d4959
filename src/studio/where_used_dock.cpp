// SPDX-License-Identifier: MIT
#include "studio/where_used_dock.h"

#include <QScrollBar>

#include "adapters/qt/text.h"

namespace hx::studio {

WhereUsedDock::WhereUsedDock(QWidget& window, LiveProject& live, const qt::Wording& wording, FoundView::GoTo goTo)
    : QDockWidget(&window), live_(live), wording_(wording), panel_(this), list_(model_, std::move(goTo)) {
    setObjectName(QStringLiteral("whereUsedDock"));
    field_.setObjectName(QStringLiteral("whereUsedName"));
    state_.setObjectName(QStringLiteral("whereUsedState"));
    list_.setObjectName(QStringLiteral("whereUsedList"));
    field_.setClearButtonEnabled(true);
    arrangeList(panel_, field_, state_, list_);
    setWidget(&panel_);
    connect(&field_, &QLineEdit::returnPressed, this, [this] { showUsesOf(field_.text().trimmed()); });
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible) read();
    });
    changes_ = live_.changed.subscribe([this] { read(); });
    retranslate();
    hide();
}

void WhereUsedDock::retranslate() {
    setWindowTitle(wording_.translate("studio", "Where Used"));
    list_.setAccessibleName(windowTitle());
    field_.setPlaceholderText(wording_.translate("studio", "Name of a variable or recipe"));
    field_.setAccessibleName(field_.placeholderText());
    model_.setTitles({wording_.translate("studio", "Recipe"), wording_.translate("studio", "Use")});
    take(uses_);
}

void WhereUsedDock::showUsesOf(const QString& name) {
    recipe_ = 0;
    name_ = qt::fromQt(name);
    field_.setText(name);
    showUses();
}

void WhereUsedDock::showUsesOf(std::int64_t recipe) {
    recipe_ = recipe;
    name_.clear();
    showUses();
}

void WhereUsedDock::ask() {
    show();
    raise();
    field_.setFocus(Qt::ShortcutFocusReason);
    field_.selectAll();
}

void WhereUsedDock::showUses() {
    const bool wasHidden = isHidden();
    show();
    raise();
    if (!wasHidden) read();
}

// A list that nobody sees is read when it is shown.
void WhereUsedDock::read() {
    if (!live_.isOpen()) {
        recipe_ = 0;
        name_.clear();
        field_.clear();
        return take(nullptr);
    }
    if (isHidden() || (recipe_ == 0 && name_.empty())) return;
    const auto find = [this, recipe = recipe_, name = name_](project::Reader& reader) -> ProjectReading::Result {
        auto used = recipe != 0 ? project::WhereUsed(reader, recipe) : project::WhereUsed(reader, name);
        const auto uses = std::make_shared<const FoundUses>(std::move(used), wording_);
        return [this, uses] { take(uses); };
    };
    live_.read(reading_, find, [this](const automation::Error& error) {
        failure_ = qt::toQt(error.description(live_.host().screen().language()));
        showState();
    });
}

void WhereUsedDock::take(std::shared_ptr<const FoundUses> uses) {
    const int scrolled = list_.verticalScrollBar()->value();
    uses_ = std::move(uses);
    failure_.clear();
    model_.setThings(uses_);
    list_.showAll();
    list_.verticalScrollBar()->setValue(scrolled);
    // The recipe may have another name by now.
    if (uses_ && recipe_ != 0 && uses_->used().recipe())
        field_.setText(qt::toQt(uses_->used().recipes()[*uses_->used().recipe()].name));
    showState();
}

void WhereUsedDock::showState() {
    const auto text = [&] {
        if (!failure_.isEmpty()) return failure_;
        if (!uses_) return QString();
        if (!uses_->used().isKnown())
            return wording_.translate("studio", "There is neither a variable nor a recipe of this name");
        const std::size_t count = uses_->size();
        if (count == 0) return wording_.translate("studio", "Not used");
        return count == 1 ? wording_.translate("studio", "1 use")
                          : wording_.translate("studio", "%1 uses").arg(wording_.number(count));
    };
    state_.setText(text());
}

}  // namespace hx::studio

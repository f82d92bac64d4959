// SPDX-License-Identifier: MIT
#include "studio/problems_dock.h"

#include <QFileInfo>
#include <QScrollBar>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::studio {

namespace {

// Reading a file to its end cannot be given up, and nobody shall wait for it.
constexpr qint64 readWhole = 4 << 20;

}  // namespace

ProblemsDock::ProblemsDock(QWidget& window, LiveProject& live, KnownVariables& known,
                           std::function<void()> knownChanged, const qt::Wording& wording, FoundView::GoTo goTo)
    : QDockWidget(&window),
      live_(live),
      known_(known),
      knownChanged_(std::move(knownChanged)),
      wording_(wording),
      panel_(this),
      list_(model_, std::move(goTo)) {
    setObjectName(QStringLiteral("problemsDock"));
    field_.setObjectName(QStringLiteral("problemsFilter"));
    state_.setObjectName(QStringLiteral("problemsState"));
    list_.setObjectName(QStringLiteral("problemsList"));
    count_.setObjectName(QStringLiteral("problemsCount"));
    field_.setClearButtonEnabled(true);
    count_.setAutoRaise(true);
    count_.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    arrangeList(panel_, field_, state_, list_);
    setWidget(&panel_);
    connect(&field_, &QLineEdit::textChanged, this, [this] { filter(); });
    connect(&count_, &QToolButton::clicked, this, [this] {
        show();
        raise();
    });
    changes_ = live_.changed.subscribe([this] { read(); });
    retranslate();
    hide();
}

void ProblemsDock::retranslate() {
    setWindowTitle(wording_.translate("studio", "Problems"));
    list_.setAccessibleName(windowTitle());
    field_.setPlaceholderText(wording_.translate("studio", "Filter: words, -word excludes"));
    field_.setAccessibleName(wording_.translate("studio", "Filter problems"));
    count_.setToolTip(qt::plainToolTip(wording_.translate("studio", "Shows what is wrong in the project")));
    model_.setTitles({wording_.translate("studio", "Recipe"), wording_.translate("studio", "Problem")});
    read();
}

void ProblemsDock::read() {
    if (!live_.isOpen()) {
        known_.forget();
        failure_.clear();
        return take(nullptr);
    }
    const project::FindingWords words{automation::languageOf(wording_.language()), true};
    const bool whole = QFileInfo(live_.file()).size() <= readWhole;
    const auto look = [this, words, whole](project::Reader& reader) -> ProjectReading::Result {
        const auto problems = std::make_shared<Problems>();
        project::Check check(
            reader, [&](const project::Finding& finding) { problems->add(finding); }, words);
        if (whole && check.findDamage(ado::Session::Check::usual)) return [this, problems] { take(problems); };
        check.run();
        const auto names = std::make_shared<project::NameSet>(check.takeVariables());
        return [this, problems, names] {
            known_.set(std::move(*names));
            take(problems);
        };
    };
    live_.read(reading_, look, [this](const automation::Error& error) {
        failure_ = qt::toQt(error.description(live_.host().screen().language()));
        showCount();
    });
}

void ProblemsDock::take(std::shared_ptr<const Problems> problems) {
    problems_ = std::move(problems);
    failure_.clear();
    knownChanged_();
    filter();
}

void ProblemsDock::filter() {
    const int scrolled = list_.verticalScrollBar()->value();
    model_.setThings(problems_ ? std::make_shared<FoundProblems>(
                                     problems_, automation::WordFilter(qt::fromQt(field_.text())), wording_)
                               : nullptr);
    list_.showAll();
    list_.verticalScrollBar()->setValue(scrolled);
    showCount();
}

void ProblemsDock::showCount() {
    const std::size_t all = problems_ ? problems_->count() : 0;
    const QString counted = all == 0   ? wording_.translate("studio", "No problems")
                            : all == 1 ? wording_.translate("studio", "1 problem")
                                       : wording_.translate("studio", "%1 problems").arg(wording_.number(all));
    state_.setText(!failure_.isEmpty() ? failure_ : problems_ ? counted : QString());
    count_.setVisible(problems_ != nullptr);
    count_.setText(counted);
    count_.setIcon(qt::namedIcon(all == 0 ? "studio/no-problems" : "studio/problems"));
}

}  // namespace hx::studio

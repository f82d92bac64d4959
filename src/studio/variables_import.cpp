// SPDX-License-Identifier: MIT
#include "studio/variables_import.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QVBoxLayout>

#include "adapters/qt/dialog_buttons.h"
#include "adapters/qt/text.h"
#include "automation/cancelled.h"
#include "forms/wait_cursor.h"
#include "lists/text_decoder.h"

namespace hx::studio {

using Kind = ImportPreview::Kind;

namespace {

constexpr int notChosen = -1;
constexpr int steps = 1000;  // of the progress bar

std::optional<std::size_t> columnIn(const QComboBox& box) {
    const int column = box.currentData().toInt();
    return column == notChosen ? std::nullopt : std::optional(static_cast<std::size_t>(column));
}

}  // namespace

VariablesImport::VariablesImport(QWidget& window, LiveProject& live, const qt::Wording& wording, const QString& list,
                                 Import import)
    : QDialog(&window),
      live_(live),
      wording_(wording),
      list_(qt::fromQt(list)),
      import_(std::move(import)),
      isCsv_(!lists::isPlcopen(list_)),
      model_(wording) {
    const std::pair<QObject*, const char*> names[] = {{this, "variablesImport"},    {&encoding_, "importEncoding"},
                                                      {&name_, "importName"},       {&type_, "importType"},
                                                      {&comment_, "importComment"}, {&kinds_, "importKinds"},
                                                      {&rows_, "importRows"},       {&counts_, "importCounts"},
                                                      {&notes_, "importNotes"},     {&progress_, "importProgress"}};
    for (const auto& [object, text] : names) object->setObjectName(QLatin1StringView(text));
    setWindowTitle(wording_.translate("studio", "Import Variables"));
    file_.setText(list);
    buildChoices();
    build();
    if (isCsv_) readLayout();
    readPreview();
}

void VariablesImport::buildChoices() {
    const std::pair<QComboBox*, QString> rows[] = {{&encoding_, wording_.translate("studio", "&Encoding:")},
                                                   {&name_, wording_.translate("studio", "&Name:")},
                                                   {&type_, wording_.translate("studio", "&Type:")},
                                                   {&comment_, wording_.translate("studio", "Co&mment:")}};
    for (const auto& [box, text] : rows) {
        form_.addRow(text, box);
        box->setAccessibleName(QString(text).remove('&').remove(':'));
        box->setEnabled(isCsv_);
    }
    encoding_.addItem(wording_.translate("studio", "(recognised)"), QString());
    for (const char* name :
         {"UTF-8", "WINDOWS-1252", "WINDOWS-1250", "ISO-8859-1", "ISO-8859-15", "UTF-16LE", "UTF-16BE"})
        encoding_.addItem(QLatin1StringView(name), QLatin1StringView(name));
    connect(&encoding_, &QComboBox::activated, this, [this] {
        readLayout();
        readPreview();
    });
    for (QComboBox* box : {&name_, &type_, &comment_})
        connect(box, &QComboBox::activated, this, [this] { readPreview(); });
    kinds_.addItems({wording_.translate("studio", "What changes"), wording_.translate("studio", "New ones"),
                     wording_.translate("studio", "Changed ones"), wording_.translate("studio", "Unchanged ones")});
    kinds_.setAccessibleName(wording_.translate("studio", "Shown variables"));
    connect(&kinds_, &QComboBox::currentIndexChanged, this, [this] { showRows(); });
}

void VariablesImport::build() {
    constexpr int width = 760, height = 560;
    auto* const top = new QHBoxLayout;
    top->addWidget(&counts_, 1);
    top->addWidget(&kinds_);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(&file_);
    column->addLayout(&form_);
    column->addLayout(top);
    column->addWidget(&rows_, 1);
    column->addWidget(&notes_);
    column->addWidget(&progress_);
    column->addWidget(&buttons_);
    rows_.verticalHeader()->setMinimumSectionSize(1);
    rows_.verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    rows_.verticalHeader()->hide();
    rows_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    rows_.setModel(&model_);
    rows_.setAccessibleName(wording_.translate("studio", "What the import does"));
    rows_.setSelectionBehavior(QAbstractItemView::SelectRows);
    rows_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    rows_.setTabKeyNavigation(false);
    rows_.setWordWrap(false);
    rows_.setAlternatingRowColors(true);
    rows_.horizontalHeader()->setStretchLastSection(true);
    rows_.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    rows_.setColumnWidth(1, width / 3);
    file_.setTextInteractionFlags(Qt::TextSelectableByMouse);
    notes_.setWordWrap(true);
    counts_.setWordWrap(true);
    progress_.setTextVisible(false);
    progress_.setAccessibleName(wording_.translate("studio", "Progress"));
    buttons_.setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    qt::dressButtons(buttons_, wording_);
    start_ = buttons_.button(QDialogButtonBox::Ok);
    start_->setText(wording_.translate("studio", "&Import"));
    connect(&buttons_, &QDialogButtonBox::accepted, this, [this] { import(); });
    connect(&buttons_, &QDialogButtonBox::rejected, this, [this] { reject(); });
    resize(width, height);
}

QString VariablesImport::inWords(const automation::Error& error) const {
    return qt::toQt(error.description(automation::languageOf(wording_.language())));
}

// What is wrong with the list itself is told by the preview.
void VariablesImport::readLayout() {
    layout_.reset();
    try {
        layout_ = lists::layoutOf(list_, qt::fromQt(encoding_.currentData().toString()));
    } catch (const std::exception&) {
    }
    fillColumns();
}

void VariablesImport::fillColumns() {
    const lists::CsvLayout layout = layout_.value_or(lists::CsvLayout());
    std::size_t count = layout.columns;
    for (const auto& record : layout.sample) count = std::max(count, record.size());
    const auto titleOf = [&](std::size_t column) {
        if (column < layout.titles.size() && !layout.titles[column].empty()) return qt::toQt(layout.titles[column]);
        const bool hasSample = !layout.sample.empty() && column < layout.sample.front().size();
        const QString number = wording_.translate("studio", "Column %1").arg(column + 1);
        return hasSample ? number + QStringLiteral(" (%1)").arg(qt::toQt(layout.sample.front()[column])) : number;
    };
    const std::pair<QComboBox*, std::optional<std::size_t>> boxes[] = {
        {&name_, layout.name}, {&type_, layout.type}, {&comment_, layout.comment}};
    for (const auto& [box, chosen] : boxes) {
        box->clear();
        box->addItem(wording_.translate("studio", "(none)"), notChosen);
        for (std::size_t column = 0; column < count; ++column) box->addItem(titleOf(column), static_cast<int>(column));
        const int wanted = chosen && *chosen < count ? static_cast<int>(*chosen) : notChosen;
        box->setCurrentIndex(box->findData(wanted));
        box->setEnabled(isCsv_ && layout_.has_value());
    }
}

lists::CsvChoice VariablesImport::choice() const {
    lists::CsvChoice choice{qt::fromQt(encoding_.currentData().toString()), layout_};
    if (!layout_) return choice;
    lists::CsvLayout& layout = *choice.layout;
    layout.name = columnIn(name_);
    layout.type = columnIn(type_);
    layout.comment = columnIn(comment_);
    const bool asRecognised =
        layout.name == layout_->name && layout.type == layout_->type && layout.comment == layout_->comment;
    if (asRecognised) return choice;
    // The user has said which columns are meant: what else stands in a record is passed over.
    layout.same.reset();
    for (const auto& record : layout.sample) layout.columns = std::max(layout.columns, record.size());
    return choice;
}

void VariablesImport::readPreview() {
    failure_.clear();
    preview_.reset();
    const auto look = [this, list = list_, choice = choice()](project::Reader& reader) -> ProjectReading::Result {
        const auto preview = std::make_shared<const ImportPreview>(reader, list, choice);
        return [this, preview] { take(preview); };
    };
    live_.read(reading_, look, [this](const automation::Error& error) { fail(inWords(error)); });
    showRows();
}

void VariablesImport::take(std::shared_ptr<const ImportPreview> preview) {
    preview_ = std::move(preview);
    showRows();
}

void VariablesImport::fail(const QString& text) {
    failure_ = text;
    showState();
}

void VariablesImport::showRows() {
    constexpr std::array<std::optional<Kind>, 4> kinds{std::nullopt, Kind::added, Kind::changed, Kind::unchanged};
    model_.show(preview_, kinds[static_cast<std::size_t>(std::max(kinds_.currentIndex(), 0))]);
    showState();
}

QString VariablesImport::countsText() const {
    if (!failure_.isEmpty()) return failure_;
    if (!preview_) return wording_.translate("studio", "Reading …");
    const auto number = [this](Kind kind) { return wording_.number(preview_->count(kind)); };
    return wording_.translate("studio", "%1 new, %2 changed, %3 unchanged")
        .arg(number(Kind::added), number(Kind::changed), number(Kind::unchanged));
}

void VariablesImport::showState() {
    counts_.setText(countsText());
    QStringList notes;
    if (preview_) {
        constexpr std::size_t most = 4;
        const auto all = preview_->notes(automation::languageOf(wording_.language()));
        for (std::size_t i = 0; i < std::min(all.size(), most); ++i) notes << qt::toQt(all[i]);
        if (all.size() > most) notes << wording_.translate("studio", "and %1 more of these").arg(all.size() - most);
    }
    notes_.setText(notes.join('\n'));
    notes_.setVisible(!notes.isEmpty());
    const bool reading = !preview_ && failure_.isEmpty();
    progress_.setRange(0, reading ? 0 : steps);
    progress_.setVisible(reading || importing_);
    const bool any = preview_ && preview_->count(Kind::added) + preview_->count(Kind::changed) > 0;
    start_->setEnabled(any && !importing_);
    for (QComboBox* box : {&encoding_, &name_, &type_, &comment_})
        box->setEnabled(isCsv_ && !importing_ && (box == &encoding_ || layout_));
}

// The dialog stays when nothing could be imported: its reason can be read, and another choice made.
void VariablesImport::import() {
    importing_ = true;
    cancelled_ = false;
    showState();
    const LiveProject::Hold hold(live_);
    try {
        import_(choice(), [this](std::int64_t done, std::int64_t total) { reach(done, total); });
        importing_ = false;
        return accept();
    } catch (const automation::Cancelled&) {
        failure_ = wording_.translate("studio", "Cancelled: nothing was imported");
    } catch (const std::exception&) {
        failure_ = inWords(automation::caughtError());
    }
    importing_ = false;
    showState();
}

void VariablesImport::reach(std::int64_t done, std::int64_t total) {
    const double part = total > 0 ? static_cast<double>(done) / static_cast<double>(total) : 0;
    progress_.setValue(static_cast<int>(part * steps));
    QCoreApplication::processEvents();
    if (cancelled_) throw automation::Cancelled();
}

void VariablesImport::reject() {
    if (importing_) cancelled_ = true;
    else QDialog::reject();
}

}  // namespace hx::studio

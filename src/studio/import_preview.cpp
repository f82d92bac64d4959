// SPDX-License-Identifier: MIT
#include "studio/import_preview.h"

#include "adapters/qt/text.h"

namespace hx::studio {

using Kind = ImportPreview::Kind;

namespace {

constexpr std::size_t mostNotes = 100;

QString becomes(const std::string& before, const std::optional<std::string>& after) {
    if (!after || *after == before) return qt::toQt(before);
    return before.empty() ? qt::toQt(*after) : qt::toQt(before + " → " + *after);
}

}  // namespace

ImportPreview::ImportPreview(project::Reader& reader, const std::string& path, const lists::CsvChoice& choice)
    : reader_(&reader) {
    lists::VariableWriter writer(reader.session(), reader.path(), path, lists::VariableWriter::Mode::practise);
    writer_ = &writer;
    lists::readVariables(path, choice, writer.limits(), *this);
    reader_ = nullptr;
    writer_ = nullptr;
}

void ImportPreview::take(const lists::ListedVariable& variable) {
    lists::VariableChange change = writer_->take(variable);
    const Kind kind = change.kind;
    if (++counts_[static_cast<std::size_t>(kind)] > mostOfKind || kind == Kind::repeated) return;
    entries_.push_back({kind, variable, std::move(change)});
}

void ImportPreview::note(const automation::Sentence& sentence, std::initializer_list<std::string_view> names) {
    if (notes_.size() == mostNotes) return;
    notes_.emplace_back(say(automation::Language::english, sentence, names),
                        say(automation::Language::german, sentence, names));
}

std::vector<std::string> ImportPreview::notes(automation::Language language) const {
    std::vector<std::string> notes;
    for (const auto& [english, german] : notes_)
        notes.push_back(language == automation::Language::german ? german : english);
    return notes;
}

void ImportPreviewModel::show(std::shared_ptr<const ImportPreview> preview, std::optional<Kind> kind) {
    beginResetModel();
    preview_ = std::move(preview);
    rows_.clear();
    const std::size_t count = preview_ ? preview_->entries().size() : 0;
    for (std::uint32_t number = 0; number < count; ++number) {
        const Kind own = preview_->entries()[number].kind;
        if (kind ? own == *kind : own != Kind::unchanged) rows_.push_back(number);
    }
    endResetModel();
}

int ImportPreviewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant ImportPreviewModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::ToolTipRole) return qt::plainToolTip(data(index, Qt::DisplayRole).toString());
    if (role != Qt::DisplayRole) return {};
    const ImportPreview::Entry& entry = preview_->entries()[rows_[static_cast<std::size_t>(index.row())]];
    switch (index.column()) {
        case 0:
            return entry.kind == Kind::added     ? wording_.translate("studio", "new")
                   : entry.kind == Kind::changed ? wording_.translate("studio", "changed")
                                                 : wording_.translate("studio", "unchanged");
        case 1: return qt::toQt(entry.kind == Kind::added ? entry.listed.name : entry.before.name);
        case 2: return becomes(entry.before.type, entry.listed.type);
        default: return becomes(entry.before.comment, entry.listed.comment);
    }
}

QVariant ImportPreviewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
        case 0: return wording_.translate("studio", "Change");
        case 1: return wording_.translate("studio", "Name");
        case 2: return wording_.translate("studio", "Type");
        default: return wording_.translate("studio", "Comment");
    }
}

}  // namespace hx::studio

// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <memory>
#include <string>
#include <vector>

#include "adapters/qt/wording.h"
#include "lists/variable_writer.h"
#include "lists/variables.h"
#include "project/reader.h"

namespace hx::studio {

/// What importing a list of variables would do to a project.
class ImportPreview : private lists::VariableReceiver {
  public:
    using Kind = lists::VariableChange::Kind;
    struct Entry {
        Kind kind;
        lists::ListedVariable listed;
        lists::VariableChange before;
    };
    /// So many of a kind are kept.
    static constexpr std::size_t mostOfKind = 100'000;

    /// Used on another thread. Throws automation::Error when the list cannot be imported.
    ImportPreview(project::Reader& reader, const std::string& path, const lists::CsvChoice& choice);

    /// In the order of the list.
    [[nodiscard]] const std::vector<Entry>& entries() const noexcept { return entries_; }
    [[nodiscard]] std::size_t count(Kind kind) const { return counts_[static_cast<std::size_t>(kind)]; }
    /// What the user should know, in his language.
    [[nodiscard]] std::vector<std::string> notes(automation::Language language) const;

  private:
    void take(const lists::ListedVariable& variable) override;
    void note(const automation::Sentence& sentence, std::initializer_list<std::string_view> names) override;
    void reach(std::int64_t done, std::int64_t total) override { reader_->reach(done, total); }

    project::Reader* reader_;        // while it reads
    lists::VariableWriter* writer_;  // the same
    std::vector<Entry> entries_;
    std::size_t counts_[4] = {};                              // by kind
    std::vector<std::pair<std::string, std::string>> notes_;  // in English and in German
};

/// Shows it in rows.
class ImportPreviewModel : public QAbstractTableModel {
  public:
    /// The wording is lent.
    explicit ImportPreviewModel(const qt::Wording& wording) : wording_(wording) {}

    /// Null for none; of it those of this kind, or all that change something.
    void show(std::shared_ptr<const ImportPreview> preview, std::optional<ImportPreview::Kind> kind);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& = {}) const override { return 4; }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const qt::Wording& wording_;
    std::shared_ptr<const ImportPreview> preview_;
    std::vector<std::uint32_t> rows_;
};

}  // namespace hx::studio

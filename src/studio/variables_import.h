// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>

#include "adapters/qt/controls/plain_label.h"
#include "studio/import_preview.h"
#include "studio/live_project.h"
#include "studio/variable_lists.h"

namespace hx::studio {

/// Shows what a list of variables would do to the project, lets the user choose how the list is read, and imports it.
class VariablesImport : public QDialog {
  public:
    /// Carries the import out, told how far it is by `reach`, which throws automation::Cancelled to end it. What it
    /// throws is shown, and the project is as before.
    using Import = std::function<void(const lists::CsvChoice& choice, const Progress& reach)>;

    /// All are lent.
    VariablesImport(QWidget& window, LiveProject& live, const qt::Wording& wording, const QString& list, Import import);

    void reject() override;

  private:
    void build();
    void buildChoices();
    void fillColumns();
    [[nodiscard]] lists::CsvChoice choice() const;
    void readLayout();
    void readPreview();
    void take(std::shared_ptr<const ImportPreview> preview);
    void import();
    void reach(std::int64_t done, std::int64_t total);
    void fail(const QString& text);
    void showRows();
    void showState();
    [[nodiscard]] QString countsText() const;
    [[nodiscard]] QString inWords(const automation::Error& error) const;

    LiveProject& live_;
    const qt::Wording& wording_;
    std::string list_;
    Import import_;
    bool isCsv_;
    std::optional<lists::CsvLayout> layout_;
    qt::PlainLabel file_, counts_, notes_;
    QComboBox encoding_, name_, type_, comment_, kinds_;
    QFormLayout form_;
    ImportPreviewModel model_;
    QTableView rows_;
    QProgressBar progress_;
    QDialogButtonBox buttons_;
    QPushButton* start_ = nullptr;
    std::shared_ptr<const ImportPreview> preview_;
    QString failure_;
    bool importing_ = false, cancelled_ = false;
    ProjectReading reading_;
};

}  // namespace hx::studio

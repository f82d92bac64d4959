// SPDX-License-Identifier: MIT
#include "studio/variable_lists.h"

#include <array>

#include "adapters/qt/text.h"
#include "automation/text.h"
#include "hosting/file_bytes.h"
#include "hosting/file_replacement.h"
#include "lists/csv_writer.h"
#include "project/schema.h"

namespace hx::studio {

namespace {

constexpr automation::Sentence noVariables{"There are no variables in %1", "In %1 stehen keine Variablen"};
constexpr std::array textColumns{VariablesModel::Column::name, VariablesModel::Column::type,
                                 VariablesModel::Column::comment};

class Importer : public lists::VariableReceiver {
  public:
    Importer(lists::VariableWriter& writer, const Progress& progress) : writer_(writer), progress_(progress) {}

    void take(const lists::ListedVariable& variable) override {
        switch (writer_.take(variable).kind) {
            case lists::VariableChange::Kind::added: ++counts.added; break;
            case lists::VariableChange::Kind::changed: ++counts.changed; break;
            case lists::VariableChange::Kind::unchanged: ++counts.unchanged; break;
            case lists::VariableChange::Kind::repeated: break;
        }
        constexpr std::size_t between = 1024;
        if (++taken_ % between == 0) reach(done_, total_);
    }
    // What there is to know the user has been told by the preview.
    void note(const automation::Sentence&, std::initializer_list<std::string_view>) override {}
    void reach(std::int64_t done, std::int64_t total) override {
        done_ = done;
        total_ = total;
        if (progress_) progress_(done, total);
    }

    ImportCounts counts;

  private:
    lists::VariableWriter& writer_;
    const Progress& progress_;
    std::int64_t done_ = 0, total_ = 0;
    std::size_t taken_ = 0;
};

}  // namespace

QString ImportCounts::text(const qt::Wording& wording) const {
    return wording.translate("studio", "Variables: %1 new, %2 changed, %3 unchanged")
        .arg(wording.number(added), wording.number(changed), wording.number(unchanged));
}

ImportCounts importVariables(ado::Session& session, const std::string& project, const std::string& origin,
                             const ReadList& read, const Progress& reach) {
    session.beginTransaction();
    try {
        lists::VariableWriter writer(session, project, origin);
        Importer importer(writer, reach);
        read(importer, writer.limits());
        const ImportCounts& counts = importer.counts;
        if (counts.added + counts.changed + counts.unchanged == 0)
            throw automation::Error(automation::errFail, noVariables, {origin});
        session.commit();
        return counts;
    } catch (...) {
        session.rollback();
        throw;
    }
}

std::size_t exportVariables(StudioHost& host, const std::string& project, const std::string& file) {
    namespace variable = project::schema::variable;
    constexpr std::size_t blockSize = std::size_t{1} << 20;
    constexpr char delimiter = ';';
    hosting::FileReplacement replacement(hosting::fileSystemPath(file));
    std::string text = "\xEF\xBB\xBF";
    lists::appendCsvRecord(text, std::array<std::string_view, 3>{"Name", "Type", "Comment"}, delimiter);
    std::size_t count = 0;
    std::array<std::string, 3> rooms;
    project::Reader reader(host.store(), project);
    reader.read(project::schema::variableTable, std::array{variable::name, variable::type, variable::comment},
                [&](project::Row row) {
                    const std::array fields{ado::shownText(row[0], rooms[0]), ado::shownText(row[1], rooms[1]),
                                            ado::shownText(row[2], rooms[2])};
                    lists::appendCsvRecord(text, fields, delimiter);
                    ++count;
                    if (text.size() < blockSize) return;
                    replacement.write(text);
                    text.clear();
                });
    replacement.write(text);
    replacement.publish();
    return count;
}

std::unique_ptr<QMimeData> copyOf(const VariablesModel& model, const std::vector<int>& rows) {
    std::string text;
    QString html = QStringLiteral("<table>");
    for (const int row : rows) {
        std::array<std::string, textColumns.size()> fields;
        for (std::size_t i = 0; i < fields.size(); ++i) fields[i] = model.text(row, textColumns[i]);
        lists::appendCsvRecord(text, std::array<std::string_view, 3>{fields[0], fields[1], fields[2]}, '\t');
        html += QStringLiteral("<tr>");
        for (const std::string& field : fields)
            html += QStringLiteral("<td>") + qt::toQt(field).toHtmlEscaped() + QStringLiteral("</td>");
        html += QStringLiteral("</tr>");
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(qt::toQt(text).remove('\r'));
    data->setHtml(html + QStringLiteral("</table>"));
    return data;
}

}  // namespace hx::studio

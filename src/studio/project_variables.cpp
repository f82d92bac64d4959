#include "studio/project_variables.h"

#include <memory>

#include "ado/recordset.h"
#include "automation/convert.h"

namespace hx::studio {

std::vector<qt::Variable> ProjectVariables::variables() const {
    std::vector<qt::Variable> result;
    if (file_.empty()) return result;
    const auto connection = std::make_shared<ado::Connection>(provider_);
    connection->open("Data Source=" + file_ + ";Mode=Read;");
    ado::Recordset rows;
    rows.open("SELECT * FROM ThxVariable ORDER BY Name", connection);
    result.reserve(static_cast<std::size_t>(rows.recordCount()));
    for (; !rows.eof(); rows.moveNext()) {
        result.push_back({automation::toText(rows.field("Name").value()),
                          automation::toText(rows.field("Type").value()),
                          automation::toText(rows.field("Comment").value())});
    }
    rows.close();
    connection->close();
    return result;
}

}  // namespace hx::studio

#include "studio/project_variables.h"

#include "adapters/sqlite/project_check.h"

namespace hx::studio {

// In one statement: a recordset would ask for each page of a list of which every row is wanted.
std::vector<qt::Variable> ProjectVariables::variables() const {
    std::vector<qt::Variable> result;
    if (file_.empty()) return result;
    sqlite::ProjectDatabase database(file_, options_());
    result.reserve(static_cast<std::size_t>(database.number("SELECT COUNT(*) FROM ThxVariable")));
    sqlite::Statement rows(database, "SELECT Name, Type, Comment FROM ThxVariable ORDER BY Name");
    while (rows.step()) result.push_back({rows.text(0), rows.text(1), rows.text(2)});
    return result;
}

}  // namespace hx::studio

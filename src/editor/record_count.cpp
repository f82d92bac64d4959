// SPDX-License-Identifier: MIT
#include "editor/record_count.h"

#include "recipe/mhxrcp_hirarch_func.h"

namespace hx::editor {

std::int32_t countRecords(ado::Recordset& recordset) {
    recipe::CloseRecordset(recordset, true);
    recordset.open();
    try {
        const std::int32_t count = recordset.recordCount();
        recordset.close();
        return count;
    } catch (const automation::Error&) {
        recipe::CloseRecordset(recordset, false);
        throw;
    }
}

}  // namespace hx::editor

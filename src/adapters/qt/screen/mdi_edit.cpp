// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/mdi_edit.h"

#include "automation/member_rows.h"

namespace hx::qt {

void MdiEdit::show() {
    if (document_) document_->show();
}

const automation::MemberTable& MdiEdit::members() const {
    static constexpr automation::Member rows[] = {
        automation::method<&MdiEdit::show>("Show", "Shows the document window"),
    };
    static constexpr automation::MemberTable table{"MDIEdit", rows};
    return table;
}

}  // namespace hx::qt

// SPDX-License-Identifier: MIT
#include "adapters/windows/embedded_window.h"

#include "automation/member_rows.h"

namespace hx::windows {

const automation::MemberTable& EmbeddedWindow::members() const {
    static constexpr automation::Member rows[] = {
        automation::method<&EmbeddedWindow::Show>("Show", "Shows the window"),
    };
    static constexpr automation::MemberTable table{"MDIEdit", rows};
    return table;
}

}  // namespace hx::windows

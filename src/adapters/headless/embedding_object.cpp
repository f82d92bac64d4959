// SPDX-License-Identifier: MIT
#include "adapters/headless/embedding_object.h"

#include "automation/member_rows.h"

namespace hx::headless {

const automation::MemberTable& EmbeddingWindow::members() const {
    using namespace automation;
    static constexpr Member rows[] = {
        property<&EmbeddingWindow::Visible, &EmbeddingWindow::setVisible>("Visible", "Whether the window is shown"),
    };
    static constexpr MemberTable table{"Window", rows};
    return table;
}

const automation::MemberTable& EmbeddingEdit::members() const {
    using namespace automation;
    static constexpr Member rows[] = {
        method<&EmbeddingEdit::Show>("Show", "Shows the window"),
    };
    static constexpr MemberTable table{"MDIEdit", rows};
    return table;
}

const automation::MemberTable& EmbeddingOther::members() const {
    static constexpr automation::MemberTable table{"Frame", {}};
    return table;
}

}  // namespace hx::headless

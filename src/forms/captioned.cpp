// SPDX-License-Identifier: MIT
#include "forms/captioned.h"

#include "automation/member_rows.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/picture_box.h"

namespace hx::forms {

using automation::MemberTable;

const MemberTable& Captioned::captionedMembers() {
    static constexpr automation::Member rows[] = {
        automation::property<&Captioned::caption, &Captioned::setCaption>("Caption",
                                                                          "Its text; \"&\" marks the key of access"),
    };
    static const MemberTable table{"Captioned", rows, &Control::controlMembers()};
    return table;
}

// Plain controls: nothing of their own is reached by name.
const MemberTable& Label::members() const {
    static const MemberTable table{"Label", {}, &captionedMembers()};
    return table;
}

const MemberTable& Frame::members() const {
    static const MemberTable table{"Frame", {}, &captionedMembers()};
    return table;
}

const MemberTable& PictureBox::members() const {
    static const MemberTable table{"PictureBox", {}, &controlMembers()};
    return table;
}

}  // namespace hx::forms

// SPDX-License-Identifier: MIT
#include "automation/member_rows.h"
#include "forms/form.h"

namespace hx::forms {

using automation::Args;
using automation::Error;
using automation::Variant;

namespace {

bool unloadByCode(Form& form) { return form.unload(UnloadMode::byCode); }

}  // namespace

const automation::MemberTable& Form::formMembers() {
    using automation::method;
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&Form::caption, &Form::setCaption>("Caption", "The text in the window's frame"),
        property<&Form::windowState, &Form::setWindowState>("WindowState", "0 normal, 1 minimised, 2 maximised"),
        property<&Form::scaleWidth>("ScaleWidth", "Width inside the frame, in twips"),
        property<&Form::scaleHeight>("ScaleHeight", "Height inside the frame, in twips"),
        property<&Form::keyPreview, &Form::setKeyPreview>("KeyPreview",
                                                          "Whether the form sees keys before its controls"),
        property<&Form::handle>("hWnd", "The window's number; 0 while it is not loaded"),
        method<&Form::show>("Show", "Loads and shows it"),
        method<&Form::hide>("Hide", "Hides it"),
        method<&unloadByCode>("Unload", "Ends the window; false when a handler refuses"),
        method<&Form::closeByFrame>("Close", "Closes it by its frame, as the user does; false when that is refused"),
    };
    static const automation::MemberTable table{"Form", rows, &controlMembers()};
    return table;
}

Variant Form::get(std::string_view name, Args args) {
    if (members().find(name) != nullptr || !hasControl(name)) return Control::get(name, args);
    if (args.size() > 1) throw Error(automation::errBadParamCount, "Invalid number of arguments");
    std::optional<std::int16_t> index;
    if (!args.empty()) index = automation::toInt16(args[0]);
    if (Control* control = findControl(name, index)) return control->share();
    if (args.empty()) {
        throw Error(automation::errBadParamCount, std::string(name) + " is a control array: it needs an index");
    }
    automation::throwBadIndex(name, args[0]);
}

void Form::set(std::string_view name, const Variant& value, Args index) {
    if (members().find(name) == nullptr && hasControl(name)) {
        throw Error(automation::errMemberNotFound, std::string(name) + " is a control and cannot be assigned");
    }
    Control::set(name, value, index);
}

}  // namespace hx::forms

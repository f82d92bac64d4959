// SPDX-License-Identifier: MIT
#include <utility>

#include "automation/text.h"
#include "forms/message_style.h"
#include "macros/arguments.h"
#include "macros/globals.h"

namespace hx::macros {

namespace {

using lua::Engine;
using lua::Fields;
using lua::List;
using lua::Value;
using lua::Values;

Value takeMessages(forms::Record& record) {
    List list;
    for (const forms::ShownMessage& box : std::exchange(record.messages, {})) {
        List buttons;
        for (const auto button : box.buttons) buttons.emplace_back(forms::message::nameOf(button));
        list.emplace_back(Fields{{"text", box.text},
                                 {"title", box.title},
                                 {"buttons", std::move(buttons)},
                                 {"answer", forms::message::nameOf(box.answer)}});
    }
    return list;
}

// A band that refused to open was not seen.
Value takePopUps(forms::Record& record) {
    List list;
    for (const forms::PopUp& popUp : std::exchange(record.popUps, {})) {
        if (!popUp.refused) list.emplace_back(popUp.band);
    }
    return list;
}

Value takeBeeps(forms::Record& record) { return std::exchange(record.beeps, 0); }

Value takeHelp(forms::Record& record) {
    List list;
    for (const forms::HelpCall& call : std::exchange(record.help, {})) {
        list.emplace_back(Fields{{"file", call.file}, {"context", call.context}});
    }
    return list;
}

List argumentsOf(const forms::ComponentCall& call) {
    List list;
    for (const automation::Variant& argument : call.arguments) list.emplace_back(argument);
    return list;
}

// The calls of a component follow its creation; a component that was not there has none.
Value takeComponents(forms::Record& record) {
    List list;
    auto calls = std::exchange(record.componentCalls, {});
    auto call = calls.begin();
    for (const std::string& programId : std::exchange(record.components, {})) {
        Fields fields{{"progId", programId}};
        if (call != calls.end() && automation::equalIgnoreCase(call->component, programId)) {
            fields.emplace_back("member", call->member);
            fields.emplace_back("arguments", argumentsOf(*call++));
        }
        list.emplace_back(std::move(fields));
    }
    return list;
}

}  // namespace

void defineRecords(Engine& engine, Studio& studio) {
    const auto add = [&](const char* name, Value (*take)(forms::Record&)) {
        engine.define("studio", name, [&studio, take](Values) { return take(studio.record()); });
    };
    add("Messages", takeMessages);
    add("Popups", takePopUps);
    add("Beeps", takeBeeps);
    add("Help", takeHelp);
    add("Components", takeComponents);
    engine.define("studio", "Found", [&studio](Values values) {
        const Arguments arguments(values);
        const auto id = [&](std::size_t number) { return static_cast<std::int64_t>(arguments.real(number)); };
        studio.found().push_back({arguments.text(0), id(1), id(2), arguments.number(3) != 0});
        return Value();
    });
}

}  // namespace hx::macros

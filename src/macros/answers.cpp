// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <optional>

#include "automation/text.h"
#include "forms/message_style.h"
#include "macros/arguments.h"
#include "macros/globals.h"

namespace hx::macros {

namespace {

using automation::Error;
using automation::Variant;
using forms::message::Answer;
using lua::Engine;
using lua::Function;
using lua::List;
using lua::Value;
using lua::Values;

constexpr std::array<std::string_view, 4> dialogs = {"FRecipe", "FSubRecipe", "FMultiSelectItems", "FConfigEditor"};

/// What the macro answers; none once it has failed: the editor then goes on as with a user who cancels.
std::optional<Variant> ask(Engine& engine, const Function& function, const List& arguments) {
    if (engine.failing()) return {};
    try {
        return function(arguments).toVariant();
    } catch (const Error& error) {
        if (!engine.failing()) engine.fail(error);
        return {};
    }
}

List buttonsOf(const forms::ShownMessage& box) {
    List names;
    for (const Answer button : box.buttons) names.emplace_back(forms::message::nameOf(button));
    return names;
}

Answer answerOf(Engine& engine, const forms::ShownMessage& box, const Variant& answer) {
    if (answer.isEmpty()) return box.defaultButton;
    const std::string name = automation::toText(answer);
    const auto found = std::ranges::find_if(
        box.buttons, [&](Answer button) { return automation::equalIgnoreCase(forms::message::nameOf(button), name); });
    if (found != box.buttons.end()) return *found;
    engine.fail(Error(automation::errBadIndex, "The message box \"" + box.text + "\" has no button \"" + name + "\""));
    return forms::message::escapeAnswerOf(box.style);
}

auto messageAnswer(Engine& engine, Function function) {
    return [&engine, function = std::move(function)](const forms::ShownMessage& box) {
        const auto answer =
            ask(engine, function, {box.text, box.title, buttonsOf(box), forms::message::nameOf(box.defaultButton)});
        return answer ? answerOf(engine, box, *answer) : forms::message::escapeAnswerOf(box.style);
    };
}

// Without an answer the choice is cancelled.
auto textAnswer(Engine& engine, Function function, bool keepsCurrent) {
    return [&engine, keepsCurrent, function = std::move(function)](const std::string& current) {
        const auto answer = ask(engine, function, {current});
        if (answer && !answer->isEmpty()) return automation::toText(*answer);
        return keepsCurrent ? current : std::string();
    };
}

auto fontAnswer(Engine& engine, Function function) {
    return [&engine, function = std::move(function)](forms::Font::Values& values) {
        const auto font = std::make_shared<forms::Font>();
        font->setValues(values);
        const auto answer = ask(engine, function, {automation::ObjectRef(font)});
        if (!answer || *answer == Variant(false)) return false;
        values = font->values();
        return true;
    };
}

auto popUpAnswer(Engine& engine, Function function) {
    return [&engine, function = std::move(function)](forms::Band& band) {
        const auto answer = ask(engine, function, {band.name()});
        std::string tool = answer ? automation::toText(*answer) : std::string();
        if (tool.empty() || band.find(tool) != nullptr) return tool;
        engine.fail(Error(automation::errBadIndex, "The band \"" + band.name() + "\" has no tool \"" + tool + "\""));
        return std::string();
    };
}

// nil takes a function away again.
template <class Answers, class Make>
void defineAnswer(Engine& engine, const char* name, Answers& answers, Make make) {
    engine.define("studio", name, [&engine, &answers, make](Values given) {
        const Value function = Arguments(given)[0];
        if (function.isNil()) answers = nullptr;
        else answers = make(engine, function.function());
        return Value();
    });
}

void requireDialog(const std::string& name) {
    const bool known =
        std::ranges::any_of(dialogs, [&](std::string_view each) { return automation::equalIgnoreCase(each, name); });
    if (!known) automation::throwBadIndex("OnDialog", Variant(name));
}

void setDialogAnswer(Engine& engine, Studio& studio, const Arguments& given) {
    const std::string name = given.text(0);
    requireDialog(name);
    auto& onModal = studio.script().onModal;
    if (given[1].isNil()) {
        onModal.erase(name);
        return;
    }
    onModal[name] = [&engine, &studio, function = given[1].function()](forms::Form& form) {
        // What the dialog refers to is kept with it.
        (void)studio.editorWindow();
        if (!ask(engine, function, {form.share()})) form.set("Cancelled", Variant(true));
    };
}

}  // namespace

void defineAnswers(Engine& engine, Studio& studio) {
    forms::Script& script = studio.script();
    defineAnswer(engine, "OnMessage", script.onMessage,
                 [](Engine& asked, const Function& function) { return messageAnswer(asked, function); });
    defineAnswer(engine, "OnItemSelection", script.onItem,
                 [](Engine& asked, const Function& function) { return textAnswer(asked, function, false); });
    defineAnswer(engine, "OnPathSelection", script.onFolder,
                 [](Engine& asked, const Function& function) { return textAnswer(asked, function, true); });
    defineAnswer(engine, "OnFont", script.onFont,
                 [](Engine& asked, const Function& function) { return fontAnswer(asked, function); });
    defineAnswer(engine, "OnPopup", script.onPopUp,
                 [](Engine& asked, const Function& function) { return popUpAnswer(asked, function); });
    engine.define("studio", "OnDialog", [&engine, &studio](Values given) {
        setDialogAnswer(engine, studio, Arguments(given));
        return Value();
    });
}

}  // namespace hx::macros

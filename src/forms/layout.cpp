// SPDX-License-Identifier: MIT
#include "forms/layout.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "forms/command_button.h"
#include "forms/form.h"

namespace hx::forms {

namespace {

std::array<Control*, 3> controlsOf(const LayoutRow& row) { return {row.label, row.field, row.button}; }

bool placed(const Layout& layout, const Control& control) {
    const auto isControl = [&](const Control* other) { return other == &control; };
    return isControl(layout.help) || std::ranges::any_of(layout.buttons, isControl) ||
           std::ranges::any_of(layout.rows,
                               [&](const LayoutRow& row) { return std::ranges::any_of(controlsOf(row), isControl); });
}

}  // namespace

// The pages of a tab strip are no controls of the form; they lie in one.
bool Form::holds(const Control& control) const {
    if (std::ranges::any_of(controls_, [&](const auto& own) { return own.get() == &control; })) return true;
    return control.form() == nullptr && control.container() != nullptr && holds(*control.container());
}

void Form::requirePlaceable(const Control& control) const {
    if (control.form() != this) throw std::invalid_argument(control.name() + " is no control of " + name());
    if (placed(layout_, control)) throw std::invalid_argument(control.name() + " stands in two rows");
}

void Form::addRow(const LayoutRow& row) {
    if (row.container != nullptr && !holds(*row.container)) {
        throw std::invalid_argument(row.container->name() + " is no container of " + name());
    }
    for (Control* control : controlsOf(row)) {
        if (control == nullptr) continue;
        requirePlaceable(*control);
        control->setContainer(row.container);
    }
    layout_.rows.push_back(row);
}

void Form::addButtons(std::vector<CommandButton*> buttons, CommandButton* help) {
    for (const auto* button : buttons) requirePlaceable(*button);
    if (help != nullptr) requirePlaceable(*help);
    layout_.buttons = std::move(buttons);
    layout_.help = help;
}

}  // namespace hx::forms

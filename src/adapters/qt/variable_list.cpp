// SPDX-License-Identifier: MIT
#include "adapters/qt/variable_list.h"

#include <numeric>

namespace hx::qt {

namespace {

constexpr char lineEnd = '\n';  // so that no word is found across two fields

}  // namespace

VariableList::VariableList(const std::vector<Variable>& variables) { prepend(variables); }

void VariableList::reserve(std::size_t variables) {
    constexpr std::size_t usualSize = 48;  // what is too much is never touched
    texts_.reserve(variables * fields, variables * usualSize);
}

void VariableList::add(std::string_view name, std::string_view type, std::string_view comment) {
    for (const std::string_view field : {name, type, comment}) texts_.append(field);
}

void VariableList::arrange(std::vector<std::uint32_t> order) {
    order_ = std::move(order);
    folded_ = {};
    foldedNames_ = {};
    foldedNames_.reserve(size(), texts_.bytes());  // what is too much is never touched
    for (std::size_t row = 0; row < size(); ++row) foldedNames_.appendFolded(text(row, VariableField::name));
}

void VariableList::fold() const {
    folded_ = {};
    folded_.reserve(size(), texts_.bytes() + size() * fields);
    for (std::size_t row = 0; row < size(); ++row) {
        folded_.append(foldedName(row));
        for (const VariableField field : {VariableField::type, VariableField::comment}) {
            folded_.extendFolded(lineEnd, text(row, field));
        }
    }
}

void VariableList::prepend(const std::vector<Variable>& variables) {
    std::vector<std::uint32_t> order(variables.size());
    std::iota(order.begin(), order.end(), static_cast<std::uint32_t>(size()));
    order.insert(order.end(), order_.begin(), order_.end());
    for (const Variable& variable : variables) add(variable.name, variable.type, variable.comment);
    arrange(std::move(order));
}

std::string_view VariableList::longest(VariableField field) const {
    std::string_view found;
    for (auto i = static_cast<std::size_t>(field); i < texts_.size(); i += fields) {
        if (texts_[i].size() > found.size()) found = texts_[i];
    }
    return found;
}

std::optional<std::size_t> VariableList::find(std::string_view name) const {
    const std::string sought = automation::foldCase(name);
    for (std::size_t row = 0; row < size(); ++row) {
        if (foldedName(row) == sought) return row;
    }
    return std::nullopt;
}

}  // namespace hx::qt

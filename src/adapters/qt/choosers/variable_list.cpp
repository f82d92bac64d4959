#include "adapters/qt/choosers/variable_list.h"

#include "automation/text.h"

namespace hx::qt {

using automation::KeyIndex;

namespace {

constexpr char lineEnd = '\n';  // so that no word is found across two fields

}  // namespace

VariableList::VariableList(std::vector<Variable> variables) : variables_(std::move(variables)) {
    fold();
    fillIndex();
}

void VariableList::fold() {
    ends_.reserve(size());
    for (const Variable& variable : variables_) {
        automation::appendFolded(folded_, variable.name);
        const std::size_t name = folded_.size();
        folded_ += lineEnd;
        automation::appendFolded(folded_, variable.type);
        folded_ += lineEnd;
        automation::appendFolded(folded_, variable.comment);
        ends_.push_back({name, folded_.size()});
    }
}

void VariableList::fillIndex() {
    for (std::size_t row = 0; row < size(); ++row) {
        const std::string_view name = foldedName(row);
        index_.insert(KeyIndex::hashOf(name), static_cast<KeyIndex::Id>(row),
                      [&](auto other) { return foldedName(other) == name; });
    }
}

std::string_view VariableList::folded(std::size_t row) const {
    const std::size_t start = row == 0 ? 0 : ends_[row - 1].all;
    return std::string_view(folded_).substr(start, ends_[row].all - start);
}

std::string_view VariableList::foldedName(std::size_t row) const {
    const std::size_t start = row == 0 ? 0 : ends_[row - 1].all;
    return std::string_view(folded_).substr(start, ends_[row].name - start);
}

std::optional<std::size_t> VariableList::find(std::string_view name) const {
    const std::string folded = automation::foldCase(name);
    const auto row = index_.find(KeyIndex::hashOf(folded), [&](auto other) { return foldedName(other) == folded; });
    return row == KeyIndex::none ? std::nullopt : std::optional<std::size_t>(row);
}

}  // namespace hx::qt

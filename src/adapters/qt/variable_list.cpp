#include "adapters/qt/variable_list.h"

#include <algorithm>

#include "automation/text.h"

namespace hx::qt {

namespace {

constexpr char lineEnd = '\n';  // so that no word is found across two fields

// Nearly all names are ASCII, for which one pass is enough.
void appendFolded(std::string& to, std::string_view text) {
    const std::size_t start = to.size();
    to += text;
    for (std::size_t i = start; i < to.size(); ++i) {
        const char c = to[i];
        if (static_cast<unsigned char>(c) >= 0x80) {
            to.replace(start, text.size(), automation::foldCase(text));
            return;
        }
        if (c >= 'A' && c <= 'Z') to[i] = static_cast<char>(c + ('a' - 'A'));
    }
}

}  // namespace

VariableList::VariableList(std::vector<Variable> variables) : variables_(std::move(variables)) {
    ends_.reserve(size());
    std::vector<std::size_t> nameEnds;
    nameEnds.reserve(size());
    for (const Variable& variable : variables_) {
        appendFolded(folded_, variable.name);
        nameEnds.push_back(folded_.size());
        folded_ += lineEnd;
        appendFolded(folded_, variable.type);
        folded_ += lineEnd;
        appendFolded(folded_, variable.comment);
        ends_.push_back(folded_.size());
    }
    rows_.reserve(size());
    for (std::size_t row = 0; row < size(); ++row) {
        const std::size_t start = row == 0 ? 0 : ends_[row - 1];
        rows_.try_emplace(std::string_view(folded_).substr(start, nameEnds[row] - start), row);
    }
}

std::string_view VariableList::folded(std::size_t row) const {
    const std::size_t start = row == 0 ? 0 : ends_[row - 1];
    return std::string_view(folded_).substr(start, ends_[row] - start);
}

std::optional<std::size_t> VariableList::find(std::string_view name) const {
    const auto found = rows_.find(automation::foldCase(name));
    if (found == rows_.end()) return {};
    return found->second;
}

}  // namespace hx::qt

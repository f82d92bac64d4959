#include "adapters/qt/variable_list.h"

#include <bit>
#include <functional>

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
    fold();
    fillSlots();
}

void VariableList::fold() {
    ends_.reserve(size());
    for (const Variable& variable : variables_) {
        appendFolded(folded_, variable.name);
        const std::size_t name = folded_.size();
        folded_ += lineEnd;
        appendFolded(folded_, variable.type);
        folded_ += lineEnd;
        appendFolded(folded_, variable.comment);
        ends_.push_back({name, folded_.size()});
    }
}

// At most half full, so that a free slot is never far.
void VariableList::fillSlots() {
    slots_.assign(std::bit_ceil(2 * size() + 1), 0);
    for (std::size_t row = 0; row < size(); ++row) {
        std::uint32_t& slot = slots_[slotOf(foldedName(row))];
        if (slot == 0) slot = static_cast<std::uint32_t>(row + 1);
    }
}

std::size_t VariableList::slotOf(std::string_view name) const {
    const std::size_t last = slots_.size() - 1;
    std::size_t slot = std::hash<std::string_view>()(name) & last;
    while (slots_[slot] != 0 && foldedName(slots_[slot] - 1) != name) slot = (slot + 1) & last;
    return slot;
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
    const std::uint32_t slot = slots_[slotOf(automation::foldCase(name))];
    return slot == 0 ? std::nullopt : std::optional<std::size_t>(slot - 1);
}

}  // namespace hx::qt

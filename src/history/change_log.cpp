// SPDX-License-Identifier: MIT
#include "history/change_log.h"

#include <algorithm>
#include <bit>

#include "automation/error.h"
#include "history/sentences.h"

namespace hx::history {

using ado::RowChange;
using ado::StoredValue;
using Kind = StoredValue::Kind;

namespace {

// The first byte of an entry.
constexpr unsigned char tableName = 0, hasBefore = 1, hasAfter = 2;

constexpr unsigned bitsPerByte = 7;

std::uint64_t zigzag(std::int64_t number) {
    return static_cast<std::uint64_t>(number) << 1U ^ static_cast<std::uint64_t>(number >> 63);
}
std::int64_t zagzig(std::uint64_t number) {
    return static_cast<std::int64_t>(number >> 1U) ^ -static_cast<std::int64_t>(number & 1U);
}

[[noreturn]] void damaged() { throw automation::Error(automation::errFail, sentence::damaged); }

}  // namespace

// Seven bits a byte, the lowest first; the highest bit says that more follow.
void ChangeLog::addNumber(std::uint64_t number) {
    for (; number >= 1U << bitsPerByte; number >>= bitsPerByte) bytes_ += static_cast<char>(number | 0x80U);
    bytes_ += static_cast<char>(number);
}

std::size_t ChangeLog::numberOf(std::string_view name) {
    const auto known = std::ranges::find(tables_, name);
    if (known != tables_.end()) return static_cast<std::size_t>(known - tables_.begin());
    bytes_ += static_cast<char>(tableName);
    addNumber(name.size());
    bytes_ += name;
    tables_.emplace_back(name);
    return tables_.size() - 1;
}

void ChangeLog::addRow(std::span<const StoredValue> row) {
    addNumber(row.size());
    for (const StoredValue& value : row) {
        bytes_ += static_cast<char>(value.kind);
        if (value.kind == Kind::integer) addNumber(zigzag(value.integer));
        if (value.kind == Kind::real) addNumber(std::bit_cast<std::uint64_t>(value.real));
        if (value.kind != Kind::text && value.kind != Kind::bytes) continue;
        addNumber(value.text.size());
        bytes_ += value.text;
    }
}

void ChangeLog::add(const RowChange& change) {
    const std::size_t number = numberOf(change.table);
    bytes_ += static_cast<char>((change.before.empty() ? 0 : hasBefore) | (change.after.empty() ? 0 : hasAfter));
    addNumber(number);
    addNumber(zigzag(change.key));
    if (!change.before.empty()) addRow(change.before);
    if (!change.after.empty()) addRow(change.after);
}

void ChangeLog::add(const ChangeLog& other) {
    ChangeReader reader(other);
    while (const RowChange* change = reader.next()) add(*change);
}

void ChangeLog::cut(const Mark& mark) {
    bytes_.resize(mark.bytes);
    tables_.resize(mark.tables);
}

std::uint64_t ChangeReader::number() {
    std::uint64_t number = 0;
    for (unsigned shift = 0; shift < 64; shift += bitsPerByte) {
        if (at_ >= bytes_.size()) damaged();
        const auto byte = static_cast<unsigned char>(bytes_[at_++]);
        number |= static_cast<std::uint64_t>(byte & 0x7FU) << shift;
        if ((byte & 0x80U) == 0) return number;
    }
    damaged();
}

std::string_view ChangeReader::text(std::uint64_t size) {
    if (size > bytes_.size() - at_) damaged();
    const std::string_view text = bytes_.substr(at_, static_cast<std::size_t>(size));
    at_ += text.size();
    return text;
}

StoredValue ChangeReader::value() {
    switch (const auto kind = static_cast<Kind>(text(1).front())) {
        case Kind::null: return {};
        case Kind::integer: return StoredValue::of(zagzig(number()));
        case Kind::real: {
            const auto real = std::bit_cast<double>(number());
            return {kind, 0, real, {}};
        }
        case Kind::text:
        case Kind::bytes: return {kind, 0, 0, text(number())};
        default: damaged();
    }
}

void ChangeReader::readRow(std::vector<StoredValue>& row) {
    const std::uint64_t size = number();
    if (size > bytes_.size() - at_) damaged();  // a value takes a byte at least
    row.clear();
    for (std::uint64_t i = 0; i < size; ++i) row.push_back(value());
}

const RowChange& ChangeReader::at(std::size_t place) {
    at_ = place;
    if (read() == nullptr) damaged();
    change_.table = table_ < tables_.size() ? std::string_view(tables_[static_cast<std::size_t>(table_)]) : "";
    return change_;
}

const RowChange* ChangeReader::next() {
    if (read() == nullptr) return nullptr;
    if (table_ >= tables_.size()) damaged();
    change_.table = tables_[static_cast<std::size_t>(table_)];
    return &change_;
}

const RowChange* ChangeReader::read() {
    while (at_ < bytes_.size()) {
        const auto kind = static_cast<unsigned char>(bytes_[at_++]);
        if (kind > (hasBefore | hasAfter)) damaged();
        if (kind == tableName) {
            const std::string_view name = text(number());
            // It comes again when the reader has gone back.
            if (std::ranges::find(tables_, name) == tables_.end()) tables_.emplace_back(name);
            continue;
        }
        table_ = number();
        change_.key = zagzig(number());
        before_.clear();
        after_.clear();
        if ((kind & hasBefore) != 0) readRow(before_);
        if ((kind & hasAfter) != 0) readRow(after_);
        change_.before = before_;
        change_.after = after_;
        return &change_;
    }
    return nullptr;
}

}  // namespace hx::history

// SPDX-License-Identifier: MIT
#include "adapters/jet/properties.h"

#include <algorithm>

#include "adapters/jet/utf16.h"
#include "automation/text.h"

namespace hx::jet {

namespace {

using automation::equalIgnoreCase;

constexpr Byte propertiesMark[] = {'M', 'R', '2', 0};
constexpr std::uint16_t nameBlock = 0x80, columnBlock = 1;
constexpr Byte propertyYes[] = {1};
constexpr std::string_view defaultValueName = "DefaultValue", requiredName = "Required";

/// Takes pieces off the front; what is too short gives empty pieces.
class PropertyReader {
  public:
    explicit PropertyReader(Bytes bytes) : bytes_(bytes) {}
    [[nodiscard]] bool atEnd() const noexcept { return bytes_.empty(); }
    Bytes take(std::size_t size) {
        size = std::min(size, bytes_.size());
        const Bytes taken = bytes_.first(size);
        bytes_ = bytes_.subspan(size);
        return taken;
    }
    std::uint32_t take16() {
        const Bytes taken = take(2);
        return taken.size() == 2 ? get16(taken.data()) : 0;
    }
    std::uint32_t take32() {
        const Bytes taken = take(4);
        return taken.size() == 4 ? get32(taken.data()) : 0;
    }
    /// A piece that begins with its own length, of that many bytes.
    PropertyReader takePiece(std::size_t lengthSize) {
        const std::uint32_t length = lengthSize == 2 ? take16() : take32();
        return PropertyReader(take(length > lengthSize ? length - lengthSize : bytes_.size()));
    }

  private:
    Bytes bytes_;
};

std::vector<std::string> namesIn(PropertyReader block) {
    std::vector<std::string> names;
    while (!block.atEnd()) names.push_back(utf8Of(block.take(block.take16())));
    return names;
}

void apply(Column& column, std::string_view name, ColumnType type, Bytes value) {
    if (equalIgnoreCase(name, requiredName) && type == ColumnType::yesNo)
        column.isRequired = !value.empty() && value[0] != 0;
    if (!equalIgnoreCase(name, defaultValueName)) return;
    column.standard.clear();
    appendText(column.standard, value);
}

void applyBlock(TableDefinition& table, PropertyReader block, const std::vector<std::string>& names) {
    PropertyReader head = block.takePiece(4);
    const std::string owner = utf8Of(head.take(head.take16()));
    const auto found = table.column(owner);
    while (found && !block.atEnd()) {
        PropertyReader value = block.takePiece(2);
        value.take(1);
        const Bytes type = value.take(1);
        const std::uint32_t name = value.take16();
        const Bytes bytes = value.take(value.take16());
        if (type.size() == 1 && name < names.size()) {
            apply(table.columns[*found], names[name], static_cast<ColumnType>(type[0]), bytes);
        }
    }
}

void appendName(Buffer& to, std::string_view name) {
    Buffer units;
    appendUtf16(units, name);
    append16(to, static_cast<std::uint32_t>(units.size()));
    append(to, units);
}

void appendBlock(Buffer& to, std::uint16_t kind, Bytes block) {
    append32(to, static_cast<std::uint32_t>(block.size() + 6));
    append16(to, kind);
    append(to, block);
}

void appendValue(Buffer& to, ColumnType type, std::uint16_t name, Bytes value) {
    append16(to, static_cast<std::uint32_t>(value.size() + 8));
    to.push_back(1);
    to.push_back(static_cast<Byte>(type));
    append16(to, name);
    append16(to, static_cast<std::uint32_t>(value.size()));
    append(to, value);
}

Buffer blockOf(const Column& column) {
    Buffer name;
    appendName(name, column.name);
    Buffer block;
    append32(block, static_cast<std::uint32_t>(name.size() + 4));
    append(block, name);
    if (!column.standard.empty()) {
        Buffer units;
        appendUtf16(units, column.standard);
        appendValue(block, ColumnType::memo, 0, units);
    }
    if (column.isRequired) appendValue(block, ColumnType::yesNo, 1, propertyYes);
    return block;
}

}  // namespace

void applyProperties(TableDefinition& table, Bytes properties) {
    PropertyReader reader(properties);
    if (!std::ranges::equal(reader.take(sizeof propertiesMark), propertiesMark)) return;
    std::vector<std::string> names;
    while (!reader.atEnd()) {
        PropertyReader block = reader.takePiece(4);
        switch (block.take16()) {
            case nameBlock: names = namesIn(block); break;
            case columnBlock: applyBlock(table, block, names); break;
            default: break;  // of the table itself
        }
    }
}

Buffer propertiesOf(const TableDefinition& table) {
    Buffer bytes(propertiesMark, propertiesMark + sizeof propertiesMark);
    Buffer names;
    for (const std::string_view name : {defaultValueName, requiredName}) appendName(names, name);
    appendBlock(bytes, nameBlock, names);
    for (const Column& column : table.columns) {
        if (!column.standard.empty() || column.isRequired) appendBlock(bytes, columnBlock, blockOf(column));
    }
    return bytes;
}

}  // namespace hx::jet

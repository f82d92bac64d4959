// SPDX-License-Identifier: MIT

// relative_contexts FILE PREFIX: the compiler writes the topics of the context numbers with the path of the project
// before them, where no reader finds them. This makes each number point behind that path: into the same text, PREFIX
// further. The table "/#IVB" is packed together with everything else, so the new one is put at the end of the file,
// unpacked, and the directory is told so.

#include <chm_lib.h>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t directoryOffsetAt = 0x48, dataOffsetAt = 0x58, sizeSectionAt = 0x38, sizeAt = 8;
constexpr std::size_t directoryHeader = 0x54, chunkLengthAt = 0x10, densityAt = 0x14, headAt = 0x20;
constexpr std::size_t listHeader = 0x14, freeAt = 4, nextAt = 0x10;
const std::string tableName = "/#IVB";

std::uint64_t number(const Bytes& bytes, std::size_t at, std::size_t width) {
    std::uint64_t value = 0;
    for (std::size_t i = width; i-- > 0;) value = value << 8U | bytes.at(at + i);
    return value;
}

void setNumber(Bytes& bytes, std::size_t at, std::size_t width, std::uint64_t value) {
    for (std::size_t i = 0; i < width; ++i) bytes.at(at + i) = static_cast<std::uint8_t>(value >> 8U * i);
}

Bytes readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string& path, const Bytes& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

Bytes object(chmFile& file, const std::string& name) {
    chmUnitInfo info;
    if (chm_resolve_object(&file, name.c_str(), &info) != CHM_RESOLVE_SUCCESS) throw std::runtime_error("no " + name);
    Bytes bytes(info.length);
    if (chm_retrieve_object(&file, &info, bytes.data(), 0, static_cast<LONGINT64>(bytes.size())) !=
        static_cast<LONGINT64>(bytes.size())) {
        throw std::runtime_error("cannot unpack " + name);
    }
    return bytes;
}

// The table with every place moved behind the prefix.
Bytes relativeTable(const std::string& path, const std::string& prefix) {
    const std::unique_ptr<chmFile, decltype(&chm_close)> file(chm_open(path.c_str()), chm_close);
    if (!file) throw std::runtime_error(path + " is no help file");
    Bytes table = object(*file, tableName);
    const Bytes strings = object(*file, "/#STRINGS");
    for (std::size_t at = 4; at + 8 <= table.size(); at += 8) {
        const std::uint64_t place = number(table, at + 4, 4);
        const bool known = place + prefix.size() < strings.size() &&
                           std::memcmp(&strings.at(place), prefix.data(), prefix.size()) == 0;
        if (!known) throw std::runtime_error("a topic's path does not begin with " + prefix);
        setNumber(table, at + 4, 4, place + prefix.size());
    }
    return table;
}

std::uint64_t packed(const Bytes& bytes, std::size_t& at) {
    std::uint64_t value = 0;
    for (;;) {
        const std::uint8_t next = bytes.at(at++);
        value = value << 7U | (next & 0x7FU);
        if (next < 0x80) return value;
    }
}

void pack(Bytes& bytes, std::uint64_t value) {
    Bytes reversed{static_cast<std::uint8_t>(value & 0x7FU)};
    while ((value >>= 7U) != 0) reversed.push_back(static_cast<std::uint8_t>((value & 0x7FU) | 0x80U));
    bytes.insert(bytes.end(), reversed.rbegin(), reversed.rend());
}

/// One chunk of the directory, its entries in order.
class Chunk {
  public:
    Chunk(const Bytes& file, std::size_t at, std::size_t length, std::size_t density)
        : bytes_(file.begin() + static_cast<std::ptrdiff_t>(at),
                 file.begin() + static_cast<std::ptrdiff_t>(at + length)),
          step_(1 + (std::size_t{1} << density)) {
        const std::size_t end = length - number(bytes_, freeAt, 4);
        for (std::size_t entry = listHeader; entry < end;) {
            const std::size_t begin = entry;
            entry += packed(bytes_, entry);
            for (int i = 0; i < 3; ++i) packed(bytes_, entry);
            entries_.emplace_back(bytes_.begin() + static_cast<std::ptrdiff_t>(begin),
                                  bytes_.begin() + static_cast<std::ptrdiff_t>(entry));
        }
    }
    /// Says that the object lies unpacked at `start`. False when it is not in this chunk.
    bool place(const std::string& name, std::uint64_t start, std::uint64_t length) {
        for (Bytes& entry : entries_) {
            std::size_t at = 0;
            const std::uint64_t nameLength = packed(entry, at);
            if (std::string(entry.begin() + static_cast<std::ptrdiff_t>(at), entry.end()).substr(0, nameLength) !=
                name) {
                continue;
            }
            entry.resize(at + nameLength);
            for (const std::uint64_t value : {std::uint64_t{0}, start, length}) pack(entry, value);
            return true;
        }
        return false;
    }
    /// The chunk anew, with its table of every so many entries at its end.
    [[nodiscard]] Bytes bytes() const {
        Bytes result(bytes_.begin(), bytes_.begin() + static_cast<std::ptrdiff_t>(listHeader));
        std::vector<std::size_t> marks;
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            if (i > 0 && i % step_ == 0) marks.push_back(result.size() - listHeader);
            result.insert(result.end(), entries_[i].begin(), entries_[i].end());
        }
        if (result.size() + 2 * (marks.size() + 1) > bytes_.size()) throw std::runtime_error("the directory is full");
        setNumber(result, freeAt, 4, bytes_.size() - result.size());
        result.resize(bytes_.size());
        setNumber(result, result.size() - 2, 2, entries_.size());
        for (std::size_t i = 0; i < marks.size(); ++i) setNumber(result, result.size() - 2 * (i + 2), 2, marks[i]);
        return result;
    }

  private:
    Bytes bytes_;
    std::size_t step_;
    std::vector<Bytes> entries_;
};

void putUnpacked(Bytes& file, const std::string& name, const Bytes& content) {
    const std::size_t directory = number(file, directoryOffsetAt, 8);
    const std::size_t length = number(file, directory + chunkLengthAt, 4);
    const std::size_t density = number(file, directory + densityAt, 4);
    const std::uint64_t start = file.size() - number(file, dataOffsetAt, 8);
    for (std::uint64_t next = number(file, directory + headAt, 4); next != 0xFFFFFFFF;) {
        const std::size_t at = directory + directoryHeader + next * length;
        Chunk chunk(file, at, length, density);
        if (chunk.place(name, start, content.size())) {
            const Bytes anew = chunk.bytes();
            std::copy(anew.begin(), anew.end(), file.begin() + static_cast<std::ptrdiff_t>(at));
            file.insert(file.end(), content.begin(), content.end());
            setNumber(file, number(file, sizeSectionAt, 8) + sizeAt, 8, file.size());
            return;
        }
        next = number(file, at + nextAt, 4);
    }
    throw std::runtime_error("the directory does not name " + name);
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) return std::fprintf(stderr, "Usage: relative_contexts FILE PREFIX\n"), 2;
    try {
        const std::string path = arguments[1];
        const Bytes table = relativeTable(path, arguments[2]);
        Bytes file = readFile(path);
        putUnpacked(file, tableName, table);
        writeFile(path, file);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "relative_contexts: %s\n", error.what());
        return 1;
    }
}

// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_file_check.h"

#include <algorithm>
#include <bit>
#include <cctype>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace hx::qt {

namespace {

constexpr std::uint64_t headerLength = 0x60, directoryHeaderLength = 0x54, listHeaderLength = 0x14,
                        indexHeaderLength = 8;
constexpr std::uint64_t smallestChunk = 0x100, largestChunk = 0x100000;
constexpr std::uint64_t longestName = 500;  // libchm holds 512 characters
constexpr int deepestIndex = 8;

// Of the compressed section: what a block holds, how much longer than that it may be packed, the size of all.
constexpr std::uint64_t blockLength = 0x8000, packedSlack = 6144, mostUnpacked = 256U << 20U;
constexpr std::uint64_t smallestWindow = 1U << 15U, largestWindow = 1U << 21U, mostBlocksToReset = 0x10000;

constexpr std::string_view contentName = "::dataspace/storage/mscompressed/content";
constexpr std::string_view controlName = "::dataspace/storage/mscompressed/controldata";
constexpr std::string_view resetTableName =
    "::dataspace/storage/mscompressed/transform/{7fc28940-9d31-11d0-9b27-00a0c91e9c7c}/instancedata/resettable";

struct Unsound {};

void require(bool holds) {
    if (!holds) throw Unsound();
}

class Bytes {
  public:
    explicit Bytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
    [[nodiscard]] std::uint64_t size() const { return bytes_.size(); }
    [[nodiscard]] Bytes part(std::uint64_t at, std::uint64_t length) const {
        require(at <= size() && length <= size() - at);
        return Bytes(bytes_.subspan(at, length));
    }
    [[nodiscard]] std::uint64_t number(std::uint64_t at, int width) const {
        const Bytes place = part(at, static_cast<std::uint64_t>(width));
        std::uint64_t value = 0;
        for (int i = width; i-- > 0;) value = value << 8U | place.bytes_[static_cast<std::size_t>(i)];
        return value;
    }
    [[nodiscard]] std::uint32_t u32(std::uint64_t at) const { return static_cast<std::uint32_t>(number(at, 4)); }
    [[nodiscard]] std::int32_t i32(std::uint64_t at) const { return static_cast<std::int32_t>(u32(at)); }
    [[nodiscard]] std::uint64_t u64(std::uint64_t at) const { return number(at, 8); }
    [[nodiscard]] bool begins(std::string_view mark) const {
        return size() >= mark.size() && std::equal(mark.begin(), mark.end(), bytes_.begin());
    }
    [[nodiscard]] std::string text() const { return {bytes_.begin(), bytes_.end()}; }

  private:
    std::span<const std::uint8_t> bytes_;
};

/// Reads the entries of a chunk one after the other.
class Entries {
  public:
    explicit Entries(Bytes bytes) : bytes_(bytes) {}
    [[nodiscard]] bool more() const { return at_ < bytes_.size(); }
    /// A number in groups of seven bits, the highest first.
    std::uint64_t number() {
        std::uint64_t value = 0;
        for (int bytes = 0; bytes < 9; ++bytes) {
            const std::uint64_t next = bytes_.number(at_++, 1);
            value = value << 7U | (next & 0x7FU);
            if (next < 0x80) return value;
        }
        throw Unsound();
    }
    std::string name() {
        const std::uint64_t length = number();
        require(length > 0 && length <= longestName);
        std::string name = bytes_.part(at_, length).text();
        at_ += length;
        require(name.find('\0') == std::string::npos);
        std::ranges::transform(name, name.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        return name;
    }

  private:
    Bytes bytes_;
    std::uint64_t at_ = 0;
};

struct Object {
    std::string name;
    std::uint64_t section, start, length;
};

class Check {
  public:
    explicit Check(Bytes file) : file_(file) {}
    void run() {
        readHeaders();
        readLists();
        followIndex(root_, 0);
        checkCompression();
        for (const Object& object : objects_) checkPlace(object);
    }

  private:
    void readHeaders() {
        require(file_.begins("ITSF") && file_.u32(4) == 3 && file_.u32(8) >= headerLength);
        const Bytes directory = file_.part(file_.u64(0x48), file_.u64(0x50));
        data_ = file_.u64(0x58);
        require(data_ <= file_.size());
        require(directory.begins("ITSP") && directory.u32(4) == 1 && directory.u32(8) == directoryHeaderLength);
        chunkLength_ = directory.u32(0x10);
        require(chunkLength_ >= smallestChunk && chunkLength_ <= largestChunk);
        chunks_ = directory.part(directoryHeaderLength, directory.size() - directoryHeaderLength);
        head_ = directory.i32(0x20);
        root_ = directory.i32(0x1C) <= -1 ? head_ : directory.i32(0x1C);
    }

    [[nodiscard]] Bytes chunk(std::int32_t number) const {
        require(number >= 0);
        return chunks_.part(static_cast<std::uint64_t>(number) * chunkLength_, chunkLength_);
    }

    // The entries of a chunk: behind its header, up to the space that is free.
    [[nodiscard]] Entries entriesOf(const Bytes& chunk, std::uint64_t header) const {
        const std::uint64_t free = chunk.u32(4);
        require(free <= chunkLength_ - header);
        return Entries(chunk.part(header, chunkLength_ - header - free));
    }

    void readLists() {
        for (std::int32_t number = head_; number != -1;) {
            require(lists_.insert(number).second);  // else the chain runs in a circle
            const Bytes list = chunk(number);
            require(list.begins("PMGL"));
            for (Entries entries = entriesOf(list, listHeaderLength); entries.more();) {
                std::string name = entries.name();
                const std::uint64_t section = entries.number(), start = entries.number(), length = entries.number();
                objects_.push_back({std::move(name), section, start, length});
            }
            number = list.i32(0x10);
        }
    }

    void followIndex(std::int32_t number, int depth) {
        require(depth < deepestIndex);
        const Bytes branch = chunk(number);
        if (branch.begins("PMGL")) return require(lists_.contains(number));
        require(branch.begins("PMGI") && branches_.insert(number).second);
        for (Entries entries = entriesOf(branch, indexHeaderLength); entries.more();) {
            (void)entries.name();
            const std::uint64_t child = entries.number();
            require(child < chunks_.size());
            followIndex(static_cast<std::int32_t>(child), depth + 1);
        }
    }

    // There must be one of this name: of two, libchm could take the other.
    [[nodiscard]] Bytes onlyObject(std::string_view name) const {
        const auto isNamed = [name](const Object& object) { return object.name == name; };
        require(std::ranges::count_if(objects_, isNamed) == 1);
        const Object& object = *std::ranges::find_if(objects_, isNamed);
        require(object.section == 0);
        return file_.part(data_, file_.size() - data_).part(object.start, object.length);
    }

    void checkCompression() {
        checkControl(onlyObject(controlName));
        checkResetTable(onlyObject(resetTableName), onlyObject(contentName).size());
    }

    static void checkControl(const Bytes& control) {
        require(control.size() >= 0x18 && control.size() <= 0x100);
        require(control.part(4, 4).begins("LZXC") && control.u32(8) == 2);
        const std::uint64_t interval = control.u32(0xC) * blockLength, window = control.u32(0x10) * blockLength;
        require(window >= smallestWindow && window <= largestWindow && std::has_single_bit(window));
        require(interval > 0 && interval <= mostBlocksToReset * blockLength && interval % (window / 2) == 0);
        const std::uint64_t blocks = interval / (window / 2) * control.u32(0x14);
        require(blocks > 0 && blocks <= mostBlocksToReset);
    }

    void checkResetTable(const Bytes& table, std::uint64_t contentLength) {
        require(table.u32(0) == 2 && table.u64(0x20) == blockLength);
        const std::uint64_t count = table.u32(4), packed = table.u64(0x18);
        unpacked_ = table.u64(0x10);
        require(count > 0 && unpacked_ <= mostUnpacked && unpacked_ <= count * blockLength);
        require(packed <= contentLength);
        const Bytes starts = table.part(table.u32(0xC), count * 8);
        for (std::uint64_t i = 0; i < count; ++i) {
            const std::uint64_t start = starts.u64(i * 8), end = i + 1 < count ? starts.u64(i * 8 + 8) : packed;
            require(start <= end && end <= packed && end - start <= blockLength + packedSlack);
        }
    }

    void checkPlace(const Object& object) const {
        require(object.section <= 1);
        const std::uint64_t size = object.section == 0 ? file_.size() - data_ : unpacked_;
        require(object.start <= size && object.length <= size - object.start);
    }

    Bytes file_;
    Bytes chunks_{{}};
    std::uint64_t data_ = 0, chunkLength_ = 0, unpacked_ = 0;
    std::int32_t head_ = 0, root_ = 0;
    std::set<std::int32_t> lists_, branches_;
    std::vector<Object> objects_;
};

}  // namespace

bool isSoundHelpFile(std::span<const std::uint8_t> bytes) {
    try {
        Check(Bytes(bytes)).run();
        return true;
    } catch (const Unsound&) {
        return false;
    }
}

}  // namespace hx::qt

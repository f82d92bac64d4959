// SPDX-License-Identifier: MIT
#include "automation/text_list.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <tuple>

namespace hx::automation {

namespace {

constexpr std::size_t chunkSize = 8;

/// A text and those of its bytes that are being compared, as a number.
struct Entry {
    std::uint64_t chunk;
    std::uint32_t number;
};

/// The texts that agree in their first bytes.
struct Alike {
    std::span<Entry> entries;
    std::size_t bytes;
};

std::uint64_t chunkOf(std::string_view text, std::size_t start) {
    const std::string_view part = text.substr(std::min(start, text.size()), chunkSize);
    unsigned char bytes[chunkSize] = {};
    std::memcpy(bytes, part.data(), part.size());
    std::uint64_t chunk = 0;
    for (const unsigned char byte : bytes) chunk = chunk << 8 | byte;
    return chunk;
}

/// Sorts by eight bytes at a time, and what agrees in them by the next eight: long beginnings that many texts share are
/// compared once.
class Sorter {
  public:
    Sorter(const TextList& texts, bool descending) : texts_(texts), descending_(descending) {}

    void sort(std::span<Entry> entries) {
        waiting_.push_back({entries, 0});
        while (!waiting_.empty()) {
            const Alike next = waiting_.back();
            waiting_.pop_back();
            sort(next);
        }
    }

  private:
    void sort(const Alike& alike) {
        const std::span<Entry> entries = alike.entries;
        for (Entry& entry : entries) {
            entry.chunk = chunkOf(texts_[entry.number], alike.bytes);
            if (descending_) entry.chunk = ~entry.chunk;
        }
        std::ranges::sort(entries, {}, [](const Entry& e) { return std::tuple(e.chunk, e.number); });
        for (std::size_t first = 0, end = 0; first < entries.size(); first = end) {
            while (end < entries.size() && entries[end].chunk == entries[first].chunk) ++end;
            if (end - first > 1) goOn({entries.subspan(first, end - first), alike.bytes + chunkSize});
        }
    }

    // Texts that end here stand before those that go on, the shorter first.
    void goOn(const Alike& alike) {
        const auto ends = [&](const Entry& entry) { return texts_[entry.number].size() <= alike.bytes; };
        const auto early = [&](const Entry& entry) { return ends(entry) != descending_; };
        const auto middle = std::stable_partition(alike.entries.begin(), alike.entries.end(), early);
        const auto place = static_cast<std::size_t>(middle - alike.entries.begin());
        std::span<Entry> ended = alike.entries.first(place), others = alike.entries.subspan(place);
        if (descending_) std::swap(ended, others);
        std::ranges::stable_sort(ended, [&](const Entry& a, const Entry& b) {
            const std::size_t sizeA = texts_[a.number].size(), sizeB = texts_[b.number].size();
            return descending_ ? sizeA > sizeB : sizeA < sizeB;
        });
        if (others.size() > 1) waiting_.push_back({others, alike.bytes});
    }

    const TextList& texts_;
    bool descending_;
    std::vector<Alike> waiting_;
};

}  // namespace

std::vector<std::uint32_t> inOrder(const TextList& texts, bool descending) {
    std::vector<Entry> entries(texts.size());
    for (std::size_t i = 0; i < entries.size(); ++i) entries[i].number = static_cast<std::uint32_t>(i);
    Sorter(texts, descending).sort(entries);
    std::vector<std::uint32_t> numbers(entries.size());
    std::ranges::transform(entries, numbers.begin(), &Entry::number);
    return numbers;
}

}  // namespace hx::automation

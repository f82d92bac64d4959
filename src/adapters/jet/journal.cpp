// SPDX-License-Identifier: MIT
#include "adapters/jet/journal.h"

#include <random>

namespace hx::jet {

namespace {

constexpr Byte journalMark[16] = {'H', 'X', ' ', 'j', 'o', 'u', 'r', 'n', 'a', 'l', ' ', '1', 0, 0, 0, 0};

}  // namespace

Journal::Journal(Storage& storage) : storage_(storage), path_(storage.path() + "-journal") {}

void Journal::begin(std::uint32_t pages) {
    records_.clear();
    waiting_.clear();
    size_ = 0;
    pages_ = pages;
    salt_ = std::random_device()();
}

std::uint32_t Journal::sum(std::uint32_t page, const Byte* bytes) const noexcept {
    std::uint64_t sum = salt_ * std::uint64_t{0x9E3779B97F4A7C15} + page;
    for (std::uint32_t at = 0; at < pageSize; at += 8) {
        sum = (sum ^ get64(bytes + at)) * std::uint64_t{0xFF51AFD7ED558CCD};
        sum ^= sum >> 32;
    }
    return static_cast<std::uint32_t>(sum);
}

void Journal::start() {
    if (file_) return;
    file_ = storage_.open(Storage::Kind::journal, path_);
    file_->truncate(0);
    append(waiting_, journalMark);
    append32(waiting_, salt_);
    append32(waiting_, pages_);
    waiting_.resize(headSize);
}

void Journal::add(std::uint32_t page, const Byte* bytes) {
    start();
    const auto number = static_cast<std::uint32_t>(records_.size());
    records_.emplace(page, number);
    append32(waiting_, page);
    append(waiting_, {bytes, pageSize});
    append32(waiting_, sum(page, bytes));
    if (waiting_.size() >= writtenTogether) flush();
}

void Journal::flush() {
    if (waiting_.empty()) return;
    file_->write(size_, waiting_);
    size_ += waiting_.size();
    waiting_.clear();
}

void Journal::read(std::uint32_t page, Byte* bytes) {
    flush();
    if (!file_) file_ = storage_.open(Storage::Kind::journal, path_);  // it could not be removed
    file_->read(headSize + std::uint64_t{records_.at(page)} * recordSize + 4, {bytes, pageSize});
}

void Journal::sync() {
    if (!file_) return;
    flush();
    file_->sync();
}

void Journal::remove() {
    file_.reset();
    storage_.remove(path_);
    close();
}

void Journal::close() noexcept {
    file_.reset();
    records_.clear();
    waiting_.clear();
}

bool Journal::replay(const Receiver& receive, std::uint32_t& pages) {
    const auto file = storage_.open(Storage::Kind::journal, path_);
    Byte head[headSize];
    file->read(0, head);
    if (std::memcmp(head, journalMark, sizeof journalMark) != 0) return false;
    salt_ = get32(head + sizeof journalMark);
    pages = get32(head + sizeof journalMark + 4);
    const std::uint64_t size = file->size();
    Buffer record(recordSize);
    for (std::uint64_t at = headSize; at + recordSize <= size; at += recordSize) {
        file->read(at, record);
        const std::uint32_t page = get32(record.data());
        const Byte* bytes = record.data() + 4;
        if (sum(page, bytes) != get32(bytes + pageSize)) break;
        receive(page, {bytes, pageSize});
    }
    return true;
}

}  // namespace hx::jet

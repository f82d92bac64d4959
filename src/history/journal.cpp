// SPDX-License-Identifier: MIT
#include "history/journal.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <random>
#include <utility>

#include "hosting/file_bytes.h"

namespace hx::history {

namespace {

constexpr std::string_view fileName = "steps";
constexpr std::string_view title = "HelvixStudio steps 1\n";
constexpr std::uint64_t mostBytes = std::uint64_t{1} << 36U;

/// What stands before each record.
struct Head {
    std::uint64_t size = 0;  ///< of the record
    std::uint64_t sum = 0;
};

// Tells a record that was cut or overwritten from a whole one.
std::uint64_t sumOf(std::string_view bytes) {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
    std::uint64_t sum = bytes.size();
    for (std::size_t at = 0; at < bytes.size(); at += sizeof sum) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + at, std::min(sizeof word, bytes.size() - at));
        sum = (sum ^ word) * factor;
        sum ^= sum >> 29U;
    }
    return sum;
}

std::string hexadecimal(std::uint64_t number) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (unsigned shift = 64; shift > 0;) text += digits[number >> (shift -= 4) & 15U];
    return text;
}

// Folders of one project begin with the same letters.
std::string beginningFor(const std::string& project) { return "steps-" + hexadecimal(sumOf(project)) + "-"; }

}  // namespace

Journal::Journal(const Path& cache, const std::string& project, const Receiver& receive, const hosting::Disk& disk)
    : disk_(disk) {
    const std::string beginning = beginningFor(project);
    std::error_code error;
    std::filesystem::create_directories(cache, error);
    for (const std::string& name : disk.names(cache)) {
        if (!name.starts_with(beginning)) continue;
        const Path folder = cache / hosting::fileSystemPath(name);
        lock_ = disk.tryLock(folder);
        if (!lock_) continue;
        open(folder);
        goOnWith(receive);
        return;
    }
    const Path folder = cache / (beginning + hexadecimal(std::random_device{}()));
    std::filesystem::create_directory(folder, error);
    if (error) return;
    lock_ = disk.tryLock(folder);
    open(folder);
    goOnWith(receive);
}

Journal::~Journal() {
    file_.close();
    if (lock_) disk_.close(*lock_);
}

void Journal::open(const Path& folder) {
    folder_ = folder;
    const Path path = folder / fileName;
    constexpr auto both = std::ios::in | std::ios::out | std::ios::binary;
    file_.open(path, both);
    if (!file_.is_open()) file_.open(path, both | std::ios::trunc);
}

// Behind the last whole record the file is written anew.
void Journal::goOnWith(const Receiver& receive) {
    if (!file_.is_open()) return;
    std::array<char, title.size()> begins{};
    file_.read(begins.data(), begins.size());
    if (!file_ || std::string_view(begins.data(), begins.size()) != title) {
        file_.clear();
        file_.seekp(0);
        file_ << title << std::flush;
    }
    end_ = title.size();
    while (const auto record = recordAt(end_)) {
        receive(*record, {end_, record->size()});
        end_ += sizeof(Head) + record->size();
    }
}

std::optional<std::string> Journal::recordAt(std::uint64_t at) {
    if (!file_.is_open()) return std::nullopt;
    Head head;
    file_.clear();
    file_.seekg(0, std::ios::end);
    const auto size = static_cast<std::uint64_t>(file_.tellg());
    file_.seekg(static_cast<std::streamoff>(at));
    if (!file_.read(reinterpret_cast<char*>(&head), sizeof head)) return std::nullopt;
    if (head.size > mostBytes || head.size > size - at - sizeof head) return std::nullopt;
    std::string record(static_cast<std::size_t>(head.size), '\0');
    if (!file_.read(record.data(), static_cast<std::streamsize>(record.size()))) return std::nullopt;
    if (sumOf(record) != head.sum) return std::nullopt;
    return record;
}

std::optional<Journal::Place> Journal::append(std::string_view record) {
    if (!file_.is_open()) return std::nullopt;
    const Head head{record.size(), sumOf(record)};
    file_.clear();
    file_.seekp(static_cast<std::streamoff>(end_));
    file_.write(reinterpret_cast<const char*>(&head), sizeof head);
    file_.write(record.data(), static_cast<std::streamsize>(record.size()));
    if (!file_.flush()) {
        file_.close();  // what is incomplete at the end counts as nothing
        return std::nullopt;
    }
    const Place place{end_, record.size()};
    end_ += sizeof head + record.size();
    return place;
}

std::optional<std::string> Journal::read(const Place& place) {
    std::optional<std::string> record = recordAt(place.at);
    return record && record->size() == place.size ? record : std::nullopt;
}

void Journal::close() noexcept {
    std::error_code ignored;
    file_.close();
    if (folder_.empty()) return;
    std::filesystem::remove(folder_ / fileName, ignored);
    if (lock_) disk_.close(*std::exchange(lock_, std::nullopt));
    std::filesystem::remove(folder_, ignored);  // stays when another has taken it over meanwhile
}

}  // namespace hx::history

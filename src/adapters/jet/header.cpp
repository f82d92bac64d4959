// SPDX-License-Identifier: MIT
#include "adapters/jet/header.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>
#include <string_view>

namespace hx::jet {

namespace {

constexpr std::size_t versionAt = 0x14, hiddenAt = 0x18, hiddenSize = 128;
// Of what is hidden:
constexpr std::size_t tablesAt = 0x18, codePageAt = 0x3C, keyAt = 0x3E, passwordAt = 0x42, passwordSize = 40,
                      sortOrderAt = 0x6E, dateAt = 0x72;
constexpr std::size_t formatAt = 0x98, usersAt = 0xE00;
constexpr std::uint32_t generalSortOrder = 0x0409, windowsLatin = 0x04E4;
constexpr double firstOfJanuary2000 = 36526;

// The pattern is what the stream cipher RC4 makes of a key that is the same for all files.
std::array<Byte, hiddenSize> pattern() {
    constexpr Byte key[] = {0xC7, 0xDA, 0x39, 0x6B};
    std::array<Byte, 256> state{};
    std::iota(state.begin(), state.end(), Byte{0});
    Byte j = 0;
    for (std::size_t i = 0; i < state.size(); ++i) {
        j = static_cast<Byte>(j + state[i] + key[i % sizeof key]);
        std::swap(state[i], state[j]);
    }
    std::array<Byte, hiddenSize> bytes{};
    Byte i = 0;
    j = 0;
    for (Byte& byte : bytes) {
        ++i;
        j = static_cast<Byte>(j + state[i]);
        std::swap(state[i], state[j]);
        byte = state[static_cast<Byte>(state[i] + state[j])];
    }
    return bytes;
}

void putText(Byte* at, std::string_view text) { std::copy(text.begin(), text.end(), at); }

// The password hides behind the day on which the file was made.
std::uint32_t passwordMask(const Byte* date) {
    const double day = std::bit_cast<double>(get64(date));
    return std::abs(day) < 1e9 ? static_cast<std::uint32_t>(static_cast<std::int32_t>(day)) : 0;
}

}  // namespace

FileKind fileKindOf(Bytes start) noexcept {
    constexpr std::string_view jet = "Standard Jet DB", later = "Standard ACE DB";
    if (start.size() < hiddenAt || get32(start.data()) != 0x100) return FileKind::none;
    const std::string_view name(reinterpret_cast<const char*>(start.data()) + 4, jet.size());
    if (name != jet) return name == later ? FileKind::later : FileKind::none;
    switch (start[versionAt]) {
        case 0: return FileKind::jet3;
        case 1: return FileKind::jet4;
        default: return FileKind::later;
    }
}

Header::Header(Bytes page) {
    const auto hidden = pattern();
    for (std::size_t i = 0; i < hiddenSize; ++i) {
        bytes_[i] = static_cast<Byte>((hiddenAt + i < page.size() ? page[hiddenAt + i] : 0) ^ hidden[i]);
    }
}

bool Header::isEncrypted() const noexcept { return get32(bytes_ + keyAt - hiddenAt) != 0; }

bool Header::hasPassword() const noexcept {
    const std::uint32_t mask = passwordMask(bytes_ + dateAt - hiddenAt);
    for (std::size_t at = 0; at < passwordSize; at += 4) {
        if ((get32(bytes_ + passwordAt - hiddenAt + at) ^ mask) != 0) return true;
    }
    return false;
}

PageBytes Header::make() {
    PageBytes page{};
    put32(page.data(), 0x100);
    putText(page.data() + 4, "Standard Jet DB");
    page[versionAt] = 1;
    page[tablesAt + 1] = page[tablesAt + 4] = page[tablesAt + 5] = 1;
    for (std::uint32_t systemTable = 2; systemTable <= 5; ++systemTable) {
        put32(page.data() + tablesAt + std::size_t{systemTable} * 4, systemTable);
    }
    put16(page.data() + codePageAt, windowsLatin);
    put32(page.data() + sortOrderAt, generalSortOrder);
    put64(page.data() + dateAt, std::bit_cast<std::uint64_t>(firstOfJanuary2000));
    const std::uint32_t mask = passwordMask(page.data() + dateAt);
    for (std::size_t at = 0; at < passwordSize; at += 4) put32(page.data() + passwordAt + at, mask);
    const auto hidden = pattern();
    for (std::size_t i = 0; i < hiddenSize; ++i) page[hiddenAt + i] = static_cast<Byte>(page[hiddenAt + i] ^ hidden[i]);
    put32(page.data() + formatAt, 0x654);
    putText(page.data() + formatAt + 4, "4.0");
    for (std::size_t at = usersAt; at < page.size(); at += 2) page[at + 1] = 1;
    page[usersAt] = 1;
    return page;
}

}  // namespace hx::jet

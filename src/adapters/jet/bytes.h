// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

/// Numbers in the file: least significant byte first.
namespace hx::jet {

using Byte = std::uint8_t;
using Bytes = std::span<const Byte>;
using Buffer = std::vector<Byte>;

inline constexpr std::uint32_t pageSize = 4096;

[[nodiscard]] inline std::uint16_t get16(const Byte* at) noexcept {
    return static_cast<std::uint16_t>(at[0] | at[1] << 8);
}
[[nodiscard]] inline std::uint32_t get24(const Byte* at) noexcept {
    return at[0] | static_cast<std::uint32_t>(at[1]) << 8 | static_cast<std::uint32_t>(at[2]) << 16;
}
[[nodiscard]] inline std::uint32_t get32(const Byte* at) noexcept {
    return get24(at) | static_cast<std::uint32_t>(at[3]) << 24;
}
[[nodiscard]] inline std::uint64_t get64(const Byte* at) noexcept {
    return get32(at) | static_cast<std::uint64_t>(get32(at + 4)) << 32;
}
[[nodiscard]] inline std::uint32_t getBig32(const Byte* at) noexcept {
    return static_cast<std::uint32_t>(at[0]) << 24 | static_cast<std::uint32_t>(at[1]) << 16 |
           static_cast<std::uint32_t>(at[2]) << 8 | at[3];
}

inline void put16(Byte* at, std::uint32_t value) noexcept {
    at[0] = static_cast<Byte>(value);
    at[1] = static_cast<Byte>(value >> 8);
}
inline void put24(Byte* at, std::uint32_t value) noexcept {
    put16(at, value);
    at[2] = static_cast<Byte>(value >> 16);
}
inline void put32(Byte* at, std::uint32_t value) noexcept {
    put24(at, value);
    at[3] = static_cast<Byte>(value >> 24);
}
inline void put64(Byte* at, std::uint64_t value) noexcept {
    put32(at, static_cast<std::uint32_t>(value));
    put32(at + 4, static_cast<std::uint32_t>(value >> 32));
}
inline void putBig32(Byte* at, std::uint32_t value) noexcept {
    at[0] = static_cast<Byte>(value >> 24);
    at[1] = static_cast<Byte>(value >> 16);
    at[2] = static_cast<Byte>(value >> 8);
    at[3] = static_cast<Byte>(value);
}

inline void append(Buffer& to, Bytes bytes) { to.insert(to.end(), bytes.begin(), bytes.end()); }
inline void append32(Buffer& to, std::uint32_t value) {
    Byte bytes[4];
    put32(bytes, value);
    append(to, bytes);
}
inline void append16(Buffer& to, std::uint32_t value) {
    Byte bytes[2];
    put16(bytes, value);
    append(to, bytes);
}

/// Where a row, a long value or a usage map stands: its page and its number there.
struct Place {
    std::uint32_t page = 0;
    std::uint8_t row = 0;

    /// As it stands in definitions and rows: the row's byte, then three of the page.
    [[nodiscard]] static Place get(const Byte* at) noexcept { return {get24(at + 1), at[0]}; }
    void put(Byte* at) const noexcept {
        at[0] = row;
        put24(at + 1, page);
    }
    /// As one number, which orders places as indexes do.
    [[nodiscard]] std::uint32_t number() const noexcept { return page << 8 | row; }
    [[nodiscard]] static Place of(std::uint32_t number) noexcept {
        return {number >> 8, static_cast<std::uint8_t>(number)};
    }
    [[nodiscard]] bool operator==(const Place&) const noexcept = default;
};

}  // namespace hx::jet

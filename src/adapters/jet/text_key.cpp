// SPDX-License-Identifier: MIT
#include "adapters/jet/text_key.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace hx::jet {

namespace {

/// What units that follow each other add to a key.
struct Codes {
    std::uint16_t first, last;
    std::uint32_t inlineBytes;
    std::uint8_t inlineCount, inlineStep;
    std::uint16_t extraBytes;
    std::uint8_t extraCount, extraAdd, unprintable, crazy;
};

constexpr Codes codes[] = {
#include "adapters/jet/text_codes.inc"
};

const Codes& codesOf(std::uint16_t unit) noexcept {
    static const std::array<std::uint16_t, 256> small = [] {
        std::array<std::uint16_t, 256> numbers{};
        std::uint16_t at = 0;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            while (codes[at].last < i) ++at;
            numbers[i] = at;
        }
        return numbers;
    }();
    if (unit < small.size()) return codes[small[unit]];
    return *std::ranges::lower_bound(codes, unit, {}, &Codes::last);
}

void appendNumber(Buffer& to, std::uint32_t number, std::uint8_t count) {
    for (std::uint8_t i = count; i-- > 0;) to.push_back(static_cast<Byte>(number >> i * 8));
}

constexpr Byte endOfPart = 0x01, noExtra = 0x02, endOfKey = 0x00;
constexpr std::size_t countedUnits = 255;

/// The parts of a key behind the inline bytes, which most texts have none of.
class Rest {
  public:
    void add(const Codes& unit, std::uint32_t place) {
        if (unit.extraCount > 0) {
            fillTo(place);
            appendNumber(extra_, unit.extraBytes, unit.extraCount);
            ++extraPlaces_;
        }
        if (unit.extraAdd > 0) addToLast(unit.extraAdd, place);
        if (unit.crazy > 0) crazy_.push_back(unit.crazy);
        if (unit.unprintable > 0) addUnprintable(unit.unprintable, place);
    }

    void appendTo(Buffer& key) {
        while (!extra_.empty() && extra_.back() <= noExtra) extra_.pop_back();
        append(key, extra_);
        if (crazy_.empty() && unprintable_.empty()) return;
        key.insert(key.end(), {endOfPart, endOfPart});
        if (!crazy_.empty()) {
            appendCrazy(key);
            if (!unprintable_.empty()) key.push_back(0xFF);
        }
        if (unprintable_.empty()) return;
        key.push_back(endOfPart);
        append(key, unprintable_);
    }

  private:
    void fillTo(std::uint32_t place) {
        for (; extraPlaces_ < place; ++extraPlaces_) extra_.push_back(noExtra);
    }

    void addToLast(Byte added, std::uint32_t place) {
        fillTo(place);
        if (!extra_.empty()) {
            extra_.back() = static_cast<Byte>(extra_.back() + added);
            return;
        }
        extra_.push_back(added);
        prefix_ = 1;
    }

    void addUnprintable(Byte byte, std::uint32_t place) {
        std::uint32_t n = place;
        if (!extra_.empty()) n = static_cast<std::uint32_t>(extra_.size()) + place - extraPlaces_ - prefix_;
        const std::uint32_t offset = (7 + 4 * n) | 0x8000;
        unprintable_.insert(unprintable_.end(),
                            {static_cast<Byte>(offset >> 8), static_cast<Byte>(offset), Byte{0x06}, byte});
    }

    // Three flags of two bits to a byte, behind two bits 10.
    void appendCrazy(Buffer& key) {
        while (!crazy_.empty() && crazy_.back() == 3) crazy_.pop_back();
        for (std::size_t at = 0; at < crazy_.size(); at += 3) {
            Byte packed = 0x80;
            for (std::size_t i = 0; i < 3 && at + i < crazy_.size(); ++i) {
                packed = static_cast<Byte>(packed | crazy_[at + i] << (4 - 2 * i));
            }
            key.push_back(packed);
        }
        key.insert(key.end(), {0xFF, 0x02, 0x80, 0xFF, 0x80});
    }

    Buffer extra_, crazy_, unprintable_;
    std::uint32_t extraPlaces_ = 0;  // places that the extra bytes stand for
    std::uint32_t prefix_ = 0;
};

Bytes countedPart(Bytes units) noexcept {
    units = units.first(std::min(units.size() / 2, countedUnits) * 2);
    while (units.size() >= 2 && get16(units.data() + units.size() - 2) == ' ') units = units.first(units.size() - 2);
    return units;
}

}  // namespace

void appendTextKey(Buffer& key, Bytes units, bool descending) {
    const std::size_t start = key.size();
    Rest rest;
    std::uint32_t place = 0;
    units = countedPart(units);
    for (std::size_t at = 0; at < units.size(); at += 2) {
        const std::uint16_t unit = get16(units.data() + at);
        const Codes& found = codesOf(unit);
        appendNumber(key, found.inlineBytes + static_cast<std::uint32_t>(unit - found.first) * found.inlineStep,
                     found.inlineCount);
        rest.add(found, place);
        if (found.inlineCount > 0) ++place;
    }
    key.push_back(endOfPart);
    rest.appendTo(key);
    key.push_back(endOfKey);
    if (!descending) return;
    for (std::size_t i = start; i < key.size(); ++i) key[i] = static_cast<Byte>(~key[i]);
    key.push_back(endOfKey);
}

}  // namespace hx::jet

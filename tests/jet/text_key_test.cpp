// SPDX-License-Identifier: MIT
#include "adapters/jet/text_key.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "samples.h"

namespace hx::jet {

namespace {

Buffer fromHex(const std::string& digits) {
    Buffer bytes;
    for (std::size_t at = 0; at + 1 < digits.size(); at += 2) {
        bytes.push_back(static_cast<Byte>(std::stoi(digits.substr(at, 2), nullptr, 16)));
    }
    return bytes;
}

Buffer unitsIn(const std::string& digits) {
    Buffer units;
    for (std::size_t at = 0; at + 3 < digits.size(); at += 4) {
        append16(units, static_cast<std::uint32_t>(std::stoul(digits.substr(at, 4), nullptr, 16)));
    }
    return units;
}

TEST(TextKey, IsTheOneThatOthersWrite) {
    std::ifstream file(samplePath("text_keys.tsv"));
    int samples = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#')) continue;
        std::istringstream fields(line);
        std::string text, ascending, descending;
        std::getline(fields, text, '\t');
        std::getline(fields, ascending, '\t');
        std::getline(fields, descending);
        Buffer up, down;
        appendTextKey(up, unitsIn(text), false);
        appendTextKey(down, unitsIn(text), true);
        EXPECT_EQ(up, fromHex(ascending)) << text;
        EXPECT_EQ(down, fromHex(descending)) << text;
        ++samples;
    }
    EXPECT_GE(samples, 390);
}

}  // namespace

}  // namespace hx::jet

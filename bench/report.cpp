// SPDX-License-Identifier: MIT
#include "bench/report.h"

#include <algorithm>
#include <cstdio>

namespace hx::bench {

namespace {

constexpr int nameWidth = 46;
constexpr int numberWidth = 11;

std::string number(double value, const char* unit = "") {
    char text[40];
    const int decimals = value < 1 ? 3 : value < 100 ? 1 : 0;
    std::snprintf(text, sizeof text, "%.*f%s", decimals, value, unit);
    return text;
}

// Columns count characters, so the continuation bytes of UTF-8 take no room.
std::string padded(const std::string& text, int width, bool right) {
    const auto letters = std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; });
    const std::string blanks(static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, width - letters)), ' ');
    return right ? blanks + text : text + blanks;
}

std::string cell(const std::string& text) { return padded(text, numberWidth, true); }

std::string time(const Cost& cost) { return cost.known() ? number(cost.median(), " ms") : "-"; }
std::string memory(const Cost& cost) { return cost.known() ? number(cost.megabytes, " MB") : "-"; }
std::string ratio(const Cost& a, const Cost& b) {
    return a.known() && b.known() && b.median() > 0 ? number(a.median() / b.median()) : "-";
}

struct Check {
    std::string what;
    bool reached;
};

std::vector<Check> checks(const Row& row) {
    std::vector<Check> list;
    const Goal& goal = row.goal;
    if (goal.atMostMilliseconds) {
        const double spent = goal.worstCounts ? row.ours.worst() : row.ours.median();
        list.push_back({"at most " + number(*goal.atMostMilliseconds, " ms") +
                            (goal.worstCounts ? ", slowest " + number(spent, " ms") : ""),
                        spent <= *goal.atMostMilliseconds});
    }
    if (goal.atMostOfLimit && row.limit.known()) {
        list.push_back({"at most " + number(*goal.atMostOfLimit) + " of the limit's time",
                        row.ours.median() <= *goal.atMostOfLimit * row.limit.median()});
    }
    if (goal.atLeastPeer && row.peer.known()) {
        list.push_back({"at least " + number(*goal.atLeastPeer) + " times as fast as the peer",
                        row.peer.median() >= *goal.atLeastPeer * row.ours.median()});
    }
    if (goal.atMostMegabytes) {
        list.push_back(
            {"at most " + number(*goal.atMostMegabytes, " MB"), row.ours.megabytes <= *goal.atMostMegabytes});
    }
    return list;
}

}  // namespace

void print(std::ostream& stream, const std::vector<Row>& rows) {
    stream << padded("", nameWidth, false) << cell("ours") << cell("peer") << cell("limit") << cell("ours/limit")
           << cell("peer/ours") << cell("our MB") << cell("peer MB") << cell("limit MB") << "\n";
    for (const Row& row : rows) {
        stream << padded(row.name, nameWidth, false) << cell(time(row.ours)) << cell(time(row.peer))
               << cell(time(row.limit)) << cell(ratio(row.ours, row.limit)) << cell(ratio(row.peer, row.ours))
               << cell(memory(row.ours)) << cell(memory(row.peer)) << cell(memory(row.limit)) << "\n";
        for (const Check& check : checks(row)) {
            stream << "    " << (check.reached ? "reached" : "MISSED ") << "  " << check.what << "\n";
        }
    }
}

void print(std::ostream& stream, const std::string& title, const std::vector<std::string>& heads,
           const std::vector<GrowthLine>& lines) {
    stream << "\n" << title << "\n" << padded("", numberWidth, true);
    for (const std::string& head : heads) stream << padded(head, 2 * numberWidth, true);
    stream << "\n";
    for (const GrowthLine& line : lines) {
        stream << cell(line.size);
        for (const Cost& cost : line.costs) {
            stream << padded(time(cost) + memory(cost).insert(0, " "), 2 * numberWidth, true);
        }
        stream << "\n";
    }
}

}  // namespace hx::bench

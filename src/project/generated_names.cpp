// SPDX-License-Identifier: MIT
#include "project/generated_names.h"

#include <array>
#include <string_view>

namespace hx::project {

namespace {

constexpr std::array<std::string_view, 12> products = {
    "Apfelsaft naturtrüb", "Orangensaft", "Multivitaminnektar", "Cola",   "Zitronenlimonade", "Mineralwasser medium",
    "Tonic Water",         "Eistee",      "Schorle Rhabarber",  "Bitter", "Ginger Ale",       "Stilles Wasser"};
constexpr std::array<std::string_view, 5> sizes = {"0,33 l", "0,5 l", "0,75 l", "1,0 l", "1,5 l"};
constexpr std::array<std::string_view, 9> stations = {
    "Sirupraum", "Mischer", "Erhitzer", "Karbonisierung", "Füller", "Etikettierer", "Packer", "Palettierer", "CIP"};
constexpr std::array<std::string_view, 7> quantities = {"Temperatur", "Druck",      "Menge",   "Drehzahl",
                                                        "Füllhöhe",   "Durchfluss", "Laufzeit"};

struct Role {
    std::string_view name;
    std::string_view type;
};
constexpr std::array<Role, 5> roles = {
    {{"Soll", "REAL"}, {"Min", "REAL"}, {"Max", "REAL"}, {"Zeit", "DINT"}, {"Frei", "BOOL"}}};

// Takes the remainder off a number, so that the parts of a name turn at different speeds.
template <class Table>
const auto& pick(const Table& table, std::int64_t& number) {
    const auto size = static_cast<std::int64_t>(table.size());
    const auto& picked = table[static_cast<std::size_t>(number % size)];
    number /= size;
    return picked;
}

}  // namespace

std::string recipeName(std::int64_t number) {
    const std::string suffix = " Nr. " + std::to_string(number + 1);
    const std::string_view product = pick(products, number);
    return std::string(product) + " " + std::string(pick(sizes, number)) + suffix;
}

std::string variableName(std::int64_t number) {
    const std::string_view role = pick(roles, number).name;
    const std::string_view quantity = pick(quantities, number);
    const std::string_view station = pick(stations, number);
    return std::string(station) + std::to_string(number + 1) + "." + std::string(quantity) + "." + std::string(role);
}

std::string variableType(std::int64_t number) { return std::string(pick(roles, number).type); }

}  // namespace hx::project

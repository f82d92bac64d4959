// SPDX-License-Identifier: MIT
#include "torture/jet_state.h"

#include <array>
#include <fstream>
#include <stdexcept>

#include "adapters/jet/header.h"
#include "adapters/sqlite/provider.h"
#include "automation/convert.h"
#include "automation/error.h"

namespace hx::torture {

namespace {

std::unique_ptr<ado::Session> connect(const std::string& project) {
    return sqlite::Provider().connect("Data Source=\"" + project + "\";Mode=Read|Write;");
}

std::string textOf(const ado::StoredValue& value) {
    using Kind = ado::StoredValue::Kind;
    switch (value.kind) {
        case Kind::null: return "NULL";
        case Kind::integer: return std::to_string(value.integer);
        case Kind::real: return automation::numberToText(value.real);
        default: return "'" + std::string(value.text) + "'";
    }
}

std::string rowsOf(ado::Session& session, const std::string& table) {
    std::string text = table + "\n";
    const auto rows = session.open("SELECT * FROM " + table + " ORDER BY ID", ado::adCmdText);
    rows->scan(ado::allColumns(*rows), [&](std::span<const ado::StoredValue> row) {
        for (const ado::StoredValue& value : row) text += textOf(value) + "|";
        text += '\n';
    });
    return text;
}

}  // namespace

bool isJet(const std::string& project) {
    std::array<char, 24> start{};
    std::ifstream(project, std::ios::binary).read(start.data(), start.size());
    return jet::fileKindOf({reinterpret_cast<const jet::Byte*>(start.data()), start.size()}) != jet::FileKind::none;
}

std::string jetText(const std::string& project) {
    try {
        const auto session = connect(project);
        const auto damages = session->damages(1, ado::Session::Check::thorough);
        if (!damages.empty()) return "damaged: " + damages.front();
        std::string text;
        for (const char* table : {"ThxVariable", "TrcpRecipe", "TrcpRecipeMember"}) text += rowsOf(*session, table);
        return text;
    } catch (const automation::Error& error) {
        return "damaged: " + error.description(automation::Language::english);
    }
}

void changeJet(const std::string& project, const std::string& sql) {
    try {
        (void)connect(project)->open(sql, ado::adCmdText);
    } catch (const automation::Error& error) {
        throw std::runtime_error(project + ": " + error.description(automation::Language::english));
    }
}

}  // namespace hx::torture

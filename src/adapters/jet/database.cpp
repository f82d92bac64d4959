// SPDX-License-Identifier: MIT
#include "adapters/jet/database.h"

#include <algorithm>

#include "adapters/jet/failure.h"
#include "adapters/jet/header.h"
#include "adapters/jet/properties.h"
#include "adapters/jet/sentences.h"
#include "ado/types.h"

namespace hx::jet {

namespace {

using automation::Error;

void requireFormat(Pages& pages) {
    const auto refuse = [&](const automation::Sentence& sentence) {
        throw Error(ado::dbErrUnspecified, sentence, {pages.path()});
    };
    if (pages.count() == 0) refuse(sentence::noDatabase);
    const PageRef first = pages.read(0);
    const Bytes bytes(first.data(), pageSize);
    switch (fileKindOf(bytes)) {
        case FileKind::none: refuse(sentence::noDatabase); break;
        case FileKind::jet3: refuse(sentence::jet3); break;
        case FileKind::later: refuse(sentence::laterFormat); break;
        case FileKind::jet4: break;
    }
    const Header header(bytes);
    if (header.isEncrypted()) refuse(sentence::encrypted);
    if (header.hasPassword()) refuse(sentence::hasPassword);
}

}  // namespace

Database::Database(Storage& storage, bool readOnly) : pages_(storage, readOnly) {
    const Reading reading(pages_);
    requireFormat(pages_);
    refresh();
}

Database::~Database() = default;

void Database::refresh() {
    if (generation_ == pages_.generation()) return;
    tables_.clear();
    catalog_ = {};
    catalog_ = Catalog::read(tableAt(Catalog::objectsPage));
    generation_ = pages_.generation();
}

const Catalog& Database::catalog() {
    refresh();
    return catalog_;
}

std::vector<std::string> Database::tableNames() {
    std::vector<std::string> names;
    for (const Catalog::Entry& entry : catalog().entries) {
        if (entry.kind == Catalog::Kind::table) names.push_back(entry.name);
    }
    return names;
}

Table* Database::table(std::string_view name) {
    const Catalog::Entry* const entry = catalog().find(name);
    const bool found =
        entry != nullptr && (entry->kind == Catalog::Kind::table || entry->kind == Catalog::Kind::systemTable);
    return found ? &tableAt(entry->page) : nullptr;
}

Table& Database::tableAt(std::uint32_t page) {
    const auto known = std::ranges::find(tables_, page, [](const Table& table) { return table.definition().page; });
    if (known != tables_.end()) return *known;
    std::string name = page == Catalog::objectsPage ? "MSysObjects" : "";
    Bytes properties;
    for (const Catalog::Entry& entry : catalog_.entries) {
        const bool hasRows = entry.kind == Catalog::Kind::table || entry.kind == Catalog::Kind::systemTable;
        if (!hasRows || entry.page != page) continue;
        name = entry.name;
        properties = entry.properties;
    }
    TableDefinition definition = TableDefinition::read(pages_, page, std::move(name));
    applyProperties(definition, properties);
    return tables_.emplace_back(*this, std::move(definition));
}

std::vector<Error> Database::damages(int most) {
    std::vector<Error> found;
    const auto report = [&](std::uint32_t page, const automation::Sentence& what) {
        if (found.size() < static_cast<std::size_t>(most)) found.push_back(Damaged(page, what));
    };
    const Reading reading(pages_);
    for (const Catalog::Entry& entry : catalog().entries) {
        if (entry.kind != Catalog::Kind::table && entry.kind != Catalog::Kind::systemTable) continue;
        try {
            tableAt(entry.page).check(report);
        } catch (const Damaged& damage) {
            if (found.size() < static_cast<std::size_t>(most)) found.push_back(damage);
        }
    }
    return found;
}

}  // namespace hx::jet

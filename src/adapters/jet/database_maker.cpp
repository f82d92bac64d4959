// SPDX-License-Identifier: MIT
#include "adapters/jet/database_maker.h"

#include <algorithm>
#include <chrono>

#include "adapters/jet/database.h"
#include "adapters/jet/header.h"
#include "adapters/jet/properties.h"

namespace hx::jet {

namespace {

using ado::StoredValue;
using Type = ColumnType;

// What a database consists of at first, under the numbers that every one has for it.
constexpr std::uint32_t objectsPage = 2, rightsPage = 3;
constexpr std::int64_t root = 0x0F000000, tables = root + 1, databases = root + 2, relationships = root + 3,
                       databaseObject = 0x10000000;
constexpr std::int64_t tableType = 1, databaseType = 2, containerType = 3;
constexpr std::int64_t systemFlag = -0x7FFFFFFF - 1;
constexpr std::int64_t allRights = 0xFFFFF;
// Who may do what is told by numbers of users: the owner of what everybody has, and the users.
constexpr std::string_view owner = "\xA7\x31", users = "\xA6\x33", administrators = "\xA7\x33";

StoredValue text(std::string_view text) { return {StoredValue::Kind::text, 0, 0, text}; }
StoredValue bytes(std::string_view bytes) { return {StoredValue::Kind::bytes, 0, 0, bytes}; }

StoredValue now() {
    constexpr double unixEpoch = 25569, secondsOfDay = 86400;
    const auto seconds =
        std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch());
    const double day = unixEpoch + static_cast<double>(seconds.count()) / secondsOfDay;
    return {StoredValue::Kind::real, static_cast<std::int64_t>(day), day, {}};
}

/// A row of a system table, column by column.
class SystemRow {
  public:
    explicit SystemRow(Table& table) : table_(table), values_(table.definition().columns.size()) {}
    SystemRow& set(std::string_view column, const StoredValue& value) {
        values_[table_.definition().column(column).value()] = value;
        return *this;
    }
    void insert() { (void)table_.insert(values_); }

  private:
    Table& table_;
    std::vector<std::optional<StoredValue>> values_;
};

struct Object {
    std::int64_t id, parent, type, flags;
    std::string_view name;
};

void addObject(Database& database, const Object& object, Bytes properties = {}) {
    SystemRow row(database.tableAt(objectsPage));
    row.set("Id", StoredValue::of(object.id)).set("ParentId", StoredValue::of(object.parent));
    row.set("Name", text(object.name)).set("Type", StoredValue::of(object.type));
    row.set("DateCreate", now()).set("DateUpdate", now()).set("Owner", bytes(owner));
    row.set("Flags", StoredValue::of(object.flags));
    if (!properties.empty()) {
        row.set("LvProp", bytes({reinterpret_cast<const char*>(properties.data()), properties.size()}));
    }
    row.insert();
    for (const std::string_view user : {users, administrators}) {
        SystemRow right(database.tableAt(rightsPage));
        right.set("ObjectId", StoredValue::of(object.id)).set("SID", bytes(user));
        right.set("ACM", StoredValue::of(allRights)).set("FInheritable", StoredValue::of(object.type == containerType));
        right.insert();
    }
}

TablePlan objects() {
    TablePlan plan("MSysObjects");
    plan.column("Id", Type::longInteger).column("ParentId", Type::longInteger).column("Name", Type::text, 255);
    plan.column("Type", Type::integer).column("DateCreate", Type::date).column("DateUpdate", Type::date);
    plan.column("Owner", Type::binary, 510).column("Flags", Type::longInteger).column("Database", Type::memo);
    plan.column("Connect", Type::memo).column("ForeignName", Type::text, 255).column("RmtInfoShort", Type::binary, 510);
    plan.column("RmtInfoLong", Type::ole).column("Lv", Type::ole).column("LvProp", Type::ole);
    plan.column("LvModule", Type::ole).column("LvExtra", Type::ole);
    plan.index("ParentIdName", {"ParentId", "Name"}, {.unique = true});
    plan.index("Id", {"Id"}, {.unique = true});
    return plan;
}

TablePlan rights() {
    TablePlan plan("MSysACEs");
    plan.column("ObjectId", Type::longInteger).column("SID", Type::binary, 510);
    plan.column("ACM", Type::longInteger).column("FInheritable", Type::yesNo);
    plan.index("ObjectId", {"ObjectId"});
    return plan;
}

TablePlan queries() {
    TablePlan plan("MSysQueries");
    plan.column("ObjectId", Type::longInteger).column("Attribute", Type::byte).column("Order", Type::binary, 510);
    plan.column("Name1", Type::text, 255).column("Name2", Type::text, 255).column("Expression", Type::memo);
    plan.column("Flag", Type::integer).column("LvExtra", Type::longInteger);
    plan.index("ObjectIdAttribute", {"ObjectId", "Attribute", "Order"}, {.unique = true});
    return plan;
}

TablePlan relations() {
    TablePlan plan("MSysRelationships");
    plan.column("szRelationship", Type::text, 255).column("grbit", Type::longInteger);
    plan.column("ccolumn", Type::longInteger).column("icolumn", Type::longInteger).column("szObject", Type::text, 255);
    plan.column("szColumn", Type::text, 255).column("szReferencedObject", Type::text, 255);
    plan.column("szReferencedColumn", Type::text, 255);
    for (const char* const name : {"szRelationship", "szObject", "szReferencedObject"}) {
        plan.index(name, {name}, {.ignoresNulls = true});
    }
    return plan;
}

// All pages are free but those that there are.
void makeFreePages(Pages& pages) {
    const PageRef page = pages.append();
    DataPage::make(page, 1);
    DataPage holder(page);
    const std::span<Byte> free = holder.row(holder.add(UsageMap::rowSize));
    std::ranges::fill(free, Byte{0xFF});
    std::ranges::fill(free.first(5), Byte{0});
    std::ranges::fill(holder.row(holder.add(UsageMap::rowSize)), Byte{0});
    Space::markUsed(pages, 0);
    Space::markUsed(pages, 1);
}

void makeSystemTables(Pages& pages) {
    Space space(pages);
    std::vector<TablePlan> plans;
    for (const auto plan : {objects, rights, queries, relations}) plans.push_back(plan());
    std::vector<PageRef> places;
    for (std::size_t i = 0; i < plans.size(); ++i) places.push_back(space.allocate());
    for (std::size_t i = 0; i < plans.size(); ++i) plans[i].write(pages, space, places[i], true);
}

void addObjects(Database& database) {
    for (const Object& object :
         std::initializer_list<Object>{{tables, root, containerType, systemFlag, "Tables"},
                                       {databases, root, containerType, systemFlag, "Databases"},
                                       {relationships, root, containerType, systemFlag, "Relationships"},
                                       {databaseObject, databases, databaseType, systemFlag, "MSysDb"},
                                       {objectsPage, tables, tableType, systemFlag, "MSysObjects"},
                                       {rightsPage, tables, tableType, systemFlag, "MSysACEs"},
                                       {rightsPage + 1, tables, tableType, systemFlag, "MSysQueries"},
                                       {rightsPage + 2, tables, tableType, systemFlag, "MSysRelationships"}}) {
        addObject(database, object);
    }
}

}  // namespace

void makeDatabase(Storage& storage) {
    {
        Pages pages(storage, false);
        pages.beginWrite();
        std::ranges::copy(Header::make(), pages.append().data());
        makeFreePages(pages);
        makeSystemTables(pages);
        pages.commit();
    }
    Database database(storage, false);
    database.pages().beginWrite();
    addObjects(database);
    database.pages().commit();
}

void addTable(Database& database, TablePlan plan) {
    Pages& pages = database.pages();
    pages.beginChange();
    const PageRef page = database.space().allocate();
    plan.write(pages, database.space(), page, false);
    pages.endChange();
    addObject(database, {page.number(), tables, tableType, 0, plan.definition().name}, propertiesOf(plan.definition()));
    database.forget();
}

}  // namespace hx::jet

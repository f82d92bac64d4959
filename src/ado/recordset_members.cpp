// SPDX-License-Identifier: MIT
#include "ado/errors.h"
#include "ado/recordset.h"
#include "automation/member_rows.h"

namespace hx::ado {

using automation::Args;
using automation::Error;
using automation::ObjectRef;
using automation::Variant;

ObjectRef Recordset::fields(const Variant& nameOrIndex) {
    if (nameOrIndex.isString()) return sharePart(field(nameOrIndex.asString()));
    const std::int32_t index = automation::toInt32(nameOrIndex);
    if (index < 0) throwItemNotFound();
    return sharePart(field(static_cast<std::size_t>(index)));
}

namespace {

void requireAtMost(Args args, std::size_t most) {
    if (args.size() > most) throw Error(automation::errBadParamCount, "Invalid number of arguments");
}

std::int32_t numberArgument(Args args, std::size_t index, std::int32_t otherwise) {
    return index < args.size() && !args[index].isEmpty() ? automation::toInt32(args[index]) : otherwise;
}

std::shared_ptr<Connection> connectionArgument(Args args, std::size_t index) {
    if (index >= args.size() || args[index].isEmpty()) return nullptr;
    auto connection = std::dynamic_pointer_cast<Connection>(args[index].asObject());
    if (!connection) throwInvalidConnection();
    return connection;
}

Variant callOpen(Recordset& recordset, Args args) {
    constexpr std::size_t sourceToOptions = 5;
    requireAtMost(args, sourceToOptions);
    if (args.empty()) {
        recordset.open();
        return {};
    }
    recordset.open(args[0].isEmpty() ? recordset.source() : automation::toText(args[0]), connectionArgument(args, 1),
                   static_cast<CursorType>(numberArgument(args, 2, adOpenKeyset)),
                   static_cast<LockType>(numberArgument(args, 3, adLockOptimistic)),
                   static_cast<CommandType>(numberArgument(args, 4, adCmdUnknown)));
    return {};
}

Variant callFind(Recordset& recordset, Args args) {
    constexpr std::size_t criterionToDirection = 3;
    if (args.empty()) throw Error(automation::errBadParamCount, "Invalid number of arguments");
    requireAtMost(args, criterionToDirection);
    recordset.find(automation::toText(args[0]), numberArgument(args, 1, 0),
                   static_cast<SearchDirection>(numberArgument(args, 2, adSearchForward)));
    return {};
}

Variant callAddNew(Recordset& recordset, Args args) {
    if (args.empty()) {
        recordset.addNew();
        return {};
    }
    if (args.size() % 2 != 0) throw Error(automation::errBadParamCount, "AddNew takes pairs of a name and a value");
    std::vector<std::pair<std::string, Variant>> values;
    for (std::size_t i = 0; i < args.size(); i += 2) values.emplace_back(automation::toText(args[i]), args[i + 1]);
    recordset.addNew(values);
    return {};
}

Variant callResync(Recordset& recordset, Args args) {
    requireAtMost(args, 1);
    recordset.resync(static_cast<Affect>(numberArgument(args, 0, adAffectAll)));
    return {};
}

Variant bookmarkOf(Recordset& recordset) { return recordset.bookmark().toVariant(); }
void setBookmarkOf(Recordset& recordset, const Variant& value) { recordset.setBookmark(Bookmark::fromVariant(value)); }
ObjectRef connectionOf(Recordset& recordset) { return recordset.activeConnection(); }
std::int32_t fieldCountOf(Recordset& recordset) { return static_cast<std::int32_t>(recordset.fieldCount()); }

}  // namespace

const automation::MemberTable& Recordset::members() const {
    using automation::indexed;
    using automation::method;
    using automation::methodWithArgs;
    using automation::property;
    static constexpr automation::Member rows[] = {
        methodWithArgs<Recordset, &callOpen>("Open",
                                             "Opens the source: Source, Connection, CursorType, LockType, Options"),
        method<&Recordset::close>("Close", "Closes the recordset; refused while an edit is pending"),
        method<&Recordset::requery>("Requery", "Runs the source again"),
        property<&Recordset::state>("State", "0 closed, 1 open"),
        property<&Recordset::source, &Recordset::setSource>("Source", "A table's name or a command in SQL"),
        property<&connectionOf>("ActiveConnection", "The connection of the source"),
        property<&Recordset::filter, &Recordset::setFilter>("Filter", "A condition that rows must meet, or nothing"),
        property<&Recordset::bof>("BOF", "True before the first row"),
        property<&Recordset::eof>("EOF", "True behind the last row"),
        property<&Recordset::recordCount>("RecordCount", "The number of rows under the filter"),
        property<&Recordset::absolutePosition, &Recordset::setAbsolutePosition>("AbsolutePosition",
                                                                                "The current row's number from 1"),
        property<&bookmarkOf, &setBookmarkOf>("Bookmark", "Marks the current row for this recordset and its clones"),
        method<&Recordset::moveFirst>("MoveFirst", "Moves to the first row"),
        method<&Recordset::moveLast>("MoveLast", "Moves to the last row"),
        method<&Recordset::moveNext>("MoveNext", "Moves to the next row"),
        method<&Recordset::movePrevious>("MovePrevious", "Moves to the previous row"),
        methodWithArgs<Recordset, &callFind>("Find", "Searches a row: Criterion, SkipRecords, SearchDirection"),
        property<&Recordset::editMode>("EditMode", "0 none, 1 in progress, 2 new row, 4 deleted"),
        methodWithArgs<Recordset, &callAddNew>("AddNew", "Begins a new row, or stores one from names and values"),
        method<static_cast<void (Recordset::*)()>(&Recordset::update)>("Update", "Writes the pending edit"),
        method<&Recordset::cancelUpdate>("CancelUpdate", "Drops the pending edit"),
        method<&Recordset::remove>("Delete", "Deletes the current row"),
        methodWithArgs<Recordset, &callResync>("Resync", "Reads rows again: 1 the current one, 3 all"),
        method<&Recordset::clone>("Clone", "A second cursor over the same rows"),
        indexed<&Recordset::fields>("Fields", "A column by name or by number from 0"),
        property<&fieldCountOf>("FieldCount", "The number of columns"),
    };
    static constexpr automation::MemberTable table{"Recordset", rows};
    return table;
}

}  // namespace hx::ado

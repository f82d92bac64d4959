// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ado/bookmark.h"
#include "ado/connection.h"
#include "ado/field.h"

namespace hx::ado {

class Keyset;
class KeyList;
class RowEdit;
struct Cursor;

/// ADO's Recordset as a keyset cursor: it knows the keys of its rows (read when first needed) and reads pages of
/// rows when asked; it never holds all rows. Writes wait in one row buffer until update(). Leaving an edited
/// row (move, find, requery, clone positions excepted) writes it, as ADO does; closing with a pending edit is
/// adErrIllegalOperation. Moving past a row that somebody deleted skips it.
class Recordset : public automation::Dispatch {
  public:
    Recordset();
    ~Recordset() override;

    // --- source: preset before open, kept after close
    [[nodiscard]] const std::string& source() const noexcept { return source_; }
    void setSource(std::string source);  ///< adErrObjectOpen while open
    void setActiveConnection(std::shared_ptr<Connection> connection);
    [[nodiscard]] const std::shared_ptr<Connection>& activeConnection() const noexcept { return connection_; }
    void setCommandType(CommandType type) { commandType_ = type; }

    // --- state
    /// Opens the preset source on the preset connection and stands on the first row. A source that returns no
    /// rows (DELETE ...) is carried out and leaves the recordset closed.
    void open();
    /// Presets the source, then opens. adCmdUnknown: a text that begins with SELECT, DELETE, ... is SQL, else a table.
    void open(const std::string& source, std::shared_ptr<Connection> connection = nullptr,
              CursorType cursor = adOpenKeyset, LockType lock = adLockOptimistic, CommandType type = adCmdUnknown);
    void close();
    void requery();  ///< runs the source again, unless that would give the same; first row
    /// Whether nobody has changed the database since the keys were read, but for what was removed here.
    [[nodiscard]] bool isUpToDate() const;
    [[nodiscard]] ObjectState state() const noexcept;

    // --- position
    [[nodiscard]] bool bof() const;
    [[nodiscard]] bool eof() const;
    /// Exact number of rows under the filter.
    [[nodiscard]] std::int32_t recordCount() const;
    void moveFirst();  ///< adErrNoCurrentRecord when there is no row, as moveLast
    void moveLast();
    void moveNext();      ///< adErrNoCurrentRecord at EOF
    void movePrevious();  ///< adErrNoCurrentRecord at BOF
    /// 1-based number of the current row; -1 when there is none.
    [[nodiscard]] std::int32_t absolutePosition() const;
    void setAbsolutePosition(std::int32_t position);
    /// Null bookmark at BOF, EOF or on a new row that has not been stored.
    [[nodiscard]] Bookmark bookmark() const;
    void setBookmark(const Bookmark& bookmark);  ///< adErrInvalidArgument when the row is not in the recordset
    /// Searches for one comparison ("Name='x'", "ID=7", operators = <> < > <= >= LIKE) from the current row on,
    /// without it when skip is 1; EOF (BOF backwards) when nothing matches. Text compares ignoring case, a
    /// doubled quote inside quotes is one; bad quotes or an unknown column are adErrInvalidArgument. From BOF it begins
    /// with the first row; at EOF there is nothing ahead and it stays there.
    void find(const std::string& criterion, std::int32_t skip = 0, SearchDirection direction = adSearchForward);
    /// A condition with comparisons joined by AND and OR, or "" for none; first matching row becomes current.
    void setFilter(const std::string& filter);
    [[nodiscard]] const std::string& filter() const noexcept { return filter_; }
    /// What a value of a column shows.
    using Display = std::function<std::string(const automation::Variant& value)>;
    /// Orders the rows by what a column shows, ignoring case, and rows that show the same by their keys, until the
    /// recordset is closed; first row. Clones, too.
    void sortBy(std::size_t column, Display display, bool descending);

    // --- rows
    [[nodiscard]] std::size_t fieldCount() const;
    /// By name ignoring case or by number from 0; adErrItemNotFound. adErrObjectClosed while closed.
    [[nodiscard]] Field& field(std::string_view name);
    [[nodiscard]] Field& field(std::size_t index);
    [[nodiscard]] automation::ObjectRef fields(const automation::Variant& nameOrIndex);
    [[nodiscard]] const std::vector<Column>& columns() const;

    /// Gives these fields of all rows in their order, as they are stored now, and stays where it is. Much faster than a
    /// walk: nothing is kept. `receive` is called while the database reads and must not use the connection.
    void scan(std::span<const std::string_view> fields, const StoredRowReceiver& receive);

    // --- edits
    [[nodiscard]] EditMode editMode() const noexcept;
    /// Reads the current row afresh and begins its edit: until the edit ends, the row shows what was read now, and
    /// update() compares with that. An edit that is begun by an assignment compares with what the columns showed then.
    void edit();
    void addNew();  ///< an empty row to be filled and stored by update()
    /// Stores one row at once; it becomes current.
    void addNew(std::span<const std::pair<std::string, automation::Variant>> values);
    /// Stores many rows at once, with values for these fields in this order, and stands on the first row of the
    /// recordset. After an error some of them may be stored: with a transaction around it they are stored all or none.
    void addNew(std::span<const std::string> fields, RowSource& rows);
    /// Stores the pending new row, or of the pending edit the columns whose value has changed; dbErrRowChanged when one
    /// of these does not hold any more what was read of it, dbErrDeletedRow when the row is gone. After an error the
    /// edit stays pending, and the other columns show what is stored now.
    void update();
    void cancelUpdate();
    void remove();  ///< ADO's Delete: the current row; it stays "current but deleted" until a move
    /// Deletes those of the keys' rows that the recordset has, whatever its filter. After an error some may be deleted.
    void removeRows(std::span<const Key> keys);
    /// Reads the current row, or all rows, again; a pending edit is dropped for the affected rows.
    void resync(Affect affect = adAffectAll);

    /// A second cursor over the same rows; bookmarks serve both. It stands on the first row.
    [[nodiscard]] std::shared_ptr<Recordset> clone() const;

    // --- reading by position without moving, for views
    /// The bookmark of row `index` (0-based), null beyond the end.
    [[nodiscard]] Bookmark bookmarkAt(std::size_t index) const;
    /// 0-based row of a bookmark, -1 when it is not in the recordset.
    [[nodiscard]] std::ptrdiff_t indexOf(const Bookmark& bookmark) const;
    /// Stored value of a column in row `index`; Null when the row has been deleted by somebody else.
    [[nodiscard]] automation::Variant valueAt(std::size_t index, std::size_t column) const;

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    friend class Field;

    Keyset& requireOpen() const;
    void start(std::unique_ptr<Rowset> rowset);
    void useList(std::shared_ptr<KeyList> list);
    void settle() const;
    void leaveRow();
    void placeForward(std::size_t position);
    void placeBackward(std::size_t count);
    void requireRow() const;
    void requireWritable() const;
    void storeNew();
    [[nodiscard]] std::size_t columnNumber(std::string_view name) const;
    [[nodiscard]] automation::Variant storedValue(std::size_t position, std::size_t column) const;
    [[nodiscard]] automation::Variant currentValue(std::size_t column) const;
    [[nodiscard]] automation::Variant originalValue(std::size_t column) const;
    [[nodiscard]] automation::Variant valueBefore(std::size_t column) const;
    [[nodiscard]] automation::Variant underlyingValue(std::size_t column) const;
    [[nodiscard]] std::vector<automation::Variant> readRow() const;
    void setCurrentValue(std::size_t column, const automation::Variant& value);

    std::string source_;
    std::string filter_;
    std::shared_ptr<Connection> connection_;
    CommandType commandType_ = adCmdUnknown;
    bool readOnly_ = false;
    std::shared_ptr<Keyset> keyset_;  // null while closed
    std::shared_ptr<KeyList> list_;   // the keyset's rows under the filter
    std::unique_ptr<Cursor> cursor_;
    std::unique_ptr<RowEdit> edit_;
    std::vector<std::unique_ptr<Field>> fields_;  // by column; kept while closed, so that a reference never dangles
};

}  // namespace hx::ado

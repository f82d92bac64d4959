#pragma once

#include "ado/row_keys.h"

struct sqlite3;

namespace hx::sqlite {

/// The collation that compares text as ADO does: ignoring the case of all letters.
inline constexpr const char* textCollation = "HXTEXT";

/// Gives a connection what the provider's statements use:
/// - hx_keys(key): an aggregate that appends each key to `*target`, in the order in which the rows come
///   (an error while *target is null);
/// - hx_fold(text): the text in lower case, also beyond ASCII; hx_prefix(text): its ASCII letters up to the first other
/// one;
/// - the collation HXTEXT; the operator MATCH: text like a pattern with the wildcards * and %, ignoring case.
/// Returns SQLite's result code. `target` lives as long as the connection.
[[nodiscard]] int registerFunctions(sqlite3* handle, ado::RowKeys** target);

}  // namespace hx::sqlite

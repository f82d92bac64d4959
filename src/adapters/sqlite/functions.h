// SPDX-License-Identifier: MIT
#pragma once

#include "ado/row_keys.h"
#include "automation/text_list.h"

struct sqlite3;

namespace hx::sqlite {

/// The collation that compares text as ADO does: ignoring the case of all letters.
inline constexpr const char* textCollation = "HXTEXT";

/// The keys that a statement hands over, and the texts that it hands over with them.
struct Collection {
    ado::RowKeys keys;
    automation::TextList texts;  ///< without case, one for each of the keys
    ado::RowKeys textless;       ///< of rows that have no text
    bool onlyTexts = true;       ///< false when a value was neither text nor missing: it is left out
};

/// Gives a connection what the provider's statements use:
/// - hx_keys(key) and hx_keys(key, text): an aggregate that adds each row to `*target`, in the order in which the rows
///   come (an error while *target is null);
/// - hx_fold(text): the text in lower case, also beyond ASCII; hx_prefix(text): its ASCII letters up to the first other
/// one;
/// - the collation HXTEXT; the operator MATCH: text like a pattern with the wildcards * and %, ignoring case.
/// Returns SQLite's result code. `target` lives as long as the connection.
[[nodiscard]] int registerFunctions(sqlite3* handle, Collection** target);

}  // namespace hx::sqlite

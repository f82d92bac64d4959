// SPDX-License-Identifier: MIT
#include "adapters/sqlite/functions.h"

#include <algorithm>
#include <exception>
#include <sqlite3.h>
#include <string>
#include <string_view>

#include "ado/criterion.h"
#include "automation/text.h"

namespace hx::sqlite {

namespace {

std::string_view textOf(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

// No exception may pass through SQLite's own code.
template <class Action>
void guarded(sqlite3_context* context, Action&& action) noexcept {
    try {
        action();
    } catch (const std::exception&) {
        sqlite3_result_error_nomem(context);
    }
}

void giveText(sqlite3_context* context, const std::string& text) {
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void addText(Collection& to, ado::Key key, sqlite3_value* value) {
    switch (sqlite3_value_type(value)) {
        case SQLITE_NULL: return to.textless.append(key);
        case SQLITE_TEXT: break;
        default: to.onlyTexts = false; return;
    }
    to.keys.append(key);
    to.texts.appendFolded(textOf(value));
}

void keysStep(sqlite3_context* context, int count, sqlite3_value** arguments) {
    auto* to = *static_cast<Collection**>(sqlite3_user_data(context));
    if (to == nullptr) return sqlite3_result_error(context, "hx_keys is used by the provider alone", -1);
    const ado::Key key = sqlite3_value_int64(arguments[0]);
    guarded(context, [&] { count == 1 ? to->keys.append(key) : addText(*to, key, arguments[1]); });
}

void keysFinal(sqlite3_context* context) { sqlite3_result_null(context); }

void fold(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] { giveText(context, automation::foldCase(textOf(arguments[0]))); });
}

void prefix(sqlite3_context* context, int, sqlite3_value** arguments) {
    guarded(context, [&] {
        const std::string_view text = textOf(arguments[0]);
        const auto end = std::find_if(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
        giveText(context, std::string(text.begin(), end));
    });
}

// `X MATCH Y` calls match(Y, X).
void match(sqlite3_context* context, int, sqlite3_value** arguments) {
    for (int i = 0; i < 2; ++i) {
        if (sqlite3_value_type(arguments[i]) == SQLITE_NULL) return sqlite3_result_null(context);
    }
    guarded(context,
            [&] { sqlite3_result_int(context, ado::isLike(textOf(arguments[1]), textOf(arguments[0])) ? 1 : 0); });
}

int collate(void*, int lengthA, const void* textA, int lengthB, const void* textB) {
    const std::string_view a(static_cast<const char*>(textA), static_cast<std::size_t>(lengthA));
    const std::string_view b(static_cast<const char*>(textB), static_cast<std::size_t>(lengthB));
    const auto order = automation::compareIgnoreCase(a, b);
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

}  // namespace

int registerFunctions(sqlite3* handle, Collection** target) {
    constexpr int pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    using Call = void (*)(sqlite3_context*, int, sqlite3_value**);
    struct Scalar {
        const char* name;
        int arguments;
        Call call;
    };
    static constexpr Scalar scalars[] = {{"hx_fold", 1, fold}, {"hx_prefix", 1, prefix}, {"match", 2, match}};
    for (const Scalar& scalar : scalars) {
        const int code = sqlite3_create_function_v2(handle, scalar.name, scalar.arguments, pure, nullptr, scalar.call,
                                                    nullptr, nullptr, nullptr);
        if (code != SQLITE_OK) return code;
    }
    for (const int arguments : {1, 2}) {
        const int code = sqlite3_create_function_v2(handle, "hx_keys", arguments, SQLITE_UTF8, target, nullptr,
                                                    keysStep, keysFinal, nullptr);
        if (code != SQLITE_OK) return code;
    }
    return sqlite3_create_collation_v2(handle, textCollation, SQLITE_UTF8, nullptr, collate, nullptr);
}

}  // namespace hx::sqlite

// SPDX-License-Identifier: MIT
#include "exchange/json.h"

namespace hx::exchange {

Json jsonOf(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag;
    if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
    if (const auto* number = std::get_if<double>(&value)) return *number;
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* blob = std::get_if<Blob>(&value)) return {{"hex", blob->digits}};
    return nullptr;
}

}  // namespace hx::exchange

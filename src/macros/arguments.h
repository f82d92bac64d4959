// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "adapters/lua/value.h"
#include "automation/convert.h"
#include "automation/error.h"

namespace hx::macros {

/// What a macro hands to a function of the studio's. A missing argument is nil.
class Arguments {
  public:
    explicit Arguments(lua::Values values) : values_(values) {}

    [[nodiscard]] lua::Value operator[](std::size_t index) const {
        return index < values_.size() ? values_[index] : lua::Value();
    }
    /// Throws errTypeMismatch when it is no text.
    [[nodiscard]] std::string text(std::size_t index) const {
        const automation::Variant value = (*this)[index].toVariant();
        if (value.isString()) return value.asString();
        throw automation::Error(automation::errTypeMismatch,
                                "Type mismatch: argument " + std::to_string(index + 1) + " must be a text");
    }
    /// 0 when it is missing.
    [[nodiscard]] std::int16_t number(std::size_t index) const {
        return automation::toInt16((*this)[index].toVariant());
    }
    [[nodiscard]] double real(std::size_t index) const { return automation::toDouble((*this)[index].toVariant()); }

  private:
    lua::Values values_;
};

/// Names as a table of a macro's.
template <class Texts>
lua::List listOf(const Texts& texts) {
    lua::List list;
    for (const auto& text : texts) list.emplace_back(std::string(text));
    return list;
}

}  // namespace hx::macros

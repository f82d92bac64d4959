// SPDX-License-Identifier: MIT
#include "adapters/jet/failure.h"

#include "ado/types.h"

namespace hx::jet {

Damaged::Damaged(std::uint32_t page, const automation::Sentence& sentence)
    : Error(ado::dbErrUnspecified, sentence, {std::to_string(page)}) {}

}  // namespace hx::jet

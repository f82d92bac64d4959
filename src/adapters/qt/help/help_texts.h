#pragma once

#include <QString>

#include "adapters/qt/wording.h"

namespace hx::qt {

/// The texts of the help viewer.
enum class HelpText {
    window,
    back,
    forward,
    home,
    findOnPage,
    findNext,
    findPrevious,
    closeFind,
    notOnPage,
    hitOnPage,
    contents,
    search,
    searchWords,
    searchHint,
    searchNone,
    searchCount,
    navigation,
    topic,
    outside,
    broken,
    noContext,
    textAlone,
    damaged
};

[[nodiscard]] QString helpText(HelpText text, const Wording& wording);

}  // namespace hx::qt

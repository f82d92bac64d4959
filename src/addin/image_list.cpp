// SPDX-License-Identifier: MIT
#include "addin/image_list.h"

namespace hx::addin {

namespace {

// A sheet with a folded corner and three entries, each with its mark. Edges lie on whole pixels of a 16-pixel picture;
// the tones stand out on light and on dark.
constexpr const char* recipeSheet = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16">
<path d="M2.5 1.5h7l4 4v9h-11z" fill="#f7f9fb" stroke="#4a7ba6" stroke-linejoin="round"/>
<path d="M9.5 1.5v4h4z" fill="#c4d8ea" stroke="#4a7ba6" stroke-linejoin="round"/>
<path d="M4 5h2v2H4zM4 8h2v2H4zM4 11h2v2H4z" fill="#3f9a5b"/>
<path d="M7 6h2v1H7zM7 9h5v1H7zM7 12h5v1H7z" fill="#5c6b78"/>
</svg>
)";

}  // namespace

FImageList::FImageList() { add("icoRcpRecipe", {recipeSheet}); }

}  // namespace hx::addin

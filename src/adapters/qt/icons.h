#pragma once

/// The view's own pictures, as SVG.
namespace hx::qt::icons {

extern const char* const choose;  ///< three dots: opens a choice
extern const char* const folder;
extern const char* const document;

}  // namespace hx::qt::icons

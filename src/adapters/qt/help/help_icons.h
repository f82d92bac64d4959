#pragma once

/// The help viewer's pictures, as SVG.
namespace hx::qt::help_icons {

extern const char* const back;
extern const char* const forward;
extern const char* const home;
extern const char* const find;
extern const char* const up;
extern const char* const down;
extern const char* const close;
extern const char* const book;  ///< a topic with others below it
extern const char* const topic;
extern const char* const viewer;  ///< the window

}  // namespace hx::qt::help_icons

#pragma once

/// The pictures of the preview window, as SVG.
namespace hx::report::icons {

extern const char* const report;
extern const char* const print;
extern const char* const pdf;
extern const char* const html;
extern const char* const zoomIn;
extern const char* const zoomOut;
extern const char* const fitWidth;
extern const char* const fitPage;
extern const char* const firstPage;
extern const char* const previousPage;
extern const char* const nextPage;
extern const char* const lastPage;
extern const char* const close;

}  // namespace hx::report::icons

#pragma once

#include <QString>

#include "report/report_texts.h"

namespace hx::report {

/// The texts of the preview window and of the pages' frame.
enum class PreviewText {
    pageReference,
    pageOfPages,
    print,
    savePdf,
    saveHtml,
    savePdfHint,
    saveHtmlHint,
    zoomIn,
    zoomOut,
    zoom,
    fitWidth,
    fitPage,
    firstPage,
    previousPage,
    nextPage,
    lastPage,
    page,
    ofPages,
    close,
    tools,
    pages,
    recipes,
    fileKindPdf,
    fileKindHtml,
    save,
    cancel,
    overwrite,
    notOverProject,
    notSaved,
    saved,
    notPrinted,
    printed

};

[[nodiscard]] QString previewText(PreviewText text, const Texts& language);

}  // namespace hx::report

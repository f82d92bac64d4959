// SPDX-License-Identifier: MIT
#include "studio/clipboard_keeper.h"

#include <QClipboard>
#include <QGuiApplication>

namespace hx::studio {

ClipboardKeeper::ClipboardKeeper() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr || data->formats().isEmpty()) return;
    kept_ = std::make_unique<QMimeData>();
    for (const QString& format : data->formats()) kept_->setData(format, data->data(format));
}

ClipboardKeeper::~ClipboardKeeper() {
    if (kept_) QGuiApplication::clipboard()->setMimeData(kept_.release());  // the clipboard owns it
    else QGuiApplication::clipboard()->clear();
}

}  // namespace hx::studio

// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QScopedValueRollback>
#include <QStyle>

#include "adapters/qt/screen/form_view.h"
#include "adapters/qt/screen/placement.h"

namespace hx::qt {

void FormView::applyBounds() {
    if (laidOut_) return;
    const QScopedValueRollback applying(applying_, true);
    const QSize size(units().pixels(form_->width()), units().pixels(form_->height()));
    const QPoint place(units().pixels(form_->left()), units().pixels(form_->top()));
    if (stateOfFrame() != forms::WindowState::normal) return;
    if (!size.isEmpty()) frame().resize(size);
    if (document_) document_->move(place);
    reportClientArea();
}

void FormView::applyVisible() {
    if (form_->visible()) {
        showFrame();
        return bringIntoView();
    }
    const QScopedValueRollback applying(applying_, true);
    frame().hide();
    if (modal_ != nullptr) modal_->quit();
}

void FormView::showFrame() {
    const QScopedValueRollback applying(applying_, true);
    // Showing it shows the document window around it too.
    if (document_ && widget_.isHidden()) widget_.show();
    switch (form_->windowState()) {
        case forms::WindowState::maximised: frame().showMaximized(); break;
        case forms::WindowState::minimised: frame().showMinimized(); break;
        default:
            if (stateOfFrame() != forms::WindowState::normal) frame().showNormal();
            else frame().show();
            applyBounds();
            break;
    }
    reportClientArea();
}

// The place may have been stored on a larger screen.
void FormView::bringIntoView() {
    const QMdiArea* area = document_ ? document_->mdiArea() : nullptr;
    if (area == nullptr || !area->isVisible() || stateOfFrame() != forms::WindowState::normal) return;
    const int title = frame().style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &frame());
    document_->move(reachablePlace(document_->geometry(), title, area->viewport()->rect()));
}

forms::WindowState FormView::stateOfFrame() const {
    const QWidget& outer = document_ ? *document_ : widget_;
    if (outer.isMinimized()) return forms::WindowState::minimised;
    return outer.isMaximized() ? forms::WindowState::maximised : forms::WindowState::normal;
}

// The toolkit puts a window back to where it was before; the form may have been given another place meanwhile.
void FormView::stateChanged() {
    if (applying_ || !frame().isVisible() || stateOfFrame() == form_->windowState()) return;
    form_->boundsReported(form_->left(), form_->top(), form_->width(), form_->height(), stateOfFrame());
    if (form_->windowState() != forms::WindowState::normal) return;
    restoring_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            restoring_ = false;
            if (form_ == nullptr) return;
            applyBounds();
            bringIntoView();
        },
        Qt::QueuedConnection);
}

void FormView::embedIn(QMdiArea& area) {
    widget_.hide();
    document_ = area.addSubWindow(&widget_);
    document_->setAttribute(Qt::WA_DeleteOnClose, false);
    document_->setObjectName(widget_.objectName() + QStringLiteral("Document"));
    document_->installEventFilter(this);
    applyBounds();
    applyVisible();
}

void FormView::takeOut() {
    const QScopedValueRollback applying(applying_, true);
    if (document_) {
        document_->removeEventFilter(this);
        document_->hide();
        if (QMdiArea* area = document_->mdiArea()) area->removeSubWindow(document_);
        document_->setWidget(nullptr);
        document_->deleteLater();
        document_.clear();
    }
    widget_.hide();
    widget_.setParent(nullptr);
}

void FormView::bringToFront() {
    QWidget& outer = frame();
    if (form_->windowState() == forms::WindowState::minimised) form_->setWindowState(forms::WindowState::normal);
    applyVisible();
    outer.raise();
    if (document_ && document_->mdiArea() != nullptr) document_->mdiArea()->setActiveSubWindow(document_);
    outer.window()->activateWindow();
    if (!widget_.isAncestorOf(QApplication::focusWidget())) {
        QWidget* inside = widget_.focusWidget();
        (inside == nullptr || inside == &widget_ ? firstField() : *inside).setFocus(Qt::OtherFocusReason);
    }
}

void FormView::reportClientArea() {
    if (widget_.size() == reported_) return;
    reported_ = widget_.size();
    const auto keep = form_->share();
    form_->clientAreaChanged(units().twips(reported_.width()), units().twips(reported_.height()));
    for (const auto& view : views_) {
        if (view->model() != nullptr) view->containerResized();
    }
}

// A maximised window that is resized with its area is "normal" to the toolkit for a moment: the form knows better.
void FormView::reportBounds() {
    if (applying_ || restoring_ || !frame().isVisible() || form_->windowState() != forms::WindowState::normal) return;
    const QWidget& outer = frame();
    form_->boundsReported(units().twips(outer.x()), units().twips(outer.y()), units().twips(outer.width()),
                          units().twips(outer.height()), forms::WindowState::normal);
}

}  // namespace hx::qt

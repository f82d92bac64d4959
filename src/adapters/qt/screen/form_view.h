// SPDX-License-Identifier: MIT
#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "adapters/qt/controls/control_view.h"
#include "adapters/qt/controls/surrounding_form.h"
#include "adapters/qt/screen/form_layout.h"

class QEventLoop;

namespace hx::qt {

/// The views of a form's controls; the last one ends first, as it may lie in one before it.
class ViewList : public std::vector<std::unique_ptr<ControlView>> {
  public:
    ViewList() = default;
    ViewList(const ViewList&) = delete;
    ViewList& operator=(const ViewList&) = delete;
    ~ViewList() {
        while (!empty()) pop_back();
    }
};

/// The window of a form and the views of its controls. A window of its own, or a document in an area of documents. A
/// form with rows is a dialog: the toolkit lays it out, its size follows from its texts and fonts.
class FormView : public QObject, public SurroundingForm {
  public:
    /// The services are lent.
    FormView(forms::Form& form, ViewServices& services);
    ~FormView() override;

    [[nodiscard]] ViewServices& services() const noexcept override { return services_; }
    /// Null after detach().
    [[nodiscard]] forms::Form* model() const noexcept override { return form_; }
    [[nodiscard]] QWidget& widget() noexcept override { return widget_; }
    /// The outer window: the document window, or the widget itself.
    [[nodiscard]] QWidget& frame() noexcept;
    [[nodiscard]] QMdiSubWindow* documentWindow() const noexcept { return document_; }
    [[nodiscard]] const ViewList& views() const noexcept { return views_; }
    [[nodiscard]] ControlView* viewOf(const forms::Control& control) const override;
    /// The widget that the controls in `container` lie in; null for a container that is not shown.
    [[nodiscard]] QWidget* areaOf(const forms::Control* container);
    [[nodiscard]] bool laidOut() const noexcept override { return laidOut_; }

    /// Places the window into an area of documents, with the place, size and state that the form names.
    void embedIn(QMdiArea& area);
    /// Makes it a window of its own again, hidden.
    void takeOut();
    /// In front, restored when minimised, with the keyboard.
    void bringToFront();
    /// Shows it over `owner` until the form is hidden or ends.
    void runModal(QWidget* owner);
    /// Shows it over `owner` while the work is done on it in place of the user.
    void showFor(QWidget* owner, const std::function<void()>& work);
    void startKeyboard() override;
    void settle() override;
    /// Sends keys to the control that has the keyboard, or to the form.
    void sendKeys(std::string_view keys);
    /// Forgets the form and its controls, and hides the window.
    void detach();

    bool reportKey(QKeyEvent& event, forms::Control& control) override;
    [[nodiscard]] int freeBottom(const QWidget& area, int bottom) const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build();
    void orderTabs();
    void openOver(QWidget* window, Qt::WindowModality modality);
    void closeOver(const QWidget* window);
    [[nodiscard]] QWidget& firstField();
    void apply(std::string_view property);
    void applyBounds();
    void applyVisible();
    void showFrame();
    void bringIntoView();
    void stateChanged();
    [[nodiscard]] forms::WindowState stateOfFrame() const;
    void reportBounds();
    void reportClientArea();
    void pressed(QKeyEvent& event);
    void turnPage(int pages);
    void closed();

    forms::Form* form_;
    ViewServices& services_;
    const bool laidOut_;
    QWidget widget_;
    QPointer<QMdiSubWindow> document_;
    ViewList views_;
    std::unique_ptr<FormLayout> layout_;
    forms::Subscription changed_, focusRequested_;
    QSize reported_;
    QEventLoop* modal_ = nullptr;
    bool applying_ = false, restoring_ = false;
};

}  // namespace hx::qt

#pragma once

#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

#include "adapters/qt/control_view.h"
#include "adapters/qt/popup_place.h"
#include "adapters/qt/units.h"
#include "forms/form.h"

class QEventLoop;

namespace hx::qt {

/// The window of a form and the views of its controls. A window of its own, or a document in an area of documents.
class FormView : public QObject {
  public:
    /// `popUps` is lent.
    FormView(forms::Form& form, const Units& units, PopUpPlace& popUps);
    ~FormView() override;

    [[nodiscard]] const Units& units() const noexcept { return units_; }
    [[nodiscard]] PopUpPlace& popUps() const noexcept { return popUps_; }
    /// Null after detach().
    [[nodiscard]] forms::Form* model() const noexcept { return form_; }
    /// The area inside the frame.
    [[nodiscard]] QWidget& widget() noexcept { return widget_; }
    /// The outer window: the document window, or the widget itself.
    [[nodiscard]] QWidget& frame() noexcept;
    [[nodiscard]] QMdiSubWindow* documentWindow() const noexcept { return document_; }
    [[nodiscard]] const std::vector<std::unique_ptr<ControlView>>& views() const noexcept { return views_; }

    /// Places the window into an area of documents, with the place, size and state that the form names.
    void embedIn(QMdiArea& area);
    /// Makes it a window of its own again, hidden.
    void takeOut();
    /// In front, restored when minimised, with the keyboard.
    void bringToFront();
    /// Shows it over `owner` until the form is hidden or ends.
    void runModal(QWidget* owner);
    /// Gives to the models what is being typed.
    void settle();
    /// Sends keys to the control that has the keyboard, or to the form.
    void sendKeys(std::string_view keys);
    /// Forgets the form and its controls, and hides the window.
    void detach();

    /// Reports a key that went down or up in a control: to the form first when it previews keys. True when swallowed.
    bool reportKey(QKeyEvent& event, forms::Control& control);
    /// The bottom edge that a control may reach to, within its area and covering no status line; in pixels of it.
    [[nodiscard]] int freeBottom(const QWidget& area, int bottom) const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build();
    [[nodiscard]] QWidget* areaFor(const forms::Control& control);
    void orderTabs();
    [[nodiscard]] QWidget& firstField();
    void apply(std::string_view property);
    void applyBounds();
    void applyVisible();
    void reportBounds();
    void reportClientArea();
    void pressButton(QKeyEvent& event);
    void closed();

    forms::Form* form_;
    Units units_;
    PopUpPlace& popUps_;
    QWidget widget_;
    QPointer<QMdiSubWindow> document_;
    std::vector<std::unique_ptr<ControlView>> views_;
    forms::Subscription changed_;
    QSize reported_;
    QEventLoop* modal_ = nullptr;
    bool applying_ = false;
};

}  // namespace hx::qt

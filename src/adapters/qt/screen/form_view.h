#pragma once

#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "adapters/qt/controls/control_view.h"
#include "adapters/qt/screen/form_layout.h"
#include "adapters/qt/view_services.h"
#include "forms/form.h"

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
class FormView : public QObject {
  public:
    /// The services are lent.
    FormView(forms::Form& form, ViewServices& services);
    ~FormView() override;

    [[nodiscard]] ViewServices& services() const noexcept { return services_; }
    [[nodiscard]] const Units& units() const noexcept { return services_.units; }
    [[nodiscard]] PopUpPlace& popUps() const noexcept { return services_.popUps; }
    /// Null after detach().
    [[nodiscard]] forms::Form* model() const noexcept { return form_; }
    /// The area inside the frame.
    [[nodiscard]] QWidget& widget() noexcept { return widget_; }
    /// The outer window: the document window, or the widget itself.
    [[nodiscard]] QWidget& frame() noexcept;
    [[nodiscard]] QMdiSubWindow* documentWindow() const noexcept { return document_; }
    [[nodiscard]] const ViewList& views() const noexcept { return views_; }
    /// The view of a control; null when it has none.
    [[nodiscard]] ControlView* viewOf(const forms::Control& control) const;
    /// The widget that the controls in `container` lie in; null for a container that is not shown.
    [[nodiscard]] QWidget* areaOf(const forms::Control* container);
    /// Whether the toolkit places the controls, not their Left, Top, Width and Height.
    [[nodiscard]] bool laidOut() const noexcept { return laidOut_; }

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
    /// Gives the keyboard to the first field that can be seen.
    void startKeyboard();
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
    void pressButton(QKeyEvent& event, bool enter);
    void turnPage(int pages);
    void closed();

    forms::Form* form_;
    ViewServices& services_;
    const bool laidOut_;
    QWidget widget_;
    QPointer<QMdiSubWindow> document_;
    ViewList views_;
    std::unique_ptr<FormLayout> layout_;
    forms::Subscription changed_;
    QSize reported_;
    QEventLoop* modal_ = nullptr;
    bool applying_ = false, restoring_ = false;
};

}  // namespace hx::qt

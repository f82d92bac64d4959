// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/form_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QWindow>
#include <algorithm>

#include "adapters/qt/controls/label_view.h"
#include "adapters/qt/controls/status_bar_view.h"
#include "adapters/qt/controls/tab_strip_view.h"
#include "adapters/qt/fonts.h"
#include "adapters/qt/keys.h"
#include "adapters/qt/screen/placement.h"
#include "adapters/qt/screen/view_factory.h"
#include "adapters/qt/text.h"
#include "forms/command_button.h"

namespace hx::qt {

namespace {

// A dialog has a title and can be closed; it is neither maximised nor minimised.
constexpr Qt::WindowFlags dialogFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

}  // namespace

FormView::FormView(forms::Form& form, ViewServices& services)
    : form_(&form), services_(services), laidOut_(!form.layout().empty()) {
    widget_.setObjectName(toQt(form.name()));
    widget_.installEventFilter(this);
    for (const auto property : {"Caption", "Font", "Enabled", "Bounds"}) apply(property);
    build();
    orderTabs();
    changed_ = form.changed.subscribe([this](std::string_view property) { apply(property); });
    focusRequested_ = form.focusRequestEvent.subscribe([this] { widget_.setFocus(); });
    reportClientArea();
}

FormView::~FormView() {
    if (document_) document_->removeEventFilter(this);
    widget_.removeEventFilter(this);
}

QWidget& FormView::frame() noexcept { return document_ ? *document_ : widget_; }

void FormView::build() {
    auto waiting = form_->controls();
    while (!waiting.empty()) {
        const auto known = std::stable_partition(waiting.begin(), waiting.end(), [this](const auto& control) {
            return areaOf(control->container()) != nullptr;
        });
        const bool stuck = known == waiting.begin();
        const auto end = stuck ? waiting.end() : known;
        for (auto control = waiting.begin(); control != end; ++control) {
            QWidget* area = areaOf((*control)->container());
            views_.push_back(makeView(**control, *this, area == nullptr ? widget_ : *area));
            views_.back()->start();
        }
        waiting.erase(waiting.begin(), end);
    }
    if (laidOut_) layout_ = std::make_unique<FormLayout>(form_->layout(), *this);
    for (const auto& view : views_) view->containerResized();
}

ControlView* FormView::viewOf(const forms::Control& control) const {
    const auto found = std::ranges::find(views_, &control, [](const auto& view) { return view->model(); });
    return found == views_.end() ? nullptr : found->get();
}

QWidget* FormView::areaOf(const forms::Control* container) {
    if (container == nullptr || container == form_) return &widget_;
    for (const auto& view : views_) {
        if (QWidget* area = view->areaOf(*container)) return area;
    }
    return nullptr;
}

void FormView::orderTabs() {
    std::vector<ControlView*> order;
    for (const auto& view : views_) order.push_back(view.get());
    std::ranges::stable_sort(order, {}, [](const ControlView* view) { return view->model()->tabIndex(); });
    QWidget* previous = nullptr;
    LabelView* label = nullptr;
    for (ControlView* view : order) {
        if (auto* next = dynamic_cast<LabelView*>(view)) label = next;
        if (view->widget().focusPolicy() == Qt::NoFocus) continue;
        if (previous != nullptr) QWidget::setTabOrder(previous, &view->widget());
        if (label != nullptr && !label->hasBuddy()) label->setBuddy(view->widget());
        previous = &view->widget();
        label = nullptr;
    }
}

void FormView::apply(std::string_view property) {
    if (form_ == nullptr) return;
    if (property == "Caption") widget_.setWindowTitle(toQt(form_->caption()));
    else if (property == "Font") widget_.setFont(shownFont(form_->font().values()));
    else if (property == "Enabled") widget_.setEnabled(form_->enabled());
    else if (property == "Visible" || property == "WindowState") applyVisible();
    else applyBounds();
}

// Where the keyboard starts in a window that has not had it yet: behind the tabs, in the first field of the page.
QWidget& FormView::firstField() {
    ControlView* first = nullptr;
    for (const auto& view : views_) {
        const QWidget& field = view->widget();
        const bool reached = (field.focusPolicy() & Qt::TabFocus) != 0 && field.isVisible() && field.isEnabled() &&
                             dynamic_cast<const TabStripView*>(view.get()) == nullptr;
        if (reached && (first == nullptr || view->model()->tabIndex() < first->model()->tabIndex())) first = view.get();
    }
    return first == nullptr ? widget_ : first->widget();
}

void FormView::runModal(QWidget* owner) {
    QWidget* over = owner == nullptr ? nullptr : owner->window();
    QEventLoop loop;
    const QScopedValueRollback modal(modal_, &loop);
    openOver(over, Qt::ApplicationModal);
    if (form_->visible()) loop.exec(QEventLoop::DialogExec);
    closeOver(over);
}

// A modal window would keep the user from everything, also from what ends the work.
void FormView::showFor(QWidget* owner, const std::function<void()>& work) {
    QWidget* over = owner == nullptr ? nullptr : owner->window();
    const QPointer<FormView> alive = this;
    openOver(over, Qt::NonModal);
    try {
        work();
    } catch (...) {
        if (alive) closeOver(over);
        throw;
    }
    if (alive) closeOver(over);
}

void FormView::openOver(QWidget* window, Qt::WindowModality modality) {
    if (widget_.parentWidget() != window || widget_.windowFlags() != dialogFlags) {
        widget_.setParent(window, dialogFlags);
    }
    widget_.setWindowModality(modality);
    if (laidOut_) placeOver(widget_, window);
    if (!form_->visible()) form_->setVisible(true);
    applyVisible();
    if (widget_.focusWidget() == nullptr) startKeyboard();
}

// The owner may end before the form does, and must not take the window along; Windows ends every native window that
// once stood over another one with it.
void FormView::closeOver(const QWidget* window) {
    if (form_ == nullptr) return;
    widget_.hide();
    if (window == nullptr) return;
    widget_.setParent(nullptr, dialogFlags);
    if (QWindow* native = widget_.windowHandle()) native->destroy();
}

void FormView::startKeyboard() {
    QWidget& field = firstField();
    field.setFocus(Qt::TabFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(&field)) line->selectAll();
}

void FormView::settle() {
    for (const auto& view : views_) {
        if (view->model() != nullptr) view->settle();
    }
}

void FormView::sendKeys(std::string_view keys) {
    for (const forms::KeyStroke& stroke : forms::keyStrokes(keys)) {
        QWidget* inside = widget_.focusWidget();
        QWidget& target = inside == nullptr ? widget_ : *inside;
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event = keyEvent(type, stroke);
            QApplication::sendEvent(&target, &event);
        }
    }
}

void FormView::detach() {
    if (form_ == nullptr) return;
    changed_.reset();
    focusRequested_.reset();
    for (const auto& view : views_) view->detach();
    form_ = nullptr;
    takeOut();
    if (modal_ != nullptr) modal_->quit();
}

bool FormView::reportKey(QKeyEvent& event, forms::Control& control) {
    const bool down = event.type() == QEvent::KeyPress;
    if (!down && event.isAutoRepeat()) return false;  // the key is still held
    return form_->keyReported(control, down ? forms::KeyMove::down : forms::KeyMove::up,
                              {virtualKey(event), shiftState(event.modifiers())}, {typedCharacter(event)});
}

int FormView::freeBottom(const QWidget& area, int bottom) const {
    bottom = std::min(bottom, area.height());
    for (const auto& view : views_) {
        const QWidget& bar = view->widget();
        if (dynamic_cast<const StatusBarView*>(view.get()) == nullptr || bar.parentWidget() != &area) continue;
        if (!bar.isHidden() && bar.y() > 0) bottom = std::min(bottom, bar.y());
    }
    return bottom;
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    if (form_ == nullptr) return false;
    const bool inner = watched == &widget_;
    switch (event->type()) {
        case QEvent::Close:
            if (!inner) return false;
            event->ignore();
            closed();
            return true;
        case QEvent::Resize:
            if (inner) reportClientArea();
            if (watched == &frame()) reportBounds();
            return false;
        case QEvent::LayoutRequest:
            if (inner && layout_) layout_->fit();
            return false;
        case QEvent::Move:
            if (watched == &frame()) reportBounds();
            return false;
        case QEvent::WindowStateChange:
            if (watched == &frame()) stateChanged();
            return false;
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            if (!inner) return false;
            if (widget_.hasFocus() && reportKey(static_cast<QKeyEvent&>(*event), *form_)) return true;
            if (event->type() == QEvent::KeyPress) pressed(static_cast<QKeyEvent&>(*event));
            return form_ == nullptr;
        default: return false;
    }
}

void FormView::closed() {
    settle();
    const auto keep = form_->share();
    form_->closeByFrame();
}

// What no control has taken for itself.
void FormView::pressed(QKeyEvent& event) {
    if (forms::CommandButton* const button = form_->buttonOf(virtualKey(event))) {
        const auto keep = button->share();
        event.accept();
        settle();
        return button->click();
    }
    const bool back = event.key() == Qt::Key_Backtab;
    if ((back || event.key() == Qt::Key_Tab) && event.modifiers().testFlag(Qt::ControlModifier))
        turnPage(back ? -1 : 1);
}

void FormView::turnPage(int pages) {
    for (const auto& view : views_) {
        if (auto* tabs = dynamic_cast<TabStripView*>(view.get())) return tabs->turn(pages);
    }
}

}  // namespace hx::qt

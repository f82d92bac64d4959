// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/tab_strip_view.h"

#include <QSignalBlocker>

#include "adapters/qt/controls/surrounding_form.h"
#include "adapters/qt/text.h"

namespace hx::qt {

TabStripView::TabStripView(forms::TabStrip& strip, SurroundingForm& form, QWidget& area)
    : ControlView(strip, form), tabs_(&area) {
    for (std::int16_t i = 0; i < strip.tabs(); ++i) {
        pages_.push_back(std::make_unique<QWidget>());
        tabs_.addTab(pages_.back().get(), QString());
    }
    watch(tabs_);
    connect(&tabs_, &QTabWidget::currentChanged, this, &TabStripView::chosen);
}

QWidget* TabStripView::areaOf(const forms::Control& container) {
    const auto& strip = *modelOf<forms::TabStrip>(*this);
    for (std::int16_t i = 0; i < strip.tabs(); ++i) {
        if (&strip.page(i) == &container) return pages_[static_cast<std::size_t>(i)].get();
    }
    return ControlView::areaOf(container);
}

// The controls of the new page may take the keyboard only now: without one that could, the page itself has got it.
void TabStripView::chosen(int tab) {
    const auto keep = model()->share();
    modelOf<forms::TabStrip>(*this)->setTab(static_cast<std::int16_t>(tab));
    if (model() == nullptr || pages_[static_cast<std::size_t>(tab)].get() != form().widget().focusWidget()) return;
    form().startKeyboard();
}

void TabStripView::turn(int pages) {
    const int count = tabs_.count();
    tabs_.setCurrentIndex((tabs_.currentIndex() + pages + count) % count);
}

void TabStripView::showCaptions() {
    const auto& strip = *modelOf<forms::TabStrip>(*this);
    for (std::int16_t i = 0; i < strip.tabs(); ++i) tabs_.setTabText(i, toQt(strip.tabCaption(i)));
}

void TabStripView::show(std::string_view property) {
    if (property == "Tab") {
        const QSignalBlocker quiet(tabs_);
        tabs_.setCurrentIndex(modelOf<forms::TabStrip>(*this)->tab());
    } else if (property == "TabCaption") {
        showCaptions();
    } else {
        ControlView::show(property);
    }
}

}  // namespace hx::qt

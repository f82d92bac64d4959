// SPDX-License-Identifier: MIT
#include "gui/dialog_fixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

#include "adapters/qt/text.h"

namespace hx::gui {

namespace {

host::Services onScreen(const host::Services& other, forms::Screen& screen, host::ItemSelection& items,
                        host::PathSelection& folders) {
    return {.screen = screen,
            .database = other.database,
            .registry = other.registry,
            .iniFile = other.iniFile,
            .clipboard = other.clipboard,
            .help = other.help,
            .windows = other.windows,
            .components = other.components,
            .items = items,
            .folders = folders,
            .paths = other.paths,
            .numberFormat = other.numberFormat,
            .moduleFile = other.moduleFile};
}

}  // namespace

DialogFixture::DialogFixture() : services(onScreen(host.services(), screen, items, folders)) {
    folders.setProjectFolder(project.path());
    screen.setVariables(variables);
    texts.InitResources(services.registry);
    desk_.show();
}

void DialogFixture::useEnglish() {
    wording.setLanguage(qt::Wording::english);
    services.registry.writeNumber(host::registry_keys::helvix, "LCID", qt::Wording::english);
    texts.InitResources(services.registry);
}

void DialogFixture::showDuring(forms::Form& dialog, const std::function<void(QWidget& window)>& action) {
    const auto keep = dialog.share();
    bool ran = false;
    QTimer::singleShot(0, [&] {
        QWidget& window = windowOf(dialog);
        EXPECT_TRUE(activate(window)) << dialog.name();
        try {
            action(window);
            ran = true;
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
        if (dialog.visible()) dialog.hide();
    });
    dialog.showModal(0);
    EXPECT_TRUE(ran);
    EXPECT_TRUE(activate(desk_));
}

QWidget& DialogFixture::show(forms::Form& dialog) {
    dialog.show();
    QWidget& window = windowOf(dialog);
    EXPECT_TRUE(activate(window));
    return window;
}

QWidget& focused() {
    // A box over it has just been closed: no window manager gives the keyboard back.
    if (QApplication::focusWidget() == nullptr) {
        if (QWidget* modal = QApplication::activeModalWidget()) modal->activateWindow();
        (void)waitUntil([] { return QApplication::focusWidget() != nullptr; });
    }
    QWidget* widget = QApplication::focusWidget();
    if (widget == nullptr) throw std::runtime_error("nothing has the keyboard");
    return *widget;
}

void press(int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&focused(), static_cast<Qt::Key>(key), modifiers);
}

// A button that is pressed by its letter shows it for a moment before it acts.
void pressMnemonic(int letter) {
    constexpr int moment = 200;
    press(letter, Qt::AltModifier);
    QTest::qWait(moment);
}

std::vector<std::string> cutTexts(const QWidget& window) {
    std::vector<std::string> cut;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const bool hasText = qobject_cast<const QLabel*>(widget) != nullptr ||
                             qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                             qobject_cast<const QGroupBox*>(widget) != nullptr;
        if (!hasText || !widget->isVisible()) continue;
        const QSize wanted = widget->minimumSizeHint();
        const bool small = widget->width() < wanted.width() || widget->height() < wanted.height();
        if (small || !widget->parentWidget()->rect().contains(widget->geometry())) {
            cut.push_back(qt::fromQt(widget->objectName()));
        }
    }
    return cut;
}

}  // namespace hx::gui

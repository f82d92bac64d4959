// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/headless/host.h"
#include "adapters/qt/screen/qt_item_selection.h"
#include "adapters/qt/screen/qt_path_selection.h"
#include "dialogs/dialog.h"
#include "gui/desktop.h"
#include "resources/help.h"
#include "resources/resource_table.h"
#include "support/memory_provider.h"

namespace hx::gui {

/// Variables that a test puts down; or an error when it asks for one.
class ListedVariables : public qt::VariableSource {
  public:
    std::vector<qt::Variable> list;
    std::optional<automation::Error> error;
    [[nodiscard]] qt::VariableList variables() const override {
        if (error) throw automation::Error(*error);
        return list;
    }
};

/// The editor's dialogs in real windows, with the choices of the desktop. The rest of the host has no screen and keeps
/// a record.
class DialogFixture : public Desktop {
  protected:
    DialogFixture();

    QTemporaryDir project;
    ListedVariables variables;
    support::MemoryProvider provider;
    headless::Host host{provider};
    qt::QtItemSelection items{variables, windows, wording};
    qt::QtPathSelection folders{windows, wording};
    host::Services services;
    resources::ResourceTable texts;
    resources::Help help{services};

    /// Texts of all dialogs that are made from now on.
    void useEnglish();
    /// Shows the dialog until `action` has run on its window; one that is open then is hidden.
    void showDuring(forms::Form& dialog, const std::function<void(QWidget& window)>& action);
    /// Shows the dialog with the keyboard in it, until the end of the test.
    QWidget& show(forms::Form& dialog);

  private:
    QWidget desk_;  // has the keyboard while no dialog has
};

/// Runs `action` on the modal window that comes next.
template <class W>
void inNextModal(std::function<void(W&)> action) {
    const QWidget* before = QApplication::activeModalWidget();
    QTimer::singleShot(0, [before, action] {
        QWidget* window = nullptr;
        const bool came = waitUntil([&] {
            window = QApplication::activeModalWidget();
            return window != nullptr && window != before && window->isVisible();
        });
        auto* wanted = dynamic_cast<W*>(window);
        if (came && wanted != nullptr) return action(*wanted);
        ADD_FAILURE() << "the expected window did not come";
    });
}

/// The widget that has the keyboard; a test failure when none has.
[[nodiscard]] QWidget& focused();
/// Presses a key where the keyboard is.
void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Presses Alt and a letter, and waits until a button has acted on it.
void pressMnemonic(int letter);
/// The names of the visible texts in a window that have less room than they want, or that lie outside their container.
[[nodiscard]] std::vector<std::string> cutTexts(const QWidget& window);

}  // namespace hx::gui

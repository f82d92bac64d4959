// SPDX-License-Identifier: MIT
#pragma once

#include <QMdiArea>
#include <QObject>
#include <QScopedValueRollback>
#include <QWidget>
#include <map>
#include <string>

#include "adapters/qt/screen/form_view.h"
#include "automation/restore.h"
#include "host/system_services.h"

namespace hx::qt {

/// The windows of the studio by handle. A form's window can be placed into an area of documents; its activation there
/// goes to its window procedure as message 6: when it gets the keyboard from another part of the studio, and when the
/// user comes back to the studio from another program.
class QtWindows : public QObject, public host::WindowOperations {
  public:
    static constexpr std::int32_t errBadHandle = automation::hresult(0x80070578);

    QtWindows();

    /// While it lives, the user's going about in the studio and coming back to it are no activation: what works on a
    /// document in his place must not find it read again half way.
    [[nodiscard]] automation::Restore<bool> quiet() { return {quiet_, true}; }

    /// Makes a window known; both are lent until remove().
    [[nodiscard]] forms::WindowHandle add(FormView& view);
    /// The studio's area of documents.
    [[nodiscard]] forms::WindowHandle add(QMdiArea& area);
    void remove(forms::WindowHandle handle);
    /// The widget behind a handle; null for 0 and for unknown ones.
    [[nodiscard]] QWidget* widget(forms::WindowHandle handle) const;

    [[nodiscard]] std::uint32_t style(forms::WindowHandle handle) const override;
    void setStyle(forms::WindowHandle handle, std::uint32_t style) override;
    void setParent(forms::WindowHandle handle, forms::WindowHandle parent) override;
    [[nodiscard]] std::uint32_t registerMessage(std::string_view name) override;
    [[nodiscard]] host::window::ProcedureAddress procedure(forms::WindowHandle handle) const override;
    [[nodiscard]] host::window::ProcedureAddress install(forms::WindowHandle handle,
                                                         host::window::Procedure procedure) override;
    void restore(forms::WindowHandle handle, host::window::ProcedureAddress address) override;
    std::int32_t call(host::window::ProcedureAddress address, forms::WindowHandle handle, std::uint32_t message,
                      std::uint32_t wParam, std::int32_t lParam) override;
    [[nodiscard]] host::window::Rect rect(forms::WindowHandle handle) const override;
    [[nodiscard]] automation::ObjectRef embeddingObject(forms::WindowHandle handle) const override;

  private:
    struct Window {
        QWidget* widget = nullptr;
        FormView* view = nullptr;  ///< null for an area of documents
        std::uint32_t style = 0;
        host::window::ProcedureAddress procedure = defaultProcedure;
    };
    static constexpr host::window::ProcedureAddress defaultProcedure = 1;

    forms::WindowHandle insert(Window window);
    [[nodiscard]] const Window& at(forms::WindowHandle handle) const;
    [[nodiscard]] Window& at(forms::WindowHandle handle);
    [[nodiscard]] forms::WindowHandle documentAround(const QWidget* widget) const;
    void documentChanged(forms::WindowHandle handle);
    void keyboardMoved(const QWidget* widget);
    void studioChanged(Qt::ApplicationState state);
    void cameBack();
    [[nodiscard]] bool ignoresUser() const;
    void activated(forms::WindowHandle handle);
    void send(forms::WindowHandle handle, std::uint32_t state);

    std::map<forms::WindowHandle, Window> windows_;
    std::map<host::window::ProcedureAddress, host::window::Procedure> procedures_;
    std::map<std::string, std::uint32_t, std::less<>> messages_;
    forms::WindowHandle lastHandle_ = 0x10000;
    host::window::ProcedureAddress lastProcedure_ = defaultProcedure;
    forms::WindowHandle document_ = 0;  ///< the area's current one
    forms::WindowHandle active_ = 0;
    bool quiet_ = false;
};

}  // namespace hx::qt

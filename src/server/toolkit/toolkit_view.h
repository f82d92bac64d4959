// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/qt/screen/qt_clipboard.h"
#include "adapters/qt/screen/qt_item_selection.h"
#include "adapters/qt/screen/qt_path_selection.h"
#include "adapters/windows/html_help.h"
#include "adapters/windows/native_windows.h"
#include "server/toolkit/hosted_screen.h"
#include "server/view.h"
#include "studio/project_variables.h"

namespace hx::server {

/// The editor as the studio shows it, in the window of a host.
class ToolkitView : public View {
  public:
    /// Needs a QApplication. The language is that of the add-in's texts.
    explicit ToolkitView(std::int32_t language);

    [[nodiscard]] forms::Screen& screen() override { return hosted_; }
    [[nodiscard]] host::WindowOperations& windows() override { return native_; }
    [[nodiscard]] host::WindowHandle nativeWindow(host::WindowHandle handle) const override {
        return hosted_.nativeWindow(handle);
    }
    [[nodiscard]] host::Clipboard& clipboard() override { return clipboard_; }
    [[nodiscard]] host::HelpViewer& help() override { return help_; }
    void setProject(std::function<std::string()> path) override { variables_.path = std::move(path); }
    [[nodiscard]] host::ItemSelection& items() override { return items_; }
    [[nodiscard]] host::PathSelection& folders() override { return folders_; }

  private:
    /// Those of the project that is open by then.
    struct Variables : qt::VariableSource {
        [[nodiscard]] qt::VariableList variables() const override;
        std::function<std::string()> path;
    };
    /// Its windows stand over native ones.
    struct Help : windows::HtmlHelp {
        explicit Help(ToolkitView& view) : view_(view) {}
        void showContext(host::WindowHandle owner, const std::string& file, std::int32_t context) override;
        ToolkitView& view_;
    };
    /// The choices know the toolkit's handles.
    struct Items : host::ItemSelection {
        explicit Items(ToolkitView& view) : view_(view) {}
        [[nodiscard]] std::string choose(host::WindowHandle owner, const std::string& current) override;
        ToolkitView& view_;
    };
    struct Folders : host::PathSelection {
        explicit Folders(ToolkitView& view) : view_(view) {}
        [[nodiscard]] std::string choose(host::WindowHandle owner, const std::string& current) override;
        ToolkitView& view_;
    };

    qt::Wording wording_;
    windows::NativeWindows native_;
    qt::QtWindows toolkitWindows_;
    qt::QtScreen screen_;
    HostedScreen hosted_;
    qt::QtClipboard clipboard_;
    Help help_{*this};
    Variables variables_;
    qt::QtItemSelection toolkitItems_;
    qt::QtPathSelection toolkitFolders_;
    Items items_{*this};
    Folders folders_{*this};
};

}  // namespace hx::server

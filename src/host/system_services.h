// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "automation/dispatch.h"
#include "forms/picture.h"
#include "forms/screen.h"

/// Services of the operating system and of the studio's libraries, one small interface each.
namespace hx::host {

using forms::WindowHandle;

/// The machine-wide registry (HKEY_LOCAL_MACHINE). Keys are paths with "\". A missing value gives the fallback; a
/// registry that cannot be read throws automation::Error.
class Registry {
  public:
    virtual ~Registry() = default;
    [[nodiscard]] virtual std::string readString(std::string_view key, std::string_view value,
                                                 std::string_view fallback = {}) const = 0;
    [[nodiscard]] virtual std::int32_t readNumber(std::string_view key, std::string_view value,
                                                  std::int32_t fallback) const = 0;
    virtual void writeString(std::string_view key, std::string_view value, std::string_view data) = 0;
    virtual void writeNumber(std::string_view key, std::string_view value, std::int32_t data) = 0;
};

namespace registry_keys {
inline constexpr std::string_view tarnwell = "SOFTWARE\\Tarnwell";
inline constexpr std::string_view helvix = "SOFTWARE\\Tarnwell\\Helvix\\4.0";
inline constexpr std::string_view projects = "SOFTWARE\\Tarnwell\\Helvix\\4.0\\Projects\\";  ///< + project name
}  // namespace registry_keys

/// A key of an INI file and its text.
struct IniText {
    std::string key, text;
};

/// Reads and writes single keys of INI files. Keys and sections compare ignoring case.
class IniFile {
  public:
    virtual ~IniFile() = default;
    /// The text of a key, or the fallback when key, section or file is missing or unreadable.
    [[nodiscard]] virtual std::string read(std::string_view section, std::string_view key, std::string_view fallback,
                                           const std::string& path) const = 0;
    /// Creates file and section as needed, in one step for all; every other line of the file stays. Throws
    /// automation::Error when the file cannot be written; it is then as it was. What cannot stand in an INI file is
    /// left out, and thrown when the others are written.
    virtual void writeAll(std::string_view section, std::span<const IniText> texts, const std::string& path) = 0;
    void write(std::string_view section, std::string_view key, std::string_view text, const std::string& path) {
        writeAll(section, std::to_array<IniText>({{std::string(key), std::string(text)}}), path);
    }
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void clear() = 0;
    virtual void setPicture(const forms::Picture& picture) = 0;
    [[nodiscard]] virtual forms::Picture picture() const = 0;  ///< empty when none is there
};

/// Shows compiled HTML help. Failures are shown by the viewer itself.
class HelpViewer {
  public:
    virtual ~HelpViewer() = default;
    virtual void showContext(WindowHandle owner, const std::string& file, std::int32_t context) = 0;
    virtual void closeAll() = 0;
};

/// Messages and style bits of the window system that the editor uses.
namespace window {
inline constexpr std::int32_t styleIndex = -16;  ///< GWL_STYLE
inline constexpr std::uint32_t popup = 0x80000000, border = 0x00800000, sysMenu = 0x00080000;
inline constexpr std::uint32_t activateMessage = 6;  ///< WM_ACTIVATE
inline constexpr std::uint32_t inactive = 0, active = 1, clickActive = 2;
struct Rect {
    std::int32_t left = 0, top = 0, right = 0, bottom = 0;  ///< pixels of the screen
};
/// handle, message, wParam, lParam -> result.
using Procedure = std::function<std::int32_t(WindowHandle, std::uint32_t, std::uint32_t, std::int32_t)>;
/// Names an installed procedure; 0 is none.
using ProcedureAddress = std::int32_t;
}  // namespace window

/// The window manager. A handle that resolves to no window throws automation::Error.
class WindowOperations {
  public:
    virtual ~WindowOperations() = default;
    [[nodiscard]] virtual std::uint32_t style(WindowHandle handle) const = 0;
    virtual void setStyle(WindowHandle handle, std::uint32_t style) = 0;
    /// Places a window into another; 0 or -1 takes it out to the top level, hidden.
    virtual void setParent(WindowHandle handle, WindowHandle parent) = 0;
    /// A number that stands for this message name for the life of the host.
    [[nodiscard]] virtual std::uint32_t registerMessage(std::string_view name) = 0;
    /// The procedure that a window's messages go to; installing another returns the address to call and to put back.
    [[nodiscard]] virtual window::ProcedureAddress procedure(WindowHandle handle) const = 0;
    [[nodiscard]] virtual window::ProcedureAddress install(WindowHandle handle, window::Procedure procedure) = 0;
    virtual void restore(WindowHandle handle, window::ProcedureAddress address) = 0;
    virtual std::int32_t call(window::ProcedureAddress address, WindowHandle handle, std::uint32_t message,
                              std::uint32_t wParam, std::int32_t lParam) = 0;
    [[nodiscard]] virtual window::Rect rect(WindowHandle handle) const = 0;
    /// The studio's object around an embedded editor window: a class "Window" (property Visible) or "MDIEdit" (method
    /// Show). Empty when the window is not embedded.
    [[nodiscard]] virtual automation::ObjectRef embeddingObject(WindowHandle handle) const = 0;
};

/// Creates components by program identifier ("HXProjectReport.Connect"). Throws automation::Error (number and
/// description of the system) when there is none or it cannot be loaded.
class Components {
  public:
    virtual ~Components() = default;
    [[nodiscard]] virtual automation::ObjectRef create(std::string_view programId) = 0;
};

/// The studio's choice of one variable: returns the chosen name, or an empty text when cancelled.
class ItemSelection {
  public:
    virtual ~ItemSelection() = default;
    [[nodiscard]] virtual std::string choose(WindowHandle owner, const std::string& current) = 0;
};

/// The studio's choice of a folder.
class PathSelection {
  public:
    virtual ~PathSelection() = default;
    /// The chosen folder, or `current` unchanged when cancelled.
    [[nodiscard]] virtual std::string choose(WindowHandle owner, const std::string& current) = 0;
};

}  // namespace hx::host

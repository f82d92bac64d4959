// SPDX-License-Identifier: MIT
#include "server/session.h"

#include <array>
#include <windows.h>

#include "hosting/windows_text.h"

namespace hx::server {

namespace {

constexpr sqlite::LockWait::Milliseconds longestLockWait{500};  // a window that waits does nothing else

automation::NumberFormat userFormat() {
    std::array<wchar_t, 8> point{};
    const int size =
        GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, point.data(), static_cast<int>(point.size()));
    return {size > 1 ? hosting::toUtf8(point.data()) : "."};
}

}  // namespace

Session::Session(std::unique_ptr<View> view, host::Components& components, const std::string& libraryFile)
    : view_(std::move(view)),
      screen_(view_->screen(), lent_),
      registry_(lent_, systemRegistry_),
      iniFile_(lent_, iniTextFile_),
      items_(lent_, view_->items()),
      folders_(lent_, view_->folders()),
      provider_(
          [this] { return sqlite::OpenOptions{.language = view_->screen().language(), .lockWait = longestLockWait}; }),
      services_{.screen = screen_,
                .database = provider_,
                .registry = registry_,
                .iniFile = iniFile_,
                .clipboard = view_->clipboard(),
                .help = view_->help(),
                .windows = view_->windows(),
                .components = components,
                .items = items_,
                .folders = folders_,
                .paths = host::PathStyle('\\'),
                .numberFormat = userFormat(),
                .moduleFile = libraryFile,
                .libraryName = builtLibrary} {}

void Session::meet(com::Explorer* explorer) {
    lent_ = {};
    if (explorer == nullptr) return;
    try {
        lent_ = hosting::LentServices::of(explorer->services());
        lent_.windowOf = [this](host::WindowHandle handle) { return view_->nativeWindow(handle); };
    } catch (...) {  // the own services serve
        const automation::Error error = automation::caughtError();
        view_->screen().messageBox(error.message(view_->screen().language()), forms::message::critical,
                                   "Connect: Initialize");
    }
}

}  // namespace hx::server

// SPDX-License-Identifier: MIT
#include "user.h"

#include <array>
#include <utility>

#include "automation/convert.h"
#include "automation/member_rows.h"
#include "hosting/windows_text.h"

namespace hx::server {

using automation::Variant;

void User::setHost(const automation::ObjectRef& host) {
    user_.script = {};
    if (!host) return;
    for (const char* form : {"FRecipe", "FSubRecipe", "FMultiSelectItems", "FConfigEditor"}) {
        user_.script.onModal[form] = [host](forms::Form& shown) {
            host->get("Dialog", std::array{Variant(shown.share())});
        };
    }
    user_.script.onMessage = [host](const forms::ShownMessage& box) {
        const Variant answer = host->get("Message", std::array<Variant, 3>{box.text, box.title, box.style});
        return static_cast<forms::message::Answer>(automation::toInt32(answer));
    };
    user_.script.onPopUp = [host](const forms::Band& band) {
        return automation::toText(host->get("PopUp", std::array{Variant(band.name())}));
    };
}

User::~User() {
    if (hostWindow_ != nullptr) DestroyWindow(hostWindow_);
    user_.script = {};
}

std::int32_t User::hostWindow() {
    if (hostWindow_ == nullptr) hostWindow_ = makeBareWindow();
    return windows::toHandle(hostWindow_);
}

std::string User::embedded() const {
    const HWND inside = GetWindow(hostWindow_, GW_CHILD);
    wchar_t caption[200] = L"";
    if (inside != nullptr) GetWindowTextW(inside, caption, 200);
    return hosting::toUtf8(caption);
}

std::string User::messages() {
    std::string text;
    for (const auto& box : std::exchange(user_.record.messages, {})) text += box.title + "|" + box.text + "\n";
    return text;
}

std::string User::help() {
    std::string text;
    for (const auto& call : std::exchange(user_.record.help, {}))
        text += std::to_string(call.context) + " " + call.file + "\n";
    return text;
}

const automation::MemberTable& User::members() const {
    static constexpr automation::Member rows[] = {
        automation::method<&User::setHost>("Ask", "Whom the user asks"),
        automation::method<&User::hostWindow>("HostWindow", "The studio's window"),
        automation::method<&User::embedded>("Embedded", "The window in it"),
        automation::method<&User::messages>("Messages", "The boxes that were shown"),
        automation::method<&User::help>("Help", "The help that was asked for"),
    };
    static constexpr automation::MemberTable table{"User", rows};
    return table;
}

}  // namespace hx::server

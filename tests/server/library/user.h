// SPDX-License-Identifier: MIT
#pragma once

#include "automation/dispatch.h"
#include "scripted_view.h"

namespace hx::server {

/// What a host's test says of the user, as an object of the library under test: HXTest.User.
class User : public automation::Dispatch {
  public:
    explicit User(ScriptedUser& user) : user_(user) {}
    ~User() override;

    /// Whom the user asks: an object with the methods Dialog(form), Message(text, title, style) -> answer,
    /// PopUp(band) -> tool. Null: nobody.
    void setHost(const automation::ObjectRef& host);
    /// A window of the studio's that receives editor windows; it ends with the user.
    [[nodiscard]] std::int32_t hostWindow();
    /// The caption of the window that lies in it; empty when none does.
    [[nodiscard]] std::string embedded() const;
    /// The message boxes since the last call, "title|text" each, one a line.
    [[nodiscard]] std::string messages();
    /// The help that was asked for since the last call: "context file", one a line.
    [[nodiscard]] std::string help();

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    ScriptedUser& user_;
    HWND hostWindow_ = nullptr;
};

}  // namespace hx::server

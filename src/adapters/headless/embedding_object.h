// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/headless/window_operations.h"

namespace hx::headless {

/// The studio's object around an embedded window. It may outlive the window and then does nothing.
class Embedding : public automation::Dispatch {
  public:
    Embedding(WindowOperations& windows, forms::WindowHandle handle) : windows_(windows), handle_(handle) {}

  protected:
    [[nodiscard]] bool visible() const { return windows_.exists(handle_) && windows_.isShown(handle_); }
    void show() {
        if (windows_.exists(handle_)) windows_.show(handle_);
    }
    void hide() {
        if (windows_.exists(handle_)) windows_.hide(handle_);
    }

  private:
    WindowOperations& windows_;
    forms::WindowHandle handle_;
};

/// Class "Window": property Visible.
class EmbeddingWindow : public Embedding {
  public:
    using Embedding::Embedding;
    [[nodiscard]] bool Visible() const { return visible(); }
    void setVisible(bool visible) { visible ? show() : hide(); }
    [[nodiscard]] const automation::MemberTable& members() const override;
};

/// Class "MDIEdit": method Show.
class EmbeddingEdit : public Embedding {
  public:
    using Embedding::Embedding;
    void Show() { show(); }
    [[nodiscard]] const automation::MemberTable& members() const override;
};

/// Any other class: no members.
class EmbeddingOther : public automation::Dispatch {
  public:
    [[nodiscard]] const automation::MemberTable& members() const override;
};

}  // namespace hx::headless

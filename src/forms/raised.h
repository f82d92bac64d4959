#pragma once

namespace hx::forms {

/// Sets a flag while it lives: something is going on that must not begin again inside itself.
class Raised {
  public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

  private:
    bool& flag_;
};

}  // namespace hx::forms

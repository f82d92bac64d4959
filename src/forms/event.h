// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace hx::forms {

/// Ends a subscription to an Event when it is destroyed or reset. May outlive the event.
class Subscription {
  public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<bool> alive) : alive_(std::move(alive)) {}
    Subscription(Subscription&&) noexcept = default;
    Subscription& operator=(Subscription&& other) noexcept {
        reset();
        alive_ = std::move(other.alive_);
        return *this;
    }
    ~Subscription() { reset(); }
    void reset() noexcept {
        if (alive_) *alive_ = false;
        alive_.reset();
    }

  private:
    std::shared_ptr<bool> alive_;
};

/// What a control reports: handlers run in the order in which they subscribed. Handlers may subscribe, unsubscribe
/// and raise the event again while it is raised.
template <class... A>
class Event {
  public:
    using Handler = std::function<void(A...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    /// A handler may destroy the event: the handlers after it do not run.
    ~Event() {
        for (const auto& entry : handlers_) *entry->alive = false;
    }

    [[nodiscard]] Subscription subscribe(Handler handler) {
        auto alive = std::make_shared<bool>(true);
        handlers_.push_back(std::make_shared<Entry>(Entry{alive, std::move(handler)}));
        return Subscription(std::move(alive));
    }
    /// A handler for as long as the event exists: for an owner that outlives its control.
    void connect(Handler handler) {
        handlers_.push_back(std::make_shared<Entry>(Entry{std::make_shared<bool>(true), std::move(handler)}));
    }
    void raise(A... args) {
        std::erase_if(handlers_, [](const auto& entry) { return !*entry->alive; });
        const auto current = handlers_;
        for (const auto& entry : current) {
            if (*entry->alive) entry->handler(args...);
        }
    }
    [[nodiscard]] bool hasHandlers() const noexcept {
        for (const auto& entry : handlers_) {
            if (*entry->alive) return true;
        }
        return false;
    }

  private:
    struct Entry {
        std::shared_ptr<bool> alive;
        Handler handler;
    };
    std::vector<std::shared_ptr<Entry>> handlers_;
};

}  // namespace hx::forms

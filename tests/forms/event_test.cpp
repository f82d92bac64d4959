// SPDX-License-Identifier: MIT
#include "forms/event.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace hx::forms {
namespace {

TEST(Event, RunsHandlersInTheOrderOfSubscription) {
    Event<int> event;
    std::string seen;
    const auto first = event.subscribe([&](int n) { seen += "a" + std::to_string(n); });
    event.connect([&](int n) { seen += "b" + std::to_string(n); });
    const auto third = event.subscribe([&](int n) { seen += "c" + std::to_string(n); });
    event.raise(1);
    EXPECT_EQ(seen, "a1b1c1");
}

TEST(Event, AnEndedSubscriptionHearsNothing) {
    Event<> event;
    int heard = 0;
    {
        const auto subscription = event.subscribe([&] { ++heard; });
        event.raise();
        EXPECT_TRUE(event.hasHandlers());
    }
    event.raise();
    EXPECT_EQ(heard, 1);
    EXPECT_FALSE(event.hasHandlers());
}

TEST(Event, AHandlerMayEndTheSubscriptionOfALaterOne) {
    Event<> event;
    Subscription later;
    int heard = 0;
    const auto first = event.subscribe([&] { later.reset(); });
    later = event.subscribe([&] { ++heard; });
    event.raise();
    EXPECT_EQ(heard, 0);
}

TEST(Event, AHandlerMayEndItsOwnSubscription) {
    Event<> event;
    int heard = 0;
    Subscription own;
    own = event.subscribe([&] {
        own.reset();
        ++heard;
    });
    event.raise();
    event.raise();
    EXPECT_EQ(heard, 1);
}

TEST(Event, AHandlerThatSubscribesIsHeardFromTheNextTimeOn) {
    Event<> event;
    int heard = 0;
    std::vector<Subscription> more;
    const auto first = event.subscribe([&] { more.push_back(event.subscribe([&] { ++heard; })); });
    event.raise();
    EXPECT_EQ(heard, 0);
    event.raise();
    EXPECT_EQ(heard, 1);
}

TEST(Event, AHandlerMayRaiseItAgain) {
    Event<int> event;
    std::string seen;
    const auto first = event.subscribe([&](int n) {
        seen += std::to_string(n);
        if (n < 3) event.raise(n + 1);
    });
    event.raise(1);
    EXPECT_EQ(seen, "123");
}

TEST(Event, AHandlerMayDestroyItAndTheOthersHearNothing) {
    std::optional<Event<>> event(std::in_place);
    int heard = 0;
    event->connect([&] { event.reset(); });
    event->connect([&] { ++heard; });
    event->raise();
    EXPECT_EQ(heard, 0);
}

TEST(Event, ASubscriptionMayOutliveIt) {
    Subscription subscription;
    {
        Event<> event;
        subscription = event.subscribe([] {});
    }
    subscription.reset();
}

TEST(Event, HandsReferencesOnToItsHandlers) {
    Event<bool&> event;
    event.connect([](bool& cancel) { cancel = true; });
    bool cancel = false;
    event.raise(cancel);
    EXPECT_TRUE(cancel);
}

}  // namespace
}  // namespace hx::forms

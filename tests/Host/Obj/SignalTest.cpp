#include "Obj/Signal.h"

#include "HostTesting.h"

#include <boost/signals2/connection.hpp>
#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

namespace {

using testing::HasSubstr;

TEST(Signal, TellsTheOthersWhenAListenerThrows)
{
    Obj::Signal<void(int)> signal;
    int sum = 0;
    signal.connect([](int) { throw std::runtime_error("I am not well"); });
    signal.connect([](int) { throw 42; });
    signal.connect([&sum](int number) { sum += number; });
    const vxtest::Reports reports;
    signal(5);
    EXPECT_EQ(sum, 5);
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_THAT(reports.text(), HasSubstr("A listener failed: I am not well"));
    EXPECT_THAT(reports.text(), HasSubstr("an exception of an unknown kind"));
}

TEST(Signal, DoesNotTellAListenerThatAnotherOneDisconnected)
{
    Obj::Signal<void()> signal;
    int calls = 0;
    boost::signals2::scoped_connection second;
    signal.connect([&second] { second.disconnect(); });
    second = signal.connect([&calls] { ++calls; });
    signal();
    signal();
    EXPECT_EQ(calls, 0);
}

TEST(Signal, PassesOverAListenerWhoseOwnerWasDestroyed)
{
    Obj::Signal<void()> signal;
    int calls = 0;
    auto owner = std::make_shared<int>(0);
    signal.connect(Obj::Signal<void()>::slot_type([&calls] { ++calls; }).track_foreign(owner));
    const vxtest::Reports reports;
    signal();
    owner.reset();
    signal();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(reports.text(), "");
}

} // namespace

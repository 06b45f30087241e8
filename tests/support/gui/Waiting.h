#pragma once

#include <QtTest/QtTestGui>

namespace vxtest {

/// The longest time to wait, in milliseconds. Only a failing test takes this long, even on a busy machine.
constexpr int patience = 120000;

/// Runs the event loop until the condition is true or the time is over. Returns whether the condition is true.
template <class Condition>
bool waitFor(const Condition& condition)
{
    return QTest::qWaitFor(condition, patience);
}

/// Runs the event loop until the window has the keyboard focus. Returns whether it has.
inline bool waitUntilActive(QWidget* window)
{
    return QTest::qWaitForWindowActive(window, patience);
}

} // namespace vxtest

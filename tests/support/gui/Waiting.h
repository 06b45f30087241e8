#pragma once

#include <QtTest/QtTestGui>

namespace vxtest {

/// The longest time to wait, in milliseconds. Only a test that fails takes that long, however busy the machine is.
constexpr int patience = 120000;

/// Runs the event loop until the condition holds; returns whether it does in the end.
template <class Condition>
bool waitFor(const Condition& condition)
{
    return QTest::qWaitFor(condition, patience);
}

/// Runs the event loop until the window has the keyboard.
inline bool waitUntilActive(QWidget* window)
{
    return QTest::qWaitForWindowActive(window, patience);
}

} // namespace vxtest

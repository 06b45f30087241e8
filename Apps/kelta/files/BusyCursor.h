#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace desktop {

/// While one lives, the pointer shows that the program is at work.
class BusyCursor
{
public:
    BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace desktop

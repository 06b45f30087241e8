#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace desktop {

/// Shows the wait cursor during its lifetime.
class BusyCursor
{
public:
    BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace desktop

#include "Obj/Signal.h"

#include "Kelta/Exceptions.h"

#include <QCoreApplication>

namespace Obj {

void reportListenerFailure() noexcept
{
    Kelta::reportException(QCoreApplication::translate("Obj", "A listener failed"));
}

} // namespace Obj

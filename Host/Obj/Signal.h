#pragma once

#include "Obj/ObjExport.h"
#include "Obj/Removal.h"

#include <boost/signals2/signal.hpp>

namespace Obj {

/// Reports the exception of a listener, while it is being handled, to the message log.
OBJ_EXPORT void reportListenerFailure() noexcept;

/// Calls listeners one after another. Exceptions are reported to the message log, and the next listener is called: a
/// listener that fails does not undo the change. Objects that a listener removes stay in memory until all have been
/// called.
struct ReportingCombiner
{
    using result_type = void;

    template <typename Iterator>
    void operator()(Iterator listener, Iterator end) const
    {
        const RemovalGuard guard;
        for (; listener != end; ++listener) {
            try {
                *listener;
            } catch (const boost::signals2::expired_slot&) {
                // Its owner was destroyed while other listeners were called.
                continue;
            } catch (...) {
                reportListenerFailure();
            }
        }
    }
};

/// A signal of the host. Listeners connect as to any signal of Boost.
template <typename Signature>
using Signal = boost::signals2::signal<Signature, ReportingCombiner>;

} // namespace Obj

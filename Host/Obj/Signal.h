#pragma once

#include "Obj/ObjExport.h"

#include <boost/signals2/signal.hpp>

namespace Obj {

/// Reports the exception that is being handled to the message log; `where` says what it interrupted.
OBJ_EXPORT void reportException(const char* where);

/// Calls listeners one after the other. What one throws is reported to the message log, and the next one is called: what
/// happens to a project is not undone because somebody who watches it fails.
struct ReportingCombiner
{
    using result_type = void;

    template <typename Iterator>
    void operator()(Iterator listener, Iterator end) const
    {
        for (; listener != end; ++listener) {
            try {
                *listener;
            } catch (const boost::signals2::expired_slot&) {
                // Its owner went while the others were being called.
                continue;
            } catch (...) {
                reportException("a listener");
            }
        }
    }
};

/// What the host tells others; connecting is as with any signal of Boost.
template <typename Signature>
using Signal = boost::signals2::signal<Signature, ReportingCombiner>;

} // namespace Obj

#include "Obj/Removal.h"

#include "Kelta/RootClass.h"

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

namespace Obj {

namespace {

using Things = std::vector<std::unique_ptr<Kelta::RootClass>>;

int guardCount = 0;

Things& doomedThings()
{
    static Things things;
    return things;
}

} // namespace

RemovalGuard::RemovalGuard() noexcept
{
    ++guardCount;
}

RemovalGuard::~RemovalGuard()
{
    // Destructors may remove further objects, which wait for the next round because the guard still counts.
    while (guardCount == 1 && !doomedThings().empty())
        std::exchange(doomedThings(), {});
    --guardCount;
}

bool RemovalGuard::isDoomed(const Kelta::RootClass& thing)
{
    const Things& things = doomedThings();
    return std::any_of(things.begin(), things.end(), [&thing](const auto& doomed) { return doomed.get() == &thing; });
}

void GuardedDelete::operator()(Kelta::RootClass* thing) const noexcept
{
    std::unique_ptr<Kelta::RootClass> owned(thing);
    if (guardCount == 0)
        return;
    try {
        doomedThings().push_back(std::move(owned));
    } catch (const std::bad_alloc&) {
        // Destroyed at once, because memory does not suffice to store it.
        return;
    }
}

} // namespace Obj

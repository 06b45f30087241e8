#include "fit/SolverLibrary.h"

#include <dlfcn.h>
#include <string>

namespace vxConstitutive {

namespace {

/// Returns the folder of the library that has this function, with a slash.
std::string ownFolder()
{
    static const char place = 0;
    Dl_info info{};
    const std::string path = dladdr(&place, &info) != 0 ? info.dli_fname : "";
    return path.substr(0, path.rfind('/') + 1);
}

[[noreturn]] void reportMissing()
{
    const char* const message = dlerror();
    throw SolverMissing(message != nullptr ? message : solverLibrary);
}

SolveLeastSquares* load()
{
    // A name without a folder would be looked up on the path of the caller of dlopen, which is a sanitizer's in its builds.
    void* const library = dlopen((ownFolder() + solverLibrary).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
        reportMissing();
    void* const entry = dlsym(library, solverEntry);
    if (entry == nullptr)
        reportMissing();
    return reinterpret_cast<SolveLeastSquares*>(entry);
}

} // namespace

SolveLeastSquares& loadedSolver()
{
    static SolveLeastSquares* const solver = load();
    return *solver;
}

} // namespace vxConstitutive

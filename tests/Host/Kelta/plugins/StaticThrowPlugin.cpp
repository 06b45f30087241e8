#include <stdexcept>

namespace {

struct Licence
{
    Licence() { throw std::runtime_error("the licence of the year has run out"); }
};

const Licence licence; // NOLINT(cert-err58-cpp): the loader must survive this

} // namespace

extern "C" __attribute__((visibility("default"))) void enter() {}

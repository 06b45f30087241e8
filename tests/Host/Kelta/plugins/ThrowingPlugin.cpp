#include <stdexcept>

extern "C" {

__attribute__((visibility("default"))) void throwError()
{
    throw std::runtime_error("the licence of the week has run out");
}

__attribute__((visibility("default"))) void throwNumber()
{
    throw 42;
}

__attribute__((visibility("default"))) void throwNothingToRead()
{
    throw std::runtime_error("");
}
}

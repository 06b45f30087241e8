#pragma once

#include <functional>

namespace vxtest {

// A program that links this file has its own versions of the operating system's functions that change files, in front of
// the C library's. They count the calls, those of all its libraries included, and can kill the program in one of them:
//
//     VX_FILE_CALLS=/tmp/calls         writes the name of each call, and of its file, to this file, a line each
//     VX_DIE_IN_FILE_CALL=12           kills the program in the twelfth call, before it has an effect
//
// Only calls about regular files and folders count. A write is two calls: one for each half of its data.

/// While it lives, something is done before each call by which this program reads from a regular file.
class BeforeReading
{
public:
    explicit BeforeReading(std::function<void()> action);
    BeforeReading(const BeforeReading&) = delete;
    BeforeReading& operator=(const BeforeReading&) = delete;
    ~BeforeReading();

private:
    std::function<void()> m_action;
};

} // namespace vxtest

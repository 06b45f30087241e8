#pragma once

#include <functional>

namespace vxtest {

// In a program that links this file, the functions that change files replace the functions of the C library. They count
// the calls of the program and all its libraries, and can kill the program in one of the calls:
//
//     VX_FILE_CALLS=/tmp/calls         appends a line with the name of each call and of its file to this file
//     VX_DIE_IN_FILE_CALL=12           kills the program in the twelfth call, before the call has an effect
//
// Calls for an open file count only if it is a regular file or a folder. A write is two calls: one for each half of its
// data.

/// Runs an action before each call that reads from a regular file, until the destructor.
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

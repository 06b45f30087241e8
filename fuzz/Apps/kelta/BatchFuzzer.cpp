#include "Application.h"
#include "Fuzzing.h"

#include "kelta/Batch.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    vxfuzz::startApplication();
    return 0;
}

/// Any list of commands ends with success or with a reason. No command waits for a user.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string list = vxfuzz::withoutSlashes(vxfuzz::textOf(data, size));
    const int status = desktop::Batch::run(QString::fromStdString(list), QStringLiteral("list"));
    if (status != 0 && status != 1)
        std::abort();
    vxfuzz::resetApplication();
    return 0;
}

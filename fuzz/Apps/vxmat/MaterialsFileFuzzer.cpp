#include "Fuzzing.h"

#include "documents/Diff.h"
#include "materials/Check.h"
#include "materials/Query.h"
#include "units/ChosenUnits.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace {

const std::string analysis = "analysis.json";
const std::string materials = "materials.json";

void attempt(const std::function<commandline::Answer()>& subcommand)
try {
    subcommand();
} catch (const commandline::Failure&) {
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    vxfuzz::enterOwnFolder();
    return 0;
}

/// The input is an analysis document and the file of its materials, separated by a form feed. The subcommands that read
/// both succeed or throw a Failure.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = vxfuzz::textOf(data, size);
    const std::size_t separator = text.find('\f');
    const std::string_view first = text.substr(0, separator);
    const std::string_view second = separator < text.size() ? text.substr(separator + 1) : first;
    vxfuzz::writeFile(QString::fromStdString(analysis), first);
    vxfuzz::writeFile(QString::fromStdString(materials), second);
    constexpr auto strictness = commandline::Strictness::Doubts;
    const commandline::ChosenUnits units("mm-t-s");
    for (const auto form : {commandline::Form::Text, commandline::Form::Json})
        attempt([&] { return commandline::checkFile(analysis, materials, strictness, form, units); });
    attempt([] { return commandline::checkFile(materials, {}, strictness, commandline::Form::Text, {}); });
    attempt([] { return commandline::queryFile(analysis, materials, 1, commandline::Form::Text); });
    attempt([&units] { return commandline::diffFiles(analysis, materials, commandline::Form::Text, units); });
    return 0;
}

#include "Fuzzing.h"

#include "program/CommandLine.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr const char* projectName = "p.vxmat";
constexpr const char* documentName = "m.json";

std::vector<std::string> wordsOf(std::string_view text)
{
    std::vector<std::string> words{"vxmat"};
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find('\n'));
        words.push_back(vxfuzz::withoutSlashes(word.substr(0, word.find('\0'))));
        text.remove_prefix(word.size() < text.size() ? word.size() + 1 : word.size());
    }
    return words;
}

int run(std::vector<std::string> words)
{
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    const int count = static_cast<int>(pointers.size());
    pointers.push_back(nullptr);
    return commandline::run(count, pointers.data());
}

std::string contentOf(const char* name)
{
    std::ifstream file(name);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The content of the files that each command line finds.
struct Files
{
    std::string project;
    std::string document;
};
Files files;

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    vxfuzz::enterOwnFolder();
    // A command line may ask for standard input, which must end.
    if (std::freopen("/dev/null", "r", stdin) == nullptr || std::freopen("/dev/null", "w", stdout) == nullptr)
        std::abort();
    run({"vxmat", "new", "Air", "Plastic Example 1=Frame", "-o", projectName});
    run({"vxmat", "export", "Water", "Creep Example", "-o", documentName});
    files = {contentOf(projectName), contentOf(documentName)};
    return 0;
}

/// Each line of the input is a word of a command line of vxmat, which ends with one of the documented statuses. There
/// is a project and a document in the current folder.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vxfuzz::writeFile(QLatin1String(projectName), files.project);
    vxfuzz::writeFile(QLatin1String(documentName), files.document);
    const int status = run(wordsOf(vxfuzz::textOf(data, size)));
    if (status < 0 || status > 2)
        std::abort();
    vxfuzz::emptyOwnFolder();
    return 0;
}

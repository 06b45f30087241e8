#include "VxmatTesting.h"

#include <gtest/gtest.h>

#include <string>
#include <sys/resource.h>
#include <vector>

namespace {

using vxtest::vxmat;

/// Returns the most memory that a program of this test has taken so far, in kB.
long mostMemory()
{
    rusage usage = {};
    EXPECT_EQ(getrusage(RUSAGE_CHILDREN, &usage), 0);
    return usage.ru_maxrss;
}

/// Runs the program on a flat document and on a deep one of the same length. The test fails if it takes more memory for
/// the deep one. `succeeds` runs the program on the text of a document, and returns whether it did its work.
template <typename Run>
void expectTheSameMemoryForDeepAndFlat(const Run& succeeds)
{
    constexpr int depth = 900;
    constexpr int repetitions = 1000;
    std::string flat;
    std::string deep;
    for (int i = 0; i < repetitions; ++i) {
        for (int j = 0; j < depth; ++j)
            flat += "[],";
        deep += std::string(depth, '[') + std::string(depth, ']') + ",";
    }
    const auto document = [](const std::string& values) {
        return R"({"proj_type": 2, "material": [], "unknown": [)" + values + "0]}";
    };
    ASSERT_TRUE(succeeds(document(flat)));
    const long forFlat = mostMemory();
    ASSERT_TRUE(succeeds(document(deep)));
    EXPECT_LE(mostMemory(), forFlat + forFlat / 10);
}

TEST(Check, TakesNoMoreMemoryForADeepDocumentThanForAFlatOne)
{
    expectTheSameMemoryForDeepAndFlat([](const std::string& document) {
        return vxmat({"check", "-"}, document).status == 0;
    });
}

TEST(Import, TakesNoMoreMemoryForADeepDocumentThanForAFlatOne)
{
    const vxtest::Folder folder;
    expectTheSameMemoryForDeepAndFlat([&folder](const std::string& document) {
        const int status =
            vxmat({"import", folder.file("a.json", document), "-o", folder.path("a.vxmat"), "--force"}).status;
        constexpr int withDoubt = 1; // the unknown member
        return status == withDoubt && folder.names() == std::vector<std::string>{"a.json", "a.vxmat"};
    });
}

} // namespace

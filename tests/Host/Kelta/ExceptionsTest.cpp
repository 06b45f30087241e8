#include "Kelta/Exceptions.h"

#include "HostTesting.h"

#include <gmock/gmock.h>

#include <new>
#include <stdexcept>

namespace {

template <typename Thrown>
std::string textOf(const Thrown& thrown)
{
    try {
        throw thrown;
    } catch (...) {
        return Kelta::currentExceptionText().toStdString();
    }
}

TEST(Exceptions, HaveATextForEveryThrownType)
{
    EXPECT_EQ(textOf(std::runtime_error("the disk is 100 %1 full")), "the disk is 100 %1 full");
    EXPECT_EQ(textOf(std::runtime_error("结构钢")), "结构钢");
    EXPECT_EQ(textOf(std::runtime_error("")), "an exception without a text");
    EXPECT_EQ(textOf(42), "an exception of an unknown kind");
}

TEST(Exceptions, AreReportedAfterTheNameOfTheFailure)
{
    const vxtest::Reports reports;
    EXPECT_FALSE(
        Kelta::guarded(QStringLiteral("Step %2 failed"), [] { throw std::runtime_error("no wire of 10 %1"); }));
    EXPECT_FALSE(Kelta::guarded(QStringLiteral("Step 3 failed"), [] { throw 42; }));
    EXPECT_EQ(reports.errors(), 2);
    EXPECT_EQ(reports.text(), "Step %2 failed: no wire of 10 %1\nStep 3 failed: an exception of an unknown kind\n");
}

TEST(Exceptions, AreNotReportedWhereNothingIsThrown)
{
    int runs = 0;
    const vxtest::Reports reports;
    EXPECT_TRUE(Kelta::guarded(QStringLiteral("Step 1 failed"), [&runs] { ++runs; }));
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(reports.text(), "");
}

} // namespace

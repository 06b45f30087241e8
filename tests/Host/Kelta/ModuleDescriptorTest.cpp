#include "Kelta/ModuleDescriptor.h"

#include "ModuleFolder.h"

#include <QDir>
#include <gmock/gmock.h>

#include <ostream>
#include <stdexcept>
#include <sys/stat.h>

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

class ModuleDescriptor : public testing::Test
{
protected:
    /// Returns the descriptor of the module "Bolts".
    Kelta::ModuleDescriptor read(const QByteArray& text) const
    {
        folder.addDescriptor(QStringLiteral("Bolts"), text);
        return Kelta::readModuleDescriptor(file());
    }

    QString file() const { return folder.path(QStringLiteral("Bolts.module.json")); }

    /// Returns the reason if the file cannot be read; empty if it can.
    std::string failure() const
    {
        try {
            Kelta::readModuleDescriptor(file());
            return {};
        } catch (const std::runtime_error& error) {
            return error.what();
        }
    }

    std::string failureOf(const QByteArray& text) const
    {
        folder.addDescriptor(QStringLiteral("Bolts"), text);
        return failure();
    }

    vxtest::ModuleFolder folder;
};

TEST_F(ModuleDescriptor, SaysWhatAModuleIs)
{
    const Kelta::ModuleDescriptor descriptor =
        read(R"({"module": "Bolts", "version": "2.10.3", "host": "0.1", "library": "libbolts-2.so",
                 "entries": ["enter", "enterGui"], "needs": {"Screws": "1.2", "Nuts": "3"}})");
    EXPECT_EQ(descriptor.file, file());
    EXPECT_EQ(descriptor.module, QStringLiteral("Bolts"));
    EXPECT_EQ(descriptor.version, QVersionNumber(2, 10, 3));
    EXPECT_EQ(descriptor.host, QVersionNumber(0, 1));
    EXPECT_EQ(descriptor.library, folder.path(QStringLiteral("libbolts-2.so")));
    EXPECT_EQ(descriptor.entries, QStringList({"enter", "enterGui"}));
    EXPECT_EQ(descriptor.needs.at(QStringLiteral("Screws")), QVersionNumber(1, 2));
    EXPECT_EQ(descriptor.needs.at(QStringLiteral("Nuts")), QVersionNumber(3));
}

TEST_F(ModuleDescriptor, HasDefaultsForWhatMayBeLeftOut)
{
    const Kelta::ModuleDescriptor descriptor = read(R"({"module": "Bolts", "version": "1", "entries": ["enter"]})");
    EXPECT_EQ(descriptor.library, folder.path(QStringLiteral("libBolts.so")));
    EXPECT_TRUE(descriptor.host.isNull());
    EXPECT_TRUE(descriptor.needs.empty());
}

struct Broken
{
    const char* name;
    const char* text;
    const char* reason;
};

void PrintTo(const Broken& broken, std::ostream* out)
{
    *out << broken.name;
}

class BrokenModuleDescriptor : public ModuleDescriptor, public testing::WithParamInterface<Broken>
{};

TEST_P(BrokenModuleDescriptor, IsRefusedWithTheReason)
{
    EXPECT_THAT(failureOf(GetParam().text), HasSubstr(GetParam().reason));
}

constexpr Broken brokenDescriptors[] = {
    {"Empty", "", "is not JSON"},
    {"CutOff", R"({"module": "Bolts", )", "is not JSON"},
    {"Array", R"(["Bolts"])", "is not a JSON object"},
    {"WithoutModule", R"({"version": "1", "entries": ["a"]})", "\"module\" is missing"},
    {"WithoutVersion", R"({"module": "Bolts", "entries": ["a"]})", "\"version\" is missing"},
    {"WithoutEntries", R"({"module": "Bolts", "version": "1"})", "\"entries\""},
    {"NoEntry", R"({"module": "Bolts", "version": "1", "entries": []})", "\"entries\""},
    {"NumberAsEntry", R"({"module": "Bolts", "version": "1", "entries": ["a", 1]})", "\"entries\""},
    {"OneEntryAsText", R"({"module": "Bolts", "version": "1", "entries": "a"})", "\"entries\""},
    {"NumberAsVersion", R"({"module": "Bolts", "version": 1, "entries": ["a"]})", "\"version\""},
    {"WordAsVersion", R"({"module": "Bolts", "version": "new", "entries": ["a"]})", "\"new\" of \"version\""},
    {"VersionWithSuffix", R"({"module": "Bolts", "version": "1.0 beta", "entries": ["a"]})", "1.0 beta"},
    {"AnotherName", R"({"module": "Nuts", "version": "1", "entries": ["a"]})", "\"Nuts\""},
    {"LibraryElsewhere", R"({"module": "Bolts", "version": "1", "entries": ["a"], "library": "../libBolts.so"})",
     "../libBolts.so"},
    {"LibraryWithWholePath", R"({"module": "Bolts", "version": "1", "entries": ["a"], "library": "/lib/libc.so"})",
     "/lib/libc.so"},
    {"ListOfNeeds", R"({"module": "Bolts", "version": "1", "entries": ["a"], "needs": ["Nuts"]})", "\"needs\""},
    {"NeedWithoutVersion", R"({"module": "Bolts", "version": "1", "entries": ["a"], "needs": {"Nuts": "any"}})",
     "\"any\" of \"Nuts\""},
    {"MisspelledMember", R"({"module": "Bolts", "version": "1", "entries": ["a"], "need": {}})", "\"need\""},
    {"NewerHost", R"({"module": "Bolts", "version": "1", "entries": ["a"], "host": "99.2", "future": 1})",
     "needs version 99.2 of the program"},
};

INSTANTIATE_TEST_SUITE_P(Each, BrokenModuleDescriptor, testing::ValuesIn(brokenDescriptors),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(ModuleDescriptor, IsRefusedIfItIsAFolder)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Bolts.module.json")));
    EXPECT_THAT(failure(), HasSubstr("is not a file"));
}

TEST_F(ModuleDescriptor, IsRefusedIfItIsAPipeWithoutAWriter)
{
    ASSERT_EQ(mkfifo(file().toUtf8().constData(), 0600), 0);
    EXPECT_THAT(failure(), HasSubstr("is not a file"));
}

TEST_F(ModuleDescriptor, IsRefusedIfItIsHuge)
{
    EXPECT_THAT(failureOf(QByteArray(64 * 1024 + 1, ' ')), HasSubstr("is larger than 65536 bytes"));
    EXPECT_THAT(failureOf(R"({"module": "Bolts", "version": "1", "entries": ["a"]})" + QByteArray(60 * 1024, ' ')), "");
}

TEST_F(ModuleDescriptor, IsRefusedIfItIsNotThere)
{
    EXPECT_THAT(failure(), HasSubstr("is not a file"));
}

TEST(ModuleVersion, IsComparedByNumbersAndNotByLength)
{
    EXPECT_TRUE(Kelta::isOlder(QVersionNumber(0, 9), QVersionNumber(0, 10)));
    EXPECT_FALSE(Kelta::isOlder(QVersionNumber(0, 10), QVersionNumber(0, 9)));
    EXPECT_FALSE(Kelta::isOlder(QVersionNumber(0, 1), QVersionNumber(0, 1, 0)));
    EXPECT_TRUE(Kelta::isOlder(QVersionNumber(0, 1), QVersionNumber(0, 1, 1)));
}

} // namespace

#include "DataFile.h"
#include "ProjectTesting.h"

#include "projectfile/ExchangeImport.h"
#include "projectfile/ProjectFile.h"
#include "projectfile/ProjectStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTranslator>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

/// All messages about files are translated.
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// Returns every text with its context as a prefix.
class ContextTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*comment*/, int /*count*/) const override
    {
        return QStringLiteral("<%1>").arg(QLatin1String(context)) + QString::fromUtf8(text);
    }
};

class Translation : public testing::Test
{
protected:
    Translation() { QCoreApplication::installTranslator(&m_translator); }

private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication m_application{m_count, m_arguments};
    ContextTranslator m_translator;
};

/// Returns the invalid files in a folder of the test data. Their names begin with 3 or 4.
std::vector<std::string> wrongFiles(const std::string& folder)
{
    std::vector<std::string> files;
    const QDir data(QString::fromStdString(vxtest::dataPath(folder)));
    const QStringList names{QStringLiteral("3*.json"), QStringLiteral("3*.vxmat"), QStringLiteral("4*.vxmat")};
    for (const QString& name : data.entryList(names, QDir::Files, QDir::Name))
        files.push_back(data.filePath(name).toStdString());
    EXPECT_GE(files.size(), 9U);
    return files;
}

template <class Work>
std::string refusalOf(const Work& work)
{
    try {
        work();
    } catch (const projectfile::ContentError& error) {
        return error.what();
    }
    ADD_FAILURE() << "no error was thrown";
    return {};
}

TEST_F(Translation, CoversEveryErrorOfAProjectFile)
{
    for (const std::string& file : wrongFiles("projects")) {
        const std::string text = vxtest::readText(file);
        EXPECT_THAT(refusalOf([&] { projectfile::readProject(text); }), StartsWith("<projectfile::ProjectFile>"))
            << file;
    }
    EXPECT_THAT(refusalOf([] { projectfile::readProject(""); }), StartsWith("<projectfile::ProjectFile>"));
    EXPECT_THAT(refusalOf([] { projectfile::readProject("[1,]"); }),
                StartsWith("<projectfile::ProjectFile>line 1, column 4: <vxjson::JsonError>"));
}

TEST_F(Translation, CoversTheDescriptionsOfExpectedValues)
{
    const std::string text = projectfile::writeProject(vxtest::makeMixedProject());
    const std::pair<std::string, std::string> changes[] = {{"\"next_object_id\": 5", "\"next_object_id\": []"},
                                                           {"\"object_id\": 3", "\"object_id\": {}"},
                                                           {"\"links\": [3, 1]", "\"links\": {}"},
                                                           {"\"suppressed\": true", "\"suppressed\": [1]"},
                                                           {"[0.5, 0.25, 0, 1]", "{}"},
                                                           {"\"value\": 7850", "\"value\": []"},
                                                           {"\"values\": []", "\"values\": {}"},
                                                           {"\"category\": 0", "\"category\": []"}};
    for (const auto& [from, to] : changes) {
        std::string wrong = text;
        wrong.replace(wrong.find(from), from.size(), to);
        const std::string refusal = refusalOf([&] { projectfile::readProject(wrong); });
        EXPECT_THAT(refusal, HasSubstr("is <projectfile::ProjectFile>an ")) << to;
        EXPECT_THAT(refusal, HasSubstr("must be <projectfile::ProjectFile>")) << to;
    }
}

TEST_F(Translation, CoversTheDoubtsOfAProjectFile)
{
    for (const char* const name : {"11-wrong-links", "12-labels-that-differ", "13-false-groups", "14-deep-groups"}) {
        const auto project =
            projectfile::readProject(vxtest::readText(vxtest::dataPath("projects/" + std::string(name) + ".vxmat")));
        ASSERT_FALSE(project.doubts.empty());
        for (const std::string& doubt : project.doubts)
            EXPECT_THAT(doubt, StartsWith("<projectfile::ProjectFile>"));
    }
}

TEST_F(Translation, CoversTheErrorsOfWritingAProject)
{
    projectfile::ProjectRecord project = vxtest::makeMixedProject();
    project.name = "\xFF";
    EXPECT_THAT(refusalOf([&] { projectfile::writeProject(project); }), StartsWith("<vxjson::JsonError>\"name\" is"));
    project = vxtest::makeMixedProject();
    project.objects[0].colour = {{2.0F, 0.0F, 0.0F, 1.0F}};
    EXPECT_THAT(refusalOf([&] { projectfile::writeProject(project); }), StartsWith("<vxjson::JsonError>"));
    project = vxtest::makeMixedProject();
    project.record = std::numeric_limits<double>::infinity();
    EXPECT_THAT(refusalOf([&] { projectfile::writeProject(project); }), StartsWith("<vxjson::JsonError>\"record\" is"));
    project = vxtest::makeMixedProject();
    project.objects[3].links = {77};
    EXPECT_THAT(refusalOf([&] { projectfile::writeProject(project); }), StartsWith("<projectfile::ProjectFile>"));
}

TEST_F(Translation, CoversEveryErrorOfAnImport)
{
    for (const std::string& file : wrongFiles("documents")) {
        const std::string text = vxtest::readText(file);
        EXPECT_THAT(refusalOf([&] { projectfile::importExchange(text); }), StartsWith("<projectfile::")) << file;
    }
    const auto imported = projectfile::importExchange(R"({"proj_type": 2, "proj_type": 2, "material": []})");
    for (const std::string& doubt : imported.doubts)
        EXPECT_THAT(doubt, StartsWith("<projectfile::ExchangeImport>"));
    EXPECT_EQ(imported.doubts.size(), 2U);
}

TEST_F(Translation, CoversTheHolderOfALock)
{
    const QTemporaryDir folder;
    projectfile::FileLock lock(folder.filePath(QStringLiteral("a.vxmat")));
    ASSERT_TRUE(lock.tryLock());
    EXPECT_THAT(lock.holder().toStdString(), StartsWith("<projectfile::ProjectStore>"));
}

} // namespace

#include "Kelta/FileWriter.h"

#include "HostTesting.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <sys/stat.h>

namespace {

using Kelta::FileWriter;
using testing::HasSubstr;

const QString name = QStringLiteral("name");
const QString element = QStringLiteral("element");

class FileWriterTest : public testing::Test
{
protected:
    /// The files in the folder, without temporary ones that were left behind.
    QStringList files() const { return QDir(m_place.path()).entryList(QDir::Files | QDir::Hidden | QDir::System); }

    QTemporaryDir m_place;
    QString m_path = m_place.filePath(QStringLiteral("out.xml"));
};

TEST_F(FileWriterTest, WritesElementsAndAttributes)
{
    FileWriter writer(m_path);
    writer.beginElement(QStringLiteral("outer"));
    writer.writeAttribute(name, QStringLiteral("a < b & \"c\" 钢"));
    writer.beginElement(QStringLiteral("inner"));
    writer.endElement();
    writer.endElement();
    ASSERT_TRUE(writer.commit());
    EXPECT_EQ(vxtest::readFile(m_path), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                        "<outer name=\"a &lt; b &amp; &quot;c&quot; 钢\">\n"
                                        "    <inner/>\n"
                                        "</outer>\n");
}

TEST_F(FileWriterTest, EndsElementsThatAreOpenAtCommit)
{
    FileWriter writer(m_path);
    writer.beginElement(QStringLiteral("outer"));
    writer.beginElement(QStringLiteral("inner"));
    ASSERT_TRUE(writer.commit());
    EXPECT_THAT(vxtest::readFile(m_path), HasSubstr("</outer>"));
}

TEST_F(FileWriterTest, LeavesAnEarlierFileWhenItIsDestroyedBeforeCommit)
{
    vxtest::writeFile(m_path, "earlier");
    {
        FileWriter writer(m_path);
        writer.beginElement(element);
    }
    EXPECT_EQ(vxtest::readFile(m_path), "earlier");
    EXPECT_EQ(files(), QStringList{"out.xml"}) << "nothing is left behind";
}

TEST_F(FileWriterTest, AnswersFalseToASecondCommit)
{
    FileWriter writer(m_path);
    writer.beginElement(element);
    ASSERT_TRUE(writer.commit());
    EXPECT_FALSE(writer.commit());
    EXPECT_THAT(vxtest::readFile(m_path), HasSubstr("<element/>"));
}

TEST_F(FileWriterTest, LeavesAnEarlierFileWholeWhenTheDiskIsFull)
{
    vxtest::writeFile(m_path, "earlier");
    {
        FileWriter writer(m_path);
        const vxtest::FullDisk disk(1000);
        for (int i = 0; i < 10000; ++i) {
            writer.beginElement(element);
            writer.writeAttribute(name, QString::number(i));
            writer.endElement();
        }
        EXPECT_FALSE(writer.commit());
        EXPECT_THAT(writer.errorText().toStdString(), HasSubstr(m_path.toStdString() + ": "));
    }
    EXPECT_EQ(vxtest::readFile(m_path), "earlier");
    EXPECT_EQ(files(), QStringList{"out.xml"});
}

TEST_F(FileWriterTest, FindsAFullDiskAtCommitEvenForAShortFile)
{
    FileWriter writer(m_path);
    writer.beginElement(element);
    const vxtest::FullDisk disk(10);
    EXPECT_FALSE(writer.commit());
    EXPECT_EQ(writer.errorText().toStdString(), m_path.toStdString() + ": File too large");
    EXPECT_FALSE(QFileInfo::exists(m_path));
}

TEST_F(FileWriterTest, RefusesAFolderThatIsMissing)
{
    const QString path = m_place.filePath(QStringLiteral("missing/out.xml"));
    FileWriter writer(path);
    writer.beginElement(element);
    writer.writeAttribute(name, name);
    writer.endElement();
    EXPECT_FALSE(writer.commit());
    EXPECT_EQ(writer.errorText().toStdString(), path.toStdString() + ": No such file or directory");
}

TEST_F(FileWriterTest, RefusesAFolderInPlaceOfTheFile)
{
    FileWriter writer(m_place.path());
    EXPECT_FALSE(writer.commit());
    EXPECT_THAT(writer.errorText().toStdString(), HasSubstr("this is not a file"));
}

TEST_F(FileWriterTest, DoesNotReplaceAPipeByAFile)
{
    ASSERT_EQ(mkfifo(m_path.toUtf8().constData(), S_IRUSR | S_IWUSR), 0);
    FileWriter writer(m_path);
    writer.beginElement(element);
    EXPECT_FALSE(writer.commit());
    struct stat status = {};
    ASSERT_EQ(stat(m_path.toUtf8().constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(FileWriterTest, RefusesTheDeviceThatIsAlwaysFull)
{
    FileWriter writer(QStringLiteral("/dev/full"));
    writer.beginElement(element);
    EXPECT_FALSE(writer.commit());
    EXPECT_THAT(writer.errorText().toStdString(), HasSubstr("/dev/full: "));
}

TEST_F(FileWriterTest, RefusesControlCharactersThatNoReaderWouldTake)
{
    vxtest::writeFile(m_path, "earlier");
    for (const QChar character : {QChar(0x01), QChar(0x00), QChar(0x1B), QChar(0xFFFE), QChar(0xFFFF)}) {
        FileWriter writer(m_path);
        writer.beginElement(element);
        writer.writeAttribute(QStringLiteral("label"), QStringLiteral("steel") + character);
        writer.endElement();
        EXPECT_FALSE(writer.commit());
        EXPECT_THAT(writer.errorText().toStdString(), HasSubstr("\"label\" has a control character"));
    }
    EXPECT_EQ(vxtest::readFile(m_path), "earlier");
}

} // namespace

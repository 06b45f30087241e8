#include "Kelta/FileWriter.h"

#include "HostTesting.h"

#include <QDir>
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
    /// Returns all files in the folder, also hidden ones, so that leftover temporary files are detected.
    QStringList files() const { return QDir(m_place.path()).entryList(QDir::Files | QDir::Hidden | QDir::System); }

    QTemporaryDir m_place;
    QString m_path = m_place.filePath(QStringLiteral("out.xml"));
};

TEST_F(FileWriterTest, WritesElementsAndAttributes)
{
    FileWriter writer(m_path);
    writer.xml().writeStartElement(QStringLiteral("outer"));
    writer.xml().writeAttribute(name, QStringLiteral("a < b & \"c\" 钢"));
    writer.xml().writeEmptyElement(QStringLiteral("inner"));
    writer.xml().writeEndElement();
    ASSERT_TRUE(writer.commit()) << writer.errorText().toStdString();
    EXPECT_EQ(vxtest::readFile(m_path), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                        "<outer name=\"a &lt; b &amp; &quot;c&quot; 钢\">\n"
                                        "    <inner/>\n"
                                        "</outer>\n");
}

TEST_F(FileWriterTest, EndsElementsThatAreOpenAtCommit)
{
    FileWriter writer(m_path);
    writer.xml().writeStartElement(QStringLiteral("outer"));
    writer.xml().writeStartElement(QStringLiteral("inner"));
    ASSERT_TRUE(writer.commit());
    EXPECT_THAT(vxtest::readFile(m_path), HasSubstr("</outer>"));
}

TEST_F(FileWriterTest, LeavesAnEarlierFileWhenItIsDestroyedBeforeCommit)
{
    vxtest::writeFile(m_path, "earlier");
    {
        FileWriter writer(m_path);
        writer.xml().writeStartElement(element);
    }
    EXPECT_EQ(vxtest::readFile(m_path), "earlier");
    EXPECT_EQ(files(), QStringList{"out.xml"}) << "no temporary file is left";
}

TEST_F(FileWriterTest, LeavesAnEarlierFileWholeWhenTheDiskIsFull)
{
    vxtest::writeFile(m_path, "earlier");
    FileWriter writer(m_path);
    writer.xml().writeStartElement(element);
    writer.xml().writeAttribute(name, QString(10000, QLatin1Char('x')));
    for (const rlim_t bytes : {rlim_t{10}, rlim_t{1000}}) {
        const vxtest::FullDisk disk(bytes);
        EXPECT_FALSE(writer.commit());
        EXPECT_EQ(writer.errorText().toStdString(), m_path.toStdString() + ": File too large");
    }
    EXPECT_EQ(vxtest::readFile(m_path), "earlier");
    EXPECT_EQ(files(), QStringList{"out.xml"});
    EXPECT_TRUE(writer.commit()) << "there is room again";
}

TEST_F(FileWriterTest, RefusesAFolderThatIsMissing)
{
    const QString path = m_place.filePath(QStringLiteral("missing/out.xml"));
    FileWriter writer(path);
    writer.xml().writeEmptyElement(element);
    EXPECT_FALSE(writer.commit());
    EXPECT_EQ(writer.errorText().toStdString(), path.toStdString() + ": No such file or directory");
}

TEST_F(FileWriterTest, RefusesWhatIsNotAFile)
{
    ASSERT_EQ(mkfifo(m_path.toUtf8().constData(), S_IRUSR | S_IWUSR), 0);
    for (const QString& path : {m_path, m_place.path(), QStringLiteral("/dev/full")}) {
        FileWriter writer(path);
        writer.xml().writeEmptyElement(element);
        EXPECT_FALSE(writer.commit());
        EXPECT_EQ(writer.errorText().toStdString(), path.toStdString() + ": this is not a file");
    }
    struct stat status = {};
    ASSERT_EQ(stat(m_path.toUtf8().constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

TEST_F(FileWriterTest, RefusesControlCharactersThatNoReaderTakes)
{
    vxtest::writeFile(m_path, "earlier");
    for (const QChar character : {QChar(0x01), QChar(0x00), QChar(0x1B), QChar(0xFFFE), QChar(0xFFFF)}) {
        FileWriter writer(m_path);
        writer.xml().writeEmptyElement(element);
        writer.xml().writeAttribute(QStringLiteral("label"), QStringLiteral("steel") + character);
        EXPECT_FALSE(writer.commit()) << character.unicode();
        EXPECT_THAT(writer.errorText().toStdString(), HasSubstr("a character that XML cannot hold"));
    }
    EXPECT_EQ(vxtest::readFile(m_path), "earlier");
}

} // namespace

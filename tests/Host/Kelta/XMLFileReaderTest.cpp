#include "Kelta/XMLFileReader.h"

#include "HostTesting.h"

#include "Kelta/FileWriter.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <sys/stat.h>

namespace {

using Kelta::XMLFileReader;
using testing::HasSubstr;

const QString item = QStringLiteral("item");
const QString name = QStringLiteral("name");
const QString root = QStringLiteral("root");

class XMLFileReaderTest : public testing::Test
{
protected:
    QString file(const char* text) const
    {
        vxtest::writeFile(m_path, text);
        return m_path;
    }

    QTemporaryDir m_place;
    QString m_path = m_place.filePath(QStringLiteral("in.xml"));
};

TEST_F(XMLFileReaderTest, ReadsBackEveryTextThatTheWriterTakes)
{
    const QStringList texts{
        "", " a  b ", "line\nline\ttab\r", "<&\"'>", "钢 ü", "%1", QString(10000, QLatin1Char('x'))};
    Kelta::FileWriter writer(m_path);
    writer.xml().writeStartElement(root);
    for (const QString& text : texts) {
        writer.xml().writeEmptyElement(item);
        writer.xml().writeAttribute(name, text);
    }
    ASSERT_TRUE(writer.commit()) << writer.errorText().toStdString();
    XMLFileReader reader(m_path);
    ASSERT_TRUE(reader.xml().readNextStartElement());
    for (const QString& text : texts) {
        ASSERT_TRUE(reader.xml().readNextStartElement());
        EXPECT_EQ(reader.xml().attributes().value(name), text);
        reader.xml().skipCurrentElement();
    }
    EXPECT_FALSE(reader.xml().readNextStartElement());
    EXPECT_EQ(reader.errorText(), QString());
}

TEST_F(XMLFileReaderTest, TellsWhyAFileCannotBeOpened)
{
    XMLFileReader reader(m_path);
    EXPECT_FALSE(reader.xml().readNextStartElement());
    EXPECT_EQ(reader.errorText().toStdString(), m_path.toStdString() + ": No such file or directory");
}

TEST_F(XMLFileReaderTest, DoesNotWaitForTheWriterOfAPipe)
{
    ASSERT_EQ(mkfifo(m_path.toUtf8().constData(), S_IRUSR | S_IWUSR), 0);
    for (const QString& path : {m_path, m_place.path()}) {
        XMLFileReader reader(path);
        EXPECT_FALSE(reader.xml().readNextStartElement());
        EXPECT_EQ(reader.errorText().toStdString(), path.toStdString() + ": this is not a file");
    }
}

TEST_F(XMLFileReaderTest, TellsTheLineWhereAFileIsCutOff)
{
    XMLFileReader reader(file("<root>\n<item>\n<item name='a"));
    ASSERT_TRUE(reader.xml().readNextStartElement());
    ASSERT_TRUE(reader.xml().readNextStartElement());
    EXPECT_FALSE(reader.xml().readNextStartElement());
    EXPECT_THAT(reader.errorText().toStdString(), HasSubstr(m_path.toStdString() + ":3: "));
}

} // namespace

#include "Kelta/XMLFileReader.h"

#include "HostTesting.h"

#include "Kelta/FileWriter.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

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

TEST_F(XMLFileReaderTest, GoesThroughElementsAndPassesOverOthers)
{
    XMLFileReader reader(
        file("<root><other><item name='deep'/></other><item name='a'/><item name='b'><x/></item></root>"));
    ASSERT_TRUE(reader.nextElement(root));
    ASSERT_TRUE(reader.nextElement(item));
    EXPECT_EQ(reader.attribute(name), QStringLiteral("a"));
    EXPECT_EQ(reader.attribute(QStringLiteral("absent")), QString());
    reader.leaveElement();
    ASSERT_TRUE(reader.nextElement(item));
    EXPECT_EQ(reader.attribute(name), QStringLiteral("b"));
    reader.leaveElement();
    EXPECT_FALSE(reader.nextElement(item));
    EXPECT_FALSE(reader.failed());
}

TEST_F(XMLFileReaderTest, LeavesTheElementAroundWhenThereIsNoNext)
{
    XMLFileReader reader(file("<root><list><item/></list><after/></root>"));
    ASSERT_TRUE(reader.nextElement(root));
    ASSERT_TRUE(reader.nextElement(QStringLiteral("list")));
    ASSERT_TRUE(reader.nextElement(item));
    EXPECT_EQ(reader.depth(), 3);
    reader.leaveElement();
    EXPECT_FALSE(reader.nextElement(item));
    EXPECT_EQ(reader.depth(), 1);
    EXPECT_TRUE(reader.nextElement(QStringLiteral("after")));
}

TEST_F(XMLFileReaderTest, LeavesAllElementsDownToADepth)
{
    XMLFileReader reader(file("<root><item><x><y/></x><z/></item><item name='second'/></root>"));
    ASSERT_TRUE(reader.nextElement(root));
    const int depth = reader.depth();
    ASSERT_TRUE(reader.nextElement(item));
    ASSERT_TRUE(reader.nextElement(QStringLiteral("x")));
    ASSERT_TRUE(reader.nextElement(QStringLiteral("y")));
    reader.leaveTo(depth);
    EXPECT_EQ(reader.depth(), depth);
    ASSERT_TRUE(reader.nextElement(item));
    EXPECT_EQ(reader.attribute(name), QStringLiteral("second"));
}

TEST_F(XMLFileReaderTest, StandsNowhereBehindTheRoot)
{
    XMLFileReader reader(file("<root/>"));
    ASSERT_TRUE(reader.nextElement(root));
    EXPECT_FALSE(reader.nextElement(item));
    EXPECT_FALSE(reader.nextElement(item));
    reader.leaveElement();
    EXPECT_EQ(reader.depth(), 0);
    EXPECT_FALSE(reader.failed());
}

TEST_F(XMLFileReaderTest, ReadsBackEveryTextThatTheWriterTakes)
{
    const QStringList texts{
        "", " a  b ", "line\nline\ttab\r", "<&\"'>", "钢 ü", "%1", QString(10000, QLatin1Char('x'))};
    Kelta::FileWriter writer(m_path);
    writer.beginElement(root);
    for (const QString& text : texts) {
        writer.beginElement(item);
        writer.writeAttribute(name, text);
        writer.endElement();
    }
    ASSERT_TRUE(writer.commit()) << writer.errorText().toStdString();
    XMLFileReader reader(m_path);
    ASSERT_TRUE(reader.nextElement(root));
    for (const QString& text : texts) {
        ASSERT_TRUE(reader.nextElement(item));
        EXPECT_EQ(reader.attribute(name), text);
        reader.leaveElement();
    }
    EXPECT_FALSE(reader.nextElement(item));
    EXPECT_FALSE(reader.failed());
}

TEST_F(XMLFileReaderTest, TellsWhyAFileCannotBeOpened)
{
    XMLFileReader reader(m_path);
    EXPECT_TRUE(reader.failed());
    EXPECT_FALSE(reader.nextElement(root));
    EXPECT_EQ(reader.errorText().toStdString(), m_path.toStdString() + ": No such file or directory");
}

TEST_F(XMLFileReaderTest, TellsTheLineWhereAFileIsCutOff)
{
    XMLFileReader reader(file("<root>\n<item>\n<item name='a"));
    ASSERT_TRUE(reader.nextElement(root));
    ASSERT_TRUE(reader.nextElement(item));
    EXPECT_FALSE(reader.nextElement(item));
    EXPECT_TRUE(reader.failed());
    EXPECT_THAT(reader.errorText().toStdString(), HasSubstr(m_path.toStdString() + ":3: "));
    reader.leaveTo(0);
    EXPECT_EQ(reader.depth(), 0);
}

TEST_F(XMLFileReaderTest, FindsNothingInAFileOfAnotherRoot)
{
    XMLFileReader reader(file("<letter><root/></letter>"));
    EXPECT_FALSE(reader.nextElement(root));
    EXPECT_FALSE(reader.failed());
}

} // namespace

#include "Kelta/DataPersistence.h"

#include "HostTesting.h"

#include "Kelta/FileWriter.h"
#include "Kelta/XMLFileReader.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace {

using Kelta::DataPersistence;
using testing::HasSubstr;

class Note : public DataPersistence
{
public:
    Kelta::TypeInfo getTypeId() const override { return Kelta::TypeInfo::find("Test::Note"); }

    void save(Kelta::FileWriter& writer) const override
    {
        for (const QString& line : lines) {
            writer.xml().writeStartElement(QStringLiteral("line"));
            writer.xml().writeAttribute(QStringLiteral("text"), line);
            writer.xml().writeEndElement();
        }
    }

    void load(Kelta::XMLFileReader& reader) override
    {
        while (reader.xml().readNextStartElement()) {
            lines << reader.xml().attributes().value(QStringLiteral("text")).toString();
            reader.xml().skipCurrentElement();
        }
    }

    QStringList lines;
};

class DataPersistenceTest : public testing::Test
{
protected:
    DataPersistenceTest()
    {
        DataPersistence::init();
        Kelta::TypeInfo type;
        Kelta::RootClass::initSubclass(type, "Test::Note", "Kelta::DataPersistence", nullptr);
    }

    /// Loads a file of this text, which must fail and change nothing. Returns the reported messages.
    std::string whyNotLoaded(const char* text)
    {
        vxtest::writeFile(m_path, text);
        const vxtest::Reports reports;
        Note note;
        EXPECT_FALSE(note.load_from_file(m_path));
        EXPECT_TRUE(note.lines.isEmpty());
        EXPECT_EQ(reports.errors(), 1);
        return reports.text();
    }

    QTemporaryDir m_place;
    QString m_path = m_place.filePath(QStringLiteral("note.xml"));
};

TEST_F(DataPersistenceTest, ReadsFromAFileWhatItWrote)
{
    Note written;
    written.lines = QStringList{"one", "钢 %1", ""};
    ASSERT_TRUE(written.save_to_file(m_path));
    Note read;
    ASSERT_TRUE(read.load_from_file(m_path));
    EXPECT_EQ(read.lines, written.lines);
}

TEST_F(DataPersistenceTest, WritesTheNameOfItsClass)
{
    ASSERT_TRUE(Note().save_to_file(m_path));
    EXPECT_THAT(vxtest::readFile(m_path), HasSubstr("<object class=\"Test::Note\"/>"));
}

TEST_F(DataPersistenceTest, OfABareObjectIsAnEmptyElement)
{
    DataPersistence bare;
    ASSERT_TRUE(bare.save_to_file(m_path));
    EXPECT_TRUE(bare.load_from_file(m_path));
    EXPECT_EQ(bare.getTypeId(), Kelta::TypeInfo::find("Kelta::DataPersistence"));
}

/// A class that is registered with the size of its objects.
class Ledger : public DataPersistence
{
    KELTA_CLASS;

public:
    char pages[1000] = {};
};
KELTA_REGISTER_CLASS(Ledger, Kelta::DataPersistence)

TEST_F(DataPersistenceTest, ReturnsTheSizeOfItsClass)
{
    Ledger::init();
    const Ledger ledger;
    EXPECT_EQ(Ledger::getClassTypeId().getObjectSize(), sizeof(Ledger));
    EXPECT_EQ(ledger.get_memory_usage(), sizeof(Ledger));
    EXPECT_EQ(Note().get_memory_usage(), sizeof(DataPersistence)) << "its class is registered without a size";
}

TEST_F(DataPersistenceTest, ReportsAFolderThatIsMissing)
{
    const vxtest::Reports reports;
    EXPECT_FALSE(Note().save_to_file(m_place.filePath(QStringLiteral("missing/note.xml"))));
    EXPECT_EQ(reports.errors(), 1);
    EXPECT_THAT(reports.text(), HasSubstr("missing/note.xml: No such file or directory"));
}

TEST_F(DataPersistenceTest, KeepsTheEarlierFileWhenTheDiskIsFull)
{
    Note note;
    note.lines = QStringList{"earlier"};
    ASSERT_TRUE(note.save_to_file(m_path));
    const std::string earlier = vxtest::readFile(m_path);
    note.lines << QString(100000, QLatin1Char('x'));
    const vxtest::Reports reports;
    {
        const vxtest::FullDisk disk(1000);
        EXPECT_FALSE(note.save_to_file(m_path));
    }
    EXPECT_EQ(reports.errors(), 1);
    EXPECT_EQ(vxtest::readFile(m_path), earlier);
}

TEST_F(DataPersistenceTest, ReportsAFileThatIsMissing)
{
    const vxtest::Reports reports;
    EXPECT_FALSE(Note().load_from_file(m_path));
    EXPECT_THAT(reports.text(), HasSubstr("note.xml: No such file or directory"));
}

TEST_F(DataPersistenceTest, SetsNothingFromAFileThatIsCutOff)
{
    EXPECT_THAT(whyNotLoaded("<object class=\"Test::Note\">\n<line text=\"one\"/>\n<line te"),
                HasSubstr("note.xml:3: "));
    EXPECT_THAT(whyNotLoaded("<object class=\"Test::Note\">\n<line text=\"one\"/>\n"), HasSubstr("note.xml:3: "));
    EXPECT_THAT(whyNotLoaded(""), HasSubstr("note.xml:1: "));
}

TEST_F(DataPersistenceTest, SetsNothingFromAFileWithTextAfterItsEnd)
{
    EXPECT_THAT(whyNotLoaded("<object class=\"Test::Note\"><line text=\"one\"/></object>\n<object/>"),
                HasSubstr("note.xml:2: "));
}

TEST_F(DataPersistenceTest, RefusesAFileOfAnotherRoot)
{
    EXPECT_THAT(whyNotLoaded("<projects><object class=\"Test::Note\"/></projects>"),
                HasSubstr("note.xml: this file does not hold an object of the application"));
}

TEST_F(DataPersistenceTest, RefusesAFileOfAnotherClass)
{
    EXPECT_THAT(whyNotLoaded("<object class=\"Test::Letter\"><line text=\"one\"/></object>"),
                HasSubstr("an object of class \"Test::Letter\"; one of \"Test::Note\" is needed"));
}

} // namespace

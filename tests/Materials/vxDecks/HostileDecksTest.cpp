#include "ReadingTesting.h"
#include "SampleMaterials.h"

#include "vxDecks/Mapping.h"
#include "vxMaterial/model/PropertyId.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <streambuf>
#include <string>
#include <sys/resource.h>

namespace {

using Id = vxMat::PropertyId;
using vxDecks::Format;
using vxtest::errorOf;
using vxtest::readText;

const std::string steel = "*MATERIAL, NAME=Steel\n*ELASTIC\n210000., 0.3\n*PLASTIC\n250., 0.\n300., 0.1\n";

TEST(HostileDecks, AreReadOrRefusedWhereverTheyAreCut)
{
    for (std::size_t length = 0; length <= steel.size(); ++length) {
        const std::string error = errorOf(Format::Calculix, steel.substr(0, length));
        EXPECT_TRUE(error.empty() || error.rfind("line ", 0) == 0) << error;
    }
}

TEST(HostileDecks, AreRefusedIfTheyAreBinary)
{
    EXPECT_EQ(errorOf(Format::Calculix, steel + std::string("\0\0\1", 3)), "line 7: the content is binary");
}

TEST(HostileDecks, AreReadOrRefusedWithAnyByteChanged)
{
    std::mt19937 engine(3);
    for (int i = 0; i < 2000; ++i) {
        std::string text = steel;
        for (int change = 0; change < 3; ++change)
            text[engine() % text.size()] = static_cast<char>(engine());
        const std::string error = errorOf(Format::Calculix, text);
        EXPECT_TRUE(error.empty() || error.rfind("line ", 0) == 0) << error << "\n" << text;
    }
}

TEST(HostileDecks, MayHaveLongLinesOutsideOfMaterials)
{
    const std::string longLine(1000000, '7');
    EXPECT_EQ(readText(Format::Calculix, "*NODE\n" + longLine + "\n" + steel, "SI").materials.size(), 1U);
    EXPECT_EQ(errorOf(Format::Calculix, steel + longLine + "\n"), "line 7: the line is longer than 65536 characters");
    EXPECT_EQ(errorOf(Format::Calculix, steel + "*ELASTIC, X=" + longLine + "\n"),
              "line 7: the line is longer than 65536 characters");
}

TEST(HostileDecks, EndCardsThatNeverEnd)
{
    std::string text = "*MATERIAL, NAME=A\n*PLASTIC\n";
    for (int i = 0; i < 100001; ++i)
        text += "1,1\n";
    EXPECT_EQ(errorOf(Format::Calculix, text), "line 100003: *PLASTIC has more than 100000 lines");
}

/// Returns the most memory that this process has had so far, in bytes.
std::size_t mostMemory()
{
    rusage usage = {};
    EXPECT_EQ(getrusage(RUSAGE_SELF, &usage), 0);
    return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

TEST(HostileDecks, TakeNoMemoryForBlankFields)
{
    // 200 lines with 60,000 fields each would take 16 bytes for each field.
    const std::string line = "1." + std::string(60000, ',') + "2.\n";
    std::string text = "*MATERIAL, NAME=A\n*PLASTIC\n";
    for (int i = 0; i < 200; ++i)
        text += line;
    const std::size_t before = mostMemory();
    const vxDecks::ReadDeck deck = readText(Format::Calculix, text, "SI");
    EXPECT_LT(mostMemory(), before + 2 * text.size());
    EXPECT_EQ(countRefused(deck.report), 1U) << "the number far behind is not lost in silence";
}

TEST(HostileDecks, AreToldInShortHoweverManyKeywordsTheyHave)
{
    std::string text;
    for (int i = 0; i < 5000; ++i)
        text += "*WONDER" + std::to_string(i) + "\n*INCLUDE, INPUT=" + std::to_string(i) + "\n";
    const vxDecks::ReadDeck outside = readText(Format::Calculix, text, "SI");
    EXPECT_EQ(outside.foreign.size(), 100U);
    EXPECT_LT(outside.report.notes.size(), 110U);
    const vxDecks::ReadDeck inside = readText(Format::Calculix, "*MATERIAL, NAME=A\n" + text, "SI");
    EXPECT_EQ(inside.report.materials.at(0).rows.size(), 100U);
    EXPECT_EQ(inside.report.materials.at(0).notes.back().text(), "4900 more cards are not taken");
}

/// A file of any length that is never in memory: nodes, and a material at its end.
class LongFile : public std::streambuf
{
public:
    explicit LongFile(int lines) : m_lines(lines) {}

protected:
    int_type underflow() override
    {
        if (m_lines < 0)
            return traits_type::eof();
        m_text = m_lines > 0 ? "1, 0.123456789, 0.123456789, 0.123456789\n" : steel;
        --m_lines;
        setg(m_text.data(), m_text.data(), m_text.data() + m_text.size());
        return traits_type::to_int_type(m_text.front());
    }

private:
    std::string m_text;
    int m_lines;
};

TEST(HostileDecks, MayBeLong)
{
    LongFile buffer(500000);
    std::istream file(&buffer);
    const vxDecks::ReadDeck deck = readDeck(Format::Calculix, file, {vxUnits::UnitSystem::si()});
    EXPECT_EQ(deck.materials.size(), 1U);
}

/// A file that fails in the middle, as a file on a disk that is pulled out.
class FailingFile : public LongFile
{
public:
    FailingFile() : LongFile(10000) {}

protected:
    int_type underflow() override
    {
        if (++m_count > 5000)
            throw std::ios_base::failure("pulled out");
        return LongFile::underflow();
    }

private:
    int m_count = 0;
};

TEST(HostileDecks, AreRefusedIfTheyCannotBeReadToTheEnd)
{
    FailingFile buffer;
    std::istream file(&buffer);
    try {
        readDeck(Format::Calculix, file, {vxUnits::UnitSystem::si()});
        FAIL();
    } catch (const vxDecks::DeckError& error) {
        EXPECT_STREQ(error.what(), "the file cannot be read to its end");
    }
}

} // namespace

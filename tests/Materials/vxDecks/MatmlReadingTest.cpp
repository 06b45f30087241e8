#include "CommaLocale.h"
#include "ReadingTesting.h"
#include "SampleMaterials.h"

#include "vxMaterial/model/PropertyId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using Id = vxMat::PropertyId;
using testing::Contains;
using testing::HasSubstr;
using vxDecks::Format;
using vxDecks::ReadDeck;

ReadDeck readXml(const std::string& text)
{
    return vxtest::readText(Format::Matml, text);
}

std::string errorOf(const std::string& text)
{
    return vxtest::errorOf(Format::Matml, text, {});
}

/// Returns a document of one material that has one property.
std::string documentOf(const std::string& name, const std::string& units, const std::string& data)
{
    return "<MatML_Doc><Material><BulkDetails><Name>M</Name><PropertyData property=\"p\"><Data format=\"float\">" +
           data + "</Data></PropertyData></BulkDetails></Material><Metadata><PropertyDetails id=\"p\"><Name>" + name +
           "</Name>" + units + "</PropertyDetails></Metadata></MatML_Doc>";
}

double densityOf(const std::string& units, const std::string& data)
{
    return vxtest::numberOf(readXml(documentOf("Density", units, data)), Id::Density);
}

std::string repeated(const std::string& text, std::size_t count)
{
    std::string all;
    all.reserve(text.size() * count);
    for (std::size_t i = 0; i < count; ++i)
        all += text;
    return all;
}

TEST(MatmlReading, TakesUnitsAsProductsOfPowers)
{
    EXPECT_EQ(densityOf("<Units><Unit><Name>kg</Name></Unit><Unit power=\"-3\"><Name>m</Name></Unit></Units>", "7850"),
              7850.0);
    EXPECT_EQ(
        densityOf("<Units><Unit power=\"1\"><Name>g</Name></Unit><Unit power=\"-3\"><Name>cm</Name></Unit></Units>",
                  "7.85"),
        7850.0);
    EXPECT_EQ(densityOf("<Units><Unit><Name>kg/m3</Name></Unit></Units>", " 7.85D3 "), 7850.0);
    EXPECT_EQ(densityOf("<Units factor=\"1e3\"><Unit><Name>kg/m3</Name></Unit></Units>", "7.85"), 7850.0);
    EXPECT_EQ(densityOf("<Units name=\"t/m3\"/>", "7.85"), 7850.0);
}

TEST(MatmlReading, TakesNoNumberWhoseUnitDoesNotFit)
{
    for (const char* const units : {"", "<Unitless/>", "<Units/>", "<Units name=\"wombats\"/>",
                                    "<Units><Unit><Currency code=\"EUR\"/></Unit></Units>",
                                    "<Units><Unit power=\"x\"><Name>kg</Name></Unit></Units>",
                                    "<Units><Unit power=\"1e999\"><Name>kg</Name></Unit></Units>",
                                    "<Units factor=\"x\"><Unit><Name>kg/m3</Name></Unit></Units>",
                                    "<Units factor=\"-1\"><Unit><Name>kg/m3</Name></Unit></Units>"})
    {
        const ReadDeck deck = readXml(documentOf("Density", units, "7850"));
        EXPECT_FALSE(deck.materials.at(0).material->hasProperty(Id::Density)) << units;
        EXPECT_THAT(vxtest::remarkableLines(deck.report), Contains(HasSubstr("M: lost: Density: the unit"))) << units;
    }
}

TEST(MatmlReading, TakesNoNumberThatIsNotOne)
{
    for (const char* const data : {"", "-", "about 7850", "7850 kg", "7,85", "nan", "inf", "0x10", "1e999"}) {
        const ReadDeck deck = readXml(documentOf("Density", "<Units name=\"kg/m3\"/>", data));
        EXPECT_FALSE(deck.materials.at(0).material->hasProperty(Id::Density)) << data;
        EXPECT_THAT(vxtest::remarkableLines(deck.report), Contains(HasSubstr("M: lost: Density: "))) << data;
    }
}

TEST(MatmlReading, HasNoUseForTheUnitsOfTheUser)
{
    const std::string document = documentOf("Density", "<Units name=\"kg/m3\"/>", "7850");
    EXPECT_EQ(vxtest::numberOf(vxtest::readText(Format::Matml, document, "mm-t-s"), Id::Density), 7850.0);
    EXPECT_TRUE(vxDecks::hasOwnUnits(Format::Matml));
}

TEST(MatmlReading, ReadsDocumentsInACommaLocale)
{
    const vxtest::CommaLocale locale;
    EXPECT_EQ(
        densityOf("<Units><Unit><Name>g</Name></Unit><Unit power=\"-3.0\"><Name>cm</Name></Unit></Units>", "7.85"),
        7850.0);
}

TEST(MatmlReading, TakesDocumentsInUtf16AndLatin1)
{
    const std::string text = documentOf("Density", "<Units name=\"kg/m3\"/>", "7850");
    std::string wide = "\xFF\xFE";
    for (const char c : text)
        wide += std::string(1, c) + '\0';
    EXPECT_EQ(vxDecks::recognisedFormat(wide), Format::Matml);
    EXPECT_EQ(vxtest::numberOf(readXml(wide), Id::Density), 7850.0);
    std::string latin = R"(<?xml version="1.0" encoding="ISO-8859-1"?>)" + text;
    latin.replace(latin.find(">M<"), 3, ">St\xE4hl<");
    EXPECT_EQ(readXml(latin).materials.at(0).name, "St\xC3\xA4hl");
}

TEST(MatmlReading, IsRecognisedByItsRoot)
{
    EXPECT_EQ(vxDecks::recognisedFormat("<?xml version=\"1.0\"?>\n<!-- x -->\n<MatML_Doc>"), Format::Matml);
    EXPECT_EQ(vxDecks::recognisedFormat("\xEF\xBB\xBF <Data><m:MatML_Doc/></Data>"), Format::Matml);
    for (const char* const text : {"<svg/>", "<?xml version=\"1.0\"?>", "MatML_Doc", "$ <MatML_Doc>"})
        EXPECT_NE(vxDecks::recognisedFormat(text), Format::Matml) << text;
}

TEST(MatmlReading, RefusesDocumentsThatAreNotWellFormedWithTheLine)
{
    EXPECT_THAT(errorOf("<MatML_Doc>\n<Material>\n</MatML_Doc>"), HasSubstr("line 3: the XML is not well-formed: "));
    EXPECT_THAT(errorOf(""), HasSubstr("the XML is not well-formed"));
    EXPECT_THAT(errorOf("MatML"), HasSubstr("the XML is not well-formed"));
    EXPECT_THAT(errorOf("<MatML_Doc><Material name=></MatML_Doc>"), HasSubstr("the XML is not well-formed"));
    EXPECT_EQ(errorOf("<Other/>"), "the file has no element MatML_Doc");
}

TEST(MatmlReading, RefusesDocumentTypesAndWithThemEntities)
{
    const std::string refusal = "the file has a document type declaration (DOCTYPE), which is not read because it may "
                                "define entities; remove it";
    const std::string document = documentOf("Density", "<Units name=\"kg/m3\"/>", "7850");
    for (const char* const type :
         {"<!DOCTYPE MatML_Doc SYSTEM \"http://localhost/matml31.dtd\">",
          "<!DOCTYPE MatML_Doc [<!ENTITY e SYSTEM \"file:///etc/passwd\">]>", "<!DOCTYPE x [<!ELEMENT x ANY",
          "<!DOCTYPE lolz [<!ENTITY a \"lol\"><!ENTITY b \"&a;&a;&a;&a;&a;\"><!ENTITY c \"&b;&b;&b;&b;\">]>"})
        EXPECT_EQ(errorOf(type + document), refusal) << type;
    EXPECT_EQ(errorOf("<MatML_Doc><!DOCTYPE x></MatML_Doc>").empty(), false);
}

TEST(MatmlReading, DoesNotReplaceEntitiesThatXmlDoesNotHave)
{
    EXPECT_EQ(readXml("<MatML_Doc><Material><BulkDetails><Name>&xxe;</Name></BulkDetails></Material></MatML_Doc>")
                  .materials.at(0)
                  .name,
              "&xxe;");
}

TEST(MatmlReading, ReadsDeepDocuments)
{
    const std::size_t depth = 300000;
    const std::string nested = repeated("<a>", depth) + "<MatML_Doc/>" + repeated("</a>", depth);
    EXPECT_TRUE(readXml(nested).materials.empty());
    EXPECT_THAT(errorOf(repeated("<a>", depth)), HasSubstr("the XML is not well-formed"));
    EXPECT_EQ(errorOf(repeated("<a>", depth) + repeated("</a>", depth)), "the file has no element MatML_Doc");
    const std::string property = repeated("<Unit>", depth) + repeated("</Unit>", depth);
    EXPECT_FALSE(readXml(documentOf("Density", "<Units>" + property + "</Units>", "1"))
                     .materials.at(0)
                     .material->hasProperty(Id::Density));
}

TEST(MatmlReading, RefusesDocumentsThatAreTooLarge)
{
    EXPECT_EQ(errorOf("<MatML_Doc>" + std::string((std::size_t(64) << 20U), ' ') + "</MatML_Doc>"),
              "the file has more than 64 MB; divide it into several files");
}

TEST(MatmlReading, RefusesDocumentsWhoseTreeWouldBeMuchLarger)
{
    EXPECT_EQ(errorOf("<MatML_Doc>" + repeated("<a/>", 8000000) + "</MatML_Doc>"),
              "the file has more than 8000000 elements and attributes; divide it into several files");
}

TEST(MatmlReading, NamesTheLineOfAFaultBehindTextsThatTheParserChanges)
{
    const std::string before = "<MatML_Doc\n a='1'\n b='&lt;&lt;\n'>\r\n<Name\n>&amp;&amp;\r\n</Name\n>\n";
    EXPECT_THAT(errorOf(before + "<a></b>\n\n"), HasSubstr("line 9: the XML is not well-formed"));
}

TEST(MatmlReading, TellsElementsAndParametersThatItDoesNotTake)
{
    const auto remarksOn = [](const std::string& rest) {
        std::string document = documentOf("Density", "<Units name=\"kg/m3\"/>", "7850");
        document.insert(document.find("</PropertyData>"), rest);
        document.insert(document.find("<PropertyDetails"),
                        "<ParameterDetails id=\"t\"><Name>Temperature</Name><Unitless/></ParameterDetails>"
                        "<ParameterDetails id=\"h\"><Name>Humidity</Name><Unitless/></ParameterDetails>");
        return vxtest::remarkableLines(readXml(document).report);
    };
    EXPECT_THAT(remarksOn("<Qualifier>Orthotropic</Qualifier>"),
                Contains("Not of materials, and therefore not taken: Qualifier (1)."));
    EXPECT_THAT(remarksOn("<ParameterValue parameter=\"t\"><Data>20</Data></ParameterValue>"),
                Contains("M: Density: values at temperature 20; the temperature is not kept"));
    EXPECT_THAT(remarksOn("<ParameterValue parameter=\"h\"><Data>0.5</Data></ParameterValue>"),
                Contains("M: lost: Humidity: the catalogue does not have the quantity"));
}

TEST(MatmlReading, ReadsOrRefusesDocumentsWhereverTheyAreCutOrChanged)
{
    const std::string whole = vxtest::deckOf(Format::Matml, vxtest::multilinear()->get(), "mm-t-s").text;
    for (std::size_t length = 0; length + 1 < whole.size(); ++length)
        EXPECT_THAT(errorOf(whole.substr(0, length)), testing::AnyOf(HasSubstr("XML"), HasSubstr("MatML_Doc")))
            << length;
    std::mt19937 engine(5);
    for (int i = 0; i < 2000; ++i) {
        std::string text = whole;
        for (int change = 0; change < 3; ++change)
            text[engine() % text.size()] = static_cast<char>(engine());
        try {
            EXPECT_LE(readXml(text).materials.size(), 1U);
        } catch (const vxDecks::DeckError& error) {
            EXPECT_THAT(error.what(), testing::AnyOf(HasSubstr("XML"), HasSubstr("MatML_Doc"), HasSubstr("DOCTYPE")));
        }
    }
}

TEST(MatmlReading, TakesTheFactorOfCreepInTheUnitThatItsExponentsGive)
{
    auto material = vxtest::creeping();
    material->number(Id::CreepModulusN, 4.5).number(Id::CreepModulusM, -0.25);
    const ReadDeck deck = readXml(vxtest::deckOf(Format::Matml, material->get(), "mm-t-s").text);
    EXPECT_NEAR(vxtest::numberOf(deck, Id::CreepModulusA) / 1e-40, 1.0, 1e-13);
    EXPECT_THAT(vxtest::remarkableLines(readXml(documentOf("Creep Modulus A", "<Units name=\"1/s\"/>", "1")).report),
                Contains("M: lost: Creep Modulus A: the unit of the factor depends on both exponents, of which one is "
                         "missing"));
}

} // namespace

#include "DataFile.h"
#include "SampleMaterials.h"

#include "vxMaterial/model/PropertyId.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using Id = vxMat::PropertyId;
using testing::HasSubstr;
using testing::Not;
using vxDecks::Deck;
using vxDecks::Format;

Deck deckOf(const vxtest::MaterialMaker& material, const char* units = "SI", const char* name = "Test")
{
    return vxtest::deckOf(Format::Matml, material.get(), units, name);
}

/// Returns what a validating reader of XML says against a text; empty if it is valid.
std::string judge(const std::string& text)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("deck.xml"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), static_cast<qint64>(text.size())) < 0)
        return "the file cannot be written";
    file.close();
    QProcess reader;
    reader.setProcessChannelMode(QProcess::MergedChannels);
    reader.start(VX_XMLLINT, {"--noout", "--nonet", "--dtdvalid",
                              QString::fromStdString(vxtest::dataPath("decks/matml-structure.dtd")), file.fileName()});
    reader.waitForFinished(-1);
    const std::string said = reader.readAll().toStdString();
    return reader.exitCode() == 0 ? std::string() : "refused: " + said;
}

TEST(MatmlDeck, DeclaresEachPropertyWithItsUnit)
{
    vxtest::MaterialMaker material;
    material.number(Id::Density, 7850.0).number(Id::PoissonsRatio, 0.3);
    EXPECT_EQ(deckOf(material, "SI", "Steel <\"S355\"> & more").text,
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<!-- Units: m, kg, s, K, A -->\n"
              "<MatML_Doc>\n"
              "  <Material id=\"material_1\">\n"
              "    <BulkDetails>\n"
              "      <Name>Steel &lt;\"S355\"&gt; &amp; more</Name>\n"
              "      <PropertyData property=\"rho\">\n"
              "        <Data format=\"float\">7850</Data>\n"
              "      </PropertyData>\n"
              "      <PropertyData property=\"nu\">\n"
              "        <Data format=\"float\">0.3</Data>\n"
              "      </PropertyData>\n"
              "    </BulkDetails>\n"
              "  </Material>\n"
              "  <Metadata>\n"
              "    <PropertyDetails id=\"rho\">\n"
              "      <Name>Density</Name>\n"
              "      <Units name=\"kg/m^3\">\n"
              "        <Unit>\n"
              "          <Name>kg</Name>\n"
              "        </Unit>\n"
              "        <Unit power=\"-3\">\n"
              "          <Name>m</Name>\n"
              "        </Unit>\n"
              "      </Units>\n"
              "      <Notes>mass per volume</Notes>\n"
              "    </PropertyDetails>\n"
              "    <PropertyDetails id=\"nu\">\n"
              "      <Name>Poisson's ratio</Name>\n"
              "      <Unitless />\n"
              "      <Notes>transverse over axial strain in uniaxial tension</Notes>\n"
              "    </PropertyDetails>\n"
              "  </Metadata>\n"
              "</MatML_Doc>\n");
}

TEST(MatmlDeck, HasUnitsAsProductsOfPowers)
{
    const auto steel = vxtest::steel();
    const std::string text = deckOf(*steel, "mm-t-s").text;
    EXPECT_THAT(text, HasSubstr("<Units name=\"mW/(mm K)\">\n"
                                "        <Unit>\n          <Name>mW</Name>\n        </Unit>\n"
                                "        <Unit power=\"-1\">\n          <Name>mm</Name>\n        </Unit>\n"
                                "        <Unit power=\"-1\">\n          <Name>K</Name>\n        </Unit>\n"));
    EXPECT_THAT(deckOf(*vxtest::creeping(), "mm-t-s").text,
                HasSubstr("<Units name=\"1/(MPa^5 s)\">\n"
                          "        <Unit power=\"-5\">\n          <Name>MPa</Name>\n        </Unit>\n"
                          "        <Unit power=\"-1\">\n          <Name>s</Name>\n        </Unit>\n"));
}

TEST(MatmlDeck, HasAHardeningCurveAsValuesWithAParameter)
{
    const Deck deck = deckOf(*vxtest::multilinear());
    EXPECT_THAT(deck.text, HasSubstr("      <PropertyData property=\"PYStress\">\n"
                                     "        <Data format=\"float\">2.5e+08,3e+08</Data>\n"
                                     "        <ParameterValue parameter=\"PStrain_parameter\" format=\"float\">\n"
                                     "          <Data>0,0.05</Data>\n"
                                     "        </ParameterValue>\n"
                                     "      </PropertyData>\n"));
    EXPECT_THAT(deck.text, HasSubstr("<ParameterDetails id=\"PStrain_parameter\">\n      <Name>Plastic strain</Name>\n"
                                     "      <Unitless />\n"));
    EXPECT_THAT(deck.text, Not(HasSubstr("property=\"PStrain\"")));
    EXPECT_EQ(vxtest::outcomeOf(deck, Id::PlasticStrain), "converted: as a parameter of the yield stress");
    auto uneven = vxtest::multilinear();
    uneven->list(Id::PlasticStrain, {0.0});
    EXPECT_THAT(deckOf(*uneven).text, HasSubstr("<PropertyData property=\"PStrain\">\n"
                                                "        <Data format=\"float\">0</Data>\n"));
}

TEST(MatmlDeck, HasWordsAndSwitchesAsTexts)
{
    const std::string text = deckOf(*vxtest::bilinear()).text;
    EXPECT_THAT(text, HasSubstr("<PropertyData property=\"PYield\">\n        <Data format=\"string\">Mises</Data>\n"));
    EXPECT_THAT(text, HasSubstr("<PropertyData property=\"Plasticity\">\n        <Data format=\"string\">on</Data>\n"));
}

TEST(MatmlDeck, DeclaresAFactorOfCreepForEachUnit)
{
    const auto one = vxtest::creeping();
    auto other = vxtest::creeping();
    other->number(Id::CreepModulusN, 4.5);
    const Deck deck =
        vxDecks::writeDeck(Format::Matml, {{"A", 1, &one->get()}, {"B", 2, &other->get()}, {"C", 3, &one->get()}}, {});
    EXPECT_THAT(deck.text, HasSubstr("<PropertyDetails id=\"CreepA\">"));
    EXPECT_THAT(deck.text, HasSubstr("<PropertyDetails id=\"CreepA_2\">"));
    EXPECT_THAT(deck.text, Not(HasSubstr("<PropertyDetails id=\"CreepA_3\">")));
    EXPECT_EQ(judge(deck.text), "");
    vxtest::MaterialMaker factor;
    factor.number(Id::CreepModulusA, 1e-10);
    EXPECT_EQ(vxtest::outcomeOf(deckOf(factor), Id::CreepModulusA),
              "lost: the unit of the factor depends on both exponents, of which one is missing");
}

TEST(MatmlDeck, IsValidForTheLibraryInEveryUnitSystem)
{
    std::vector<vxDecks::DeckMaterial> all;
    for (const vxMat::MaterialBase* const material : vxtest::libraryMaterials())
        all.push_back({material->name, std::nullopt, material});
    for (const vxUnits::UnitSystem& system : vxUnits::UnitSystem::builtIn()) {
        const Deck deck = vxDecks::writeDeck(Format::Matml, all, {system, std::nullopt});
        EXPECT_EQ(judge(deck.text), "") << system.text();
        EXPECT_EQ(vxDecks::countRefused(deck.report), 0U);
        for (const vxDecks::MaterialReport& material : deck.report.materials) {
            for (const vxDecks::ReportRow& row : material.rows)
                EXPECT_NE(row.outcome, vxDecks::Outcome::Lost) << material.name << ": " << row.name;
        }
    }
}

TEST(MatmlDeck, IsValidForNamesWithControlCharacters)
{
    vxtest::MaterialMaker material;
    material.number(Id::Density, 1.0).word(Id::PlasticYieldType, "\x1b[31m]]>");
    const Deck deck = deckOf(material, "SI", "a\x01\n\tb \xE9\x92\xA2");
    EXPECT_EQ(judge(deck.text), "");
    EXPECT_THAT(deck.text, HasSubstr("<Name>a   b \xE9\x92\xA2</Name>"));
}

TEST(MatmlDeck, IsJudgedByAReaderThatRefusesAnotherOrder)
{
    std::string text = deckOf(*vxtest::steel()).text;
    text.replace(text.find("property=\"rho\""), 14, "property=\"rhu\"");
    EXPECT_THAT(judge(text), HasSubstr("rhu")) << "the property is not declared";
}

} // namespace

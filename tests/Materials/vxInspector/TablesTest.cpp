// The tables of the inspector without its widgets.

#include "InspectorTesting.h"

#include "cards/CardTable.h"
#include "compare/CompareTable.h"
#include "findings/FindingTable.h"
#include "table/TextPieces.h"
#include "values/RangeBar.h"
#include "values/ValueTable.h"
#include "vxMaterial/model/MaterialLibrary.h"
#include "vxMaterial/model/PropertyCatalogue.h"

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using vxInspector::Cell;
using vxInspector::InspectedMaterial;
using vxInspector::TableContent;
using vxtest::rowOf;
using vxtest::textsOf;
using vxUnits::UnitSystem;
using Id = vxMat::PropertyId;

constexpr double infinity = std::numeric_limits<double>::infinity();

template <class Library>
InspectedMaterial inspected(const char* label)
{
    InspectedMaterial result;
    result.projectId = 1;
    result.objectId = 7;
    result.label = QString::fromUtf8(label);
    result.material = std::make_unique<vxMat::CMaterial>();
    result.material->copyPropertiesFrom(Library());
    result.values = vxUnits::MaterialValues(*result.material);
    return result;
}

void setNumber(InspectedMaterial& material, std::int32_t id, double number)
{
    material.material->properties.at(id)->value = number;
    material.values = vxUnits::MaterialValues(*material.material);
}

UnitSystem system(const char* name)
{
    return *UnitSystem::parse(name);
}

MatGui::SheetRow sheetRow(std::int32_t id, const char* value)
{
    const vxMat::PropertyRecord& record = *vxMat::findPropertyRecord(id);
    return {id, QString::fromUtf8(record.name), QString::fromUtf8(value), {}, QString::fromUtf8(record.key), {}};
}

InspectedMaterial readRows(const std::vector<MatGui::SheetRow>& rows)
{
    InspectedMaterial result;
    result.material = std::make_unique<vxMat::CMaterial>();
    vxInspector::readRows(rows, result);
    result.values = vxUnits::MaterialValues(*result.material);
    return result;
}

std::vector<std::string> piecesOf(const char* text)
{
    std::vector<std::string> pieces;
    for (const QString& piece : vxInspector::textPieces(QString::fromUtf8(text)))
        pieces.push_back(piece.trimmed().toStdString());
    return pieces;
}

TEST(ValueTable, HasTheValuesOfAMaterialWithTheirUnits)
{
    const TableContent table = valueTable(inspected<vxMat::StructuralSteel>("Frame"), UnitSystem::si());
    EXPECT_THAT(textsOf(table, rowOf(table, "Density")),
                ElementsAre("Density", "7850", "kg/m^3", "within the known range"));
    EXPECT_THAT(textsOf(table, rowOf(table, "Young's modulus")),
                ElementsAre("Young's modulus", "2e+11", "Pa", "within the known range"));
    EXPECT_THAT(table.sentence.toStdString(), HasSubstr("Frame"));
}

TEST(ValueTable, ConvertsToAnotherUnitSystem)
{
    const TableContent table = valueTable(inspected<vxMat::StructuralSteel>("Frame"), system("mm-t-s"));
    EXPECT_THAT(textsOf(table, rowOf(table, "Density")),
                ElementsAre("Density", "7.85e-09", "t/mm^3", "within the known range"));
    EXPECT_THAT(textsOf(table, rowOf(table, "Young's modulus")),
                ElementsAre("Young's modulus", "200000", "MPa", "within the known range"));
}

TEST(ValueTable, MarksDerivedValuesAndHasTheirFormulas)
{
    const TableContent table = valueTable(inspected<vxMat::StructuralSteel>("Frame"), UnitSystem::si());
    const std::size_t row = rowOf(table, "Shear modulus (derived)");
    // 2e11 / (2 * 1.3)
    EXPECT_THAT(textsOf(table, row), ElementsAre("Shear modulus (derived)", "7.6923e+10", "Pa", ""));
    EXPECT_THAT(table.rows[row].cells[0].toolTip.toStdString(), HasSubstr("E / (2 (1 + nu))"));
    EXPECT_FALSE(table.rows[row].place.isSet());
}

TEST(ValueTable, ShowsNumbersThatAreNotFiniteAndNoBarForThem)
{
    InspectedMaterial material = inspected<vxMat::StructuralSteel>("Frame");
    setNumber(material, Id::Density, std::nan(""));
    setNumber(material, Id::YoungsModulus, infinity);
    const TableContent table = valueTable(material, system("mm-t-s"));
    EXPECT_THAT(textsOf(table, rowOf(table, "Density")), ElementsAre("Density", "nan", "t/mm^3", ""));
    EXPECT_THAT(textsOf(table, rowOf(table, "Young's modulus")), ElementsAre("Young's modulus", "inf", "MPa", ""));
}

TEST(ValueTable, LeavesACreepFactorAsItIsIfItsUnitIsUnknown)
{
    InspectedMaterial material = inspected<vxMat::CreepMaterial1>("Lead");
    material.material->properties.erase(Id::CreepModulusN);
    material.values = vxUnits::MaterialValues(*material.material);
    const TableContent table = valueTable(material, system("mm-t-s"));
    const std::size_t row = rowOf(table, "Creep Modulus A");
    EXPECT_EQ(table.rows[row].cells[vxInspector::ValueColumn::Unit].text, "");
    EXPECT_NE(table.rows[row].cells[vxInspector::ValueColumn::Value].toolTip, "");
}

TEST(ValueTable, ShowsTheBeginningOfALongListAndCopiesAllOfIt)
{
    InspectedMaterial material = inspected<vxMat::PlasticMaterial1>("Frame");
    material.material->properties.at(Id::PlasticYieldStress)->values.assign(20000, 2.5e8);
    const TableContent table = valueTable(material, UnitSystem::si());
    const auto& cell = table.rows[rowOf(table, vxMat::findPropertyRecord(Id::PlasticYieldStress)->name)].cells[1];
    EXPECT_LT(cell.text.size(), 200);
    EXPECT_EQ(cell.copied().count(QStringLiteral("2.5e+08")), 20000);
}

TEST(ValueTable, KeepsTheRowOfAValueThatCannotBeReadInItsPlace)
{
    const InspectedMaterial material =
        readRows({sheetRow(Id::Density, "7,85 g/cm^3"), sheetRow(Id::YoungsModulus, "2e11"),
                  sheetRow(Id::PoissonsRatio, "0.3")});
    const TableContent table = valueTable(material, UnitSystem::si());
    EXPECT_EQ(textsOf(table, 0)[0], "Density");
    EXPECT_EQ(textsOf(table, 1)[0], "Young's modulus");
}

TEST(ValueTable, ShowsEightDigitsOfANumberAndTellsAndCopiesAll)
{
    InspectedMaterial material = inspected<vxMat::StructuralSteel>("Frame");
    // 30e6 psi; 17 digits
    setNumber(material, Id::YoungsModulus, 206842718795.05084);
    const auto cellOf = [&material](const UnitSystem& shown) {
        const TableContent table = valueTable(material, shown);
        return table.rows[rowOf(table, "Young's modulus")].cells[vxInspector::ValueColumn::Value];
    };
    const Cell si = cellOf(UnitSystem::si());
    EXPECT_EQ(si.text, "2.0684272e+11");
    EXPECT_EQ(si.copied(), "206842718795.05084");
    EXPECT_EQ(si.toolTip, "206842718795.05084 Pa");
    const Cell metric = cellOf(system("mm-t-s"));
    EXPECT_EQ(metric.text, "206842.72");
    EXPECT_EQ(metric.copied(), "206842.718795051") << "conversions are exact to 15 digits";
    EXPECT_EQ(cellOf(system("in-lbf-s")).text, "3e+07");
}

TEST(ValueTable, WritesNumbersUpToAMillionWithoutAnExponent)
{
    InspectedMaterial material = inspected<vxMat::StructuralSteel>("Frame");
    const auto textOf = [&material](double number) {
        setNumber(material, Id::YoungsModulus, number);
        const TableContent table = valueTable(material, UnitSystem::si());
        return table.rows[rowOf(table, "Young's modulus")].cells[vxInspector::ValueColumn::Value].text.toStdString();
    };
    EXPECT_EQ(textOf(2e5), "200000");
    EXPECT_EQ(textOf(-1.2e6), "-1200000");
    EXPECT_EQ(textOf(2e7), "2e+07");
    EXPECT_EQ(textOf(2e-7), "2e-07");
}

TEST(ValueTable, DerivesNothingFromNumbersThatAreNotFinite)
{
    InspectedMaterial material = inspected<vxMat::StructuralSteel>("Frame");
    setNumber(material, Id::Density, infinity);
    const TableContent table = valueTable(material, UnitSystem::si());
    for (std::size_t row = 0; row < table.rows.size(); ++row)
        EXPECT_NE(textsOf(table, row)[0], "Thermal diffusivity (derived)");
}

TEST(ValueTable, NamesTheOhmInTheUnitOfTheResistivity)
{
    const TableContent table = valueTable(inspected<vxMat::EMMaterial1>("Wire"), UnitSystem::si());
    EXPECT_EQ(textsOf(table, rowOf(table, "Electrical resistivity (derived)"))[2], "Ohm m");
}

TEST(ValueTable, SaysThatASwitchWithTheNumber0IsOn)
{
    InspectedMaterial material = inspected<vxMat::StructuralSteel>("Frame");
    const auto toolTip = [&material] {
        const TableContent table = valueTable(material, UnitSystem::si());
        return table.rows[rowOf(table, "Isotropic elasticity")].cells[1].toolTip.toStdString();
    };
    EXPECT_EQ(toolTip(), "");
    setNumber(material, Id::IsotropicElasticity, 0.0);
    EXPECT_THAT(toolTip(), HasSubstr("whatever its number"));
}

TEST(EditorRows, AreReadAsApplyReadsThemAndWithUnits)
{
    const InspectedMaterial material =
        readRows({sheetRow(Id::Density, "7.85 g/cm^3"), sheetRow(Id::YoungsModulus, "2e11"),
                  sheetRow(Id::PlasticYieldStress, "250, 300 MPa")});
    EXPECT_EQ(material.values.number(Id::Density), 7850.0);
    EXPECT_EQ(material.values.number(Id::YoungsModulus), 2e11);
    EXPECT_THAT(material.values.list(Id::PlasticYieldStress), ElementsAre(2.5e8, 3e8));
    EXPECT_TRUE(material.unreadRows.empty());
}

TEST(EditorRows, ThatCannotBeReadAreNamedWithTheReason)
{
    const InspectedMaterial material =
        readRows({sheetRow(Id::YoungsModulus, "2e11"), sheetRow(Id::Density, "7,85 g/cm^3")});
    EXPECT_FALSE(material.values.has(Id::Density));
    ASSERT_EQ(material.unreadRows.size(), 1U);
    EXPECT_EQ(material.unreadRows.front().number, 2);
    const TableContent values = valueTable(material, UnitSystem::si());
    EXPECT_THAT(textsOf(values, rowOf(values, "Density"))[3], HasSubstr("cannot be read: "));
    std::vector<InspectedMaterial> all(1);
    all.front() = readRows({sheetRow(Id::Density, "7,85 g/cm^3")});
    const TableContent findings = findingTable(all, UnitSystem::si());
    EXPECT_THAT(textsOf(findings, 0)[vxInspector::FindingColumn::Finding],
                HasSubstr(R"(Row 1: The value "7,85 g/cm^3" of "Density" cannot be read: )"));
}

TEST(TextPieces, AreTheWordsNumbersAndUnitsOfATextWithBlanks)
{
    EXPECT_THAT(piecesOf("Density = 7.85e-09 t/mm^3, 2.069e+11 W/(m K)"),
                ElementsAre("Density", "=", "7.85e-09", "t/mm^3,", "2.069e+11", "W/(m", "K)"));
}

TEST(TextPieces, AreSingleCharactersOfTextsWithoutBlanks)
{
    EXPECT_THAT(piecesOf("\u70ed\u6269\u6563\u738711.569m^2/s"),
                ElementsAre("\u70ed", "\u6269", "\u6563", "\u7387", "11.569m^2/s"));
}

TEST(TextPieces, EndAtHyphensBetweenWords)
{
    EXPECT_THAT(piecesOf("DRUCKER-PRAGER mm-t-s 1e-10"), ElementsAre("DRUCKER-", "PRAGER", "mm-t-s", "1e-10"));
}

TEST(TextPieces, KeepNumbersWholeAndBreakOtherTextsThatAreTooWide)
{
    const QFontMetricsF font{QFont()};
    const QString shown = vxInspector::breakable(QStringLiteral("11.569 abcdefghij"), font, 5.0);
    EXPECT_TRUE(shown.startsWith(QStringLiteral("11.569 a") + QChar(0x200b) + QLatin1Char('b')));
}

TEST(TextPieces, DoNotEndInsideAUnit)
{
    const auto wholeUnits = [](const char* text) {
        const std::string whole = vxInspector::withWholeUnits(QString::fromUtf8(text)).toStdString();
        return piecesOf(whole.c_str());
    };
    EXPECT_THAT(wholeUnits("is 1 W/(m K) here"), ElementsAre("is", "1", "W/\u2060(m\u00a0K)", "here"));
    EXPECT_THAT(wholeUnits("steel/(a text in parentheses, no unit)"), testing::SizeIs(6));
    EXPECT_THAT(wholeUnits("5 m/s"), ElementsAre("5", "m/\u2060s"));
    EXPECT_THAT(wholeUnits("open /(m K"), ElementsAre("open", "/(m", "K"));
}

TEST(RangeBar, IsLogarithmicIfTheRangeSpansDecades)
{
    const auto bar = vxInspector::rangeBar(*vxUnits::findQuantity(Id::YoungsModulus), {2e11});
    ASSERT_TRUE(bar);
    EXPECT_TRUE(bar->isLogarithmic);
    ASSERT_EQ(bar->marks.size(), 1U);
    EXPECT_NEAR(bar->marks.front().position, 0.9291, 0.0005); // ln(2e11 / 10) / ln(1.22e12 / 10)
}

TEST(RangeBar, IsLinearOtherwise)
{
    const auto bar = vxInspector::rangeBar(*vxUnits::findQuantity(Id::PoissonsRatio), {0.3});
    ASSERT_TRUE(bar);
    EXPECT_FALSE(bar->isLogarithmic);
    EXPECT_NEAR(bar->marks.front().position, 0.83337, 0.0001); // (0.3 + 0.7) / (0.49995 + 0.7)
}

TEST(RangeBar, IsLogarithmicFromTheSmallestPositiveEndIfTheRangeBeginsWithZero)
{
    using Side = vxInspector::RangeBar::Side;
    const auto at = [](std::int32_t id, double value) {
        const auto bar = vxInspector::rangeBar(*vxUnits::findQuantity(id), {value});
        return bar && bar->isLogarithmic ? bar->marks.front().position : -1.0;
    };
    EXPECT_NEAR(at(Id::ElectricalConductivity, 4e6), 0.9029, 0.0001);   // lg(4e6 / 1e-25) / 35
    EXPECT_NEAR(at(Id::ElectricalConductivity, 1e-20), 0.1429, 0.0001); // 5 / 35
    EXPECT_NEAR(at(Id::RelativePermeability, 1000.0), 0.5001, 0.0002);  // lg(1000 / 0.999) / lg(1e6 / 0.999)
    EXPECT_NEAR(at(Id::PlasticHardeningFactor, 1e9), 0.6667, 0.0001);   // the last 6 decades below 1e11: 4 / 6
    const auto insulator = vxInspector::rangeBar(*vxUnits::findQuantity(Id::ElectricalConductivity), {0.0});
    ASSERT_TRUE(insulator);
    EXPECT_EQ(insulator->marks.front().position, 0.0);
    EXPECT_EQ(insulator->marks.front().side, Side::Inside);
    EXPECT_THAT(
        vxInspector::rangeToolTip(*vxUnits::findQuantity(Id::ElectricalConductivity), UnitSystem::si()).toStdString(),
        HasSubstr("The scale is logarithmic; 0 is at its left end."));
    const auto share = vxInspector::rangeBar(*vxUnits::findQuantity(Id::ShearRelaxationModulus), {0.25});
    ASSERT_TRUE(share);
    EXPECT_EQ(share->marks.front().position, 0.25);
}

TEST(RangeBar, ShowsValuesBeyondTheRangeAtItsEnds)
{
    using Side = vxInspector::RangeBar::Side;
    const auto bar = vxInspector::rangeBar(*vxUnits::findQuantity(Id::PlasticYieldStress), {1.0, 1e12});
    ASSERT_TRUE(bar);
    ASSERT_EQ(bar->marks.size(), 2U);
    EXPECT_EQ(bar->marks[0].side, Side::Below);
    EXPECT_EQ(bar->marks[0].position, 0.0);
    EXPECT_EQ(bar->marks[1].side, Side::Above);
    EXPECT_EQ(bar->marks[1].position, 1.0);
    EXPECT_EQ(vxInspector::rangeText(*bar), "beyond the known range");
}

TEST(RangeBar, NamesTheExtremesAndTheSource)
{
    const std::string tip =
        vxInspector::rangeToolTip(*vxUnits::findQuantity(Id::Density), UnitSystem::si()).toStdString();
    EXPECT_THAT(tip, HasSubstr("Solids: 0.16 kg/m^3 (graphene aerogel) to 22600 kg/m^3 (osmium)"));
    EXPECT_THAT(tip, HasSubstr("Gases: 0.08 kg/m^3 (hydrogen) to 13 kg/m^3 (tungsten hexafluoride)"));
    EXPECT_THAT(tip, HasSubstr("Source: CRC Handbook"));
}

TEST(FindingTable, HasErrorsAndDoubtsWithTheirRowsAndRemedies)
{
    std::vector<InspectedMaterial> all;
    all.push_back(inspected<vxMat::StructuralSteel>("Frame"));
    setNumber(all.back(), Id::PoissonsRatio, 0.7);
    all.push_back(inspected<vxMat::StructuralSteel>("Soft"));
    setNumber(all.back(), Id::YoungsModulus, 206900.0);
    const TableContent table = findingTable(all, UnitSystem::si());
    const auto& error = table.rows[rowOf(table, "Error")];
    EXPECT_EQ(error.place.propertyId, Id::PoissonsRatio);
    EXPECT_EQ(error.place.objectId, 7U);
    const auto& doubt = table.rows[rowOf(table, "Soft", vxInspector::FindingColumn::Material)];
    EXPECT_EQ(doubt.cells[vxInspector::FindingColumn::Kind].text, "Doubt");
    EXPECT_EQ(doubt.place.propertyId, Id::YoungsModulus);
    ASSERT_TRUE(doubt.remedy);
    EXPECT_EQ(doubt.remedy->changes.front().apply(206900.0), 2.069e11);
    EXPECT_NE(doubt.cells[vxInspector::FindingColumn::Remedy].text, "");
}

TEST(FindingTable, SaysWhatARemedyChanges)
{
    std::vector<InspectedMaterial> all;
    all.push_back(inspected<vxMat::StructuralSteel>("Soft"));
    setNumber(all.back(), Id::YoungsModulus, 206900.0);
    const TableContent table = findingTable(all, UnitSystem::si());
    EXPECT_EQ(table.rows[rowOf(table, "Doubt")].cells[vxInspector::FindingColumn::Remedy].toolTip,
              "Young's modulus: 206900 becomes 2.069e+11 Pa");
}

TEST(FindingTable, HasItsNumbersInTheUnitSystem)
{
    std::vector<InspectedMaterial> all;
    all.push_back(inspected<vxMat::StructuralSteel>("Soft"));
    setNumber(all.back(), Id::YoungsModulus, 206900.0);
    const TableContent table = findingTable(all, system("mm-t-s"));
    const auto& doubt = table.rows[rowOf(table, "Doubt")];
    EXPECT_THAT(doubt.cells[vxInspector::FindingColumn::Finding].text.toStdString(),
                HasSubstr("Young's modulus = 0.2069 MPa with Density = 7.85e-09 t/mm^3"));
    EXPECT_EQ(doubt.cells[vxInspector::FindingColumn::Remedy].toolTip, "Young's modulus: 0.2069 becomes 206900 MPa");
}

TEST(FindingTable, OmitsWhatARemedyDoesNotChange)
{
    std::vector<InspectedMaterial> all;
    all.push_back(inspected<vxMat::StructuralSteel>("Sheet"));
    // The number of a thermal conductivity is the same in mm-t-s and SI.
    vxUnits::convertMaterial(*all.back().material, UnitSystem::si(), system("mm-t-s"));
    all.back().values = vxUnits::MaterialValues(*all.back().material);
    const TableContent table = findingTable(all, UnitSystem::si());
    const auto& remedy = table.rows[rowOf(table, "Doubt")].cells[vxInspector::FindingColumn::Remedy];
    EXPECT_THAT(remedy.text.toStdString(), HasSubstr("mm-t-s"));
    EXPECT_THAT(remedy.toolTip.toStdString(), HasSubstr("Density: 7.85e-09 becomes 7850 kg/m^3"));
    EXPECT_THAT(remedy.toolTip.toStdString(), testing::Not(HasSubstr("Thermal conductivity")));
}

TEST(FindingTable, GivesTheDoubtedRowsOfTheValuesASign)
{
    std::vector<InspectedMaterial> all;
    all.push_back(inspected<vxMat::StructuralSteel>("Soft"));
    setNumber(all.back(), Id::YoungsModulus, 206900.0);
    TableContent values = valueTable(all.back(), UnitSystem::si());
    markFindings(findingTable(all, UnitSystem::si()), values);
    const auto& modulus = values.rows[rowOf(values, "Young's modulus")].cells[0];
    EXPECT_TRUE(modulus.hasSign);
    EXPECT_THAT(modulus.toolTip.toStdString(), HasSubstr("gives a wave speed of"));
    EXPECT_EQ(modulus.copied(), "Young's modulus");
    EXPECT_FALSE(values.rows[rowOf(values, "Density")].cells[0].hasSign);
}

TEST(FindingTable, DoesNotCallAValueMissingThatCannotBeRead)
{
    std::vector<InspectedMaterial> all(1);
    all.front() = readRows({sheetRow(Id::IsotropicElasticity, "1"), sheetRow(Id::YoungsModulus, "2e11"),
                            sheetRow(Id::PoissonsRatio, "0.3 x")});
    const TableContent table = findingTable(all, UnitSystem::si());
    ASSERT_EQ(table.rows.size(), 1U);
    EXPECT_THAT(textsOf(table, 0)[vxInspector::FindingColumn::Finding], HasSubstr("cannot be read"));
}

TEST(EditorRows, OfACreepLawNameTheExponentThatCannotBeRead)
{
    const InspectedMaterial material = readRows({sheetRow(Id::CreepModulusA, "1e-10 MPa^-4.5 s^-1"),
                                                 sheetRow(Id::CreepModulusN, "4,5"), sheetRow(Id::CreepModulusM, "0")});
    ASSERT_EQ(material.unreadRows.size(), 2U);
    EXPECT_EQ(material.unreadRows[0].id, Id::CreepModulusA);
    EXPECT_EQ(material.unreadRows[0].reason,
              "The unit of Creep Modulus A depends on Creep Modulus N, which cannot be read; correct it first.");
}

TEST(FindingTable, SaysOnceThatANumberIsNotFinite)
{
    std::vector<InspectedMaterial> all;
    all.push_back(inspected<vxMat::StructuralSteel>("Frame"));
    setNumber(all.back(), Id::Density, infinity);
    const TableContent table = findingTable(all, UnitSystem::si());
    ASSERT_EQ(table.rows.size(), 1U);
    EXPECT_EQ(textsOf(table, 0)[0], "Error");
}

/// Returns a Neo-Hookean rubber whose C10 and Mu contradict each other, with numbers in SI.
InspectedMaterial doubtfulRubber()
{
    InspectedMaterial rubber;
    rubber.objectId = 7;
    rubber.label = QStringLiteral("Seal");
    rubber.material = std::make_unique<vxMat::CMaterial>();
    for (const auto& [id, number] : std::map<std::int32_t, double>{{Id::Density, 1100.0},
                                                                   {Id::NeoHooke, 1.0},
                                                                   {Id::MaterialConstantC10, 5e5},
                                                                   {Id::InitialShearModulusMu, 3e6},
                                                                   {Id::IncompressibilityParameterD1, 1e-9}})
        rubber.material->setProperty(id, std::make_unique<vxMat::MaterialProperty>(id, "", "", number));
    rubber.values = vxUnits::MaterialValues(*rubber.material);
    return rubber;
}

TEST(FindingTable, HasTheDoubtsAboutModelsInTheUnitSystemWithTheirRows)
{
    std::vector<InspectedMaterial> all;
    all.push_back(doubtfulRubber());
    const TableContent table = findingTable(all, system("mm-t-s"));
    ASSERT_EQ(table.rows.size(), 1U) << table.sentence.toStdString();
    EXPECT_EQ(textsOf(table, 0)[0], "Doubt");
    EXPECT_EQ(textsOf(table, 0)[1],
              "C10 is 0.5 MPa, but half of Mu is 1.5 MPa. The curve uses C10. Remove one of the two constants.");
    EXPECT_EQ(table.rows[0].place.propertyId, Id::MaterialConstantC10);
    EXPECT_EQ(table.sentence, "Findings: 1.");
}

TEST(FindingTable, ExaminesTheModelsOfTheFirstMaterialsOnly)
{
    std::vector<InspectedMaterial> all(vxInspector::mostExamined + 1);
    for (InspectedMaterial& one : all)
        one = doubtfulRubber();
    const TableContent table = findingTable(all, UnitSystem::si());
    EXPECT_EQ(table.rows.size(), vxInspector::mostExamined);
    EXPECT_EQ(table.sentence, "Findings: 10. Only the models of the first 10 materials are examined.");
}

TEST(FindingTable, HasTheFirstUnstableStretchOfEachTest)
{
    std::vector<InspectedMaterial> all;
    all.push_back(inspected<vxMat::Elastomer1>("Pad"));
    const TableContent table = findingTable(all, UnitSystem::si());
    const auto isUnstable = [](const vxInspector::Row& row) {
        return row.place.propertyId == Id::IncompressibilityParameterD1 &&
               row.cells[vxInspector::FindingColumn::Finding].copied().contains(
                   QStringLiteral("the material is unstable below the stretch "));
    };
    EXPECT_EQ(std::count_if(table.rows.begin(), table.rows.end(), isUnstable), 3);
}

TEST(FindingTable, SaysThatNothingIsFound)
{
    std::vector<InspectedMaterial> all;
    all.push_back(inspected<vxMat::StructuralSteel>("Frame"));
    const TableContent table = findingTable(all, UnitSystem::si());
    EXPECT_TRUE(table.rows.empty());
    EXPECT_EQ(table.sentence, "Nothing is found.");
}

TEST(FindingTable, CountsTheFindingsThatItDoesNotList)
{
    std::vector<InspectedMaterial> all(vxInspector::mostFindings + 5);
    for (InspectedMaterial& empty : all)
        empty.material = std::make_unique<vxMat::CMaterial>(); // a material without properties is one error
    const TableContent table = findingTable(all, UnitSystem::si());
    EXPECT_EQ(table.rows.size(), vxInspector::mostFindings);
    EXPECT_THAT(table.sentence.toStdString(), HasSubstr("Findings: 1005."));
    EXPECT_THAT(table.sentence.toStdString(), HasSubstr("The last 5 are not listed."));
}

TEST(CardTable, HasTheCardsOfTheSolver)
{
    const TableContent table = cardTable(inspected<vxMat::StructuralSteel>("Frame"));
    EXPECT_THAT(textsOf(table, rowOf(table, "elasticity"))[1], HasSubstr("200000000000.000000, 0.300000"));
}

TEST(CardTable, SaysFirstWhatIsMissing)
{
    InspectedMaterial material = inspected<vxMat::StructuralSteel>("Frame");
    material.material->properties.erase(Id::PoissonsRatio);
    const TableContent table = cardTable(material);
    EXPECT_EQ(textsOf(table, 0)[0], "Missing");
    EXPECT_THAT(textsOf(table, 0)[1], HasSubstr("Invalid young_modulus or poisson_ratio"));
}

/// Translates every text to the text in brackets.
class Brackets : public QTranslator
{
public:
    QString translate(const char* /*context*/, const char* text, const char* /*comment*/, int /*n*/) const override
    {
        return QStringLiteral("[%1]").arg(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }
};

TEST(CardTable, SaysWhatIsMissingInTheLanguageOfTheUser)
{
    InspectedMaterial material = inspected<vxMat::StructuralSteel>("Frame");
    material.material->properties.erase(Id::PoissonsRatio);
    EXPECT_EQ(textsOf(cardTable(material), 0)[1],
              "The elasticity card lacks a value: \"Invalid young_modulus or poisson_ratio.\"");
    setNumber(material, Id::Density, infinity);
    Brackets translator;
    QCoreApplication::installTranslator(&translator);
    const TableContent table = cardTable(material);
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(textsOf(table, 0)[1],
              "[the [elasticity] card lacks a value: \"Invalid young_modulus or poisson_ratio.\"]");
    EXPECT_EQ(textsOf(table, 1)[1], "[\"[Density]\" has a number that is not finite, which no solver reads]");
}

TEST(CardTable, SaysThatNoCardApplies)
{
    InspectedMaterial material;
    material.material = std::make_unique<vxMat::CMaterial>();
    const TableContent table = cardTable(material);
    EXPECT_TRUE(table.rows.empty());
    EXPECT_THAT(table.sentence.toStdString(), HasSubstr("No card applies to it."));
}

std::vector<InspectedMaterial> steelAndAluminium()
{
    std::vector<InspectedMaterial> both;
    both.push_back(inspected<vxMat::StructuralSteel>("Frame"));
    both.push_back(inspected<vxMat::AluminumAlloy>("Skin"));
    return both;
}

TEST(CompareTable, HasTheMaterialsSideBySideAndMarksDifferences)
{
    const TableContent table = compareTable(steelAndAluminium(), UnitSystem::si());
    EXPECT_EQ(table.headers.mid(3).join(QLatin1Char('|')), "Frame|Skin");
    const std::size_t row = rowOf(table, "Density");
    EXPECT_EQ(textsOf(table, row)[2], "\u2260");
    EXPECT_EQ(textsOf(table, row)[3], "7850");
    EXPECT_FALSE(table.rows[row].cells[3].isBold);
    EXPECT_TRUE(table.rows[row].cells[4].isBold);
}

TEST(CompareTable, MarksADifferenceThatRoundingHides)
{
    std::vector<InspectedMaterial> both;
    both.push_back(inspected<vxMat::StructuralSteel>("one"));
    both.push_back(inspected<vxMat::StructuralSteel>("other"));
    EXPECT_EQ(compareTable(both, system("in-lbf-s")).sentence, "The materials have the same values.");
    setNumber(both[1], Id::Density, std::nextafter(7850.0, 8000.0));
    const TableContent table = compareTable(both, system("in-lbf-s"));
    const std::size_t row = rowOf(table, "Density");
    EXPECT_EQ(textsOf(table, row)[3], textsOf(table, row)[4]);
    EXPECT_EQ(textsOf(table, row)[2], "\u2260");
}

TEST(CompareTable, TakesSwitchesThatAreOnAsEqualWhateverTheirNumbers)
{
    std::vector<InspectedMaterial> both;
    both.push_back(inspected<vxMat::StructuralSteel>("applied"));
    both.push_back(inspected<vxMat::StructuralSteel>("with unapplied rows"));
    both[0].material->properties.at(Id::IsotropicElasticity)->value = std::numeric_limits<double>::max();
    both[1].material->properties.at(Id::IsotropicElasticity)->value = 1.0;
    const TableContent table = compareTable(both, UnitSystem::si());
    EXPECT_EQ(table.sentence, "The materials have the same values.");
    EXPECT_EQ(textsOf(table, rowOf(table, "Isotropic elasticity"))[2], "");
}

TEST(CompareTable, NamesTheMaterialsThatAreSuppressedOrHaveUnappliedChanges)
{
    std::vector<InspectedMaterial> both = steelAndAluminium();
    both[0].hasUnappliedRows = true;
    both[1].isSuppressed = true;
    const std::string sentence = compareTable(both, UnitSystem::si()).sentence.toStdString();
    EXPECT_THAT(sentence, HasSubstr("With changes that are not applied: Frame."));
    EXPECT_THAT(sentence, HasSubstr("Suppressed: Skin."));
}

TEST(CompareTable, HasADashForAMissingQuantity)
{
    std::vector<InspectedMaterial> both = steelAndAluminium();
    both[0].material->properties.erase(Id::Density);
    const TableContent table = compareTable(both, UnitSystem::si());
    const std::size_t row = rowOf(table, "Density");
    EXPECT_EQ(textsOf(table, row)[3], "\u2013");
    EXPECT_EQ(textsOf(table, row)[2], "\u2260");
}

TEST(CompareTable, KeepsTheOrderOfTheCatalogueAndOfDerivedValues)
{
    std::vector<InspectedMaterial> both;
    both.push_back(inspected<vxMat::Water>("Water"));
    both.push_back(inspected<vxMat::StructuralSteel>("Frame"));
    const TableContent table = compareTable(both, UnitSystem::si());
    EXPECT_LT(rowOf(table, "Density"), rowOf(table, "Young's modulus"));
    EXPECT_LT(rowOf(table, "Young's modulus"), rowOf(table, "Shear modulus (derived)"));
    EXPECT_LT(rowOf(table, "Shear modulus (derived)"), rowOf(table, "Thermal diffusivity (derived)"));
}

TableContent hostileTable()
{
    return {{},
            {QStringLiteral("a"), QStringLiteral("b")},
            {{{{QStringLiteral("<b>1</b>\t2\n3")}, {QStringLiteral("x")}}}}};
}

TEST(CopiedTable, HasOneCellForEachCellAsText)
{
    const TableContent table = hostileTable();
    EXPECT_EQ(toTabText(table, wholeOf(table)), "a\tb\n\"<b>1</b>\t2\n3\"\tx");
}

TEST(CopiedTable, KeepsTheLinesOfACard)
{
    const TableContent table{{}, {"Card", "Text"}, {{{{"plasticity"}, {"!PLASTIC\r\n2.5e+08, \"1\""}}}}};
    EXPECT_EQ(toTabText(table, wholeOf(table)), "Card\tText\nplasticity\t\"!PLASTIC\n2.5e+08, \"\"1\"\"\"");
}

TEST(CopiedTable, EscapesTheTextsAsHtml)
{
    const TableContent table = hostileTable();
    EXPECT_THAT(toHtml(table, wholeOf(table)).toStdString(),
                HasSubstr("<td>&lt;b&gt;1&lt;/b&gt;\t2<br>3</td><td>x</td>"));
}

TEST(CopiedTable, MayBeAPart)
{
    const TableContent table = hostileTable();
    EXPECT_EQ(toTabText(table, {{0}, {1}}), "b\nx");
}

} // namespace

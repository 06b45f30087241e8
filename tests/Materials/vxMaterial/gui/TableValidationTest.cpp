#include "CommaLocale.h"
#include "EditorTesting.h"

#include "vxMaterial/gui/SheetTableView.h"

#include <QStandardItemModel>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using MatGui::SheetTableView;

const QString densityText = "Row %1: Mass density must be positive!";
const QString poissonText = "Row %1: Poisson's ratio must be between [0.001, 0.499]!";
const QString yieldText = "Row %1: Yield type must be Mises, Mohr-Coulomb, or Drucker-Prager!";
const QString hardeningText = "Row %1: Hardening type must be Bilinear, Multilinear, Swift,                     "
                              "Ramberg-Osgood, Kinematic, or Combined!";

struct Row
{
    QVariant id;
    QVariant value;
};

/// Returns the message about a table of these rows; empty if it passes.
QString check(const std::vector<Row>& rows)
{
    SheetTableView table;
    auto& model = *qobject_cast<QStandardItemModel*>(table.model());
    for (const Row& row : rows) {
        const int at = model.rowCount();
        model.insertRow(at);
        model.setData(model.index(at, 0), row.id, Qt::DisplayRole);
        model.setData(model.index(at, 2), row.value, Qt::EditRole);
    }
    QString message = "untouched";
    const bool passed = table.validateRows(message);
    EXPECT_EQ(passed, message == "untouched");
    return passed ? QString() : message;
}

QString about(const QString& text, int row)
{
    return QString(text).replace("%1", QString::number(row));
}

TEST(TableValidation, PassesATableWithoutRows)
{
    EXPECT_EQ(check({}), "");
}

TEST(TableValidation, NeedsAPositiveDensity)
{
    for (const char* const text : {"0", "-1", "heavy", "", "0.0", "-1e-300", "nan", "1,5", "7850 kg", "--1"})
        EXPECT_EQ(check({{4, text}}), about(densityText, 1)) << text;
    for (const char* const text : {"1e-9", "7850", " 1 ", "inf", "+2", "5e-324", ".5", "5."})
        EXPECT_EQ(check({{4, text}}), "") << text;
}

TEST(TableValidation, NeedsAPoissonsRatioWithinItsBoundsEndsIncluded)
{
    for (const char* const text : {"0.001", "0.499", "0.3", "3e-1"})
        EXPECT_EQ(check({{6, text}}), "") << text;
    for (const char* const text : {"0.0009", "0.5", "", "0", "-0.3", "nan", "inf", "0,3"})
        EXPECT_EQ(check({{6, text}}), about(poissonText, 1)) << text;
}

TEST(TableValidation, AcceptsTheYieldTypesInAnyCase)
{
    for (const char* const text : {"Mises", "Mohr-Coulomb", "Drucker-Prager", "DRUCKER-PRAGER", "mises"})
        EXPECT_EQ(check({{33, text}}), "") << text;
    for (const char* const text : {"von Mises", " Mises", "Mises ", "", "Tresca", "Bilinear"})
        EXPECT_EQ(check({{33, text}}), about(yieldText, 1)) << text;
}

TEST(TableValidation, AcceptsTheHardeningTypesInAnyCase)
{
    for (const char* const text :
         {"Bilinear", "Multilinear", "Swift", "Ramberg-Osgood", "Kinematic", "Combined", "COMBINED", "sWIFT"})
        EXPECT_EQ(check({{37, text}}), "") << text;
    for (const char* const text : {"Linear", "", "Mises"})
        EXPECT_EQ(check({{37, text}}), about(hardeningText, 1)) << text;
}

TEST(TableValidation, KeepsTheTwentyOneBlanksOfTheHardeningMessage)
{
    EXPECT_EQ(check({{37, ""}}).count(QString("Swift,") + QString(21, ' ') + "Ramberg"), 1);
}

TEST(TableValidation, PassesEveryOtherQuantityUnchecked)
{
    for (const int id : {5, 21, 23, 28, 29, 30, 32, 34, 38, 39, 42, 45, 127, 202, 301, 401, 40, 0, -4, 99999})
        EXPECT_EQ(check({{id, "anything"}}), "") << id;
}

TEST(TableValidation, ReportsTheFirstRowThatFailsAndNoOther)
{
    EXPECT_EQ(check({{6, "0.9"}, {21, "1"}, {4, "0"}}), about(poissonText, 1));
    EXPECT_EQ(check({{21, "1"}, {6, "0.3"}, {4, "0"}, {6, "0.9"}}), about(densityText, 3));
}

TEST(TableValidation, ChecksEachOfTwoRowsOfOneId)
{
    EXPECT_EQ(check({{4, "1"}, {4, "0"}}), about(densityText, 2));
}

TEST(TableValidation, RefusesElasticityWithAHyperelasticModelInEveryTable)
{
    const QString text = "Elasticity and hyper-elasticy cannot be used togeter!";
    for (const int model : {28, 29, 30}) {
        EXPECT_EQ(check({{31, "1"}, {model, "1"}, {5, "1"}, {6, "0.3"}}), text);
        EXPECT_EQ(check({{model, "1"}, {31, "1"}}), text);
    }
    EXPECT_EQ(check({{31, "1"}, {28, "1"}, {4, "0"}}), about(densityText, 3));
}

TEST(TableValidation, NeedsYoungsModulusAndThenPoissonsRatioForElasticity)
{
    EXPECT_EQ(check({{31, "1"}}), "Elasticity does not define Young's modulus!");
    EXPECT_EQ(check({{31, "1"}, {6, "0.3"}}), "Elasticity does not define Young's modulus!");
    EXPECT_EQ(check({{31, "1"}, {5, "1"}}), "Elasticity does not define Poisson's ratio!");
    EXPECT_EQ(check({{6, "0.3"}, {5, "1"}, {31, "1"}}), "");
}

TEST(TableValidation, AsksForNothingMoreWithoutElasticity)
{
    EXPECT_EQ(check({{28, "1"}}), "");
    EXPECT_EQ(check({{5, "1"}, {6, "0.3"}}), "");
    EXPECT_EQ(check({{28, "1"}, {29, "1"}, {5, "1"}}), "");
}

TEST(TableValidation, ReadsIdsAsWholeNumbersAndTextsThatAreNoneAsZero)
{
    EXPECT_EQ(check({{"4", "0"}}), about(densityText, 1));
    EXPECT_EQ(check({{"four", "0"}}), "");
    EXPECT_EQ(check({{"4x", "0"}}), "");
    EXPECT_EQ(check({{"", "0"}}), "");
    EXPECT_EQ(check({{QVariant(), "0"}}), "");
    EXPECT_EQ(check({{4.2, "0"}}), about(densityText, 1));
}

TEST(TableValidation, ChangesNothing)
{
    SheetTableView table;
    auto& model = *qobject_cast<QStandardItemModel*>(table.model());
    model.insertRow(0);
    model.setData(model.index(0, 0), "4");
    model.setData(model.index(0, 2), "bad");
    QString message;
    EXPECT_FALSE(table.validateRows(message));
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.index(0, 2).data().toString(), "bad");
}

// --- Agreement with the reading of texts as numbers ---

/// Expects the results of the rules for the number that QString reads from the text.
void expectAgreement(const QString& text)
{
    const double number = text.toDouble();
    EXPECT_EQ(check({{4, text}}), number > 0.0 ? QString() : about(densityText, 1)) << text.toStdString();
    const bool within = number >= 0.001 && number <= 0.499;
    EXPECT_EQ(check({{6, text}}), within ? QString() : about(poissonText, 1)) << text.toStdString();
}

TEST(TableValidation, ReadsNumbersAsQStringDoes)
{
    const std::vector<const char*> texts{"",
                                         " ",
                                         "0.3",
                                         " 0.3",
                                         "0.3 ",
                                         "\t0.3\n",
                                         "\v0.3",
                                         "\u00a00.3",
                                         "0.3\u2003",
                                         "\u30000.3",
                                         "\u200b0.3",
                                         "0,3",
                                         "1,000",
                                         "0.3e0",
                                         "3e-1",
                                         "3E-1",
                                         "3e",
                                         "3e+",
                                         ".3",
                                         "3.",
                                         ".",
                                         "+",
                                         "-",
                                         "+0.3",
                                         "++0.3",
                                         "-0.3",
                                         "- 0.3",
                                         "0x1p-2",
                                         "0x10",
                                         "inf",
                                         "INF",
                                         "-inf",
                                         "+inf",
                                         "infinity",
                                         "nan",
                                         "NAN",
                                         "-nan",
                                         "nan(1)",
                                         "1e999",
                                         "-1e999",
                                         "1e-999",
                                         "1e-320",
                                         "5e-324",
                                         "2e-324",
                                         "0.4990000000000000001",
                                         "0.49900000000000005",
                                         "0.0010000000000000000001",
                                         "0.3f",
                                         "0.3 kg",
                                         "\u0660.\u0663",
                                         "\uff10.\uff13",
                                         "0\u066b3",
                                         "\u22120.3",
                                         "0.\u0033",
                                         "1e308",
                                         "1.7976931348623159e308",
                                         "000000.3",
                                         "0.3\u0000",
                                         "1 000"};
    for (const char* const text : texts)
        expectAgreement(QString::fromUtf8(text));
    expectAgreement(QString("0.3") + QChar(0));
    expectAgreement(QString(QChar(0)) + "0.3");
}

TEST(TableValidation, ReadsRandomTextsAsQStringDoes)
{
    std::mt19937 random(20240229);
    const QString alphabet = QString::fromUtf8("0011234.3.3eE+-,xinfa \t\u00a0\u0663");
    for (int i = 0; i < 3000; ++i) {
        QString text;
        for (std::size_t length = random() % 7; length > 0; --length)
            text += alphabet[static_cast<int>(random() % static_cast<unsigned>(alphabet.size()))];
        expectAgreement(text);
    }
}

TEST(TableValidation, ReadsNumbersAlikeUnderALocaleWithCommas)
{
    const vxtest::CommaLocale locale;
    EXPECT_EQ(check({{6, "0.3"}}), "");
    EXPECT_EQ(check({{6, "0,3"}}), about(poissonText, 1));
}

// --- Languages ---

TEST(TableValidation, TranslatesTheAllowedWordsFirst)
{
    const vxtest::TestTranslator translator(
        vxtest::Translations{{"vxMat::PropertyValue||Mises", QString::fromUtf8("Ärmel")}});
    EXPECT_EQ(check({{33, QString::fromUtf8("ÄRMEL")}}), "");
    EXPECT_EQ(check({{33, QString::fromUtf8("ärmel")}}), "");
    EXPECT_EQ(check({{33, "Mises"}}), about(yieldText, 1));
    EXPECT_EQ(check({{33, "Mohr-Coulomb"}}), "");
}

TEST(TableValidation, TranslatesItsMessages)
{
    const vxtest::TestTranslator translator(
        vxtest::Translations{{"MatGui::SheetTableView||" + densityText.toStdString(), "Zeile %1: Dichte!"}});
    EXPECT_EQ(check({{21, "1"}, {4, "0"}}), "Zeile 2: Dichte!");
}

} // namespace

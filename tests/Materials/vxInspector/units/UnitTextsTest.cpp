#include "vxInspector/units/UnitTexts.h"

#include "vxMaterial/model/PropertyId.h"
#include "vxUnits/Filter.h"
#include "vxUnits/Plausibility.h"
#include "vxUnits/Reading.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

/// Shows texts in a language while it lives. Only an application can translate.
class Language
{
public:
    explicit Language(const char* language) : m_application(m_count, m_arguments)
    {
        const QString file = QStringLiteral(VX_TRANSLATIONS "/vxMaterial_%1.qm").arg(QLatin1String(language));
        EXPECT_TRUE(m_translator.load(file)) << file.toStdString();
        QCoreApplication::installTranslator(&m_translator);
    }

private:
    int m_count = 1;
    char m_name[6] = "units";
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication m_application;
    QTranslator m_translator;
};

vxUnits::Failure wrongDimension()
{
    return vxUnits::readQuantity(vxMat::PropertyId::YoungsModulus, "210 kg").failure();
}

/// Returns what a user reads who types a text as Young's modulus.
std::string refusalOf(const char* text)
{
    return vxInspector::translated(vxUnits::readQuantity(vxMat::PropertyId::YoungsModulus, text).failure())
        .toStdString();
}

TEST(UnitTexts, AreEnglishWithoutATranslation)
{
    EXPECT_EQ(vxInspector::translated(wrongDimension()).toStdString(), wrongDimension().text());
    EXPECT_EQ(vxInspector::translatedWord("mass"), "mass");
}

TEST(UnitTexts, HaveTheLanguageOfTheUserWithTheirWordsAndSuggestions)
{
    const Language german("de");
    const std::string text = vxInspector::translated(wrongDimension()).toStdString();
    EXPECT_THAT(text, HasSubstr("kg"));
    EXPECT_THAT(text, HasSubstr("Masse"));
    EXPECT_THAT(refusalOf("2,1 GPa"), EndsWith("Meinten Sie „2.1 GPa“?"));
}

TEST(UnitTexts, NameTheQuantitiesOfAFailureInTheLanguageOfTheUser)
{
    const Language german("de");
    vxUnits::ReadingContext context;
    context.creep = vxUnits::CreepExponents{4.5, std::nullopt};
    const char* const typed = "1e-10 MPa^-4.5 s^-1";
    const auto failure = vxUnits::readQuantity(vxMat::PropertyId::CreepModulusA, typed, context).failure();
    EXPECT_THAT(vxInspector::translated(failure).toStdString(), Not(HasSubstr("Creep Modulus")));
}

TEST(UnitTexts, QuoteWhatTheUserTypedAsItWasTyped)
{
    const Language german("de");
    EXPECT_THAT(refusalOf("5 Density"), HasSubstr("Die Einheit „Density“ ist nicht bekannt."));
    EXPECT_THAT(refusalOf("5 rubber"), HasSubstr("Die Einheit „rubber“ ist nicht bekannt."));
    const auto filter = vxUnits::readFilter("Density > 5 Density");
    EXPECT_THAT(vxInspector::translated(filter.failure).toStdString(),
                HasSubstr("„Density“ ist keine bekannte Einheit"));
    const auto words = vxUnits::readFilter("steel > 5");
    EXPECT_THAT(vxInspector::translated(words.failure).toStdString(), HasSubstr("„steel“"));
    const auto remark = vxUnits::readFilter("Density 7850").remark;
    ASSERT_TRUE(remark);
    EXPECT_THAT(vxInspector::translated(*remark).toStdString(), HasSubstr("„Density = 7850“"));
}

TEST(UnitTexts, NameTheQuantitiesOfADoubtInTheLanguageOfTheUser)
{
    const Language german("de");
    vxUnits::MaterialValues values;
    values.setNumber(vxMat::PropertyId::YoungsModulus, 206900.0);
    values.setNumber(vxMat::PropertyId::Density, 7850.0);
    const std::vector<vxUnits::Doubt> doubts = vxUnits::checkPlausibility(values);
    ASSERT_FALSE(doubts.empty());
    const std::string text = vxInspector::translated(doubts.front()).toStdString();
    EXPECT_THAT(text, HasSubstr("Elastizitätsmodul"));
    EXPECT_EQ(text.find("Young's modulus"), std::string::npos) << text;
    EXPECT_THAT(text, HasSubstr("Dichte = 7850 kg/m^3"));
    EXPECT_EQ(text.find("Density"), std::string::npos) << text;
}

TEST(UnitTexts, NameAllQuantitiesOfADoubtInTheLanguageOfTheUser)
{
    const Language chinese("zh_CN");
    vxUnits::MaterialValues values;
    values.setNumber(vxMat::PropertyId::Density, 1000.0);
    values.setNumber(vxMat::PropertyId::SpecificHeat, 1000.0);
    values.setNumber(vxMat::PropertyId::ThermalConductivity, 3000.0);
    const std::vector<vxUnits::Doubt> doubts = vxUnits::checkPlausibility(values);
    ASSERT_FALSE(doubts.empty());
    const std::string text = vxInspector::translated(doubts.front().message).toStdString();
    for (const char* const name : {"Density", "Specific heat", "Thermal conductivity"}) {
        EXPECT_EQ(text.find(name), std::string::npos) << text;
        EXPECT_THAT(text, HasSubstr(QCoreApplication::translate("vxMat::PropertyName", name).toStdString()));
    }
}

TEST(UnitTexts, HaveTheSamePlacesForArgumentsInEveryLanguage)
{
    for (const char* const language : {"de", "zh_CN"}) {
        const Language chosen(language);
        for (const vxUnits::MessageText& text : vxUnits::messageTexts()) {
            const QString shown = QCoreApplication::translate("vxUnits::Message", text.english);
            EXPECT_NE(shown.toStdString(), text.english) << language;
            for (char place = '1'; place <= '9'; ++place) {
                const QString mark = QStringLiteral("%") + QLatin1Char(place);
                EXPECT_EQ(shown.contains(mark), QString::fromUtf8(text.english).contains(mark))
                    << language << ": " << text.english;
            }
        }
    }
}

TEST(UnitTexts, HaveATranslationOfEveryWord)
{
    const Language chinese("zh_CN");
    for (const std::string& word : vxUnits::wordTexts())
        EXPECT_NE(vxInspector::translatedWord(word.c_str()).toStdString(), word);
}

} // namespace

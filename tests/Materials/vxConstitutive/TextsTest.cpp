#include "vxConstitutive/Texts.h"

#include "DataFile.h"

#include "vxConstitutive/Finding.h"
#include "vxConstitutive/MaterialModels.h"
#include "vxConstitutive/data/TestReading.h"
#include "vxMaterial/model/MaterialLibrary.h"

#include <gmock/gmock.h>

#include <set>
#include <string>

using namespace vxConstitutive;
using ::testing::Contains;
using ::testing::HasSubstr;

namespace {

/// Returns the line of a text in the list from which the translations are made.
std::string lineOf(const std::string& context, std::string text)
{
    for (std::size_t at = text.find('"'); at != std::string::npos; at = text.find('"', at + 2))
        text.insert(at, "\\");
    return "QT_TRANSLATE_NOOP(\"" + context + "\", \"" + text + "\"),\n";
}

TEST(TextsForTranslators, AreInTheListOfTheTranslations)
{
    const std::string list = vxtest::readText(VX_TABLE_TEXTS);
    for (const FindingRecord& record : findingRecords())
        EXPECT_THAT(list, HasSubstr(lineOf("vxConstitutive::Finding", record.text)));
    for (const std::string& word : wordTexts())
        EXPECT_THAT(list, HasSubstr(lineOf("vxConstitutive::Word", word)));
}

TEST(WordsForTranslators, AreNotRepeated)
{
    const auto& words = wordTexts();
    EXPECT_EQ(std::set<std::string>(words.begin(), words.end()).size(), words.size());
}

TEST(WordsForTranslators, HaveTheNameOfEveryMeasure)
{
    for (const MeasureRecord& record : measureRecords())
        EXPECT_THAT(wordTexts(), Contains(record.name));
}

TEST(WordsForTranslators, HaveTheNameOfEveryConstantOfTheBuiltInMaterials)
{
    std::size_t constants = 0;
    for (const vxMat::LibraryEntry& entry : vxMat::libraryEntries()) {
        const MaterialModels models = modelsOf(*vxMat::createLibraryMaterial(entry.type));
        for (const auto& model : models.models) {
            for (const Constant& constant : model->constants()) {
                EXPECT_THAT(wordTexts(), Contains(constant.name));
                ++constants;
            }
        }
    }
    EXPECT_GT(constants, 50U);
}

TEST(WordsForTranslators, AWordWithCommasIsOneWord)
{
    const auto marked = [](const std::string&, const std::string& english) { return "<" + english + ">"; };
    EXPECT_EQ(translatedWord("Mises stress, outer cone", marked), "<Mises stress, outer cone>");
    EXPECT_EQ(translatedWord("stretch, time", marked), "<stretch>, <time>");
    EXPECT_EQ(translatedWord("stretch", {}), "stretch");
}

} // namespace

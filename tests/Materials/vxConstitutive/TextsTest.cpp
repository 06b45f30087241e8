#include "vxConstitutive/Texts.h"

#include "vxConstitutive/Finding.h"
#include "vxConstitutive/MaterialModels.h"
#include "vxConstitutive/data/TestReading.h"
#include "vxMaterial/model/MaterialLibrary.h"

#include <gmock/gmock.h>

#include <set>
#include <string>

using namespace vxConstitutive;
using ::testing::Contains;

namespace {

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

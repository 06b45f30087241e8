#include "KeltaTesting.h"

namespace {

using testing::HasSubstr;

class Duplicate : public vxtest::Kelta
{
protected:
    /// Runs further commands. Returns the cards of a material and of its duplicate, which is labelled Copy.
    std::pair<QString, QString> cardsAfter(const QByteArray& further) const
    {
        const vxtest::Outcome outcome =
            runBatch("Mat_NewDoc\nMat_AddMaterial\nselect Material\nuse \"Plastic Example 1\"\n"
                     "Std_DuplicateSelection\nlabel Copy\n" +
                     further + "cards\n");
        EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
        const QString begin = QStringLiteral("Material\n");
        const QString between = QStringLiteral("\nCopy\n");
        const int copy = outcome.output.indexOf(between);
        if (copy < 0)
            return {outcome.output.trimmed(), {}};
        return {outcome.output.mid(begin.size(), copy - begin.size()).trimmed(),
                outcome.output.mid(copy + between.size()).trimmed()};
    }
};

TEST_F(Duplicate, KeepsTheWholeMaterial)
{
    const auto [original, copy] = cardsAfter("");
    EXPECT_EQ(copy, original);
    // The material has lists of numbers.
    EXPECT_THAT(original.toStdString(), HasSubstr(","));
}

TEST_F(Duplicate, KeepsTheWholeMaterialWhenItIsUndoneAndDoneAgain)
{
    const auto [original, copy] = cardsAfter("Std_Undo\nStd_Redo\n");
    EXPECT_EQ(copy, original);
    EXPECT_THAT(original.toStdString(), HasSubstr(","));
}

TEST_F(Duplicate, IsRemovedByUndo)
{
    const auto [original, copy] = cardsAfter("Std_Undo\n");
    EXPECT_FALSE(original.isEmpty());
    EXPECT_TRUE(copy.isEmpty());
}

} // namespace

#include "Obj/ReadableName.h"

#include <gtest/gtest.h>

namespace {

TEST(ReadableName, HasTheWordsOfTheName)
{
    EXPECT_EQ(Obj::readableName("MaterialColor").toStdString(), "Material color");
    EXPECT_EQ(Obj::readableName("ClassLabel").toStdString(), "Class label");
    EXPECT_EQ(Obj::readableName("Label").toStdString(), "Label");
    EXPECT_EQ(Obj::readableName("ID").toStdString(), "ID");
    EXPECT_EQ(Obj::readableName("ObjectID").toStdString(), "Object ID");
    EXPECT_EQ(Obj::readableName("Young's modulus").toStdString(), "Young's modulus");
    EXPECT_EQ(Obj::readableName("").toStdString(), "");
}

} // namespace

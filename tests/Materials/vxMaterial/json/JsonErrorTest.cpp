#include "vxMaterial/json/JsonError.h"

#include <gtest/gtest.h>

namespace {

using vxjson::describe;

TEST(JsonError, IsDescribedWithItsPlaceAndWhatItShows)
{
    EXPECT_EQ(describe({3, 14, "'%1' is not a number", "01"}), "line 3, column 14: '01' is not a number");
    EXPECT_EQ(describe({0, 0, "the text is too long", {}}), "the text is too long");
}

TEST(JsonError, ShowsAPartOfTheTextAsItIs)
{
    EXPECT_EQ(describe({1, 1, "'%1' is wrong", "%1"}), "line 1, column 1: '%1' is wrong");
}

} // namespace

#include "QuantitiesDocument.h"

#include "DataFile.h"

#include <gtest/gtest.h>

namespace {

TEST(QuantitiesDocument, IsUpToDate)
{
    EXPECT_EQ(vxtest::readText(VX_QUANTITIES_DOCUMENT), vxtest::quantitiesDocument())
        << "Run \"ninja vx_quantities_document\".";
}

} // namespace

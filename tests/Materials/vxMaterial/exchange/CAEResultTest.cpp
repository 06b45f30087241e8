#include "vxMaterial/exchange/CAEResult.h"

#include "ExchangeTesting.h"

#include <gtest/gtest.h>

namespace {

using vxCAE::CAEResult;
using vxtest::json;
using vxtest::written;

TEST(CAEResult, WritesItsDefaults)
{
    const Json::Value document = written(CAEResult());
    ASSERT_EQ(document.getMemberNames(), Json::Value::Members{"result"});
    const Json::Value& result = document["result"];
    EXPECT_EQ(result["rst_format"], 4);
    EXPECT_EQ(result["rst_format"].type(), Json::intValue);
    EXPECT_EQ(result["rst_fname"], "noname_rst.dat");
    EXPECT_EQ(result["rst_path"], "");
    EXPECT_EQ(result["output_iter_log"], false);
    EXPECT_EQ(result["output_time_log"], false);
    EXPECT_EQ(result["output_freq"], 1U);
    EXPECT_EQ(result["output_freq"].type(), Json::uintValue);
    EXPECT_EQ(result["monitor_trans"], false);
    EXPECT_EQ(result.size(), 7U);
}

TEST(CAEResult, ReadsEveryMember)
{
    CAEResult result;
    result.readJson(json(R"({"result": {"rst_format": 2, "rst_fname": "a.dat", "rst_path": "/tmp",
        "output_iter_log": true, "output_time_log": true, "output_freq": 5, "monitor_trans": true}})"));
    EXPECT_EQ(result.rst_format, 2);
    EXPECT_EQ(result.rst_fname, "a.dat");
    EXPECT_EQ(result.rst_path, "/tmp");
    EXPECT_TRUE(result.output_iter_log);
    EXPECT_TRUE(result.output_time_log);
    EXPECT_EQ(result.output_freq, 5U);
    EXPECT_TRUE(result.monitor_trans);
}

TEST(CAEResult, IsAllZerosFromADocumentWithoutResult)
{
    CAEResult result;
    result.readJson(json("{}"));
    EXPECT_EQ(result.rst_format, 0);
    EXPECT_EQ(result.rst_fname, "");
    EXPECT_EQ(result.output_freq, 0U);
}

TEST(CAEResult, KeepsWhatItHeldWhenAMemberCannotBeConverted)
{
    CAEResult result;
    EXPECT_THROW(result.readJson(json(R"({"result": {"rst_format": -2}})")), Json::LogicError);
    EXPECT_THROW(result.readJson(json(R"({"result": {"rst_format": 9, "monitor_trans": "yes"}})")), Json::LogicError);
    EXPECT_EQ(result.rst_format, 4);
}

} // namespace

#include "DataFile.h"
#include "ExactNumber.h"

#include "vxUnits/Reading.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using vxtest::evaluate;
using vxtest::isNearest;
using vxUnits::readNumber;
using vxUnits::TemperatureMeaning;
using vxUnits::Unit;

TemperatureMeaning meaningOf(const std::string& word)
{
    if (word == "absolute")
        return TemperatureMeaning::Absolute;
    return word == "difference" ? TemperatureMeaning::Difference : TemperatureMeaning::Refused;
}

TEST(Spellings, EachGivesTheNumberThatFollowsFromTheDefinitions)
{
    const auto rows = vxtest::readTable("units/spellings.tsv");
    EXPECT_GE(rows.size(), 200U);
    for (const auto& row : rows) {
        const auto unit = Unit::parse(row.at(1));
        ASSERT_TRUE(unit) << row[1] << ": " << unit.failure().text();
        const auto reading = readNumber(row[0], *unit, meaningOf(row.size() > 3 ? row[3] : ""));
        EXPECT_TRUE(reading) << row[0] << ": " << reading.failure().text();
        if (!reading)
            continue;
        EXPECT_TRUE(isNearest(reading->value, evaluate(row.at(2))))
            << row[0] << " = " << reading->understood << " instead of " << row[2];
    }
}

TEST(Spellings, WhatWasUnderstoodReadsAsTheSame)
{
    for (const auto& row : vxtest::readTable("units/spellings.tsv")) {
        const Unit unit = *Unit::parse(row.at(1));
        const TemperatureMeaning meaning = meaningOf(row.size() > 3 ? row[3] : "");
        const auto reading = readNumber(row[0], unit, meaning);
        ASSERT_TRUE(reading) << row[0];
        const std::string& understood = reading->understood;
        const std::size_t sign = understood.find(" = ");
        const auto left = readNumber(understood.substr(0, sign), unit, meaning);
        ASSERT_TRUE(left) << understood << ": " << left.failure().text();
        EXPECT_EQ(left->value, reading->value) << understood;
        const auto right =
            readNumber(sign == std::string::npos ? understood : understood.substr(sign + 3), unit, meaning);
        ASSERT_TRUE(right) << understood << ": " << right.failure().text();
        EXPECT_EQ(right->value, reading->value) << understood;
    }
}

} // namespace

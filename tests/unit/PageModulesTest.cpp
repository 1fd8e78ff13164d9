// What jobs can't reach of special pages and perfect binding: arguments that their writers never pass.

#include "PBind.h"
#include "SpecialPage.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <set>
#include <string>

TEST(SpecialPage, OneValueRefusesNullPointers)
{
    char field[kSpecialPageFieldSize] = "";
    EXPECT_EQ(getOneValue(nullptr, field), -1);
    EXPECT_EQ(getOneValue("a,b", nullptr), -1);
    EXPECT_STREQ(field, "");
}

TEST(SpecialPage, OneValueAnswersTheNextOffset)
{
    const struct {
        std::string source, field;
        int32_t next;
    } cases[] = {
        {"", "", 0},
        {",", "", 1},
        {"ab,c", "ab", 3},
        {"ab", "ab", 0},
        {std::string(49, 'x') + ",y", std::string(49, 'x'), 50},
        {std::string(80, 'x') + ",y", std::string(49, 'x'), 81},
    };
    for (const auto &each : cases) {
        char field[kSpecialPageFieldSize] = "";
        EXPECT_EQ(getOneValue(each.source.c_str(), field), each.next) << each.source;
        EXPECT_EQ(field, each.field);
    }
}

TEST(SpecialPage, MapsOnlyWholePairs)
{
    const char *const pairs[] = {"a", "1", "b", "2", "c"};
    char value[kSpecialPageFieldSize] = "";
    EXPECT_EQ(getSpecialPageZPJLValue("a", pairs, 0, value), -1);
    EXPECT_EQ(getSpecialPageZPJLValue("1", pairs, 5, value), -1);
    EXPECT_EQ(getSpecialPageZPJLValue("c", pairs, 5, value), -1);
    EXPECT_STREQ(value, "");
    EXPECT_EQ(getSpecialPageZPJLValue("b", pairs, 4, value), 0);
    EXPECT_STREQ(value, "2");
}

TEST(PBind, EveryValueIsMappedOnce)
{
    std::set<std::string> seen;
    const PBindParam *row = PerfectBindParam;
    for (; *row->ppdValue; row++) {
        EXPECT_TRUE(seen.insert(row->ppdValue).second) << row->ppdValue;
        EXPECT_STRNE(row->pjlValue, "") << row->ppdValue;
    }
    EXPECT_STREQ(row->pjlValue, "");
}

TEST(PBind, MappedValueIsCutToItsBuffer)
{
    char value[5];
    convertPBindPPDValue("Stationary", value, sizeof value);
    EXPECT_STREQ(value, "NORM");
    convertPBindPPDValue("stationary", value, sizeof value);
    EXPECT_STREQ(value, "");
}

TEST(PBind, NumberIsMultipliedBeforeItsSign)
{
    testing::internal::CaptureStdout();
    OutputZPJLCommandforPBindDigital("-3", 4, "PBAX", "RIGHT", 1);
    OutputZPJLCommandforPBindDigital("3", 4, "PBAY", "RIGHT", 2);
    OutputZPJLCommandforPBindDigital("", 4, "PBAV", "RIGHT", 1);
    fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "@PJL SET JOBATTR=\"@PBAX=12\"\n@PJL SET JOBATTR=\"@PBAY=12\"\n");
}
